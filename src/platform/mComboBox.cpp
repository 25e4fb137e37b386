#include "mComboBox.h"

#include "ComboBox.h"

namespace qs {

int cboGetIndex(const ComboBox& combo, const QString& text) {
    for (int i = 0; i < combo.ListCount(); ++i)
        if (combo.List(i).startsWith(text, Qt::CaseInsensitive))
            return i;
    return -1;
}

void cboSearchWithString(ComboBox& combo, const QString& text) {
    const int index = cboGetIndex(combo, text);
    if (index >= 0)
        combo.setText(combo.List(index));
}

void cboSearchByItemData(ComboBox& combo, qint32 data) {
    if (data == 0)
        return;
    for (int i = 0; i < combo.ListCount(); ++i) {
        if (combo.ItemData(i) == data) {
            combo.setListIndex(i);
            return;
        }
    }
}

} // namespace qs
