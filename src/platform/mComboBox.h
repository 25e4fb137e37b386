#pragma once

#include <QString>
#include <QtGlobal>

namespace qs {

class ComboBox;

// Combo helpers.
// The index of the first entry that begins with `text`, case ignored; -1 when none.  An empty
// text matches the first entry.
int cboGetIndex(const ComboBox& combo, const QString& text);
// Finds the entry through cboGetIndex and sets the box's text to it; nothing when none matches.
void cboSearchWithString(ComboBox& combo, const QString& text);
// Selects the first entry whose ItemData equals `data`; with `data` 0 it does nothing.
void cboSearchByItemData(ComboBox& combo, qint32 data);

} // namespace qs
