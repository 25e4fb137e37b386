// The library search of the search tab: its criteria and their saved values, the search, the
// hit tree with its click and path line, and the tree's focus and mouse.

#include "frmMain.h"

#include "ComboBox.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "ImageList.h"
#include "NodeKeys.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "ServiceErrors.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "mTreeview.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

namespace qs {

using namespace NodeKeys;

namespace {

const QString kRoot = QStringLiteral("ROOT");
const QString kSearchRoot = QStringLiteral("Tarnwick Search");
constexpr int kRightButton = 2;
constexpr int kEnter = 13;
// A path line this long or longer goes to the second, wider box.
constexpr int kShortPath = 82;

void saveSearchSetting(const char* value, const QString& text) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_SEARCHSETTINGS), QString::fromLatin1(value), text);
}

bool isFileType(const QString& text) {
    return text == QLatin1String("Component") || text == QLatin1String("Article");
}

// CInt of an item data: out of 16 bits is an overflow.
int narrowed(qint32 value) {
    if (value < -32768 || value > 32767)
        throw QsError(6, QString::fromLatin1(kAppSource), QStringLiteral("Overflow"));
    return value;
}

qint32 selectedData(const ComboBox& combo) {
    return combo.ItemData(combo.ListIndex());
}

// The description and parent of a search hit or one of its folders; nothing when it is gone.
struct PathStep {
    bool found = false;
    QString description;
    int parentId = 0;
};

PathStep pathStep(cLibraryService& library, bool code, int id) {
    try {
        if (code) {
            const cSourceCode record = library.GetSourceCode(id);
            return {true, record.Description(), record.ParentId()};
        }
        const cSourceFile record = library.GetSourceFile(id);
        return {true, record.Description(), record.ParentId()};
    } catch (const QsError& error) {
        if (error.number() != kErrRecordNotFound)
            throw;
        return {};
    }
}

} // namespace

void frmMain::connectSearch() {
    Wire(this, cboCategory->Click, "cboCategory_Click", [this] { cboCategory_Click(); });
    Wire(this, cboCodeType->Click, "cboCodeType_Click", [this] { cboCodeType_Click(); });
    Wire(this, cboTestedOrUntested->Click, "cboTestedOrUntested_Click",
         [this] { cboTestedOrUntested_Click(); });
    for (int i = 0; i < 3; ++i)
        Wire(this, rdoSearchOption[i], &QRadioButton::clicked, "rdoSearchOption_Click",
             [this, i] { rdoSearchOption_Click(i); });
    Wire(this, cmdSearch, &QPushButton::clicked, "cmdSearch_Click", [this] { cmdSearch_Click(); });
    TreeView* const tree = tvwSearchResults;
    Wire(this, tree->NodeClick, "tvwSearchResults_NodeClick",
         [this](Node node) { tvwSearchResults_NodeClick(node); });
    Wire(this, tree->GotFocus, "tvwSearchResults_GotFocus",
         [this] { tvwSearchResults_GotFocus(); });
    Wire(this, tree->LostFocus, "tvwSearchResults_LostFocus",
         [this] { tvwSearchResults_LostFocus(); });
    Wire(this, tree->MouseDown, "tvwSearchResults_MouseDown",
         [this](int button, int shift, int x, int y) {
             tvwSearchResults_MouseDown(button, shift, x, y);
         });
    Wire(this, RichTextBoxCode->KeyDown, "RichTextBoxCode_KeyDown",
         [this](int& code, int shift) { RichTextBoxCode_KeyDown(code, shift); });
    // The search box's focus and keys come through the window's event filter.
    txtSearchString->installEventFilter(this);
}

bool frmMain::searchBoxEvent(QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        RunHandler(this, "txtSearchString_GotFocus", [this] { txtSearchString_GotFocus(); });
    } else if (event->type() == QEvent::KeyPress) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        if (text.size() == 1) {
            int ascii = text.at(0).unicode();
            RunHandler(this, "txtSearchString_KeyPress", [&] { txtSearchString_KeyPress(ascii); });
            return ascii == 0;
        }
    }
    return false;
}

// ---- The criteria, saved at each change ----

void frmMain::cboCategory_Click() {
    try {
        saveSearchSetting(REG_VAL_LASTCAT, cboCategory->Text());
    } catch (...) {
        HandleFailure("frmMain:cboCategory_Click;");
    }
}

void frmMain::cboCodeType_Click() {
    try {
        saveSearchSetting(REG_VAL_SEARCH_LASTCODETYPE, cboCodeType->Text());
        // Stored files have no tested state.
        if (isFileType(cboCodeType->Text())) {
            cboTestedOrUntested->setListIndex(-1);
            cboTestedOrUntested->setEnabled(false);
        } else {
            cboTestedOrUntested->setEnabled(true);
            cboTestedOrUntested->setText(QStringLiteral("Tested"));
        }
    } catch (...) {
        HandleFailure("frmMain:cboCodeType_Click;");
    }
}

