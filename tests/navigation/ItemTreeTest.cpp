#include "TreeWindowFixture.h"

#include "NodeKeys.h"
#include "StatusBar.h"
#include "cLibraryService.h"

#include <QSignalSpy>

using namespace qs;
using namespace qs::test;

namespace {

// Tested snippets: folder Helpers (1) holds Trim (2) and folder Deep (3) with Pad (4); Alpha (5)
// stands at the top; an untested one (6) is not in the tested list.
class ItemTree : public TreeWindow {
protected:
    frmMain& openSnippets(const QString& access = QStringLiteral("Admin")) {
        if (!mFilled) {
            addCode(QStringLiteral("Helpers"), 201, 1, 0, true);
            addCode(QStringLiteral("Trim"), 201, 1, 1);
            addCode(QStringLiteral("Deep"), 201, 1, 1, true);
            addCode(QStringLiteral("Pad"), 201, 1, 3);
            addCode(QStringLiteral("Alpha"), 201, 1);
            addCode(QStringLiteral("Untested"), 201, 2);
            mFilled = true;
        }
        frmMain& form = open(access);
        if (form.tvwCategories->SelectedItem().Key() != QLatin1String("CTested1201"))
            click(*form.tvwCategories, "CTested1201");
        return form;
    }

    bool mFilled = false;
};

TEST_F(ItemTree, FillNestsEveryRowUnderTheFolderItsTagNames) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    EXPECT_EQ(form.marrItems.count(), 5);
    EXPECT_EQ(childKeys(tree, "ROOT"), QStringList({"SC5CodeTested", "SC1CodeTestedFolder"}));
    EXPECT_EQ(childKeys(tree, "SC1CodeTestedFolder"),
              QStringList({"SC3CodeTestedFolder", "SC2CodeTested"}));
    EXPECT_EQ(childKeys(tree, "SC3CodeTestedFolder"), QStringList({"SC4CodeTested"}));
    EXPECT_EQ(tree.Nodes("SC2CodeTested").Tag(), "SC1CodeTested");
    EXPECT_FALSE(tree.Nodes("SC1CodeTestedFolder").Expanded());
    EXPECT_TRUE(tree.Nodes("ROOT").Expanded() && tree.Nodes("ROOT").Bold());
    EXPECT_FALSE(form.mblnFilling);

    click(*form.tvwCategories, "CTested1204"); // no module: the bold root alone
    ASSERT_EQ(tree.Nodes.Count(), 1);
    EXPECT_TRUE(tree.Nodes("ROOT").Bold());
}

TEST_F(ItemTree, ClickSetsRightsGlobalsAndPanesByLevel) {
    struct Case {
        const char* access;
        const char* key;
        QStringList buttons;
        const char* label;
        const char* code;
        long id;
    };
    const QStringList item = {"DeleteNode", "ReName Item", "Edit", "BookMark"};
    const QStringList folder = {"Add Folder", "Add SourceCode", "DeleteNode", "ReName Item"};
    const Case cases[] = {
        {"Admin", "SC5CodeTested", item, "Alpha", "' code of Alpha", 5},
        {"Admin", "SC1CodeTestedFolder", folder, "Helpers", "", 1},
        {"Admin", "ROOT", {"Add Folder"}, "Tarnwick", "", 1}, // the id stays
        {"User", "SC5CodeTested", {"BookMark"}, "Alpha", "' code of Alpha", 5},
        {"User", "SC1CodeTestedFolder", {}, "Helpers", "", 1},
    };
    frmMain* form = nullptr;
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.access) + " " + c.key);
        if (!form || form->mnuAdmin->isVisible() != (QLatin1String(c.access) == "Admin")) {
            if (form)
                form->Unload();
            form = &openSnippets(QLatin1String(c.access));
        }
        click(*form->tvwMain, QLatin1String(c.key));
        EXPECT_EQ(enabledButtons(*form), c.buttons);
        EXPECT_EQ(form->lblCodeSnipDescr->text(), QLatin1String(c.label));
        EXPECT_EQ(form->RichTextBoxCode->Text(), QLatin1String(c.code));
        EXPECT_EQ(glngSelectedId, c.id);
        EXPECT_EQ(gstrSourceType, "Code Snippet");
        // "Loading..." lasts as long as the click.
        EXPECT_EQ(form->sbStatusBar->Panels(1).Text(), "Visual Basic Tested Code Snippets");
        if (c.buttons.contains("Add SourceCode")) {
            EXPECT_EQ(form->mnuAddSourceCode->text(), "Add Code Snippet"); // the folder's kind
        }
    }
    EXPECT_FALSE(form->mnuBookMark->isVisible());
    EXPECT_TRUE(gblnCodeView);
}

