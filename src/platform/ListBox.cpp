#include "ListBox.h"

namespace qs {

ListBox::ListBox(const QString& name, QWidget* parent) : ListControl(parent) {
    setObjectName(name);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::currentRowChanged, this, [this](int) {
        if (Click && !mSilent)
            Click();
    });
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem*) {
        if (DblClick)
            DblClick();
    });
}

void ListBox::Clear() {
    mSilent = true;
    clear();
    mSilent = false;
    mNewIndex = -1;
}

void ListBox::AddItem(const QString& text, int index) {
    const int at = addPlace(index);
    auto* item = new QListWidgetItem(text);
    item->setData(kDataRole, 0);
    mSilent = true;
    insertItem(at, item);
    mSilent = false;
    mNewIndex = at;
}

void ListBox::RemoveItem(int index) {
    mSilent = true;
    delete takeItem(checkedIndex(index));
    mSilent = false;
}

QString ListBox::List(int index) const {
    if (index < 0 || index >= count())
        return QString();
    return item(index)->text();
}

void ListBox::setList(int index, const QString& text) {
    item(checkedIndex(index))->setText(text);
}

void ListBox::setListIndex(int index) {
    checkListIndex(index);
    mSilent = true;
    setCurrentRow(index);
    if (index < 0)
        clearSelection();
    mSilent = false;
    raiseClick();
}

qint32 ListBox::ItemData(int index) const {
    return item(checkedIndex(index))->data(kDataRole).toInt();
}

void ListBox::setItemData(int index, qint32 data) {
    item(checkedIndex(index))->setData(kDataRole, data);
}

QString ListBox::Text() const {
    const int row = currentRow();
    return row >= 0 ? item(row)->text() : QString();
}

bool ListBox::Selected(int index) const {
    return item(checkedIndex(index))->isSelected();
}

void ListBox::setSelected(int index, bool selected) {
    item(checkedIndex(index))->setSelected(selected);
}

} // namespace qs
