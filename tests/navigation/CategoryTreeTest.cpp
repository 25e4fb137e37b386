#include "TreeWindowFixture.h"

#include "Globals.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

using CategoryTree = TreeWindow;

QString saved(const char* value) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS), QString::fromLatin1(value))
        .toString();
}

QStringList itemKeys(frmMain& form) {
    return form.tvwMain->Nodes.Count() ? TreeWindow::childKeys(*form.tvwMain, "ROOT")
                                       : QStringList({"(empty)"});
}

TEST_F(CategoryTree, FillGivesEachCategoryItsFileTypesAndBranchesOfCodeTypes) {
    addCategory(QStringLiteral("Scripts"));
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;

    Node root = tree.Nodes("ROOT");
    EXPECT_TRUE(root.Bold());
    EXPECT_TRUE(root.Expanded());
    EXPECT_EQ(root.Image(), "Categories");
    EXPECT_EQ(form.marrCategoryKeys.rows(), QVector<QString>({"C1", "C2"}));
    // Children stand sorted by text.
    EXPECT_EQ(childKeys(tree, "ROOT"), QStringList({"C2", "C1"}));
    EXPECT_EQ(childKeys(tree, "C2"), QStringList({"FT2101", "FT2102", "TestedC2", "UnTestedC2"}));
    EXPECT_EQ(childKeys(tree, "UnTestedC1"),
              QStringList({"CUntested1203", "CUntested1201", "CUntested1204", "CUntested1202"}));
    const QStringList images = {
        tree.Nodes("C2").Image(), tree.Nodes("FT1102").Image(), tree.Nodes("CTested1201").Image(),
        tree.Nodes("CUntested1201").Image(), tree.Nodes("CUntested1203").Image()};
    EXPECT_EQ(images, QStringList({"ClosedFolder", "Component", "TestedSnippet", "UnTestedSnippet",
                                   "Class3"}));
}

TEST_F(CategoryTree, ClickShowsTheChoiceListsItsItemsAndKeepsThePlace) {
    addCode(QStringLiteral("Tested one"), 201, 1);
    addCode(QStringLiteral("Untested one"), 201, 2);
    addCode(QStringLiteral("A class"), 203, 2);
    addFile(QStringLiteral("Paper"), 101);
    frmMain& form = open();
    struct Case {
        const char* key;
        const char* status;
        QStringList items;
        const char* lastNode;
        const char* lastType;
        bool fileTabs;
    };
    const Case cases[] = {
        {"C1", "Visual Basic", {"(empty)"}, "C1", "", false},
        {"TestedC1", "Visual Basic Tested Items", {"(empty)"}, "", "TestedC1", false},
        {"CTested1201",
         "Visual Basic Tested Code Snippets",
         {"SC1CodeTested"},
         "",
         "CTested1201",
         false},
        {"CUntested1203",
         "Visual Basic UnTested Class Modules",
         {"SC3ClassUnTested"},
         "",
         "CUntested1203",
         false},
        {"FT1101", "Visual Basic Article Items", {"SF1Article"}, "", "FT1101", true},
        // The root lists nothing and leaves the tabs as they were.
        {"ROOT", "At The Root Directory", {"(empty)"}, "ROOT", "", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        click(*form.tvwCategories, c.key);
        EXPECT_EQ(form.sbStatusBar->Panels(1).Text(), QLatin1String(c.status));
        EXPECT_EQ(itemKeys(form), c.items);
        EXPECT_EQ(saved(REG_VAL_LASTNODECATEGORY), QLatin1String(c.lastNode));
        EXPECT_EQ(saved(REG_VAL_TVIEW_LASTCODETYPE), QLatin1String(c.lastType));
        EXPECT_EQ(form.SSTabSourceFile->isHidden(), !c.fileTabs);
        EXPECT_FALSE(form.tvwMain->isHidden());
        EXPECT_TRUE(form.tvwMainCopy->isHidden());
    }
    click(*form.tvwCategories, "CUntested1203");
    EXPECT_EQ(gstrCodeStatus, "UnTested");
    EXPECT_EQ(gintCodeStatusId, 2);
    EXPECT_EQ(gstrCategory, "Visual Basic");
    EXPECT_EQ(glngCategoryId, 1);
    EXPECT_TRUE(form.mblnVisualBasicCategory);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(CategoryTree, RightsOfAClickByLevel) {
    struct Case {
        const char* access;
        const char* key;
        bool addCategory;
        bool deleteNode;
        bool modify;
        bool deleteEntry;
    };
    // A reader's buttons that change things stay off, whatever the node; the entries of the
    // hidden Admin menu are not looked at for a reader.
    const Case cases[] = {
        {"Admin", "ROOT", true, false, true, false},
        {"Admin", "C1", false, true, true, true},
        {"Admin", "CTested1202", false, false, false, false},
        {"User", "ROOT", false, false, false, false},
        {"User", "C1", false, false, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.access) + " " + c.key);
        // Each window starts at the root.
        SaveRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS),
                       QString::fromLatin1(REG_VAL_TVIEW_LASTCODETYPE), QStringLiteral("ROOT"));
        frmMain& form = open(QLatin1String(c.access));
        click(*form.tvwCategories, c.key);
        EXPECT_EQ(form.tbToolBar->Buttons("Add Category").Enabled(), c.addCategory);
        EXPECT_EQ(form.tbToolBar->Buttons("DeleteNode").Enabled(), c.deleteNode);
        EXPECT_EQ(form.tbToolBar->Buttons("ReName Item").Enabled(), c.deleteNode);
        EXPECT_FALSE(form.tbToolBar->Buttons("BookMark").Enabled());
        if (form.mnuAdmin->isVisible()) {
            EXPECT_EQ(form.mnuModify->isEnabled(), c.modify);
            EXPECT_EQ(form.mnuDelete->isVisible(), c.deleteEntry);
        }
        form.Unload();
    }
}

