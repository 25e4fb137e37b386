#pragma once

namespace qs {

class ListView;

// List helpers.  `column` is a column header's Index (from 1).
// Sorts by the column: SortKey = column - 1, SortOrder descending when `descending`, Sorted on.
void lvwSort(ListView& list, int column, bool descending);
// The same with the order toggled from the list's current SortOrder.
void lvwSort(ListView& list, int column);
// With two or more columns, widens the last one to fill the client width, less the width of a
// vertical scroll bar.
void lvwAutoSizeLastColumn(ListView& list);
// Takes the selected state off all rows.
void lvwClearSelection(ListView& list);

} // namespace qs
