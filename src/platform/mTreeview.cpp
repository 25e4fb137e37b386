#include "mTreeview.h"

#include "TreeView.h"

namespace qs {

void tvwClear(TreeView& tree) {
    const bool redraw = tree.Redraw();
    tree.setRedraw(false);
    tree.Nodes.Clear();
    tree.setRedraw(redraw);
}

void tvwBoldTreeNode(TreeView& tree, const Node& node, bool bold) {
    (void)tree;
    Node(node).setBold(bold);
}

void tvwRedraw(TreeView& tree, bool flag) {
    tree.setRedraw(flag);
}

void tvwTrackSelected(TreeView& tree, bool flag) {
    tree.setTrackSelect(flag);
}

void tvwSetEditBoxLimit(TreeView& tree, int limit) {
    tree.setEditBoxLimit(limit);
}

void tvwSetIndentation(TreeView& tree, int value) {
    constexpr int kTwipsPerPixel = 15;
    constexpr int kMinimumPixels = 16;
    tree.setIndentation(qMax(kMinimumPixels, value / kTwipsPerPixel));
    tree.viewport()->update();
}

} // namespace qs