void frmMain::cboTestedOrUntested_Click() {
    try {
        const QString text = cboTestedOrUntested->ListIndex() < 0 ? QStringLiteral(" ")
                                                                  : cboTestedOrUntested->Text();
        saveSearchSetting(REG_VAL_LASTMODETYPE, text);
    } catch (...) {
        HandleFailure("frmMain:cboTestedOrUntested_Click;");
    }
}

void frmMain::rdoSearchOption_Click(int Index) {
    try {
        static const char* const kOptions[] = {REG_SEARCH_EXACT_PHRASE, REG_SEARCH_ALL_WORDS,
                                               REG_SEARCH_ANY_WORD};
        if (Index >= 0 && Index < 3)
            saveSearchSetting(REG_VAL_LASTSEARCHCRITERIA, QString::fromLatin1(kOptions[Index]));
    } catch (...) {
        HandleFailure("frmMain:rdoSearchOption_Click;");
    }
}

void frmMain::txtSearchString_GotFocus() {
    txtSearchString->selectAll();
}

void frmMain::txtSearchString_KeyPress(int& KeyAscii) {
    if (KeyAscii == kEnter)
        cmdSearch->click();
}

// ---- The search ----

void frmMain::cmdSearch_Click() {
    try {
        host().setMousePointer(vbHourglass);
        tvwClear(*tvwSearchResults);
        txtCodePath->setVisible(true);
        txtCodePath2->setVisible(false);
        txtCodePath->clear();
        txtCodePath2->clear();
        lblCodeSnipDescr->clear();
        mstrSearchCodeType = cboCodeType->Text();
        if (!SSTabAboutCode->isHidden())
            ClearOriginalControls();
        else
            ClearControlsSourceFileTab();
        FillTreeViewSearchResults();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:cmdSearch_Click;");
    }
}

void frmMain::FillTreeViewSearchResults() {
    TreeView& tree = *tvwSearchResults;
    try {
        const auto library = NewLibrary();
        host().doEvents();

        struct Check {
            bool failed;
            const char* title;
            const char* message;
        };
        const QString codeType = cboCodeType->Text();
        const Check checks[] = {
            {cboCategory->Text().isEmpty(), "Category",
             "Please select a ''Category'' to search by."},
            {codeType.isEmpty(), "Code Type", "Please select a ''Code Type'' to search by."},
            {!isFileType(codeType) && cboTestedOrUntested->Text().isEmpty(),
             "Tested or Untested Code", "Please select a ''Mode'' to search by."},
            {txtSearchString->text().isEmpty(), "Search String",
             "Please enter a ''Search String'' to search by."},
        };
        for (const Check& check : checks) {
            if (check.failed) {
                host().msgBox(QString::fromLatin1(check.message), vbInformation,
                              QString::fromLatin1(check.title));
                return;
            }
        }

        const int mode = isFileType(codeType)                                     ? 0
                         : cboTestedOrUntested->Text() == QLatin1String("Tested") ? 1
                                                                                  : 2;
        // The match values are not the option indexes: "All Words" sends 2, "Any Word" 1.
        const int match = rdoSearchOption[0]->isChecked()   ? 0
                          : rdoSearchOption[1]->isChecked() ? 2
                                                            : 1;
        const VbArray<ItemRow> rows =
            library->Search(match, txtSearchString->text(), narrowed(selectedData(*cboCategory)),
                            mode, narrowed(selectedData(*cboCodeType)), 0, 0);

        tree.setImageList(&ImageList::instance());
        if (rows.isEmpty()) {
            Node root = tree.Nodes.Add(kRoot, kSearchRoot, QStringLiteral("Find"));
            tvwBoldTreeNode(tree, root, true);
            return;
        }
        tvwRedraw(tree, false);
        tree.Nodes.Clear();
        Node root = tree.Nodes.Add(kRoot, kSearchRoot, QStringLiteral("Find"));
        tvwBoldTreeNode(tree, root, true);
        // In the order of their text, as the root's sorting leaves them, so that it has
        // nothing to move: ten thousand hits are added in one pass.
        QVector<const ItemRow*> ordered;
        ordered.reserve(rows.count());
        for (const ItemRow& row : rows)
            ordered.append(&row);
        std::stable_sort(ordered.begin(), ordered.end(), [](const ItemRow* a, const ItemRow* b) {
            return QString::compare(a->Description, b->Description, Qt::CaseInsensitive) < 0;
        });
        for (const ItemRow* hit : ordered) {
            const ItemRow& row = *hit;
            // Folders never show, whatever their type.
            if (row.IsFolder)
                continue;
            const QString image = BookmarkImage(row.TypeId, row.Tested);
            if (image.isEmpty())
                continue;
            tree.Nodes.Add(root, tvwChild, SearchKey(row.TypeId, row.Id), row.Description, image);
        }
        root.setSorted(true);
        root.setExpanded(true);
        tvwRedraw(tree, true);
    } catch (...) {
        tvwRedraw(tree, true);
        HandleFailure("frmMain:FillTreeViewSearchResults;");
    }
}

