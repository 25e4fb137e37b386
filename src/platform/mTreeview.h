#pragma once

#include "Node.h"

namespace qs {

class TreeView;

// Tree helpers.
// Removes every node with drawing off; much faster than Nodes.Clear on a big tree.
void tvwClear(TreeView& tree);
// Shows the node's text in bold or not.
void tvwBoldTreeNode(TreeView& tree, const Node& node, bool bold);
// Turns drawing of the tree on or off.
void tvwRedraw(TreeView& tree, bool flag);
// Hot tracking of the node under the pointer on or off.
void tvwTrackSelected(TreeView& tree, bool flag);
// Limits the label being edited in `tree` to `limit` characters; no effect when that tree has
// no label edit under way.
void tvwSetEditBoxLimit(TreeView& tree, int limit);
// Sets the indentation, given in twips (15 to a pixel, at least 16 pixels), and redraws.
void tvwSetIndentation(TreeView& tree, int value);

} // namespace qs
