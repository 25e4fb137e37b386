#pragma once

#include "ListControl.h"

#include <QListWidget>
#include <functional>

namespace qs {

// A list box over QListWidget with entries numbered from 0 and a 32-bit ItemData beside each.
// Errors as ComboBox: 381 for an index outside the list, 380 for a bad ListIndex.
class ListBox : public ListControl<QListWidget> {
    Q_OBJECT
public:
    explicit ListBox(const QString& name, QWidget* parent = nullptr);
    // The event members go before the base widget, which may still signal while it dies.
    ~ListBox() override { blockSignals(true); }

    void Clear();
    void AddItem(const QString& text, int index = -1);
    void RemoveItem(int index);
    QString List(int index) const;
    void setList(int index, const QString& text);
    // -1 for none.  Setting it (to any value, the same one too) raises Click.
    int ListIndex() const { return currentRow(); }
    void setListIndex(int index);
    qint32 ItemData(int index) const;
    void setItemData(int index, qint32 data);
    // The chosen entry's text, empty for none.
    QString Text() const;
    bool Selected(int index) const;
    void setSelected(int index, bool selected);

    std::function<void()> DblClick;
};

} // namespace qs
