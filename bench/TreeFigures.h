#pragma once

#include "Bench.h"

namespace qs::bench {

// The item tree on a bare TreeView, for a type node of `items` items in folders five deep.
// Nodes.Add of every row under the root, beside the same number of plain QTreeWidgetItems.
void FigureTreeAdd(const BenchContext& context, int items);
// The second pass as one Nodes.MoveAll, beside one Parent assignment at a time.
void FigureTreeReparent(const BenchContext& context, int items);
// Nodes.Clear of the filled tree, beside QTreeWidget::clear of the same plain items.
void FigureTreeClear(const BenchContext& context, int items);

} // namespace qs::bench
