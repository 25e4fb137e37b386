#include "TreeWindowFixture.h"

#include "StatusBar.h"
#include "cLibraryService.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QApplication>
#include <QSignalSpy>

using namespace qs;
using namespace qs::test;

namespace {

using CategoryTree = TreeWindow;

QString saved(const char* value) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS), QString::fromLatin1(value))
        .toString();
}

void save(const char* value, const QString& key) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS), QString::fromLatin1(value), key);
}

QStringList itemKeys(frmMain& form) {
    return form.tvwMain->Nodes.Count() ? TreeWindow::childKeys(*form.tvwMain, "ROOT")
                                       : QStringList({"(none)"});
}

TEST_F(CategoryTree, FillGivesEachCategoryItsFileTypesAndBranchesOfCodeTypes) {
    addCategory(QStringLiteral("Scripts"));
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    Node root = tree.Nodes("ROOT");
    EXPECT_TRUE(root.Bold() && root.Expanded());
    EXPECT_EQ(form.marrCategoryKeys.rows(), QVector<QString>({"C1", "C2"}));
    // Children stand sorted by text.
    EXPECT_EQ(childKeys(tree, "ROOT"), QStringList({"C2", "C1"}));
    EXPECT_EQ(childKeys(tree, "C2"), QStringList({"FT2101", "FT2102", "TestedC2", "UnTestedC2"}));
    EXPECT_EQ(childKeys(tree, "UnTestedC1"),
              QStringList({"CUntested1203", "CUntested1201", "CUntested1204", "CUntested1202"}));
    QStringList images;
    for (const char* key : {"C2", "FT1102", "CTested1201", "CUntested1201", "CUntested1203"})
        images << tree.Nodes(QLatin1String(key)).Image();
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
        bool fileTabs;
    };
    // A branch lists nothing; the root leaves the tabs as they were.
    const Case cases[] = {
        {"C1", "Visual Basic", {"(none)"}, "C1", false},
        {"TestedC1", "Visual Basic Tested Items", {"(none)"}, "", false},
        {"CTested1201", "Visual Basic Tested Code Snippets", {"SC1CodeTested"}, "", false},
        {"CUntested1203", "Visual Basic UnTested Class Modules", {"SC3ClassUnTested"}, "", false},
        {"FT1101", "Visual Basic Article Items", {"SF1Article"}, "", true},
        {"ROOT", "At The Root Directory", {"(none)"}, "ROOT", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        click(*form.tvwCategories, c.key);
        EXPECT_EQ(form.sbStatusBar->Panels(1).Text(), QLatin1String(c.status));
        EXPECT_EQ(itemKeys(form), c.items);
        EXPECT_EQ(saved(REG_VAL_LASTNODECATEGORY), QLatin1String(c.lastNode));
        EXPECT_EQ(saved(REG_VAL_TVIEW_LASTCODETYPE), *c.lastNode ? QString() : QString(c.key));
        EXPECT_EQ(form.SSTabSourceFile->isHidden(), !c.fileTabs);
        EXPECT_TRUE(!form.tvwMain->isHidden() && form.tvwMainCopy->isHidden());
    }
    click(*form.tvwCategories, "CUntested1203");
    EXPECT_EQ(gstrCodeStatus + gstrCategory, "UnTestedVisual Basic");
    EXPECT_EQ(gintCodeStatusId * 10 + glngCategoryId, 21);
    EXPECT_TRUE(form.mblnVisualBasicCategory);
}

