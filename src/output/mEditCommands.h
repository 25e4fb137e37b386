#pragma once

namespace qs {

// The Edit menu of every window: Cut, Copy and Paste on the selection of the control that has the
// focus in the active window, through the clipboard of the host.  Which controls they leave alone
// goes by the control's name.  A control without a selection text (a tree, a list, a button) is a
// failure, reported under "frmCopyDialog:" and the procedure's name.

// Moves the selection to the clipboard.  The lists of names it passes over name the trees by
// their older names, so that it does reach a tree (and fails there).
void Cut();
// Puts the selection on the clipboard; the Selected Items pane of the API viewer gives all of
// its text.
void Copy();
// Replaces the selection by the clipboard's text; the same names as Cut are passed over.
void Paste();

} // namespace qs
