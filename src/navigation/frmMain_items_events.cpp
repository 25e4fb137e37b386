// The item tree's mouse, keys, expand and collapse, rename and focus.

#include "frmMain.h"

#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "OleColor.h"
#include "RichTextBox.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mTreeview.h"

#include <QAction>
#include <QLabel>

namespace qs {

using namespace NodeKeys;

namespace {
const QString kRoot = QStringLiteral("ROOT");
constexpr int kKeyInsert = 45;
constexpr int kKeyDelete = 46;
constexpr int kRightButton = 2;
} // namespace

void frmMain::tvwMain_MouseDown(int Button, int Shift, int x, int y) {
    (void)Shift;
    try {
        TreeView& tree = *tvwMain;
        if (tree.Nodes.Count() == 0)
            return;
        mnodMouseDown = tree.HitTest(x, y);
        host().setMousePointer(vbDefault);
        const Node selected = tree.SelectedItem();
        Node hit = mnodMouseDown;
        if (Button == kRightButton && hit && selected && hit.Key() != selected.Key() &&
            IsModuleMember(selected.Key())) {
            host().setMousePointer(vbDefault);
            return;
        }
        gstrClickButton = Button == kRightButton ? QStringLiteral("Right") : QStringLiteral("Left");
        const bool admin = mnuAdmin->isVisible();

        if (hit) {
            hit.setBackColor(vbWindowBackground);
            const QString key = hit.Key();
            if (IsModuleMember(key)) {
                host().setMousePointer(vbDefault);
                return;
            }
            if (key != kRoot) {
                glngSelectedId = IdOf(key);
                const Node parent = hit.Parent();
                glngParentId = parent && parent.Key() != kRoot ? IdOf(parent.Key()) : 0;
                setSelectionType(key, true);
            }
            if (admin) {
                const bool files = categoryShowsFiles(true);
                showItemTabs(files);
                if (!files)
                    gblnCodeView = true;
                setItemRights(hit, true);
            }
            if (IsItemImage(hit.Image())) {
                mnuBookMarkA->setVisible(true);
                if (admin) {
                    mnuBookMark->setVisible(true);
                    setButton("BookMark", true);
                }
            } else {
                mnuBookMarkA->setVisible(false);
            }
            // A reader's level never opens the pop-up of the commands that change things.
            if (Button == kRightButton) {
                if (admin)
                    PopupMenu(mnuModify);
            } else if (key != kRoot) {
                // The blank twin hides the rich text while it loads.
                RichTextBoxVis->setVisible(true);
                RichTextBoxCode->setVisible(false);
                tvwMain_NodeClick(hit);
                RichTextBoxVis->setVisible(false);
                RichTextBoxCode->setVisible(true);
            }
        }

        // The panes lag behind the selection: bring them up to the selected node.
        const Node current = tree.SelectedItem();
        if (hit && current && lblCodeSnipDescr->text() != current.Text()) {
            if (admin)
                setItemRights(current, true);
            if (current.Key() != kRoot && IsItemImage(current.Image())) {
                const bool code = current.Key().contains(QLatin1String("SC"), Qt::CaseInsensitive);
                showItemTabs(!code);
                if (code)
                    GetCodeSnippet(IdOf(current.Key()));
                else
                    loadSourceFilePanes(IdOf(current.Key()));
            }
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwMain_MouseDown;");
    }
}

void frmMain::tvwMain_MouseUp(int Button, int Shift, int x, int y) {
    (void)Button;
    (void)Shift;
    (void)x;
    (void)y;
    gstrClickButton = QStringLiteral("Left");
}

void frmMain::tvwMain_KeyUp(int& KeyCode, int Shift) {
    (void)Shift;
    try {
        if (tvwMain->Nodes.Count() == 0)
            return;
        const Node selected = tvwMain->SelectedItem();
        if (!selected)
            return;
        const QString key = selected.Key();
        // The keys reach their commands through the menu entries, as a pick from the menu does.
        if (KeyCode == kKeyDelete && key != kRoot && buttonOn("DeleteNode")) {
            if (mstrActiveTree == QLatin1String("BookMarks"))
                mnuDelBookmark->trigger();
            else
                mnuDelete->trigger();
        } else if (KeyCode == kKeyInsert && key == kRoot && mnuAdmin->isVisible()) {
            // No button guards this key, so the level does: a reader adds nothing.
            mnuAddFolder->trigger();
        } else if (KeyCode == kKeyInsert && mnuAdmin->isVisible() &&
                   key.contains(QLatin1String("Folder"), Qt::CaseInsensitive)) {
            InsertIntoFolder(key);
        }
        setEnabled(true);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwMain_KeyUp;");
    }
}

void frmMain::tvwMain_Expand(Node node) {
    try {
        const QString key = node.Key();
        if (key == kRoot)
            return;
        if (key.contains(QLatin1String("Folder"), Qt::CaseInsensitive)) {
            node.setImage(QStringLiteral("OpenFolder"));
            node.setBackColor(vbWindowBackground);
        }
        if (!mblnFilling && tvwMain->SelectedItem())
            tvwMain_NodeClick(tvwMain->SelectedItem());
    } catch (...) {
        HandleFailure("frmMain:tvwMain_Expand;");
    }
}

void frmMain::tvwMain_Collapse(Node node) {
    try {
        const QString key = node.Key();
        if (key == kRoot)
            return;
        if (key.contains(QLatin1String("Folder"), Qt::CaseInsensitive)) {
            node.setImage(QStringLiteral("ClosedFolder"));
            node.setBackColor(vbWindowBackground);
        }
        if (!mblnFilling && tvwMain->SelectedItem())
            tvwMain_NodeClick(tvwMain->SelectedItem());
    } catch (...) {
        HandleFailure("frmMain:tvwMain_Collapse;");
    }
}

void frmMain::tvwMain_BeforeLabelEdit(bool& Cancel) {
    (void)Cancel;
    try {
        tvwSetEditBoxLimit(*tvwMain, 40);
    } catch (...) {
        HandleFailure("frmMain:tvwMain_BeforeLabelEdit;");
    }
}

void frmMain::tvwMain_AfterLabelEdit(bool& Cancel, const QString& NewString) {
    try {
        if (NewString.isEmpty()) {
            host().msgBox(QStringLiteral("You must enter some text for a description"),
                          vbInformation, QString::fromLatin1(APP_TITLE));
            Cancel = true;
            return;
        }
        if (tvwMain->Nodes.Count() == 0)
            return;
        host().setMousePointer(vbHourglass);
        const QString key = tvwMain->SelectedItem().Key();
        const auto library = NewLibrary();
        const int id = static_cast<int>(glngSelectedId);
        if (!key.contains(QLatin1String("Component")) && !key.contains(QLatin1String("Article"))) {
            cSourceCode code = library->GetSourceCode(id);
            code.BeginEdit(0);
            code.Description(NewString);
            code.Save();
        } else {
            cSourceFile file = library->GetSourceFile(id);
            file.BeginEdit(0);
            file.Description(NewString);
            file.Save();
        }
        lblCodeSnipDescr->setText(NewString);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwMain_AfterLabelEdit;");
    }
}

void frmMain::tvwMain_GotFocus() {
    try {
        host().setMousePointer(vbHourglass);
        mstrActiveTree = QStringLiteral("Main");
        mstrBookmarkSource = QStringLiteral("Main");
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwMain_GotFocus;");
    }
}

void frmMain::tvwMain_LostFocus() {
    mblnTreeFocusToggle = !mblnTreeFocusToggle;
}

} // namespace qs
