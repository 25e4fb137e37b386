#include "TreeShape.h"

#include <QRandomGenerator>
#include <QStringList>

namespace qs::bench {

namespace {

constexpr int kLevels = 5;
constexpr int kFoldersPerTop = (1 << kLevels) - 1; // 1 + 2 + 4 + 8 + 16

const QStringList kWords{"Registry", "Printer", "Window",  "Strings", "Files",    "Dates",
                         "Graphics", "Network", "Sockets", "Forms",   "Controls", "Sound"};

} // namespace

int TreeShape::folderCount(int items) {
    return qMax(1, items / 1000) * kFoldersPerTop;
}

QVector<ItemRow> TreeShape::rows(int items, int categoryId, int firstId) {
    QRandomGenerator random(quint32(items) * 7919u + quint32(categoryId));
    QVector<ItemRow> rows;
    rows.reserve(folderCount(items) + items);
    int nextId = firstId;
    const auto add = [&](int parentId, bool folder, const QString& description) {
        ItemRow row;
        row.ParentId = parentId;
        row.Id = nextId++;
        row.CategoryId = categoryId;
        row.TypeId = kTypeId;
        row.Tested = kTested;
        row.Description = description;
        row.IsFolder = folder;
        rows.append(row);
        return row.Id;
    };
    // Breadth first, so that every parent comes before its children.
    QVector<int> level;
    for (int t = 0; t < folderCount(items) / kFoldersPerTop; ++t)
        level << add(0, true, QStringLiteral("%1 %2").arg(kWords.at(t % kWords.size())).arg(t));
    QVector<int> folders = level;
    for (int depth = 2; depth <= kLevels; ++depth) {
        QVector<int> next;
        for (int parent : level)
            for (int c = 0; c < 2; ++c)
                next << add(parent, true, QStringLiteral("Level %1 %2").arg(depth).arg(c + 1));
        folders << next;
        level = next;
    }
    for (int i = 0; i < items; ++i) {
        const int parent =
            random.bounded(10) == 0 ? 0 : folders.at(int(random.bounded(quint32(folders.size()))));
        add(parent, false,
            QStringLiteral("%1 routine %2").arg(kWords.at(random.bounded(kWords.size()))).arg(i));
    }
    return rows;
}

QString TreeShape::key(const ItemRow& row) {
    return QStringLiteral("SC%1CodeTested%2")
        .arg(row.Id)
        .arg(row.IsFolder ? QStringLiteral("Folder") : QString());
}

QString TreeShape::tag(const ItemRow& row) {
    return QStringLiteral("SC%1CodeTested").arg(row.ParentId);
}

QString TreeShape::parentKey(const QString& tag) {
    if (tag.left(3) == QLatin1String("SC0"))
        return QStringLiteral("ROOT");
    return tag.contains(QLatin1String("Folder")) ? tag : tag + QStringLiteral("Folder");
}

QVector<ShapeNode> NodesOf(const QVector<ItemRow>& rows) {
    QVector<ShapeNode> nodes;
    nodes.reserve(rows.size());
    for (const ItemRow& row : rows)
        nodes.append({TreeShape::key(row), TreeShape::parentKey(TreeShape::tag(row)),
                      row.Description, row.IsFolder});
    return nodes;
}

} // namespace qs::bench
