#pragma once

#include "ListItem.h"

#include <QHash>

namespace qs {

class ListView;

// The ListItems collection of a list: 1-based in display order (a sort renumbers); an absent
// key or index raises 35601; a duplicate non-empty key raises 35602.
class ListViewItems {
public:
    ListItem Add(const QString& key, const QString& text);
    ListItem Add(const QString& text) { return Add(QString(), text); }
    ListItem operator()(int index) const { return Item(index); }
    ListItem operator()(const QString& key) const { return Item(key); }
    ListItem Item(int index) const;
    ListItem Item(const QString& key) const;
    bool Exists(const QString& key) const { return mByKey.contains(key); }
    int Count() const;
    void Remove(int index);
    void Remove(const QString& key);
    void Clear();

private:
    friend class ListView;
    explicit ListViewItems(ListView* list) : mList(list) {}
    ListViewItems(const ListViewItems&) = delete;
    ListViewItems& operator=(const ListViewItems&) = delete;
    void removeRow(QTreeWidgetItem* row);
    ListView* mList;
    QHash<QString, QTreeWidgetItem*> mByKey;
};

} // namespace qs
