#include "TreeFigures.h"

#include "BareTree.h"
#include "ImageList.h"
#include "TreeShape.h"
#include "TreeView.h"

#include <QHash>
#include <QTreeWidget>
#include <memory>

namespace qs::bench {

namespace {

QVector<ShapeNode> shapeNodes(int items) {
    return NodesOf(TreeShape::rows(items, 1, 1));
}

std::unique_ptr<TreeView> newTree() {
    auto tree = std::make_unique<TreeView>(QStringLiteral("tvwMain"));
    tree->setImageList(&ImageList::instance());
    tree->resize(300, 600);
    tree->show();
    return tree;
}

// The same nodes as plain widget items, each made under its parent.
void addPlain(QTreeWidget& widget, const QVector<ShapeNode>& nodes, bool nested) {
    QHash<QString, QTreeWidgetItem*> items;
    auto* root = new QTreeWidgetItem(&widget, QStringList(QStringLiteral("Tarnwick")));
    items.insert(QStringLiteral("ROOT"), root);
    for (const ShapeNode& node : nodes) {
        QTreeWidgetItem* parent = nested ? items.value(node.parentKey) : root;
        items.insert(node.key, new QTreeWidgetItem(parent, QStringList(node.text)));
    }
}

// The processor times, and the time per node of the operation.
QVector<QPair<QString, QString>> perNode(const Times& times, const Times& baseline, int nodes) {
    auto pairs = CpuPairs(times, baseline);
    pairs.append({QStringLiteral("nodes"), QString::number(nodes)});
    pairs.append(
        {QStringLiteral("cpu_us_per_node"), QString::number(times.cpuMs * 1000.0 / nodes, 'f', 3)});
    return pairs;
}

QString name(const char* figure, int items) {
    return QStringLiteral("%1_%2").arg(QLatin1String(figure)).arg(items);
}

} // namespace

void FigureTreeAdd(const BenchContext& context, int items) {
    const QVector<ShapeNode> nodes = shapeNodes(items);
    auto tree = newTree();
    tree->setRedraw(false);
    const Times times = MedianTimes(
        context.runs, [&] { tree->Nodes.Clear(); }, [&] { AddFirstPass(*tree, nodes); });
    QTreeWidget plain;
    plain.show();
    plain.setUpdatesEnabled(false);
    const Times baseline = MedianTimes(
        context.runs, [&] { plain.clear(); }, [&] { addPlain(plain, nodes, false); });
    const bool agree = tree->Nodes.Count() == nodes.size() + 1 &&
                       tree->Nodes(QStringLiteral("ROOT")).Children() == nodes.size();
    PrintFigure(context, name("tree_add", items), times.ms, baseline.ms, nodes.size(), agree,
                perNode(times, baseline, nodes.size() + 1));
}

void FigureTreeReparent(const BenchContext& context, int items) {
    const QVector<ShapeNode> nodes = shapeNodes(items);
    auto tree = newTree();
    tree->setRedraw(false);
    const auto firstPass = [&] {
        tree->Nodes.Clear();
        AddFirstPass(*tree, nodes);
    };
    // One assignment at a time takes seconds at this size: fewer runs.
    const int slowRuns = items > 20000 ? qMin(context.runs, 3) : context.runs;
    const Times baseline = MedianTimes(slowRuns, firstPass, [&] { ReparentOneByOne(*tree); });
    const QString oneByOne = ShapeOf(*tree);
    const Times times = MedianTimes(context.runs, firstPass, [&] { ReparentBatched(*tree); });
    const bool agree = ShapeOf(*tree) == oneByOne;
    auto extra = CpuPairs(times, baseline);
    extra.append(
        {QStringLiteral("baseline"), QStringLiteral("\"one Parent assignment at a time\"")});
    extra.append({QStringLiteral("cpu_speedup"),
                  QString::number(baseline.cpuMs / qMax(times.cpuMs, 0.001), 'f', 1)});
    PrintFigure(context, name("tree_reparent", items), times.ms, baseline.ms, nodes.size(), agree,
                extra);
}

void FigureTreeClear(const BenchContext& context, int items) {
    const QVector<ShapeNode> nodes = shapeNodes(items);
    auto tree = newTree();
    const Times times = MedianTimes(
        context.runs, [&] { FillBare(*tree, nodes, true); }, [&] { tree->Nodes.Clear(); });
    const bool agree = tree->Nodes.Count() == 0 && tree->topLevelItemCount() == 0;
    QTreeWidget plain;
    plain.show();
    const Times baseline = MedianTimes(
        context.runs, [&] { addPlain(plain, nodes, true); }, [&] { plain.clear(); });
    PrintFigure(context, name("tree_clear", items), times.ms, baseline.ms, nodes.size(), agree,
                perNode(times, baseline, nodes.size() + 1));
}

} // namespace qs::bench