TEST_F(CategoryTree, RightPressPopsTheModifyMenuForTheSelectedNodeOnly) {
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    click(tree, "C1");
    click(tree, "C1", Qt::RightButton);
    click(tree, "ROOT");
    click(tree, "ROOT", Qt::RightButton);
    const QList<HostCall> popups = hostScript.callsOf("PopupMenu");
    ASSERT_EQ(popups.size(), 2);
    EXPECT_EQ(popups[0].text, "mnuModify");
    EXPECT_EQ(popups[0].title, "mnuDelete,mnuRename");
    EXPECT_EQ(popups[1].title, "mnuAddCategory");
    EXPECT_EQ(form.mstrCategoryButton, "Left");

    click(tree, "CTested1201");
    hostScript.expectMsgBox("You can not modify the tree view at this level.");
    click(tree, "CTested1201", Qt::RightButton);
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbInformation);
    EXPECT_EQ(hostScript.callsOf("PopupMenu").size(), 2);
}

TEST_F(CategoryTree, ReaderGetsNoPopUpAndKeysChangeNothing) {
    frmMain& form = open(QStringLiteral("User"));
    TreeView& tree = *form.tvwCategories;
    QSignalSpy deletes(form.mnuDelete, &QAction::triggered);
    QSignalSpy adds(form.mnuAddCategory, &QAction::triggered);
    click(tree, "ROOT");
    click(tree, "ROOT", Qt::RightButton);
    press(tree, Qt::Key_Insert);
    click(tree, "C1");
    press(tree, Qt::Key_Delete);
    EXPECT_TRUE(hostScript.callsOf("PopupMenu").isEmpty());
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
    EXPECT_EQ(deletes.count() + adds.count(), 0);
}

TEST_F(CategoryTree, KeysReachTheAddAndDeleteEntries) {
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    QSignalSpy deletes(form.mnuDelete, &QAction::triggered);
    QSignalSpy adds(form.mnuAddCategory, &QAction::triggered);
    click(tree, "ROOT");
    press(tree, Qt::Key_Delete);
    press(tree, Qt::Key_Insert);
    click(tree, "C1");
    press(tree, Qt::Key_Insert);
    press(tree, Qt::Key_Delete);
    EXPECT_EQ(adds.count(), 1);
    EXPECT_EQ(deletes.count(), 1);
}

