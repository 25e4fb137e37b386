#include "ListViewItems.h"

#include "ListView.h"
#include "QsError.h"

namespace qs {

namespace {
constexpr int kKeyRole = Qt::UserRole + 1;

[[noreturn]] void notFound() {
    throw QsError(35601, QString::fromLatin1(kAppSource), QStringLiteral("Element not found"));
}

// Rows compare by the sort column's text, case ignored, as the platform's list does.
class ListRow : public QTreeWidgetItem {
public:
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
        return QString::compare(text(column), other.text(column), Qt::CaseInsensitive) < 0;
    }
};
} // namespace

ListItem ListViewItems::Add(const QString& key, const QString& text) {
    if (!key.isEmpty() && mByKey.contains(key))
        throw QsError(35602, QString::fromLatin1(kAppSource),
                      QStringLiteral("Key is not unique in collection"));
    auto* row = new ListRow();
    row->setText(0, text);
    row->setData(0, kKeyRole, key);
    mList->addTopLevelItem(row);
    if (!key.isEmpty())
        mByKey.insert(key, row);
    if (mList->Sorted())
        mList->applySort();
    return ListItem(row);
}

ListItem ListViewItems::Item(int index) const {
    if (index < 1 || index > Count())
        notFound();
    return ListItem(mList->topLevelItem(index - 1));
}

ListItem ListViewItems::Item(const QString& key) const {
    const auto it = mByKey.constFind(key);
    if (key.isEmpty() || it == mByKey.constEnd())
        notFound();
    return ListItem(it.value());
}

int ListViewItems::Count() const {
    return mList->topLevelItemCount();
}

void ListViewItems::Remove(int index) {
    removeRow(Item(index).row());
}
void ListViewItems::Remove(const QString& key) {
    removeRow(Item(key).row());
}

void ListViewItems::removeRow(QTreeWidgetItem* row) {
    const QString key = row->data(0, kKeyRole).toString();
    if (!key.isEmpty())
        mByKey.remove(key);
    delete row;
}

void ListViewItems::Clear() {
    mByKey.clear();
    mList->clear();
}

} // namespace qs
