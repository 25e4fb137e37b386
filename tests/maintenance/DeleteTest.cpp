// Deleting items, folders and categories from the main window, as a person does it: a node is
// chosen, Delete is asked for by the menu, the key or the tool bar, and the prompts answered.
#include "MaintenanceFixture.h"

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

class Delete : public Maintenance {
protected:
    bool listed(const QString& table, int id) const {
        const auto rows = cLibraryService(mDatabase).GetItems(table, 0, 0, 0, 0, 0, 0, 0);
        for (const ItemRow& row : rows)
            if (row.Id == id)
                return true;
        return false;
    }
};

TEST_F(Delete, ItemsEmptyFoldersModulesAndFilesGoAndAFolderWithItemsOrAMissingItemStays) {
    addUser("ada");
    const int alpha = addCode("Alpha");
    const int helpers = addCode("Helpers", 201, 1, 0, true);
    addCode("Pad", 201, 1, helpers);
    const int spare = addCode("Spare", 201, 1, 0, true);
    const int beta = addCode("Beta");
    cSourceCode module(mDatabase);
    module.BeginEdit(0);
    module.Description("Greetings");
    module.CategoryId(1);
    module.CodeTypeId(204);
    module.Tested(1);
    module.Code("Public Sub Greet()\r\nEnd Sub\r\n");
    const int mod = module.Save();
    const int paper = addFile("Paper");
    cLibraryService(mDatabase).AddBookmark("BkMark_SrcCode", alpha, "ada");
    frmMain& form = open();
    ASSERT_TRUE(form.tvwBookMarks->Nodes.Exists("SC1"));

    const char* const inUse = "Please delete all the items in the node and work backwards. "
                              "Safety Reasons!";
    struct Case {
        const char* category;
        QString key;
        int id;
        const char* via;
        int answer;
        bool elsewhere;     // another user removes the item once it is on show
        const char* second; // the box that follows the question, or nullptr
        const char* secondTitle;
        bool gone;
    };
    const Case cases[] = {
        // No leaves everything, the panes too.
        {"CTested1201", "SC1CodeTested", alpha, "menu", vbNo, false, nullptr, nullptr, false},
        {"CTested1201", "SC2CodeTestedFolder", helpers, "key", vbYes, false, inUse,
         "Deleting With Items Below Folder?", false},
        {"CTested1201", "SC4CodeTestedFolder", spare, "button", vbYes, false, nullptr, nullptr,
         true},
        // A bookmarked item goes with no warning, and the bookmark tree is left as it is.
        {"CTested1201", "SC1CodeTested", alpha, "key", vbYes, false, nullptr, nullptr, true},
        // The stale node stays until the next fill.
        {"CTested1201", QStringLiteral("SC%1CodeTested").arg(beta), beta, "menu", vbYes, true,
         "Item not found in database.", "", false},
        // A module goes with its outline.
        {"CTested1204", QStringLiteral("SC%1ModuleTested").arg(mod), mod, "menu", vbYes, false,
         nullptr, nullptr, true},
        {"FT1101", QStringLiteral("SF%1Article").arg(paper), paper, "menu", vbYes, false, nullptr,
         nullptr, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key.toStdString() + " by " + c.via);
        click(*form.tvwCategories, QLatin1String(c.category));
        click(*form.tvwMain, c.key);
        if (c.elsewhere)
            removeElsewhere(c.id);
        if (c.key.contains(QLatin1String("Module"))) {
            ASSERT_GT(form.tvwMain->SelectedItem().Children(), 0);
        }
        const QString label = form.lblCodeSnipDescr->text();
        const QString code = form.RichTextBoxCode->Text();
        hostScript.clearCalls();
        hostScript.expectMsgBox(kConfirm, c.answer);
        if (c.second)
            hostScript.expectMsgBox(QLatin1String(c.second));
        if (c.via == std::string("key"))
            press(*form.tvwMain, Qt::Key_Delete);
        else if (c.via == std::string("button"))
            ASSERT_TRUE(toolBar(form, "DeleteNode"));
        else
            form.mnuDelete->trigger();
        const QList<HostCall> boxes = hostScript.msgBoxes();
        ASSERT_EQ(boxes.size(), c.second ? 2 : 1);
        EXPECT_EQ(boxes[0].title, "Delete Selected Item");
        EXPECT_EQ(boxes[0].flags, vbYesNo | vbExclamation);
        if (c.second) {
            EXPECT_EQ(boxes[1].title, c.secondTitle);
            EXPECT_EQ(boxes[1].icon(), vbInformation);
        }
        EXPECT_EQ(form.tvwMain->Nodes.Exists(c.key), !c.gone);
        const bool file = c.key.startsWith(QLatin1String("SF"));
        EXPECT_EQ(listed(file ? "SourceFile" : "SourceCode", c.id), !c.gone && !c.elsewhere);
        if (c.answer == vbNo) {
            EXPECT_EQ(form.lblCodeSnipDescr->text(), label);
            EXPECT_EQ(form.RichTextBoxCode->Text(), code);
        }
        // The node selected after a delete is clicked, so the panes follow it.
        if (c.gone) {
            EXPECT_EQ(form.lblCodeSnipDescr->text(), form.tvwMain->SelectedItem().Text());
        }
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    }
    EXPECT_TRUE(form.tvwBookMarks->Nodes.Exists("SC1"));
    // The last file gone, the root alone is left and named.
    EXPECT_EQ(form.tvwMain->Nodes.Count(), 1);
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Tarnwick");
}

TEST_F(Delete, OnlyAnEmptyCategoryOtherThanVisualBasicGoes) {
    const int empty = addCategory("Empty");
    const int folderOnly = addCategory("Folder only");
    addFile("Spare", 101, 0, true, folderOnly);
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
        for (const LookupRow& row : cLibraryService(mDatabase).GetLookup("Category"))
            listed = listed || row.Id == QString::number(c.id);
        EXPECT_EQ(listed, c.refusal != nullptr);
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    }
}

} // namespace
