#pragma once

#include "ListControl.h"

#include <QComboBox>
#include <functional>

namespace qs {

// Combo styles.
enum ComboStyle : int { vbComboDropdown = 0, vbComboSimple = 1, vbComboDropdownList = 2 };

// A combo box over QComboBox with entries numbered from 0 and a 32-bit ItemData beside each.
//   Errors: an index outside the list raises 381 "Invalid property array index"; ListIndex
//   outside -1 .. ListCount - 1 raises 380 "Invalid property value"; setting Text of a drop-down
//   list to a text that is no entry raises 383 "'Text' property is read-only".
class ComboBox : public ListControl<QComboBox> {
    Q_OBJECT
public:
    explicit ComboBox(const QString& name, QWidget* parent = nullptr,
                      int style = vbComboDropdownList);
    // The event members go before the base widget, which may still signal while it dies.
    ~ComboBox() override { blockSignals(true); }

    int Style() const { return mStyle; }

    void Clear();
    // Adds at the end, or before entry `index`; NewIndex is where it went.
    void AddItem(const QString& text, int index = -1);
    void RemoveItem(int index);
    QString List(int index) const;
    void setList(int index, const QString& text);
    // -1 for none.  Setting it (to any value, the same one too) raises Click.
    int ListIndex() const { return currentIndex(); }
    void setListIndex(int index);
    qint32 ItemData(int index) const;
    void setItemData(int index, qint32 data);
    // The edit text of a drop-down combo, the chosen entry of a drop-down list.
    QString Text() const;
    void setText(const QString& text);

    std::function<void()> Change;

private:
    int mStyle;
};

} // namespace qs
