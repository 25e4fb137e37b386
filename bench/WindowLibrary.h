#pragma once

#include "ItemRow.h"

#include <QString>
#include <QVector>

namespace qs::bench {

// The library of the window's figures: 200 categories; in category 2 a node of tested code
// snippets with 10,000 items and in category 3 one with 100,000, both in folders five deep
// (TreeShape); in category 4 one item of 100 KB of code with 50 revisions.  Category ids are
// their positions in the category tree.
class WindowLibrary {
public:
    static constexpr int kCategories = 200;
    static constexpr int kSmallCategory = 2;
    static constexpr int kSmallItems = 10000;
    static constexpr int kLargeCategory = 3;
    static constexpr int kLargeItems = 100000;
    static constexpr int kBigItemCategory = 4;
    static constexpr int kBigItemCodeBytes = 100 * 1024;
    static constexpr int kBigItemRevisions = 50;

    // Makes the library at path; an existing file there is replaced.
    static void build(const QString& path);
    // The id of the big item: the one after the rows of the two nodes.
    static int bigItemId();
    // The category of the node with that many items, and its rows as GetItems returns them.
    static int categoryOf(int items) {
        return items == kLargeItems ? kLargeCategory : kSmallCategory;
    }
    static QVector<ItemRow> rowsOf(int items);
};

} // namespace qs::bench
