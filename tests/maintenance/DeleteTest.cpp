// Deleting items, folders and categories from the main window, as a person does it: a node is
// chosen, Delete is asked for by the menu, the key or the tool bar, and the prompts answered.
#include "TreeWindowFixture.h"

#include "Globals.h"
#include "RichTextBox.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "frmMain.h"

#include <QAction>
#include <QLabel>

using namespace qs;
using namespace qs::test;

namespace {

const char kConfirm[] = "Do you want to delete the selected item?";

class Delete : public TreeWindow {
protected:
    bool stored(const QString& table, int id) const {
        const auto rows = cLibraryService(mDatabase).GetItems(table, 0, 0, 0, 0, 0, 0, 0);
        for (const ItemRow& row : rows)
            if (row.Id == id)
                return true;
        return false;
    }
    // Asks for the delete by one of its routes, with tvwMain's node chosen by a click.
    void deleteBy(frmMain& form, const QString& via) {
        if (via == QLatin1String("key"))
            press(*form.tvwMain, Qt::Key_Delete);
        else if (via == QLatin1String("button"))
            ASSERT_TRUE(form.tbToolBar->PerformClick(QStringLiteral("DeleteNode")));
        else
            form.mnuDelete->trigger();
    }
};

// Snippets: Alpha (1) bookmarked, folder Helpers (2) holding Pad (3), empty folder Spare (4).
TEST_F(Delete, ItemsAndEmptyFoldersGoAndAFolderWithItemsIsRefused) {
    addUser(QStringLiteral("ada"));
    const int alpha = addCode(QStringLiteral("Alpha"));
    const int helpers = addCode(QStringLiteral("Helpers"), 201, 1, 0, true);
    addCode(QStringLiteral("Pad"), 201, 1, helpers);
    const int spare = addCode(QStringLiteral("Spare"), 201, 1, 0, true);
    cLibraryService(mDatabase).AddBookmark(QStringLiteral("BkMark_SrcCode"), alpha, "ada");
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    ASSERT_TRUE(form.tvwBookMarks->Nodes.Exists(QStringLiteral("SC1")));

    struct Case {
        const char* key;
        int id;
        const char* via;
        int answer;
        const char* refusal; // the title of the box that refuses, or nullptr
        bool gone;
    };
    const Case cases[] = {
        // No leaves everything, the panes too.
        {"SC1CodeTested", alpha, "menu", vbNo, nullptr, false},
        {"SC2CodeTestedFolder", helpers, "key", vbYes, "Deleting With Items Below Folder?", false},
        {"SC4CodeTestedFolder", spare, "button", vbYes, nullptr, true},
        // A bookmarked item goes with no warning, and the bookmark tree is left as it is.
        {"SC1CodeTested", alpha, "key", vbYes, nullptr, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.key) + " by " + c.via);
        click(*form.tvwMain, c.key);
        const QString label = form.lblCodeSnipDescr->text();
        const QString code = form.RichTextBoxCode->Text();
        hostScript.clearCalls();
        hostScript.expectMsgBox(kConfirm, c.answer);
        if (c.refusal)
            hostScript.expectMsgBox("Please delete all the items in the node and work backwards. "
                                    "Safety Reasons!");
        deleteBy(form, c.via);
        const QList<HostCall> boxes = hostScript.msgBoxes();
        ASSERT_EQ(boxes.size(), c.refusal ? 2 : 1);
        EXPECT_EQ(boxes[0].title, "Delete Selected Item");
        EXPECT_EQ(boxes[0].flags, vbYesNo | vbExclamation);
        if (c.refusal) {
            EXPECT_EQ(boxes[1].title, c.refusal);
        }
        EXPECT_EQ(form.tvwMain->Nodes.Exists(QLatin1String(c.key)), !c.gone);
        EXPECT_EQ(stored(QStringLiteral("SourceCode"), c.id), !c.gone);
        if (c.answer == vbNo) {
            EXPECT_EQ(form.lblCodeSnipDescr->text(), label);
            EXPECT_EQ(form.RichTextBoxCode->Text(), code);
        }
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    }
    EXPECT_TRUE(form.tvwBookMarks->Nodes.Exists(QStringLiteral("SC1")));
    // The node selected after a delete is clicked, so the panes follow it.
    EXPECT_EQ(form.lblCodeSnipDescr->text(), form.tvwMain->SelectedItem().Text());
}