TEST_F(CategoryTree, ExpandAndCollapseSwapTheFolderImageAndKeepThePlace) {
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    Node category = tree.Nodes("C1");
    category.setExpanded(false);
    click(tree, "C1");
    press(tree, Qt::Key_Right);
    EXPECT_TRUE(category.Expanded());
    EXPECT_EQ(category.Image(), "OpenFolder");
    EXPECT_EQ(form.mstrTreeAction, "Expand");
    EXPECT_EQ(saved(REG_VAL_LASTNODECATEGORY), "C1");
    press(tree, Qt::Key_Left);
    EXPECT_EQ(category.Image(), "ClosedFolder");
    EXPECT_EQ(form.mstrTreeAction, "Collapse");
}

TEST_F(CategoryTree, TheLastPlaceComesBackAtTheNextStartAndAMissingOneFallsBackOnTheRoot) {
    addCode(QStringLiteral("A class"), 203, 1);
    frmMain& first = open();
    click(*first.tvwCategories, "CTested1203");
    first.Unload();

    frmMain& second = open();
    EXPECT_EQ(second.tvwCategories->SelectedItem().Key(), "CTested1203");
    EXPECT_EQ(itemKeys(second), QStringList({"SC1ClassTested"}));
    second.Unload();

    SaveRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS),
                   QString::fromLatin1(REG_VAL_TVIEW_LASTCODETYPE), QStringLiteral("CTested9201"));
    frmMain& third = open();
    EXPECT_EQ(third.tvwCategories->SelectedItem().Key(), "ROOT");
    EXPECT_EQ(third.sbStatusBar->Panels(1).Text(), "At The Root Directory");
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(CategoryTree, WithTenCategoriesTheFirstNinesTypeNodesReadTheWrongTypeId) {
    for (int i = 2; i <= 10; ++i)
        addCategory(QStringLiteral("Category %1").arg(i));
    addCode(QStringLiteral("In the first"), 201, 1, 0, false, 1);
    addCode(QStringLiteral("In the tenth"), 201, 1, 0, false, 10);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    EXPECT_EQ(itemKeys(form), QStringList()); // only the root
    click(*form.tvwCategories, "CTested10201");
    EXPECT_EQ(itemKeys(form), QStringList({"SC2CodeTested"}));
}

TEST_F(CategoryTree, RenameRefusesAnEmptyOrLongNameAndStoresAGoodOne) {
    const int id = addCategory(QStringLiteral("Scripts"));
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    click(tree, "C2");
    struct Case {
        QString text;
        const char* message;
        int icon;
    };
    const Case cases[] = {
        {QString(), "You must enter some text for a description", vbInformation},
        {QString(21, QLatin1Char('x')),
         "The text size cannot be greateer than 20 characters, vbInformation, App.ProductName", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        hostScript.expectMsgBox(QLatin1String(c.message));
        EXPECT_FALSE(tree.PerformLabelEdit(tree.Nodes("C2"), c.text));
        EXPECT_EQ(hostScript.msgBoxes().last().text, QLatin1String(c.message));
        EXPECT_EQ(hostScript.msgBoxes().last().icon(), c.icon);
        // The edit starts again on the old label.
        QApplication::processEvents();
        EXPECT_TRUE(tree.IsLabelEditing());
        QLineEdit* editor = tree.viewport()->findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->text(), "Scripts");
        QTest::keyClick(editor, Qt::Key_Escape);
    }
    EXPECT_TRUE(tree.PerformLabelEdit(tree.Nodes("C2"), QStringLiteral("Scripts and Tools")));
    EXPECT_EQ(form.sbStatusBar->Panels(1).Text(), "Scripts and Tools");
    EXPECT_EQ(cLibraryService(mDatabase).GetLookup("Category")(2).Description, "Scripts and Tools");
    EXPECT_EQ(form.marrCategories(2).Id.toInt(), id);
    EXPECT_EQ(form.marrCategories(2).Description, "Scripts and Tools");
}

} // namespace
