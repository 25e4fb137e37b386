#include "ListView.h"

#include "QsError.h"

#include <QHeaderView>

namespace qs {

ListView::ListView(const QString& name, QWidget* parent)
    : QTreeWidget(parent), ColumnHeaders(this), ListItems(this) {
    setObjectName(name);
    setColumnCount(0);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(false);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (section >= 0 && section < ColumnHeaders.Count())
            PerformColumnClick(section + 1);
    });
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* row, int) {
        if (ItemClick)
            ItemClick(ListItem(row));
        if (Click)
            Click();
    });
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem*, int) {
        if (DblClick)
            DblClick();
    });
}

void ListView::setHideSelection(bool hide) {
    mHideSelection = hide;
    // A list that keeps its selection shows it in the active colours when it has no focus.
    QPalette p = palette();
    if (!hide) {
        p.setColor(QPalette::Inactive, QPalette::Highlight,
                   p.color(QPalette::Active, QPalette::Highlight));
        p.setColor(QPalette::Inactive, QPalette::HighlightedText,
                   p.color(QPalette::Active, QPalette::HighlightedText));
    }
    setPalette(p);
}

void ListView::setSortKey(int key) {
    if (key < 0)
        throw QsError(380, QString::fromLatin1(kAppSource),
                      QStringLiteral("Invalid property value"));
    mSortKey = key;
    if (mSorted)
        applySort();
}

void ListView::setSortOrder(int order) {
    if (order != lvwAscending && order != lvwDescending)
        throw QsError(380, QString::fromLatin1(kAppSource),
                      QStringLiteral("Invalid property value"));
    mSortOrder = order;
    if (mSorted)
        applySort();
}

void ListView::setSorted(bool sorted) {
    mSorted = sorted;
    if (sorted)
        applySort();
}

void ListView::applySort() {
    if (mSortKey >= columnCount() && columnCount() > 0)
        return;
    sortItems(mSortKey, mSortOrder == lvwDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

ListItem ListView::SelectedItem() const {
    QTreeWidgetItem* row = currentItem();
    return ListItem(row && row->isSelected() ? row : nullptr);
}

void ListView::setSelectedItem(const ListItem& item) {
    if (!item) {
        ClearSelection();
        return;
    }
    ListItem(item).setSelected(true);
}

void ListView::ClearSelection() {
    clearSelection();
}

void ListView::PerformColumnClick(int column) {
    ColumnHeader& header = ColumnHeaders(column);
    if (ColumnClick)
        ColumnClick(header);
}

void ListView::PerformClick(const ListItem& item) {
    setSelectedItem(item);
    if (ItemClick)
        ItemClick(item);
    if (Click)
        Click();
}

} // namespace qs