TEST_F(Delete, AModuleGoesWithItsOutlineAndAStoredFileByItsFamily) {
    cSourceCode module(mDatabase);
    module.BeginEdit(0);
    module.Description(QStringLiteral("Helpers"));
    module.CategoryId(1);
    module.CodeTypeId(204);
    module.Tested(1);
    module.Code(QStringLiteral("Public Sub Greet()\r\nEnd Sub\r\n"));
    const int id = module.Save();
    const int paper = addFile(QStringLiteral("Paper"));
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1204");
    click(*form.tvwMain, QStringLiteral("SC%1ModuleTested").arg(id));
    ASSERT_GT(form.tvwMain->SelectedItem().Children(), 0);
    hostScript.expectMsgBox(kConfirm, vbYes);
    form.mnuDelete->trigger();
    EXPECT_FALSE(form.tvwMain->Nodes.Exists(QStringLiteral("SC%1ModuleTested").arg(id)));
    EXPECT_FALSE(stored(QStringLiteral("SourceCode"), id));

    click(*form.tvwCategories, "FT1101");
    click(*form.tvwMain, QStringLiteral("SF%1Article").arg(paper));
    hostScript.expectMsgBox(kConfirm, vbYes);
    form.mnuDelete->trigger();
    EXPECT_FALSE(stored(QStringLiteral("SourceFile"), paper));
    EXPECT_EQ(form.tvwMain->Nodes.Count(), 1);
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Tarnwick");
}

TEST_F(Delete, AnItemAnotherUserRemovedGetsItsMessageAndItsNodeStays) {
    const int id = addCode(QStringLiteral("Alpha"));
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    click(*form.tvwMain, "SC1CodeTested");
    cSourceCode theirs = cLibraryService(mDatabase).GetSourceCode(id);
    theirs.BeginEdit(0);
    theirs.Deleted(true);
    theirs.Save();

    hostScript.clearCalls();
    hostScript.expectMsgBox(kConfirm, vbYes);
    hostScript.expectMsgBox("Item not found in database.");
    form.mnuDelete->trigger();
    const QList<HostCall> boxes = hostScript.msgBoxes();
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[1].title, "");
    EXPECT_EQ(boxes[1].icon(), vbInformation);
    EXPECT_TRUE(form.tvwMain->Nodes.Exists(QStringLiteral("SC1CodeTested")));
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(Delete, OnlyAnEmptyCategoryOtherThanVisualBasicGoes) {
    const int empty = addCategory(QStringLiteral("Empty"));
    const int folderOnly = addCategory(QStringLiteral("Folder only"));
    addFile(QStringLiteral("Spare"), 101, 0, true, folderOnly);
    frmMain& form = open();
    struct Case {
        int id;
        const char* refusal; // text of the refusal, or nullptr
        const char* title;
    };
    const Case cases[] = {
        {1, "''Visual Basic'' is the only ''Static Category'' and cannot be deleted.",
         "Quillstone"},
        {folderOnly,
         "Please delete everything in the category in main treeview below before deleting. "
         "Safety Reasons!",
         "Deleting Category?"},
        {empty, nullptr, nullptr},
    };
    for (const Case& c : cases) {
        const QString key = QStringLiteral("C%1").arg(c.id);
        SCOPED_TRACE(key.toStdString());
        click(*form.tvwCategories, key);
        hostScript.clearCalls();
        hostScript.expectMsgBox(kConfirm, vbYes);
        if (c.refusal)
            hostScript.expectMsgBox(c.refusal);
        press(*form.tvwCategories, Qt::Key_Delete);
        EXPECT_EQ(form.mstrActiveTree, "Cats");
        if (c.refusal) {
            EXPECT_EQ(hostScript.msgBoxes().last().title, c.title);
        }
        EXPECT_EQ(form.tvwCategories->Nodes.Exists(key), c.refusal != nullptr);
        bool listed = false;
        for (const LookupRow& row :
             cLibraryService(mDatabase).GetLookup(QStringLiteral("Category")))
            listed = listed || row.Id == QString::number(c.id);
        EXPECT_EQ(listed, c.refusal != nullptr);
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    }
}

} // namespace
