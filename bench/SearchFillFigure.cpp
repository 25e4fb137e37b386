// The search tab's fill: FillTreeViewSearchResults of the main window, offscreen, for one type
// node whose every item is a hit.

#include "Figures.h"

#include "PlainScan.h"
#include "SyntheticLibrary.h"

#include "ComboBox.h"
#include "FormBase.h"
#include "Globals.h"
#include "Host.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "mTreeview.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <cstdio>

namespace qs::bench {

namespace {

// A host that asks nobody: every prompt is counted and answered with its first button.
class SilentHost : public Host {
public:
    int prompts = 0;
    int msgBox(const QString& prompt, int, const QString&) override {
        ++prompts;
        // A message here means the figure measures something else; it is printed, not hidden.
        std::fprintf(stderr, "bench: message box: %s\n", qPrintable(prompt));
        return vbOK;
    }
    QString inputBox(const QString&, const QString&, const QString&) override {
        ++prompts;
        return QString();
    }
    QString fileDialog(const FileDialogRequest&) override {
        ++prompts;
        return QString();
    }
    void showModal(FormBase&) override { ++prompts; }
    void popupMenu(QMenu&) override {}
    void clipboardClear() override {}
    void clipboardSetText(const QString&) override {}
    QString clipboardGetText() override { return QString(); }
    int shellExecute(const QString&, const QString&, const QString&, const QString&, int) override {
        return 0;
    }
    bool showHelp(const QString&, int, long) override { return false; }
    PrinterChoice printerDialog(int) override { return {}; }
    bool printText(const PrinterChoice&, const QString&, const QString&) override { return false; }
    void setMousePointer(int pointer) override { mPointer = pointer; }
    int mousePointer() const override { return mPointer; }
    bool previousInstance() override { return false; }
    void doEvents() override { QCoreApplication::processEvents(); }
    void endProcess() override {}

private:
    int mPointer = 0;
};

void pick(ComboBox& combo, qint32 itemData) {
    for (int i = 0; i < combo.ListCount(); ++i)
        if (combo.ItemData(i) == itemData)
            combo.setListIndex(i);
}

} // namespace

void FigureSearchFill(const BenchContext& context) {
    SilentHost silent;
    setHost(&silent);
    const QFileInfo file(context.path);
    const QString key = QString::fromLatin1(REG_KEY_DATABASE);
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_PATH), file.absolutePath());
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file.fileName());
    gstrUserId = QStringLiteral("bench");

    const auto& node = SyntheticLibrary::node(0);
    // Every synthetic item holds a public procedure, so the whole type node is found.
    const QString text = QStringLiteral("Public");
    // Loaded as the login loads it: its start-up fills the search combos.
    frmMain* form = &Forms::get<frmMain>();
    pick(*form->cboCategory, node.categoryId);
    pick(*form->cboCodeType, node.codeTypeId);
    form->cboTestedOrUntested->setText(node.tested == 1 ? QStringLiteral("Tested")
                                                        : QStringLiteral("Untested"));
    form->rdoSearchOption[0]->setChecked(true);
    form->txtSearchString->setText(text);

    TreeView& tree = *form->tvwSearchResults;
    QVector<double> times;
    for (int run = 0; run < context.runs; ++run) {
        tvwClear(tree);
        times << MedianMs(1, [&] { form->FillTreeViewSearchResults(); });
    }
    std::sort(times.begin(), times.end());
    QList<int> shown;
    QStringList texts;
    for (Node hit = tree.Nodes(QStringLiteral("ROOT")).Child(); hit; hit = hit.Next()) {
        shown << hit.Key().mid(6).toInt();
        texts << hit.Text();
    }
    // The hits stand in the order of their text.
    const bool inOrder =
        std::is_sorted(texts.begin(), texts.end(), [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        });
    std::sort(shown.begin(), shown.end());

    // The service's part of it: the same search alone.
    const double searchMs = MedianMs(context.runs, [&] {
        cLibraryService service(context.path);
        service.Search(0, text, node.categoryId, node.tested, node.codeTypeId, 0, 0);
    });

    PlainScan scan(context.path);
    QList<int> expected;
    const double baseline = MedianMs(context.baselineRuns, [&] {
        expected = scan.search(0, text, node.categoryId, node.tested, node.codeTypeId, true);
    });
    PrintFigure(context, QStringLiteral("search_fill_tree"), times.at(times.size() / 2), baseline,
                shown.size(), inOrder && shown == expected && silent.prompts == 0,
                {{QStringLiteral("nodes"), QString::number(tree.Nodes.Count())},
                 {QStringLiteral("search_ms"), QString::number(searchMs, 'f', 3)}});
    Forms::destroyAll();
    // The window's library object would keep the file open for the figures after this one.
    gobjLibrary.reset();
    setHost(nullptr);
}

} // namespace qs::bench
