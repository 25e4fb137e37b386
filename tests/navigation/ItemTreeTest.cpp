#include "TreeWindowFixture.h"

#include "Globals.h"
#include "ListView.h"
#include "NodeKeys.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmMain.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using namespace qs;
using namespace qs::test;

namespace {

const char* const kEightButtons[] = {"Add Category",   "Add Folder", "Add SourceCode",
                                     "Add SourceFile", "DeleteNode", "ReName Item",
                                     "Edit",           "BookMark"};

// Tested snippets: folder Helpers (1) holds Trim (2) and folder Deep (3) with Pad (4); Alpha (5)
// stands at the top; an untested one (6) is not in the tested list.
class ItemTree : public TreeWindow {
protected:
    frmMain& openSnippets(const QString& access = QStringLiteral("Admin")) {
        addCode(QStringLiteral("Helpers"), 201, 1, 0, true);
        addCode(QStringLiteral("Trim"), 201, 1, 1);
        addCode(QStringLiteral("Deep"), 201, 1, 1, true);
        addCode(QStringLiteral("Pad"), 201, 1, 3);
        addCode(QStringLiteral("Alpha"), 201, 1);
        addCode(QStringLiteral("Untested"), 201, 2);
        frmMain& form = open(access);
        click(*form.tvwCategories, "CTested1201");
        return form;
    }

    static QStringList enabledButtons(frmMain& form) {
        QStringList on;
        for (const char* key : kEightButtons)
            if (form.tbToolBar->Buttons(QLatin1String(key)).Enabled())
                on << QLatin1String(key);
        return on;
    }
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
    EXPECT_EQ(tree.Nodes("SC1CodeTestedFolder").Image(), "ClosedFolder");
    EXPECT_FALSE(tree.Nodes("SC1CodeTestedFolder").Expanded());
    EXPECT_TRUE(tree.Nodes("ROOT").Expanded());
    EXPECT_TRUE(tree.Nodes("ROOT").Bold());
    EXPECT_FALSE(form.mblnFilling);
}

TEST_F(ItemTree, AnEmptyListIsTheBoldRootAlone) {
    frmMain& form = openSnippets();
    click(*form.tvwCategories, "CTested1204");
    ASSERT_EQ(form.tvwMain->Nodes.Count(), 1);
    EXPECT_EQ(form.tvwMain->Nodes(1).Text(), "Tarnwick");
    EXPECT_TRUE(form.tvwMain->Nodes(1).Bold());
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
    const Case cases[] = {
        {"Admin",
         "SC5CodeTested",
         {"DeleteNode", "ReName Item", "Edit", "BookMark"},
         "Alpha",
         "' code of Alpha",
         5},
        {"Admin",
         "SC1CodeTestedFolder",
         {"Add Folder", "Add SourceCode", "DeleteNode", "ReName Item"},
         "Helpers",
         "",
         1},
        {"Admin", "ROOT", {"Add Folder"}, "Tarnwick", "", 1},
        {"User", "SC5CodeTested", {"BookMark"}, "Alpha", "' code of Alpha", 5},
        {"User", "SC1CodeTestedFolder", {}, "Helpers", "", 1},
    };
    QString access;
    frmMain* form = nullptr;
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.access) + " " + c.key);
        if (access != QLatin1String(c.access)) {
            if (form)
                form->Unload();
            access = QLatin1String(c.access);
            form = access == QLatin1String("Admin") ? &openSnippets() : &open(access);
            if (access != QLatin1String("Admin"))
                click(*form->tvwCategories, "CTested1201");
        }
        click(*form->tvwMain, QLatin1String(c.key));
        EXPECT_EQ(enabledButtons(*form), c.buttons);
        EXPECT_EQ(form->lblCodeSnipDescr->text(), QLatin1String(c.label));
        EXPECT_EQ(form->RichTextBoxCode->Text(), QLatin1String(c.code));
        EXPECT_EQ(glngSelectedId, c.id);
        EXPECT_EQ(gstrSourceType, "Code Snippet");
        // The panel's text is back once the click is over.
        EXPECT_EQ(form->sbStatusBar->Panels(1).Text(), "Visual Basic Tested Code Snippets");
    }
    EXPECT_EQ(form->mnuBookMark->isVisible(), false);
}

TEST_F(ItemTree, AFolderOffersTheAddOfItsKindAndAnItemItsEdit) {
    frmMain& form = openSnippets();
    click(*form.tvwMain, "SC1CodeTestedFolder");
    EXPECT_TRUE(form.mnuAddSourceCode->isVisible());
    EXPECT_EQ(form.mnuAddSourceCode->text(), "Add Code Snippet");
    EXPECT_FALSE(form.mnuEditSource->isVisible());
    click(*form.tvwMain, "SC5CodeTested");
    EXPECT_TRUE(form.mnuEditSource->isVisible());
    EXPECT_TRUE(form.mnuBookMark->isVisible());
    EXPECT_FALSE(form.mnuAddFolder->isVisible());
    EXPECT_TRUE(gblnCodeView);
}