// ---- The hit tree ----

void frmMain::tvwSearchResults_NodeClick(Node node) {
    try {
        if (tvwSearchResults->Nodes.Count() == 0)
            return;
        host().setMousePointer(vbHourglass);
        RichTextBoxCode->setText(QString());
        mblnFindHit = false;
        txtExample->clear();
        ClearOriginalControls();
        ClearRevisionControls();
        ClearControlsSourceFileTab();
        const bool hit = node.Text() != kSearchRoot;
        tbToolBar->Buttons(QStringLiteral("BookMark")).setEnabled(hit);
        mnuBookMark->setEnabled(hit);

        const QString key = node.Key();
        if (key.contains(QLatin1Char('_'))) {
            OutlineNodeClick(node, &frmMain::GetCodeSnippetSrch);
        } else if (key == kRoot) {
            SSTabAboutCode->setVisible(true);
            lblCodeSnipDescr->setText(node.Text());
            txtCodePath->setVisible(true);
            txtCodePath->setText(QStringLiteral("Bookmark Not Selected"));
            txtCodePath2->setVisible(false);
            txtCodePath2->clear();
        } else {
            mlngSearchItemId = key.mid(6).toLong();
            lblCodeSnipDescr->setText(node.Text());
            if (!key.contains(QLatin1String("SRCHSC"))) {
                SSTabAboutCode->setVisible(false);
                SSTabSourceFile->setVisible(true);
                loadSourceFilePanes(mlngSearchItemId);
            } else {
                SSTabSourceFile->setVisible(false);
                SSTabAboutCode->setVisible(true);
                GetCodeSnippetSrch(mlngSearchItemId);
            }
            ShowSearchPath(key, node.Text());
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwSearchResults_NodeClick;");
    }
}

void frmMain::ShowSearchPath(const QString& key, const QString& text) {
    // The combo boxes as they stand now, not as they stood at the search.
    const bool code = key.contains(QLatin1String("SRCHSC"));
    const auto library = NewLibrary();
    PathStep step = pathStep(*library, code, static_cast<int>(mlngSearchItemId));
    QString path = step.found ? step.description : text;
    while (step.found && step.parentId != 0) {
        step = pathStep(*library, code, step.parentId);
        if (step.found)
            path = step.description + QLatin1Char('\\') + path;
    }
    QStringList head{cboCategory->Text()};
    if (code)
        head << cboTestedOrUntested->Text();
    head << cboCodeType->Text();
    path = head.join(QLatin1Char('\\')) + QLatin1Char('\\') + path;
    const bool fits = path.size() < kShortPath;
    txtCodePath->setVisible(fits);
    txtCodePath2->setVisible(!fits);
    txtCodePath->setText(fits ? path : QString());
    txtCodePath2->setText(fits ? QString() : path);
}

void frmMain::tvwSearchResults_GotFocus() {
    mstrBookmarkSource = QStringLiteral("Search");
}

void frmMain::tvwSearchResults_LostFocus() {
    try {
        mstrBookmarkSource = QStringLiteral("Main");
        tbToolBar->Buttons(QStringLiteral("BookMark")).setEnabled(false);
        mnuBookMarkSearch->setEnabled(false);
    } catch (...) {
        HandleFailure("frmMain:tvwSearchResults_LostFocus;");
    }
}

void frmMain::tvwSearchResults_MouseDown(int Button, int Shift, int x, int y) {
    (void)Shift;
    (void)x;
    (void)y;
    try {
        const Node selected = tvwSearchResults->SelectedItem();
        if (tvwSearchResults->Nodes.Count() == 0 || !selected || selected.Text() == kSearchRoot)
            return;
        mnuBookMarkSch->setEnabled(true);
        if (Button == kRightButton)
            PopupMenu(mnuBookMarkSearch);
    } catch (...) {
        HandleFailure("frmMain:tvwSearchResults_MouseDown;");
    }
}

void frmMain::mnuBookMarkSch_Click() {
    try {
        AddBookmark();
    } catch (...) {
        HandleFailure("frmMain:mnuBookMarkSch_Click;");
    }
}

} // namespace qs
