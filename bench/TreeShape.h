#pragma once

#include "ItemRow.h"

#include <QPair>
#include <QString>
#include <QVector>

namespace qs::bench {

// The rows of one type node of tested code snippets, as GetItems hands them out: folders nested
// five deep, parents before children, then the items, spread over the folders with one in ten at
// the top level. A top folder has two subfolders, each of those two, down to the fifth level (31
// folders), and there is one top folder for every 1,000 items.  Ids count up from firstId; the same
// arguments give the same rows.
class TreeShape {
public:
    static constexpr int kTypeId = 201;
    static constexpr int kTested = 1;

    static QVector<ItemRow> rows(int items, int categoryId, int firstId);
    static int folderCount(int items);

    // The item tree's keys, written here for the bare-tree figures, which run without the
    // window: "SC" & id & kind word, the tag with the parent's id, and the parent key the second
    // pass of a fill reads out of the tag.
    static QString key(const ItemRow& row);
    static QString tag(const ItemRow& row);
    static QString parentKey(const QString& tag);
};

// One node: its key, its parent's key, its text, whether it is a folder.
struct ShapeNode {
    QString key;
    QString parentKey;
    QString text;
    bool folder;
};

// The rows as nodes, in row order.
QVector<ShapeNode> NodesOf(const QVector<ItemRow>& rows);

} // namespace qs::bench