TEST_F(ItemTree, RightClickOnAnItemSetsRightsAndGlobalsButLeavesThePanes) {
    for (const QString& access : {QStringLiteral("Admin"), QStringLiteral("User")}) {
        SCOPED_TRACE(access.toStdString());
        hostScript.clearCalls();
        const bool admin = access == QLatin1String("Admin");
        frmMain& form = admin ? openSnippets() : open(access);
        if (!admin)
            click(*form.tvwCategories, "CTested1201");
        click(*form.tvwMain, "SC5CodeTested");
        click(*form.tvwMain, "SC2CodeTested", Qt::RightButton);
        EXPECT_EQ(glngSelectedId, 2);
        EXPECT_EQ(glngParentId, 1);
        EXPECT_EQ(gstrClickButton, "Left"); // the button has risen again
        EXPECT_EQ(form.lblCodeSnipDescr->text(), "Alpha");
        EXPECT_EQ(form.RichTextBoxCode->Text(), "' code of Alpha");
        EXPECT_EQ(form.tvwMain->SelectedItem().Key(), "SC5CodeTested");
        const QList<HostCall> popups = hostScript.callsOf("PopupMenu");
        if (admin) {
            ASSERT_EQ(popups.size(), 1);
            EXPECT_EQ(popups[0].text, "mnuModify");
            EXPECT_EQ(popups[0].title, "mnuBookMarkA,mnuDelete,mnuEditSource,mnuRename");
        } else {
            EXPECT_TRUE(popups.isEmpty());
        }
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
    EXPECT_FALSE(form.mnuModify->isEnabled());
    EXPECT_FALSE(form.mnuBookMark->isEnabled());
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Subs");
    click(tree, member, Qt::RightButton);
    EXPECT_TRUE(hostScript.callsOf("PopupMenu").isEmpty());

    click(tree, "SC2CodeTested");
    EXPECT_EQ(enabledButtons(form), QStringList({"DeleteNode", "ReName Item", "Edit", "BookMark"}));
    EXPECT_TRUE(form.mnuModify->isEnabled());
    EXPECT_TRUE(form.mnuBookMark->isEnabled());
}

TEST_F(ItemTree, RenameStoresTheDescriptionUpToFortyCharacters) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    click(tree, "SC5CodeTested");
    hostScript.expectMsgBox("You must enter some text for a description");
    EXPECT_FALSE(tree.PerformLabelEdit(tree.Nodes("SC5CodeTested"), QString()));
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceCode(5).Description(), "Alpha");

    const QString typed = QStringLiteral("Alpha, trimmed at both ends of the text, fast");
    EXPECT_TRUE(tree.PerformLabelEdit(tree.Nodes("SC5CodeTested"), typed));
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceCode(5).Description(), typed.left(40));
    EXPECT_EQ(form.lblCodeSnipDescr->text(), typed.left(40));
}

TEST_F(ItemTree, ExpandAndCollapseSwapTheFolderImageAndClickAgain) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    click(tree, "SC1CodeTestedFolder");
    form.lblCodeSnipDescr->clear();
    press(tree, Qt::Key_Right);
    EXPECT_EQ(tree.Nodes("SC1CodeTestedFolder").Image(), "OpenFolder");
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Helpers");
    press(tree, Qt::Key_Left);
    EXPECT_EQ(tree.Nodes("SC1CodeTestedFolder").Image(), "ClosedFolder");
}

TEST_F(ItemTree, KeysReachTheDeleteAndAddFolderEntries) {
    frmMain& form = openSnippets();
    TreeView& tree = *form.tvwMain;
    QSignalSpy deletes(form.mnuDelete, &QAction::triggered);
    QSignalSpy folders(form.mnuAddFolder, &QAction::triggered);
    click(tree, "SC5CodeTested");
    press(tree, Qt::Key_Insert); // not on an item
    press(tree, Qt::Key_Delete);
    EXPECT_EQ(deletes.count(), 1);
    click(tree, "ROOT");
    click(tree, "SC5CodeTested", Qt::RightButton); // the button is on, the root stays selected
    press(tree, Qt::Key_Delete);
    press(tree, Qt::Key_Insert);
    EXPECT_EQ(deletes.count(), 1);
    EXPECT_EQ(folders.count(), 1);
}

TEST_F(ItemTree, AStoredFileShowsInTheFileTabsWithTheTwoRevisionColumns) {
    addFile(QStringLiteral("Paper"), 101);
    frmMain& form = open();
    click(*form.tvwCategories, "FT1101");
    click(*form.tvwMain, "SF1Article");
    click(*form.tvwMain, "ROOT");
    click(*form.tvwMain, "SF1Article");
    EXPECT_FALSE(form.SSTabSourceFile->isHidden());
    EXPECT_TRUE(form.SSTabAboutCode->isHidden());
    EXPECT_TRUE(form.cmdOpenFile->isEnabled());
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Paper");
    EXPECT_EQ(form.lstSrcFileRevHist->ColumnHeaders.Count(), 2);
    EXPECT_EQ(gstrSourceType, "Article");
    EXPECT_EQ(glngSourceTypeId, 101);
}

} // namespace
