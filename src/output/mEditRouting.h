#pragma once

namespace qs {

// The Edit menu's Copy for every window, routed by the name of the active control of the active
// window.  The Selected Items pane of the API viewer ("RTBoxSelItems") is copied whole; any other
// control gives its selected text, except the trees and the few controls that have none, which
// leave the clipboard alone.  Failures report as "frmCopyDialog:Copy;".
void Copy();

} // namespace qs
