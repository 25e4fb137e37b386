#pragma once

#include "TreeShape.h"

#include <QString>
#include <QVector>

namespace qs {
class TreeView;
}

namespace qs::bench {

// The item tree's fill done on a bare TreeView, step by step as the window does it, for the
// figures that measure the tree without the window.

// First pass: the root, then every node under it with its tag and image.
void AddFirstPass(TreeView& tree, const QVector<ShapeNode>& nodes);
// Second pass, reading each node's tag: one Parent assignment at a time, as the plain way.
void ReparentOneByOne(TreeView& tree);
// The same pass as one Nodes.MoveAll.
void ReparentBatched(TreeView& tree);
// Last pass: every node collapsed, sorted, on the window background; the root expanded.
void FinishFill(TreeView& tree);
// The whole fill: drawing off, the three passes, drawing on.
void FillBare(TreeView& tree, const QVector<ShapeNode>& nodes, bool batched);
// What a person sees of the tree: every node's key in display order, nested by parent.
QString ShapeOf(const TreeView& tree);

} // namespace qs::bench
