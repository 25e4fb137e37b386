// Deleting the selected item, folder or category.  Nothing cascades here: a node has to be
// emptied before it can go, and the service takes an item's revisions, bookmarks and stored
// bytes with it.

#include "frmMain.h"

#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "QsError.h"
#include "ServiceErrors.h"
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
const QString kRootText = QStringLiteral("Tarnwick");

bool holds(const QString& key, const char* word) {
    return key.contains(QLatin1String(word));
}

// The record of the item, or false when another user has removed it meanwhile.
template <class Record, class Get> bool fetch(Record& record, Get get) {
    try {
        record = get();
        return true;
    } catch (const QsError& e) {
        if (e.number() != kErrRecordNotFound)
            throw;
    }
    return false;
}

} // namespace

void frmMain::mnuDelete_Click() {
    try {
        const int answer =
            host().msgBox(QStringLiteral("Do you want to delete the selected item?"),
                          vbYesNo | vbExclamation, QStringLiteral("Delete Selected Item"));
        if (answer == vbNo)
            return;
        host().setMousePointer(vbHourglass);
        // The category tree has its own path; any other tree means the item tree.
        if (mstrActiveTree == QLatin1String("Cats"))
            deleteSelectedCategory();
        else
            deleteSelectedItem();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuDelete_Click;");
    }
}

void frmMain::deleteSelectedItem() {
    TreeView& tree = *tvwMain;
    const Node selected = tree.SelectedItem();
    if (!selected)
        return;
    const QString key = selected.Key();
    // A module's outline is not stored and goes with it; anything else with children stays.
    if (selected.Children() > 0 &&
        ((!holds(key, "Class") && !holds(key, "Module")) || holds(key, "Folder"))) {
        host().msgBox(QStringLiteral("Please delete all the items in the node and work "
                                     "backwards. Safety Reasons!"),
                      vbInformation, QStringLiteral("Deleting With Items Below Folder?"));
        return;
    }
    const bool sourceFile = holds(key, "Component") || holds(key, "Article");

    ClearOriginalControls();
    host().doEvents();
    ClearRevisionControls();
    host().doEvents();
    ClearControlsSourceFileTab();
    host().doEvents();
    if (key != kRoot)
        glngSelectedId = IdOf(key);

    const auto library = NewLibrary();
    host().doEvents();
    const int id = static_cast<int>(glngSelectedId);
    bool found = false;
    if (sourceFile) {
        cSourceFile file;
        found = fetch(file, [&] { return library->GetSourceFile(id); });
        if (found) {
            file.BeginEdit(0);
            file.Deleted(true);
            file.Save();
        }
    } else {
        cSourceCode code;
        found = fetch(code, [&] { return library->GetSourceCode(id); });
        if (found) {
            code.BeginEdit(0);
            code.Deleted(true);
            code.Save();
        }
    }
    if (!found) {
        // The stale node stays until the next fill.
        host().msgBox(QStringLiteral("Item not found in database."), vbInformation, QString());
        return;
    }

    tree.Nodes.Remove(selected.Index());
    if (const Node now = tree.SelectedItem())
        tvwMain_NodeClick(now);
    if (tree.Nodes.Count() > 0 && tree.SelectedItem() && tree.SelectedItem().Text() == kRootText)
        lblCodeSnipDescr->setText(kRootText);
}

void frmMain::deleteSelectedCategory() {
    TreeView& tree = *tvwCategories;
    const Node selected = tree.SelectedItem();
    if (!selected)
        return;
    if (selected.Text() == QLatin1String("Visual Basic")) {
        host().setMousePointer(vbDefault);
        host().msgBox(QStringLiteral("''Visual Basic'' is the only ''Static Category'' and cannot "
                                     "be deleted."),
                      vbInformation, QString::fromLatin1(APP_TITLE));
        return;
    }
    // Only a category node carries "C" and its id; the rights keep the command off elsewhere.
    bool numeric = false;
    const int id = selected.Key().mid(1).toInt(&numeric);
    if (!numeric || id <= 0)
        return;

    const auto library = NewLibrary();
    host().doEvents();
    const VbArray<ItemRow> code =
        library->GetItems(QStringLiteral("SourceCode"), 0, id, 0, 0, 0, 0, 0);
    const VbArray<ItemRow> files =
        library->GetItems(QStringLiteral("SourceFile"), 0, id, 0, 0, 0, 0, 0);
    // Folders are rows too, so an empty folder keeps its category.
    if (code.UBound() != 0 || files.UBound() != 0) {
        host().msgBox(QStringLiteral("Please delete everything in the category in main treeview "
                                     "below before deleting. Safety Reasons!"),
                      vbInformation, QStringLiteral("Deleting Category?"));
        return;
    }
    library->DeleteCategory(id);
    tree.Nodes.Remove(selected.Index());
    tvwClear(*tvwMain);
    tvwCategories_NodeClick(tree.SelectedItem());
    const Node item = tvwMain->SelectedItem();
    if (tvwMain->Nodes.Count() > 0 && item && item.Text() == kRootText)
        lblCodeSnipDescr->setText(kRootText);
}

} // namespace qs
