#include "mListView.h"

#include "ListView.h"

#include <QScrollBar>
#include <QStyle>

namespace qs {

void lvwSort(ListView& list, int column, bool descending) {
    list.setSortKey(column - 1);
    list.setSortOrder(descending ? lvwDescending : lvwAscending);
    list.setSorted(true);
}

void lvwSort(ListView& list, int column) {
    lvwSort(list, column, list.SortOrder() == lvwAscending);
}

void lvwAutoSizeLastColumn(ListView& list) {
    const int columns = list.ColumnHeaders.Count();
    if (columns < 2)
        return;
    int others = 0;
    for (int i = 1; i < columns; ++i)
        others += list.ColumnHeaders(i).Width();
    const int scrollBar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
    const int width =
        list.viewport()->width() +
        (list.verticalScrollBar()->isVisible() ? list.verticalScrollBar()->width() : 0) - others -
        scrollBar;
    if (width > 0)
        list.ColumnHeaders(columns).setWidth(width);
}

void lvwClearSelection(ListView& list) {
    list.ClearSelection();
}

} // namespace qs
