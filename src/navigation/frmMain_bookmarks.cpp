// The user's bookmarks: their tree on the bookmark tab, adding one from the item tree or a
// search hit, deleting one, and the tree's click, keys, mouse and focus.

#include "frmMain.h"

#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "ImageList.h"
#include "NodeKeys.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mTreeview.h"
#include "quillstone_private.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>

namespace qs {

using namespace NodeKeys;

namespace {

const QString kRoot = QStringLiteral("ROOT");
const QString kCodeTable = QStringLiteral("BkMark_SrcCode");
const QString kFileTable = QStringLiteral("BkMark_SrcFile");
constexpr int kKeyDelete = 46;
constexpr int kRightButton = 2;

const QString kNotAnItem =
    QStringLiteral("Please make sure that you are on a ''Source Code'' or ''Source File'' item "
                   "to BookMark.");

} // namespace

void frmMain::connectBookmarks() {
    TreeView* const tree = tvwBookMarks;
    Wire(this, tree->NodeClick, "tvwBookMarks_NodeClick",
         [this](Node node) { tvwBookMarks_NodeClick(node); });
    Wire(this, tree->GotFocus, "tvwBookMarks_GotFocus", [this] { tvwBookMarks_GotFocus(); });
    Wire(this, tree->KeyUp, "tvwBookMarks_KeyUp",
         [this](int& code, int shift) { tvwBookMarks_KeyUp(code, shift); });
    Wire(this, tree->MouseDown, "tvwBookMarks_MouseDown",
         [this](int button, int shift, int x, int y) {
             tvwBookMarks_MouseDown(button, shift, x, y);
         });
}

void frmMain::FillTreeViewBookmarks(const QString& strUserId) {
    TreeView& tree = *tvwBookMarks;
    try {
        const auto library = NewLibrary();
        host().doEvents();
        const VbArray<ItemRow> code = library->GetBookmarks(kCodeTable, strUserId, true);
        const VbArray<ItemRow> files = library->GetBookmarks(kFileTable, strUserId, true);
        if (code.isEmpty() && files.isEmpty()) {
            tree.setImageList(&ImageList::instance());
            Node root = tree.Nodes.Add(kRoot, QStringLiteral("Tarnwick Bookmarks"),
                                       QStringLiteral("BookMarks"));
            tvwBoldTreeNode(tree, root, true);
            return;
        }
        tvwRedraw(tree, false);
        tree.setImageList(&ImageList::instance());
        tree.Nodes.Clear();
        Node root = tree.Nodes.Add(kRoot, QStringLiteral("Tarnwick Bookmarks"),
                                   QStringLiteral("BookMarks"));
        tvwBoldTreeNode(tree, root, true);
        // Code first, then files; the root's sorting merges the two by text.
        for (const VbArray<ItemRow>* rows : {&code, &files}) {
            for (const ItemRow& row : *rows) {
                const QString image = BookmarkImage(row.TypeId, row.Tested);
                if (image.isEmpty())
                    continue;
                tree.Nodes.Add(root, tvwChild, BookmarkKey(row.TypeId, row.Id), row.Description,
                               image);
            }
        }
        root.setSorted(true);
        root.setExpanded(true);
        tvwRedraw(tree, true);
    } catch (...) {
        tvwRedraw(tree, true);
        HandleFailure("frmMain:FillTreeViewBookmarks;");
    }
}

void frmMain::AddBookmark() {
    try {
        QString table;
        long id = 0;
        if (mstrBookmarkSource == QLatin1String("Main")) {
            if (tvwMain->Nodes.Count() == 0)
                return;
            const Node selected = tvwMain->SelectedItem();
            const QString key = selected.Key();
            if (key.contains(QLatin1String("ROOT")) || key.contains(QLatin1String("Folder"))) {
                host().msgBox(kNotAnItem, vbInformation, QStringLiteral("BookMark?"));
                tvwMain_NodeClick(selected);
                host().setMousePointer(vbDefault);
                return;
            }
            NewLibrary();
            host().doEvents();
            table = IsSourceFileImage(selected.Image()) ? kFileTable : kCodeTable;
            id = glngSelectedId;
        } else {
            if (tvwSearchResults->Nodes.Count() == 0)
                return;
            if (tvwSearchResults->SelectedItem().Text() == QLatin1String("Tarnwick Search")) {
                host().msgBox(kNotAnItem, vbInformation, QStringLiteral("BookMark?"));
                // The item tree's selection, as the design has it.
                tvwSearchResults_NodeClick(tvwMain->SelectedItem());
                host().setMousePointer(vbDefault);
                return;
            }
            NewLibrary();
            host().doEvents();
            table = mstrSearchCodeType == QLatin1String("Component") ||
                            mstrSearchCodeType == QLatin1String("Article")
                        ? kFileTable
                        : kCodeTable;
            id = mlngSearchItemId;
        }
        // The check reads the global service; this hold outlives a later replacement.
        const std::shared_ptr<cLibraryService> library = gobjLibrary;
        if (!DoesBookMarkExist(table, gstrUserId, QString::number(id)))
            library->AddBookmark(table, static_cast<int>(id), gstrUserId, true);
        tvwClear(*tvwBookMarks);
        FillTreeViewBookmarks(gstrUserId);
    } catch (...) {
        HandleFailure("frmMain:AddBookmark;");
    }
}

void frmMain::mnuBookMark_Click() {
    try {
        host().setMousePointer(vbHourglass);
        AddBookmark();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuBookMark_Click;");
    }
}

void frmMain::mnuBookMarkA_Click() {
    try {
        host().setMousePointer(vbHourglass);
        AddBookmark();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuBookMarkA_Click;");
    }
}

void frmMain::mnuDelBookmark_Click() {
    try {
        if (host().msgBox(QStringLiteral("Are you sure that you want to delete this bookmark?"),
                          vbYesNo, QStringLiteral("Delte Bookmark?")) == vbNo) {
            tvwBookMarks_NodeClick(tvwBookMarks->SelectedItem());
            return;
        }
        host().setMousePointer(vbHourglass);
        const Node selected = tvwBookMarks->SelectedItem();
        if (selected.Key() == kRoot) {
            host().msgBox(QStringLiteral("Please make sure that you select the node you want to "
                                         "delete before attempting to delete it."),
                          vbInformation, QString());
            host().setMousePointer(vbDefault);
            return;
        }
        const int id = selected.Key().mid(2).toInt();
        const bool file = IsSourceFileImage(selected.Image());
        SSTabAboutCode->setVisible(!file);
        SSTabSourceFile->setVisible(file);
        const auto library = NewLibrary();
        host().doEvents();
        library->DeleteBookmark(file ? kFileTable : kCodeTable, gstrUserId, id);
        if (file) {
            ClearControlsSourceFileTab();
        } else {
            ClearOriginalControls();
            ClearRevisionControls();
        }
        tvwBookMarks->Nodes.Remove(selected.Index());
        tvwBookMarks_NodeClick(tvwBookMarks->SelectedItem());
        tbToolBar->Buttons(QStringLiteral("DeleteNode")).setEnabled(false);
        tvwBookMarks_NodeClick(tvwBookMarks->SelectedItem());
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuDelBookmark_Click;");
    }
}

void frmMain::tvwBookMarks_NodeClick(Node node) {
    try {
        host().setMousePointer(vbHourglass);
        RichTextBoxCode->setText(QString());
        txtExample->clear();
        ClearOriginalControls();
        ClearRevisionControls();
        ClearControlsSourceFileTab();
        const QString key = node.Key();
        if (key == kRoot) {
            lblCodeSnipDescr->setText(node.Text());
            host().setMousePointer(vbDefault);
            return;
        }
        if (key.contains(QLatin1Char('_'))) {
            OutlineNodeClick(node, &frmMain::GetCodeSnippetBk);
        } else {
            const long id = key.mid(2).toLong();
            lblCodeSnipDescr->setText(node.Text());
            if (!IsSourceFileImage(node.Image())) {
                SSTabSourceFile->setVisible(false);
                SSTabAboutCode->setVisible(true);
                GetCodeSnippetBk(id);
            } else {
                SSTabAboutCode->setVisible(false);
                SSTabSourceFile->setVisible(true);
                loadSourceFilePanes(id);
            }
        }
        tbToolBar->Buttons(QStringLiteral("DeleteNode")).setEnabled(true);
        host().doEvents();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwBookMarks_NodeClick;");
    }
}

void frmMain::tvwBookMarks_GotFocus() {
    try {
        host().setMousePointer(vbHourglass);
        mstrActiveTree = QStringLiteral("BookMarks");
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwBookMarks_GotFocus;");
    }
}

void frmMain::tvwBookMarks_KeyUp(int& KeyCode, int Shift) {
    (void)Shift;
    try {
        if (tvwBookMarks->Nodes.Count() == 0)
            return;
        host().setMousePointer(vbHourglass);
        const Node selected = tvwBookMarks->SelectedItem();
        if (KeyCode == kKeyDelete && selected && selected.Key() != kRoot &&
            tbToolBar->Buttons(QStringLiteral("DeleteNode")).Enabled()) {
            // The keys reach their commands through the menu entries, as a pick does.
            if (mstrActiveTree == QLatin1String("BookMarks"))
                mnuDelBookmark->trigger();
            else
                mnuDelete->trigger();
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwBookMarks_KeyUp;");
    }
}

void frmMain::tvwBookMarks_MouseDown(int Button, int Shift, int x, int y) {
    (void)Shift;
    try {
        const Node hit = tvwBookMarks->HitTest(x, y);
        if (!hit)
            return;
        const bool root = hit.Key() == kRoot;
        tbToolBar->Buttons(QStringLiteral("DeleteNode")).setEnabled(!root);
        host().doEvents();
        if (Button == kRightButton && !root) {
            PopupMenu(mnuBk);
            host().doEvents();
        }
    } catch (...) {
        HandleFailure("frmMain:tvwBookMarks_MouseDown;");
    }
}

} // namespace qs