TEST_F(ItemTree, RightClickOnAnItemSetsRightsAndGlobalsButLeavesThePanes) {
    for (const char* access : {"Admin", "User"}) {
        SCOPED_TRACE(access);
        hostScript.clearCalls();
        frmMain& form = openSnippets(QLatin1String(access));
        click(*form.tvwMain, "SC5CodeTested");
        click(*form.tvwMain, "SC2CodeTested", Qt::RightButton);
        EXPECT_EQ(glngSelectedId * 10 + glngParentId, 21);
        EXPECT_EQ(gstrClickButton, "Left"); // the button has risen again
        EXPECT_EQ(form.lblCodeSnipDescr->text(), "Alpha");
        EXPECT_EQ(form.RichTextBoxCode->Text(), "' code of Alpha");
        EXPECT_EQ(form.tvwMain->SelectedItem().Key(), "SC5CodeTested");
        EXPECT_EQ(popups(), QLatin1String(access) == QLatin1String("Admin")
                                ? "mnuModify:mnuBookMarkA,mnuDelete,mnuEditSource,mnuRename"
                                : "");
        form.Unload();
    }
}

TEST_F(ItemTree, AnOutlineNodeShutsEveryCommandAndAnItemBringsThemBack) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    const QString member =
        NodeKeys::OutlineGroupKey(5, QStringLiteral("SC5CodeTested"), QStringLiteral("SubsNoDrag"));
    tree.Nodes.Add(QStringLiteral("SC5CodeTested"), tvwChild, member, QStringLiteral("Subs"),
                   QStringLiteral("Sub"));
    click(tree, "SC5CodeTested");
    click(tree, member);
    EXPECT_EQ(enabledButtons(form), QStringList());
    EXPECT_FALSE(form.mnuModify->isEnabled() || form.mnuBookMark->isEnabled());
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Subs");
    click(tree, member, Qt::RightButton);
    EXPECT_EQ(popups(), "");

    click(tree, "SC2CodeTested");
    EXPECT_EQ(enabledButtons(form), QStringList({"DeleteNode", "ReName Item", "Edit", "BookMark"}));
    EXPECT_TRUE(form.mnuModify->isEnabled() && form.mnuBookMark->isEnabled());
}

TEST_F(ItemTree, RenameStoresTheDescriptionUpToFortyCharacters) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    click(tree, "SC5CodeTested");
    hostScript.expectMsgBox("You must enter some text for a description");
    EXPECT_FALSE(tree.PerformLabelEdit(tree.Nodes("SC5CodeTested"), QString()));
    const QString typed = QStringLiteral("Alpha, trimmed at both ends of the text, fast");
    EXPECT_TRUE(tree.PerformLabelEdit(tree.Nodes("SC5CodeTested"), typed));
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceCode(5).Description(), typed.left(40));
    EXPECT_EQ(form.lblCodeSnipDescr->text(), typed.left(40));
}

// Delete and Insert on items and folders are pressed by the delete and folder tests.
TEST_F(ItemTree, KeysOnTheRootLeaveDeleteShutAndInsertToAnAdministrator) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    QSignalSpy deletes(form.mnuDelete, &QAction::triggered);
    click(tree, "ROOT");
    click(tree, "SC5CodeTested", Qt::RightButton); // the button is on, the root stays selected
    press(tree, Qt::Key_Delete);
    EXPECT_EQ(deletes.count(), 0);

    // Right and Left open and close a folder, which swaps its image and clicks it again.
    click(tree, "SC1CodeTestedFolder");
    form.lblCodeSnipDescr->clear();
    press(tree, Qt::Key_Right);
    EXPECT_EQ(tree.Nodes("SC1CodeTestedFolder").Image(), "OpenFolder");
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Helpers");
    press(tree, Qt::Key_Left);
    EXPECT_EQ(tree.Nodes("SC1CodeTestedFolder").Image(), "ClosedFolder");

    form.Unload();
    frmMain& reader = openSnippets(QStringLiteral("User"));
    QSignalSpy readerFolders(reader.mnuAddFolder, &QAction::triggered);
    click(*reader.tvwMain, "ROOT");
    press(*reader.tvwMain, Qt::Key_Insert);
    EXPECT_EQ(readerFolders.count(), 0);
}

TEST_F(ItemTree, AStoredFileShowsInTheFileTabs) {
    addFile(QStringLiteral("Paper"), 101);
    frmMain& form = open();
    click(*form.tvwCategories, "FT1101");
    click(*form.tvwMain, "SF1Article");
    click(*form.tvwMain, "ROOT");
    click(*form.tvwMain, "SF1Article");
    EXPECT_TRUE(!form.SSTabSourceFile->isHidden() && form.SSTabAboutCode->isHidden());
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Paper");
    EXPECT_EQ(gstrSourceType, "Article");
}

} // namespace
