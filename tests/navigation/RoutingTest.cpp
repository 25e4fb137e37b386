#include "TreeWindowFixture.h"

#include "ListView.h"
#include "StatusBar.h"
#include "mHelpRoutines.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QApplication>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSignalSpy>

using namespace qs;
using namespace qs::test;

namespace {

// Snippets: Alpha (1) and folder Helpers (2) at the top, Pad (3) alone in Helpers.
class Routing : public TreeWindow {
protected:
    frmMain& openSnippets() {
        addCode(QStringLiteral("Alpha"), 201, 1);
        addCode(QStringLiteral("Helpers"), 201, 1, 0, true);
        addCode(QStringLiteral("Pad"), 201, 1, 2);
        frmMain& form = open();
        click(*form.tvwCategories, "CTested1201");
        return form;
    }
    static bool toolBar(frmMain& form, const char* key) {
        return form.tbToolBar->PerformClick(QLatin1String(key));
    }
};

TEST_F(Routing, BackAndForwardStepThroughTheTreeThatHadTheFocusLast) {
    frmMain& form = openSnippets();
    TreeView& items = *form.tvwMain;
    click(items, "SC1CodeTested");
    EXPECT_EQ(form.mstrActiveTree, "Main");
    struct Step {
        const char* button;
        const char* selected;
    };
    // Back on the first child goes to the parent, and on the root stays; Forward takes the next
    // sibling, else the first child, and on a last child without children stays.
    const Step steps[] = {{"Back", "ROOT"},
                          {"Back", "ROOT"},
                          {"Forward", "SC1CodeTested"},
                          {"Forward", "SC2CodeTestedFolder"},
                          {"Forward", "SC3CodeTested"},
                          {"Forward", "SC3CodeTested"},
                          {"Back", "SC2CodeTestedFolder"},
                          {"Back", "SC1CodeTested"}};
    for (const Step& s : steps) {
        SCOPED_TRACE(std::string(s.button) + " to " + s.selected);
        ASSERT_TRUE(toolBar(form, s.button));
        EXPECT_EQ(items.SelectedItem().Key(), QLatin1String(s.selected));
        EXPECT_EQ(form.lblCodeSnipDescr->text(), items.SelectedItem().Text());
    }

    // The focus on the category tree turns the bookmark off and makes it the tree to step in.
    ASSERT_TRUE(form.tbToolBar->Buttons("BookMark").Enabled());
    form.tvwCategories->setFocus();
    EXPECT_FALSE(form.tbToolBar->Buttons("BookMark").Enabled());
    EXPECT_EQ(form.mstrActiveTree, "Cats");
    click(*form.tvwCategories, "CTested1201");
    ASSERT_TRUE(toolBar(form, "Back"));
    EXPECT_EQ(form.tvwCategories->SelectedItem().Key(), "CTested1203");
    EXPECT_EQ(form.sbStatusBar->Panels(1).Text(), "Visual Basic Tested Class Modules");
}

TEST_F(Routing, DeleteNodeOnTheRootWarnsAndClicksItAgain) {
    frmMain& form = openSnippets();
    QSignalSpy deletes(form.mnuDelete, &QAction::triggered);
    click(*form.tvwMain, "ROOT");
    click(*form.tvwMain, "SC1CodeTested", Qt::RightButton); // sets the rights of the item
    ASSERT_TRUE(form.tbToolBar->Buttons("DeleteNode").Enabled());
    hostScript.expectMsgBox("The ''Root'' directory cannot be deleted. Click on any other node "
                            "to delete it");
    ASSERT_TRUE(toolBar(form, "DeleteNode"));
    EXPECT_EQ(deletes.count(), 0);
    EXPECT_FALSE(form.tbToolBar->Buttons("DeleteNode").Enabled());
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Tarnwick");
}

TEST_F(Routing, F1OpensTheTopicOfTheControlWithTheFocus) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                   QString::fromLatin1(REG_VAL_HELPFILES_FILEPATH), home->path());
    frmMain& form = open();
    struct Case {
        QWidget* control;
        int navigateTab;
        int codeTab;
        long topic;
        int command;
    };
    const Case cases[] = {
        {form.tvwMain, 0, 0, 1370, HELP_CONTEXTPOPUP},
        {form.RichTextBoxCode, 0, 0, 1410, HELP_CONTEXTPOPUP},
        {form.txtNotes, 0, 1, 1420, HELP_CONTEXTPOPUP},
        {form.txtExample, 0, 2, 1500, HELP_CONTEXTPOPUP},
        {form.txtSearchString, 2, 0, 1640, HELP_CONTEXTPOPUP},
        {form.cmdSearch, 2, 0, 0, HELP_TAB}, // any other: the contents
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.control->objectName().toStdString());
        hostScript.clearCalls();
        form.SSTabNavigate->setTab(c.navigateTab);
        form.SSTabAboutCode->setTab(c.codeTab);
        c.control->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), c.control);
        QTest::keyClick(c.control, Qt::Key_F1);
        const QList<HostCall> help = hostScript.callsOf("Help");
        ASSERT_EQ(help.size(), 1);
        EXPECT_EQ(help[0].text.toLong(), c.topic);
        EXPECT_EQ(help[0].flags, c.command);
    }
    // Help on the help opens the contents, where the pages are found.
    hostScript.clearCalls();
    form.mnuHelpOnHelp->trigger();
    ASSERT_EQ(hostScript.callsOf("Help").size(), 1);
    EXPECT_EQ(hostScript.callsOf("Help")[0].flags, HELP_TAB);
}

TEST_F(Routing, TheWindowOpensWithinTheScreenAndShowsCodeInFixedWidth) {
    frmMain& form = open();
    const QSize room = form.screen()->availableGeometry().size();
    EXPECT_LE(form.width(), room.width());
    EXPECT_LE(form.height(), room.height());
    EXPECT_TRUE(QFontInfo(form.RichTextBoxCode->font()).fixedPitch());
    // A wider window gives the room to both sides.
    const int left = form.tvwCategories->width();
    const int right = form.SSTabAboutCode->width();
    form.resize(form.width() + 200, form.height());
    QApplication::processEvents();
    EXPECT_GT(form.tvwCategories->width(), left);
    EXPECT_GT(form.SSTabAboutCode->width(), right);
}

} // namespace
