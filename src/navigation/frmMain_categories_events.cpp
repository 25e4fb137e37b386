// The category tree's mouse, keys, focus, expand and collapse, and the rename of a category.

#include "frmMain.h"

#include "Globals.h"
#include "Host.h"
#include "OleColor.h"
#include "StatusBar.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mTreeview.h"

#include <QAction>

namespace qs {

namespace {
const QString kRoot = QStringLiteral("ROOT");
constexpr int kKeyInsert = 45;
constexpr int kKeyDelete = 46;
constexpr int kRightButton = 2;
constexpr int kMaxCategoryName = 20;
} // namespace

void frmMain::setButton(const char* key, bool on) {
    tbToolBar->Buttons(QString::fromLatin1(key)).setEnabled(on);
}

bool frmMain::buttonOn(const char* key) const {
    return tbToolBar->Buttons(QString::fromLatin1(key)).Enabled();
}

void frmMain::tvwCategories_MouseDown(int Button, int Shift, int x, int y) {
    (void)Shift;
    (void)x;
    (void)y;
    try {
        mstrCategoryButton =
            Button == kRightButton ? QStringLiteral("Right") : QStringLiteral("Left");
        if (!mnuAdmin->isVisible() || Button != kRightButton)
            return;
        QAction* const entries[] = {mnuAddCategory,   mnuRename, mnuAddFolder, mnuAddSourceCode,
                                    mnuAddSourceFile, mnuDelete, mnuEditSource};
        for (QAction* entry : entries)
            entry->setVisible(true);
        // The pop-up offers what suits the selected node, which a right press does not move.
        const Node selected = tvwCategories->SelectedItem();
        if (!selected)
            return;
        const QString text = selected.Text();
        if (text == QLatin1String("Tarnwick Categories")) {
            for (QAction* entry : entries)
                entry->setVisible(entry == mnuAddCategory);
            setButton("Add Category", true);
            for (const char* key : {"DeleteNode", "ReName Item", "Add Folder", "Add SourceCode",
                                    "Add SourceFile", "Edit"})
                setButton(key, false);
            PopupMenu(mnuModify);
        } else if (!lookupMatch(marrCodeTypes, text).isEmpty() ||
                   !lookupMatch(marrFileTypes, text).isEmpty() || text == QLatin1String("Tested") ||
                   text == QLatin1String("UnTested")) {
            host().msgBox(QStringLiteral("You can not modify the tree view at this level."),
                          vbInformation, QString::fromLatin1(APP_TITLE));
        } else if (!lookupMatch(marrCategories, text).isEmpty()) {
            for (QAction* entry : entries)
                entry->setVisible(entry == mnuRename || entry == mnuDelete);
            for (const char* key :
                 {"Add Category", "Add Folder", "Add SourceCode", "Add SourceFile", "Edit"})
                setButton(key, false);
            setButton("DeleteNode", true);
            setButton("ReName Item", true);
            PopupMenu(mnuModify);
        }
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_MouseDown;");
    }
}

void frmMain::tvwCategories_MouseUp(int Button, int Shift, int x, int y) {
    (void)Button;
    (void)Shift;
    (void)x;
    (void)y;
    mstrCategoryButton = QStringLiteral("Left");
}

void frmMain::tvwCategories_KeyUp(int& KeyCode, int Shift) {
    (void)Shift;
    try {
        if (tvwCategories->Nodes.Count() == 0)
            return;
        const Node selected = tvwCategories->SelectedItem();
        if (!selected)
            return;
        // The keys reach their commands through the menu entries, as a pick from the menu does.
        if (selected.Key() == kRoot) {
            if (KeyCode == kKeyInsert && buttonOn("Add Category"))
                mnuAddCategory->trigger();
        } else if (KeyCode == kKeyDelete && buttonOn("DeleteNode")) {
            mnuDelete->trigger();
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_KeyUp;");
    }
}

void frmMain::tvwCategories_GotFocus() {
    try {
        setButton("BookMark", false);
        mstrActiveTree = QStringLiteral("Cats");
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_GotFocus;");
    }
}

void frmMain::categoryNodeFolderImage(Node node, bool expanded) {
    host().setMousePointer(vbHourglass);
    node.setBackColor(vbWindowBackground);
    const QString key = node.Key();
    if (key != kRoot) {
        node.setImage(expanded ? QStringLiteral("OpenFolder") : QStringLiteral("ClosedFolder"));
        node.setBackColor(vbWindowBackground);
    }
    mstrTreeAction = expanded ? QStringLiteral("Expand") : QStringLiteral("Collapse");
    const Node selected = tvwCategories->SelectedItem();
    if (selected && !lookupMatch(marrCategories, selected.Text()).isEmpty())
        saveCategoryPlace(key, QString());
    else
        saveCategoryPlace(QString(), key);
    if (key == kRoot)
        saveCategoryPlace(kRoot, QString());
    host().setMousePointer(vbDefault);
}

void frmMain::tvwCategories_Expand(Node node) {
    try {
        categoryNodeFolderImage(node, true);
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_Expand;");
    }
}

void frmMain::tvwCategories_Collapse(Node node) {
    try {
        categoryNodeFolderImage(node, false);
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_Collapse;");
    }
}

void frmMain::tvwCategories_BeforeLabelEdit(bool& Cancel) {
    (void)Cancel;
    try {
        // The item tree's box is the one limited: a category's name is held by the length test
        // after the edit.
        tvwSetEditBoxLimit(*tvwMain, 40);
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_BeforeLabelEdit;");
    }
}

void frmMain::tvwCategories_AfterLabelEdit(bool& Cancel, const QString& NewString) {
    try {
        if (NewString.isEmpty()) {
            host().msgBox(QStringLiteral("You must enter some text for a description"),
                          vbInformation, QString::fromLatin1(APP_TITLE));
            Cancel = true;
            tvwCategories->StartLabelEdit();
            return;
        }
        if (NewString.size() > kMaxCategoryName) {
            // The words after the first comma belong to the message as it stands.
            host().msgBox(QStringLiteral("The text size cannot be greateer than 20 characters, "
                                         "vbInformation, App.ProductName"),
                          vbOKOnly, QString::fromLatin1(APP_TITLE));
            Cancel = true;
            tvwCategories->StartLabelEdit();
            return;
        }
        const int id = tvwCategories->SelectedItem().Key().mid(1).toInt();
        sbStatusBar->Panels(1).setText(NewString);
        const auto library = NewLibrary();
        library->UpdateCategory(id, NewString);
        sbStatusBar->Panels(1).setText(NewString);
        marrCategories.clear();
        marrCategories = library->GetLookup(QStringLiteral("Category"));
    } catch (...) {
        HandleFailure("frmMain:tvwCategories_AfterLabelEdit;");
    }
}

} // namespace qs
