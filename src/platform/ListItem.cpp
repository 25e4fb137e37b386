#include "ListItem.h"

#include "QsError.h"

#include <QTreeWidget>
#include <QTreeWidgetItem>

namespace qs {

namespace {
constexpr int kKeyRole = Qt::UserRole + 1;
constexpr int kTagRole = Qt::UserRole + 2;
} // namespace

QTreeWidgetItem* ListItem::checked() const {
    if (!mRow)
        throw QsError(91, QString::fromLatin1(kAppSource),
                      QStringLiteral("Object variable or With block variable not set"));
    return mRow;
}

QString ListItem::Key() const {
    return checked()->data(0, kKeyRole).toString();
}
QString ListItem::Text() const {
    return checked()->text(0);
}
void ListItem::setText(const QString& text) {
    checked()->setText(0, text);
}

QString ListItem::SubItems(int index) const {
    QTreeWidgetItem* row = checked();
    if (index < 1)
        throw QsError(380, QString::fromLatin1(kAppSource),
                      QStringLiteral("Invalid property value"));
    return row->text(index);
}

void ListItem::setSubItems(int index, const QString& text) {
    QTreeWidgetItem* row = checked();
    if (index < 1)
        throw QsError(380, QString::fromLatin1(kAppSource),
                      QStringLiteral("Invalid property value"));
    row->setText(index, text);
}

QString ListItem::Tag() const {
    return checked()->data(0, kTagRole).toString();
}
void ListItem::setTag(const QString& tag) {
    checked()->setData(0, kTagRole, tag);
}
bool ListItem::Selected() const {
    return checked()->isSelected();
}

void ListItem::setSelected(bool selected) {
    QTreeWidgetItem* row = checked();
    if (selected && row->treeWidget())
        row->treeWidget()->setCurrentItem(row);
    row->setSelected(selected);
}

int ListItem::Index() const {
    QTreeWidgetItem* row = checked();
    return row->treeWidget() ? row->treeWidget()->indexOfTopLevelItem(row) + 1 : 0;
}

void ListItem::EnsureVisible() {
    QTreeWidgetItem* row = checked();
    if (row->treeWidget())
        row->treeWidget()->scrollToItem(row);
}

} // namespace qs
