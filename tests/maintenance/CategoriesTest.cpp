#include "MaintenanceFixture.h"

#include "Globals.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmMain.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

class Categories : public Maintenance {
protected:
    QStringList categoryNames() const {
        QStringList out;
        for (const LookupRow& row : cLibraryService(mDatabase).GetLookup("Category"))
            out << row.Description;
        return out;
    }
    static QLineEdit* editor(TreeView& tree) {
        QApplication::processEvents();
        if (!tree.IsLabelEditing())
            return nullptr;
        // An editor closed before waits for its deletion beside the open one.
        for (QLineEdit* box : tree.viewport()->findChildren<QLineEdit*>())
            if (box->isVisible())
                return box;
        return nullptr;
    }
};

TEST_F(Categories, ANewCategoryKeepsItsPlaceholderUntilItIsNamed) {
    frmMain& form = open();
    TreeView& tree = *form.tvwCategories;
    click(tree, "ROOT");
    press(tree, Qt::Key_Insert);
    EXPECT_EQ(categoryNames(), QStringList({"Visual Basic", "Adding Cat"}));
    EXPECT_EQ(tree.SelectedItem().Key(), "C2");
    EXPECT_TRUE(tree.SelectedItem().Expanded());
    EXPECT_EQ(childKeys(tree, "C2").size(), 4); // the two file types and the two branches

    // Escape leaves the placeholder; a name typed later is stored.
    QLineEdit* box = editor(tree);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), "Adding Cat");
    QTest::keyClick(box, Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(tree.Nodes("C2").Text(), "Adding Cat");
    EXPECT_EQ(categoryNames().last(), "Adding Cat");
}

TEST_F(Categories, RenameEditsTheActiveTreeAndSparesVisualBasic) {
    addCategory("Scripts");
    addCode("Pad", 201, 1);
    frmMain& form = open();
    struct Case {
        const char* category;
        const char* item; // a node of tvwMain clicked last, or none
        bool refused;
        bool categoryEdit;
    };
    const Case cases[] = {
        {"C1", nullptr, true, false},
        {"C2", nullptr, false, true},
        {"CTested1201", "SC1CodeTested", false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.category);
        click(*form.tvwCategories, c.category);
        if (c.item)
            click(*form.tvwMain, c.item);
        if (c.refused)
            hostScript.expectMsgBox("''Visual Basic'' is the only ''Static Category'' and cannot "
                                    "be renamed.");
        form.mnuRename->trigger();
        QApplication::processEvents();
        EXPECT_EQ(form.tvwCategories->IsLabelEditing(), c.categoryEdit);
        EXPECT_EQ(form.tvwMain->IsLabelEditing(), c.item != nullptr);
        for (TreeView* tree : {form.tvwCategories, form.tvwMain})
            if (QLineEdit* box = editor(*tree))
                QTest::keyClick(box, Qt::Key_Escape);
    }
}

} // namespace
