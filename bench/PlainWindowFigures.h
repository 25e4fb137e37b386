#pragma once

#include "Bench.h"

namespace qs::bench {

// The plain way of the window's own work, on bare controls and the window library
// (WindowLibrary): what the window's figures stand beside.

// The category tree: the three lookups, every node added straight under its parent.
Times FigureCategoryTreePlain(const BenchContext& context, const QString& path);

struct PlainFill {
    Times batched;  // GetItems and the bare fill with Nodes.MoveAll
    Times oneByOne; // the same with one Parent assignment at a time
};
// The item tree of the node with that many items.
PlainFill FigureMainTreePlain(const BenchContext& context, const QString& path, int items);

// The big item: GetSourceCode, its code into a RichTextBox, its revisions into a ListView.
Times FigureItemLoadPlain(const BenchContext& context, const QString& path, int id);

} // namespace qs::bench