TEST_F(CategoryTree, RightsPopUpAndKeysByLevel) {
    struct Case {
        const char* access;
        const char* key;
        QStringList buttons;
        const char* popup; // the pop-up the right press shows; "!" the refusal
        int keyCommands;   // entries Insert and Delete reach
    };
    const Case cases[] = {
        {"Admin", "ROOT", {"Add Category"}, "mnuModify:mnuAddCategory", 1},
        {"Admin", "C1", {"DeleteNode", "ReName Item"}, "mnuModify:mnuDelete,mnuRename", 1},
        {"Admin", "CTested1202", {}, "!", 0},
        {"User", "ROOT", {}, "", 0},
        {"User", "C1", {}, "", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.access) + " " + c.key);
        save(REG_VAL_TVIEW_LASTCODETYPE, QStringLiteral("ROOT")); // each window starts there
        frmMain& form = open(QLatin1String(c.access));
        TreeView& tree = *form.tvwCategories;
        hostScript.clearCalls();
        QSignalSpy adds(form.mnuAddCategory, &QAction::triggered);
        QSignalSpy deletes(form.mnuDelete, &QAction::triggered);
        click(tree, c.key);
        EXPECT_EQ(enabledButtons(form), c.buttons) << "after the left click";
        const bool refused = QLatin1String(c.popup) == QLatin1String("!");
        if (refused)
            hostScript.expectMsgBox("You can not modify the tree view at this level.");
        click(tree, c.key, Qt::RightButton);
        EXPECT_EQ(enabledButtons(form), c.buttons);
        EXPECT_EQ(popups(), refused ? "" : c.popup);
        EXPECT_EQ(form.mstrCategoryButton, "Left");
        // Delete first: an Insert on the root selects the category it adds.
        if (c.buttons.contains("DeleteNode"))
            hostScript.expectMsgBox("Do you want to delete the selected item?", vbNo);
        press(tree, Qt::Key_Delete);
        press(tree, Qt::Key_Insert);
        EXPECT_EQ(adds.count() + deletes.count(), c.keyCommands);
        form.Unload();
    }
}

TEST_F(CategoryTree, TheLastPlaceComesBackAtTheNextStartAndAMissingOneFallsBackOnTheRoot) {
    addCode(QStringLiteral("A class"), 203, 1);
    frmMain& first = open();
    click(*first.tvwCategories, "C1");
    press(*first.tvwCategories, Qt::Key_Right);
    EXPECT_EQ(first.tvwCategories->Nodes("C1").Image(), "OpenFolder");
    EXPECT_EQ(first.mstrTreeAction, "Expand");
    press(*first.tvwCategories, Qt::Key_Left);
    EXPECT_EQ(first.tvwCategories->Nodes("C1").Image(), "ClosedFolder");
    EXPECT_EQ(saved(REG_VAL_LASTNODECATEGORY), "C1");
    click(*first.tvwCategories, "CTested1203");
    first.Unload();

    frmMain& second = open();
    EXPECT_EQ(second.tvwCategories->SelectedItem().Key(), "CTested1203");
    EXPECT_EQ(itemKeys(second), QStringList({"SC1ClassTested"}));
    second.Unload();

    save(REG_VAL_TVIEW_LASTCODETYPE, QStringLiteral("CTested9201"));
    frmMain& third = open();
    EXPECT_EQ(third.tvwCategories->SelectedItem().Key(), "ROOT");
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(CategoryTree, WithTenCategoriesTheFirstNinesTypeNodesReadTheWrongTypeId) {
    for (int i = 2; i <= 10; ++i)
        addCategory(QStringLiteral("Category %1").arg(i));
    addCode(QStringLiteral("In the first"), 201, 1, 0, false, 1);
    addCode(QStringLiteral("In the tenth"), 201, 1, 0, false, 10);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    EXPECT_EQ(itemKeys(form), QStringList()); // the root alone
    click(*form.tvwCategories, "CTested10201");
    EXPECT_EQ(itemKeys(form), QStringList({"SC2CodeTested"}));
}

TEST_F(CategoryTree, RenameRefusesALongNameAndStoresAGoodOne) {
    addCategory(QStringLiteral("Scripts"));
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    click(tree, "C2");
    // The odd words after the comma belong to the message; the box has no icon.
    const QString message = QStringLiteral(
        "The text size cannot be greateer than 20 characters, vbInformation, App.ProductName");
    hostScript.expectMsgBox(message);
    EXPECT_FALSE(tree.PerformLabelEdit(tree.Nodes("C2"), QString(21, QLatin1Char('x'))));
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), 0);
    // The edit starts again on the old label.
    QApplication::processEvents();
    auto* editor = tree.viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(editor && tree.IsLabelEditing());
    EXPECT_EQ(editor->text(), "Scripts");
    QTest::keyClick(editor, Qt::Key_Escape);

    EXPECT_TRUE(tree.PerformLabelEdit(tree.Nodes("C2"), QStringLiteral("Scripts and Tools")));
    EXPECT_EQ(form.sbStatusBar->Panels(1).Text(), "Scripts and Tools");
    EXPECT_EQ(cLibraryService(mDatabase).GetLookup("Category")(2).Description, "Scripts and Tools");
    EXPECT_EQ(form.marrCategories(2).Description, "Scripts and Tools");
}

} // namespace
