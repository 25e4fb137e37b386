#include "BareTree.h"

#include "ImageList.h"
#include "OleColor.h"
#include "TreeView.h"

#include <functional>

namespace qs::bench {

void AddFirstPass(TreeView& tree, const QVector<ShapeNode>& nodes) {
    tree.Nodes
        .Add(QString(), tvwChild, QStringLiteral("ROOT"), QStringLiteral("Tarnwick"),
             QStringLiteral("MainIco"))
        .setBold(true);
    for (const ShapeNode& node : nodes) {
        const QString tag = node.parentKey == QLatin1String("ROOT")
                                ? QStringLiteral("SC0CodeTested")
                                : node.parentKey.chopped(6); // the tag holds no "Folder"
        tree.Nodes
            .Add(QStringLiteral("ROOT"), tvwChild, node.key, node.text,
                 node.folder ? QStringLiteral("ClosedFolder") : QStringLiteral("TestedSnippet"))
            .setTag(tag);
    }
}

namespace {
// The parent key a node's tag names; empty for the root.
QString parentKeyOf(const Node& node) {
    const QString tag = node.Tag();
    return tag.isEmpty() ? QString() : TreeShape::parentKey(tag);
}
} // namespace

void ReparentOneByOne(TreeView& tree) {
    for (Node node : tree.Nodes) {
        const QString parent = parentKeyOf(node);
        if (!parent.isEmpty())
            node.setParent(tree.Nodes(parent));
    }
}

void ReparentBatched(TreeView& tree) {
    QVector<QPair<QString, QString>> moves;
    moves.reserve(tree.Nodes.Count());
    for (Node node : tree.Nodes) {
        const QString parent = parentKeyOf(node);
        if (!parent.isEmpty())
            moves.append({node.Key(), parent});
    }
    tree.Nodes.MoveAll(moves);
}

void FinishFill(TreeView& tree) {
    for (Node node : tree.Nodes) {
        node.setExpanded(false);
        node.setSorted(true);
        node.setBackColor(vbWindowBackground);
    }
    tree.Nodes(QStringLiteral("ROOT")).setExpanded(true);
}

void FillBare(TreeView& tree, const QVector<ShapeNode>& nodes, bool batched) {
    tree.setRedraw(false);
    tree.Nodes.Clear();
    AddFirstPass(tree, nodes);
    if (batched)
        ReparentBatched(tree);
    else
        ReparentOneByOne(tree);
    FinishFill(tree);
    tree.setRedraw(true);
}

QString ShapeOf(const TreeView& tree) {
    QString shape;
    const std::function<void(const Node&)> walk = [&](const Node& node) {
        shape += node.Key();
        if (Node child = node.Child()) {
            shape += QLatin1Char('(');
            for (; child; child = child.Next()) {
                walk(child);
                shape += QLatin1Char(' ');
            }
            shape += QLatin1Char(')');
        }
    };
    for (Node node : tree.Nodes)
        if (node.Parent().isNothing())
            walk(node);
    return shape;
}

} // namespace qs::bench
