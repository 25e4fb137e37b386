#pragma once

#include "ColumnHeader.h"
#include "ListItem.h"
#include "ListViewColumns.h"
#include "ListViewItems.h"

#include <QTreeWidget>
#include <functional>

namespace qs {

enum ListViewView : int { lvwIcon = 0, lvwSmallIcon = 1, lvwList = 2, lvwReport = 3 };
enum ListSortOrder : int { lvwAscending = 0, lvwDescending = 1 };

// A report list over QTreeWidget: rows of text with sub-items under column headers, sortable by
// a column (text, case ignored).  Object name = design name.
class ListView : public QTreeWidget {
    Q_OBJECT
public:
    explicit ListView(const QString& name, QWidget* parent = nullptr);
    // The event members go before the base widget, which may still signal while it dies.
    ~ListView() override { blockSignals(true); }

    ListViewColumns ColumnHeaders;
    ListViewItems ListItems;

    QString Name() const { return objectName(); }

    // Only the report view is drawn; the value is kept for the logic that sets it.
    int View() const { return mView; }
    void setView(int view) { mView = view; }
    bool HideSelection() const { return mHideSelection; }
    void setHideSelection(bool hide);

    // The column to sort by, 0 for the first.
    int SortKey() const { return mSortKey; }
    void setSortKey(int key);
    int SortOrder() const { return mSortOrder; }
    void setSortOrder(int order);
    // True sorts now and keeps rows in order as they are added.
    bool Sorted() const { return mSorted; }
    void setSorted(bool sorted);

    ListItem SelectedItem() const;
    void setSelectedItem(const ListItem& item);
    // Takes the selected state off every row.
    void ClearSelection();
    void Clear() { ListItems.Clear(); }

    // Raises ColumnClick as a click on the header of `column` (1-based) does.
    void PerformColumnClick(int column);
    // Selects the row and raises ItemClick and Click as a click does.
    void PerformClick(const ListItem& item);

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void(ListItem)> ItemClick;
    std::function<void(ColumnHeader&)> ColumnClick;

private:
    friend class ListViewItems;
    friend class ListViewColumns;
    friend class ColumnHeader;
    void applySort();

    int mView = lvwReport;
    bool mHideSelection = true;
    int mSortKey = 0;
    int mSortOrder = lvwAscending;
    bool mSorted = false;
};

} // namespace qs
