#include "PlainWindowFigures.h"

#include "BareTree.h"
#include "ImageList.h"
#include "ListItem.h"
#include "ListView.h"
#include "RichTextBox.h"
#include "TreeView.h"
#include "WindowLibrary.h"
#include "cLibraryService.h"

namespace qs::bench {

namespace {

const QStringList kCodeTypeImages{"TestedSnippet", "Tip", "Class3", "Module"};

void fillCategories(TreeView& tree, const QString& path) {
    cLibraryService service(path);
    const auto categories = service.GetLookup(QStringLiteral("Category"));
    const auto codeTypes = service.GetLookup(QStringLiteral("CodeType"));
    const auto fileTypes = service.GetLookup(QStringLiteral("FileType"));
    tree.setRedraw(false);
    tree.Nodes.Clear();
    Node root = tree.Nodes.Add(QString(), tvwChild, QStringLiteral("ROOT"),
                               QStringLiteral("Tarnwick Categories"), QStringLiteral("Categories"));
    int position = 0;
    for (const LookupRow& category : categories) {
        ++position;
        const QString key = QStringLiteral("C") + category.Id;
        Node node = tree.Nodes.Add(root, tvwChild, key, category.Description,
                                   QStringLiteral("ClosedFolder"));
        for (const LookupRow& type : fileTypes)
            tree.Nodes.Add(node, tvwChild, QStringLiteral("FT%1%2").arg(position).arg(type.Id),
                           type.Description, type.Description);
        for (bool tested : {true, false}) {
            Node branch = tree.Nodes.Add(
                node, tvwChild,
                (tested ? QStringLiteral("Tested") : QStringLiteral("UnTested")) + key,
                tested ? QStringLiteral("Tested") : QStringLiteral("UnTested"),
                QStringLiteral("ClosedFolder"));
            int t = 0;
            for (const LookupRow& type : codeTypes)
                tree.Nodes.Add(
                    branch, tvwChild,
                    QStringLiteral("%1%2%3")
                        .arg(tested ? QStringLiteral("CTested") : QStringLiteral("CUntested"))
                        .arg(position)
                        .arg(type.Id),
                    type.Description, kCodeTypeImages.at(t++ % kCodeTypeImages.size()));
            branch.setSorted(true);
        }
        node.setSorted(true);
    }
    root.setSorted(true);
    root.setExpanded(true);
    tree.setRedraw(true);
}

QVector<ShapeNode> nodesOf(const VbArray<ItemRow>& rows) {
    QVector<ItemRow> list;
    list.reserve(rows.count());
    for (const ItemRow& row : rows)
        list.append(row);
    return NodesOf(list);
}

} // namespace

Times FigureCategoryTreePlain(const BenchContext& context, const QString& path) {
    TreeView tree(QStringLiteral("tvwCategories"));
    tree.setImageList(&ImageList::instance());
    tree.show();
    const Times times = MedianTimes(context.runs, [&] { fillCategories(tree, path); });
    const bool agree = tree.Nodes(QStringLiteral("ROOT")).Children() == WindowLibrary::kCategories;
    PrintFigure(context, QStringLiteral("category_tree_plain_200"), times.ms, -1,
                tree.Nodes.Count(), agree, CpuPairs(times));
    return times;
}

PlainFill FigureMainTreePlain(const BenchContext& context, const QString& path, int items) {
    TreeView tree(QStringLiteral("tvwMain"));
    tree.setImageList(&ImageList::instance());
    tree.resize(300, 600);
    tree.show();
    const int category = WindowLibrary::categoryOf(items);
    const auto fill = [&](bool batched) {
        cLibraryService service(path);
        const auto rows =
            service.GetItems(QStringLiteral("SourceCode"), 0, category, 201, 0, 0, 1, 0);
        FillBare(tree, nodesOf(rows), batched);
    };
    const int slowRuns = items > 20000 ? qMin(context.runs, 3) : context.runs;
    PlainFill times;
    times.oneByOne = MedianTimes(slowRuns, [&] { fill(false); });
    const QString oneByOne = ShapeOf(tree);
    times.batched = MedianTimes(context.runs, [&] { fill(true); });
    auto extra = CpuPairs(times.batched, times.oneByOne);
    extra.append(
        {QStringLiteral("baseline"), QStringLiteral("\"one Parent assignment at a time\"")});
    PrintFigure(context, QStringLiteral("main_tree_plain_%1").arg(items), times.batched.ms,
                times.oneByOne.ms, tree.Nodes.Count() - 1, ShapeOf(tree) == oneByOne, extra);
    return times;
}

Times FigureItemLoadPlain(const BenchContext& context, const QString& path, int id) {
    RichTextBox code(QStringLiteral("RichTextBoxCode"));
    ListView revisions(QStringLiteral("lvwRevisionHistory"));
    revisions.ColumnHeaders.Add(QStringLiteral("COLHEADER_REVISIONDATE"),
                                QStringLiteral("Revision Date"));
    revisions.ColumnHeaders.Add(QStringLiteral("COLHEADER_REVISIONNUMBER"),
                                QStringLiteral("Revision Number"));
    code.show();
    revisions.show();
    QString stored;
    const Times times = MedianTimes(context.runs, [&] {
        const cSourceCode item = cLibraryService(path).GetSourceCode(id);
        stored = item.Code();
        code.setTextRTF(stored);
        revisions.ListItems.Clear();
        int n = 0;
        for (const cRevision& revision : item.Revisions()) {
            ListItem row = revisions.ListItems.Add(
                QStringLiteral("KEY%1").arg(++n),
                revision.DateRevised().toString(QStringLiteral("MM/dd/yyyy")));
            row.setSubItems(1, revision.Version());
        }
    });
    const bool agree =
        code.Text() == stored && revisions.ListItems.Count() == WindowLibrary::kBigItemRevisions;
    auto extra = CpuPairs(times);
    extra.append({QStringLiteral("code_chars"), QString::number(stored.size())});
    PrintFigure(context, QStringLiteral("item_load_plain"), times.ms, -1,
                revisions.ListItems.Count(), agree, extra);
    return times;
}

} // namespace qs::bench
