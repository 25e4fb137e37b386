// The item tree: its fill from the category tree's choice, and the click that sets the rights,
// the selection globals and the panes of the chosen node.

#include "frmMain.h"

#include "Globals.h"
#include "Host.h"
#include "ImageList.h"
#include "ListView.h"
#include "NodeKeys.h"
#include "OleColor.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"
#include "mTreeview.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVector>

namespace qs {

using namespace NodeKeys;

namespace {

const QString kRoot = QStringLiteral("ROOT");

// The buttons an item tree click decides, all off before the node's own rights.
const char* const kItemButtons[] = {"Add Category",   "Add Folder", "Add SourceCode",
                                    "Add SourceFile", "DeleteNode", "ReName Item",
                                    "Edit",           "BookMark"};

Node addRoot(TreeView& tree) {
    tree.setImageList(&ImageList::instance());
    Node root = tree.Nodes.Add(kRoot, QStringLiteral("Tarnwick"), QStringLiteral("MainIco"));
    tvwBoldTreeNode(tree, root, true);
    return root;
}

bool isFolderImage(const QString& image) {
    return image == QLatin1String("ClosedFolder") || image == QLatin1String("OpenFolder");
}

} // namespace

void frmMain::FillTreeViewMain(long lngTypeId, long lngCategoryId, const QString& strTable) {
    TreeView& tree = *tvwMain;
    try {
        mblnFilling = true;
        ClearOriginalControls();
        ClearRevisionControls();
        ClearControlsSourceFileTab();
        mblnFindHit = false;
        tree.setImageList(&ImageList::instance());
        const auto library = NewLibrary();
        host().doEvents();

        const Node chosen = tvwCategories->SelectedItem();
        const int typeId = static_cast<int>(lngTypeId);
        const int categoryId = static_cast<int>(lngCategoryId);
        if (isFolderImage(chosen.Image())) {
            const int status = chosen.Text() == QLatin1String("Tested") ? 1 : 2;
            marrItems = library->GetItems(strTable, 0, categoryId, 0, 0, 0, status, 0);
        } else {
            const QString branch = chosen.Parent() ? chosen.Parent().Text() : QString();
            const int status = branch == QLatin1String("Tested")     ? 1
                               : branch == QLatin1String("UnTested") ? 2
                                                                     : 0;
            marrItems = library->GetItems(strTable, 0, categoryId, typeId, 0, 0, status, 0);
        }

        tvwRedraw(tree, false);
        tree.Nodes.Clear();
        Node root = addRoot(tree);
        if (marrItems.isEmpty()) {
            // Only the root: it must be seen, so drawing comes back on.
            tvwRedraw(tree, true);
            mblnFilling = false;
            return;
        }

        for (const ItemRow& row : marrItems) {
            const QString key = ItemKey(row);
            if (key.isEmpty())
                continue;
            tree.Nodes
                .Add(root, tvwChild, key, row.Description,
                     ItemImage(row.TypeId, IsTested(row.Tested), row.IsFolder))
                .setTag(ItemTag(row));
        }

        showTreeCopy(true);
        reparentItems();

        // Collapsing fires the collapse events; mblnFilling keeps them from clicking.
        for (Node node : tree.Nodes) {
            // A leaf has nothing to collapse, and asking the view about it searches its
            // siblings.
            if (node.Children() > 0)
                node.setExpanded(false);
            node.setSorted(true);
            node.setBackColor(vbWindowBackground);
        }
        mblnFilling = false;
        root.setExpanded(true);
        tvwRedraw(tree, true);
    } catch (...) {
        tvwRedraw(tree, true);
        mblnFilling = false;
        HandleFailure("frmMain:FillTreeViewMain;");
    }
}

void frmMain::reparentItems() {
    // Rows come in no useful order, so each node waits under the root until every node exists;
    // its tag then names its parent.  A parent that is not among the rows raises the lookup
    // error; the moves before it are made.
    TreeView& tree = *tvwMain;
    QVector<QPair<QString, QString>> moves;
    moves.reserve(tree.Nodes.Count());
    for (Node node : tree.Nodes) {
        const QString parentKey = ParentKeyOfTag(node.Tag());
        if (!parentKey.isEmpty())
            moves.append({node.Key(), parentKey});
    }
    tree.Nodes.MoveAll(moves);
}

void frmMain::setSelectionType(const QString& key, bool codeOnly) {
    const int code = TypeCodeOf(key);
    if (code == 0 || (codeOnly && IsSourceFileType(code)))
        return;
    gstrSourceType = TypeName(code);
    glngSourceTypeId = code;
}

void frmMain::setItemRights(const Node& node, bool mouseDown) {
    for (const char* key : kItemButtons)
        setButton(key, false);
    mnuModify->setEnabled(true);
    mnuAddFolder->setVisible(true);
    for (QAction* entry : {mnuAddCategory, mnuAddSourceCode, mnuAddSourceFile, mnuDelete, mnuRename,
                           mnuEditSource, mnuBookMarkA})
        entry->setVisible(false);
    if (mouseDown)
        mnuBookMark->setVisible(false);
    host().doEvents();

    // Edit stays off on a folder, and an item is never the root, so a press and a click agree
    // from here on.
    const QString key = node.Key();
    const QString image = node.Image();
    if (key == kRoot) {
        setButton("Add Folder", true);
        mnuAddFolder->setVisible(true);
    } else if (isFolderImage(image)) {
        mnuModify->setEnabled(true);
        for (const char* button : {"Add Folder", "DeleteNode", "ReName Item"})
            setButton(button, true);
        for (QAction* entry : {mnuAddFolder, mnuDelete, mnuRename})
            entry->setVisible(true);
        if (SSTabSourceFile->isHidden()) {
            setButton("Add SourceCode", true);
            mnuAddSourceCode->setVisible(true);
            const struct {
                const char* word;
                const char* caption;
            } kCaptions[] = {{"Class", "Add Class Module"},
                             {"Module", "Add General Module"},
                             {"Code", "Add Code Snippet"},
                             {"Tip", "Add Tip"}};
            for (const auto& c : kCaptions)
                if (key.contains(QLatin1String(c.word), Qt::CaseInsensitive))
                    mnuAddSourceCode->setText(QString::fromLatin1(c.caption));
        } else {
            setButton("Add SourceFile", true);
            mnuAddSourceFile->setVisible(true);
        }
    } else if (IsItemImage(image)) {
        for (const char* button : {"DeleteNode", "ReName Item", "BookMark", "Edit"})
            setButton(button, true);
        for (QAction* entry : {mnuEditSource, mnuDelete, mnuRename, mnuBookMarkA})
            entry->setVisible(true);
        mnuBookMark->setEnabled(true);
        mnuAddFolder->setVisible(false);
    }
}

void frmMain::restoreAfterItemClick(const Node& node, const QString& panelText) {
    host().setMousePointer(vbDefault);
    sbStatusBar->Panels(1).setText(panelText);
    setEnabled(true);
    lblCodeSnipDescr->setText(node.Text());
    lblCodeSnipDescr->update();
}

void frmMain::loadSourceFilePanes(long lngId) {
    LoadVerInfoCbo();
    host().setMousePointer(vbHourglass);
    SetPicIcon();
    ClearControlsSourceFileTab();
    lstSrcFileRevHist->Clear();
    if (lstSrcFileRevHist->ColumnHeaders.Count() == 2)
        lstSrcFileRevHist->ColumnHeaders.Clear();
    lvwRevHistSetup(lstSrcFileRevHist);
    SourceFileInfoArtOrComp(lngId);
}

void frmMain::tvwMain_NodeClick(Node node) {
    try {
        host().setMousePointer(vbHourglass);
        host().doEvents();
        // The panel's text is shown again at the end: "Loading..." lasts as long as the click.
        const QString panelText = sbStatusBar->Panels(1).Text();
        sbStatusBar->Panels(1).setText(QStringLiteral("Loading..."));
        lblCodeSnipDescr->setText(QStringLiteral("Loading..."));
        Node selected = tvwMain->SelectedItem();
        if (selected)
            selected.setBackColor(vbWindowBackground);
        const bool admin = mnuAdmin->isVisible();

        if (selected && IsModuleMember(selected.Key())) {
            // A member of a module outline: nothing may be changed or bookmarked there.
            if (admin) {
                mnuModify->setEnabled(false);
                mnuBookMark->setEnabled(false);
                for (const char* key : {"Add Folder", "Add SourceCode", "Add SourceFile",
                                        "DeleteNode", "BookMark", "ReName Item", "Edit"})
                    setButton(key, false);
            }
            OutlineNodeClick(selected, &frmMain::GetCodeSnippet);
            restoreAfterItemClick(node, panelText);
            return;
        }

        const bool files = categoryShowsFiles(false);
        showItemTabs(files);
        if (!files)
            gblnCodeView = true;
        if (admin)
            setItemRights(node, false);
        const bool item = IsItemImage(node.Image());
        setButton("BookMark", item);
        mnuBookMark->setVisible(item);
        if (gstrClickButton == QLatin1String("Right")) {
            restoreAfterItemClick(node, panelText);
            return;
        }

        RichTextBoxCode->setText(QString());
        txtExample->clear();
        host().doEvents();
        ClearOriginalControls();
        host().doEvents();
        ClearRevisionControls();
        host().doEvents();
        ClearControlsSourceFileTab();

        const QString key = node.Key();
        if (key != kRoot) {
            glngSelectedId = IdOf(key);
            glngParentId = glngSelectedId;
        }
        setSelectionType(key, false);
        if (key == kRoot || isFolderImage(node.Image())) {
            restoreAfterItemClick(node, panelText);
            return;
        }
        lblCodeSnipDescr->setText(node.Text());
        if (glngSelectedId != 0) {
            if (IsSourceFileImage(node.Image()))
                loadSourceFilePanes(glngSelectedId);
            else
                GetCodeSnippet(glngSelectedId);
        }
        restoreAfterItemClick(node, panelText);
    } catch (...) {
        sbStatusBar->Panels(1).setText(QStringLiteral("Did Not Load Successfully !"));
        lblCodeSnipDescr->setText(QStringLiteral("Did Not Load Successfully !"));
        tvwMain->setVisible(true);
        HandleFailure("frmMain:tvwMain_NodeClick;");
    }
}

} // namespace qs
