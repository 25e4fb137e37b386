#pragma once

#include "Bench.h"
#include "PlainWindowFigures.h"

namespace qs::bench {

// The plain way's times, which the window's figures print beside their own.
struct PlainTimes {
    Times categoryTree;
    PlainFill small;
    PlainFill large;
    Times itemLoad;
};

// The window's own figures on the window library: FillTreeViewCategory for 200 categories,
// FillTreeViewMain for the nodes of 10,000 and 100,000 items, a click on the big item.  They
// drive frmMain through those procedures, so they build only where the window has them
// (QS_BENCH_WINDOW); elsewhere WindowFiguresBuilt is false and FigureWindow prints nothing.
bool WindowFiguresBuilt();
void FigureWindow(const BenchContext& context, const QString& path, const PlainTimes& plain);

} // namespace qs::bench
