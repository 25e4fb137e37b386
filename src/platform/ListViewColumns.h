#pragma once

#include "ColumnHeader.h"

#include <memory>
#include <vector>

namespace qs {

class ListView;

// The ColumnHeaders collection of a list: 1-based; an absent key or index raises 35601.
class ListViewColumns {
public:
    // Adds a column at the end; `width` in pixels, below 0 for the default.
    ColumnHeader& Add(const QString& key, const QString& text, int width = -1);
    ColumnHeader& Add(const QString& text, int width = -1) { return Add(QString(), text, width); }
    ColumnHeader& operator()(int index) const { return Item(index); }
    ColumnHeader& operator()(const QString& key) const { return Item(key); }
    ColumnHeader& Item(int index) const;
    ColumnHeader& Item(const QString& key) const;
    int Count() const { return static_cast<int>(mColumns.size()); }
    void Clear();

private:
    friend class ListView;
    explicit ListViewColumns(ListView* list) : mList(list) {}
    ListViewColumns(const ListViewColumns&) = delete;
    ListViewColumns& operator=(const ListViewColumns&) = delete;
    ListView* mList;
    std::vector<std::unique_ptr<ColumnHeader>> mColumns;
};

} // namespace qs
