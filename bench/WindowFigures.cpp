#include "WindowFigures.h"

#ifdef QS_BENCH_WINDOW

#include "BareTree.h"
#include "FormBase.h"
#include "Globals.h"
#include "ListView.h"
#include "NodeKeys.h"
#include "QtHost.h"
#include "RichTextBox.h"
#include "TreeShape.h"
#include "TreeView.h"
#include "WindowLibrary.h"
#include "cLibraryService.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>
#include <cstdio>
#include <type_traits>

namespace qs::bench {

namespace {

// The real host, except that nothing waits for a person: a message box is printed and
// answered OK, and a modal form is left unshown.
class BenchHost : public QtHost {
public:
    int msgBox(const QString& prompt, int, const QString& title) override {
        std::fprintf(stderr, "bench: message box \"%s\": %s\n", qPrintable(title),
                     qPrintable(prompt));
        ++messages;
        return 1;
    }
    QString inputBox(const QString& prompt, const QString&, const QString&) override {
        std::fprintf(stderr, "bench: input box: %s\n", qPrintable(prompt));
        ++messages;
        return QString();
    }
    void showModal(FormBase& form) override {
        std::fprintf(stderr, "bench: modal form %s\n", qPrintable(form.objectName()));
        ++messages;
    }
    int messages = 0;
};

// FillTreeViewMain takes its three arguments by reference: they go in as variables of the
// types it declares.
template <class A, class B, class C>
void fillMain(frmMain& form, void (frmMain::*fill)(A, B, C), int typeId, int categoryId,
              const QString& table) {
    std::decay_t<A> type = typeId;
    std::decay_t<B> category = categoryId;
    std::decay_t<C> name = table;
    (form.*fill)(type, category, name);
}

// Selects the tested "Code Snippet" node of the category, as the click that fills the item
// tree leaves it.
void selectTypeNode(frmMain& form, int category) {
    const QString key = NodeKeys::CodeTypeKey(true, category, QString::number(TreeShape::kTypeId));
    form.tvwCategories->setSelectedItem(form.tvwCategories->Nodes(key));
}

void fill(frmMain& form, int category) {
    selectTypeNode(form, category);
    fillMain(form, &frmMain::FillTreeViewMain, TreeShape::kTypeId, category,
             QStringLiteral("SourceCode"));
}

// The processor times, and the target with whether the wall-clock time meets it.
QVector<QPair<QString, QString>> extras(const Times& times, const Times& baseline,
                                        double targetMs = -1) {
    auto pairs = CpuPairs(times, baseline);
    if (targetMs > 0) {
        pairs.append({QStringLiteral("target_ms"), QString::number(targetMs, 'f', 0)});
        pairs.append({QStringLiteral("meets_target"),
                      times.ms < targetMs ? QStringLiteral("true") : QStringLiteral("false")});
    }
    return pairs;
}

} // namespace

bool WindowFiguresBuilt() {
    return true;
}

void FigureWindow(const BenchContext& context, const QString& path, const PlainTimes& plain) {
    // Settings go to a folder of their own, never the person's.
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
    const QFileInfo file(path);
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH),
                   QDir::toNativeSeparators(file.absolutePath()));
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file.fileName());
    BenchHost host;
    setHost(&host);
    gstrUserId = QStringLiteral("bench");
    gstrAccessType = QStringLiteral("Admin");
    frmMain& form = Forms::get<frmMain>();
    form.show();

    const Times categories = MedianTimes(context.runs, [&] { form.FillTreeViewCategory(); });
    PrintFigure(context, QStringLiteral("fill_tree_view_category_200"), categories.ms,
                plain.categoryTree.ms, form.tvwCategories->Nodes.Count(),
                form.tvwCategories->Nodes(QStringLiteral("ROOT")).Children() ==
                    WindowLibrary::kCategories,
                extras(categories, plain.categoryTree));

    for (int items : {WindowLibrary::kSmallItems, WindowLibrary::kLargeItems}) {
        const int category = WindowLibrary::categoryOf(items);
        const PlainFill& bare = items == WindowLibrary::kLargeItems ? plain.large : plain.small;
        const Times times = MedianTimes(context.runs, [&] { fill(form, category); });
        TreeView expected(QStringLiteral("tvwMain"));
        FillBare(expected, NodesOf(WindowLibrary::rowsOf(items)), true);
        auto extra = extras(times, bare.oneByOne, items == WindowLibrary::kLargeItems ? 1000 : 100);
        extra.append({QStringLiteral("bare_batched_ms"), QString::number(bare.batched.ms, 'f', 3)});
        PrintFigure(context, QStringLiteral("fill_tree_view_main_%1").arg(items), times.ms,
                    bare.oneByOne.ms, form.tvwMain->Nodes.Count() - 1,
                    ShapeOf(*form.tvwMain) == ShapeOf(expected), extra);
    }

    fill(form, WindowLibrary::kBigItemCategory);
    ItemRow row;
    row.Id = WindowLibrary::bigItemId();
    row.TypeId = TreeShape::kTypeId;
    row.Tested = TreeShape::kTested;
    Node node = form.tvwMain->Nodes(NodeKeys::ItemKey(row));
    form.tvwMain->setSelectedItem(node);
    gstrClickButton = QStringLiteral("Left");
    const Times click = MedianTimes(context.runs, [&] { form.tvwMain_NodeClick(node); });
    const QString code = cLibraryService(path).GetSourceCode(row.Id).Code();
    const bool agree =
        form.RichTextBoxCode->Text() == code &&
        form.lvwRevisionHistory->ListItems.Count() == WindowLibrary::kBigItemRevisions;
    auto extra = extras(click, plain.itemLoad, 50);
    extra.append({QStringLiteral("message_boxes"), QString::number(host.messages)});
    PrintFigure(context, QStringLiteral("item_click_100kb"), click.ms, plain.itemLoad.ms, 1, agree,
                extra);

    Forms::destroyAll();
    gobjLibrary.reset();
    setHost(nullptr);
}

} // namespace qs::bench

#else

namespace qs::bench {

bool WindowFiguresBuilt() {
    return false;
}

void FigureWindow(const BenchContext&, const QString&, const PlainTimes&) {}

} // namespace qs::bench

#endif
