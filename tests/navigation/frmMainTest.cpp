// The main window's commands by access level, its start-up, and the commands that leave it.

#include "TreeWindowFixture.h"

#include "EventWiring.h"
#include "FormBase.h"
#include "cLibraryService.h"
#include "frmLogin.h"
#include "frmUser.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QApplication>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

using namespace qs;
using namespace qs::test;

namespace {

using MainWindow = TreeWindow;

QString databaseSetting(const char* name) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE), QString::fromLatin1(name))
        .toString();
}

QStringList comboEntries(const ComboBox& combo) {
    QStringList list;
    for (int i = 0; i < combo.ListCount(); ++i)
        list << combo.List(i);
    return list;
}

// The commands whose windows are not built yet.  Work that builds one takes its name off, so the
// list only shrinks; "mnuImportQSDB" has no command by design.
const QStringList kUnrouted = {"mnuImportQSDB"};

TEST_F(MainWindow, EveryEntryAndButtonReachesAHandlerUnlessListedAsUnbuilt) {
    frmMain& form = open();
    QStringList unrouted;
    std::function<void(QMenu*)> walk = [&](QMenu* menu) {
        for (QAction* a : menu->actions()) {
            if (a->isSeparator())
                continue;
            if (a->menu())
                walk(a->menu());
            else if (WiredHandler(a).isEmpty())
                unrouted << a->objectName();
        }
    };
    for (QAction* top : form.menuBar->actions())
        walk(top->menu());
    for (int i = 1; i <= form.tbToolBar->Buttons.Count(); ++i) {
        const Button& button = form.tbToolBar->Buttons(i);
        if (button.Style() != tbrSeparator && !frmMain::ToolBarRoutes(button.Tag()))
            unrouted << QStringLiteral("button ") + button.Tag();
    }
    EXPECT_EQ(unrouted, kUnrouted);
}

TEST_F(MainWindow, OnlyAnAdministratorSeesTheCommandsThatChangeTheLibrary) {
    const QStringList adminButtons = {"Add Category",   "Add Folder", "Add SourceCode",
                                      "Add SourceFile", "DeleteNode", "Seperator2",
                                      "ReName Item"};
    for (const char* access : {"Admin", "User", "Unauthorized"}) {
        SCOPED_TRACE(access);
        const bool admin = QLatin1String(access) == QLatin1String("Admin");
        frmMain& form = open(QLatin1String(access));
        for (QAction* a : {form.mnuAdmin, form.mnuBackup, form.mnuCompact, form.mnuNewDatabase})
            EXPECT_EQ(a->isVisible(), admin) << a->objectName().toStdString();
        EXPECT_TRUE(form.mnuDatabase->isVisible() && form.mnuOpenDatabase->isVisible());
        for (const auto& button : form.tbToolBar->Buttons)
            EXPECT_EQ(button->Visible(), admin || !adminButtons.contains(button->Key()))
                << button->Key().toStdString();
        EXPECT_FALSE(form.tbToolBar->Buttons("Edit").Enabled()); // nothing chosen yet
        form.Unload();
    }
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(MainWindow, StartUpFillsTheSearchCombosAndMakesTheService) {
    frmMain& form = open();
    EXPECT_EQ(comboEntries(*form.cboTestedOrUntested), QStringList({"Tested", "Untested"}));
    EXPECT_EQ(comboEntries(*form.cboCodeType),
              QStringList({"Article", "Component", "Code Snippet", "Tip", "Class Module",
                           "General Module"}));
    EXPECT_EQ(comboEntries(*form.cboCategory), QStringList({"Visual Basic"}));
    EXPECT_TRUE(gobjLibrary && gblnCodeView);
    EXPECT_EQ(form.mstrLastNodeCategory + form.mstrLastCodeType + form.mstrLastCodeTypeMain,
              "ROOTROOTROOT");
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    // Texts the window keeps exactly as they have always read.
    EXPECT_EQ(form.lblCategories->text(), "Quillstone Catagories:");
    EXPECT_EQ(form.SSTabNavigate->TabCaption(1) + "|" + form.SSTabNavigate->TabCaption(2),
              "BookMarks|Search/Results");

    // Activation on the search tab gives the search box the focus.
    form.SSTabNavigate->setTab(2);
    form.tvwCategories->setFocus();
    form.Activate();
    EXPECT_EQ(QApplication::focusWidget(), form.txtSearchString);
}

TEST_F(MainWindow, ExitEndsTheProgramAtOnce) {
    open().mnuExit->trigger();
    EXPECT_TRUE(hostScript.ended());
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}

TEST_F(MainWindow, ReturnToLoginUnloadsTheWindowsAndShowsTheLogin) {
    frmMain& form = open();
    gintLoginAttempts = 2;
    form.mnuLoginReturn->trigger();
    EXPECT_EQ(Forms::find<frmMain>(), nullptr);
    EXPECT_FALSE(gobjLibrary);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_TRUE(login->isVisible());
    EXPECT_EQ(gintLoginAttempts, 2);
}

TEST_F(MainWindow, UsersMenuShowsTheUserWindowModallyAndComesBack) {
    frmMain& form = open();
    bool mainHidden = false;
    hostScript.onModal<frmUser>(QStringLiteral("frmUser"), [&](frmUser& users) {
        mainHidden = !form.isVisible();
        users.Unload();
    });
    form.mnuUser->trigger();
    EXPECT_TRUE(mainHidden);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(hostScript.callsOf(QStringLiteral("Modal")).size(), 1);
}

TEST_F(MainWindow, OpeningAnotherDatabaseNamesItAndShowsTheLoginOverTheHiddenWindow) {
    const QString other = home->file(QStringLiteral("Elsewhere/Other.mdb"));
    cLibraryService(other).CreateDatabase(other, QString());
    frmMain& form = open();
    form.SSTabNavigate->setTab(1);
    gintLoginAttempts = 3;

    // A cancelled choice changes nothing.
    hostScript.answerFileDialog(QString());
    form.mnuOpenDatabase->trigger();
    EXPECT_EQ(hostScript.lastFileDialog().title, "Select a Tarnwick Database.");
    EXPECT_EQ(hostScript.lastFileDialog().filter, "MsAccess Files (*.mdb)|*.mdb");
    EXPECT_EQ(databaseSetting(REG_VAL_DATABASE_FILENAME), "Quillstone.mdb");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(gblnSwitchingDatabase);
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);

    hostScript.answerFileDialog(other);
    form.mnuOpenDatabase->trigger();
    EXPECT_EQ(databaseSetting(REG_VAL_DATABASE_PATH), QFileInfo(other).absolutePath());
    EXPECT_EQ(databaseSetting(REG_VAL_DATABASE_FILENAME), "Other.mdb");
    EXPECT_EQ(gstrPriorDbFile, "Quillstone.mdb");
    EXPECT_EQ(gstrPriorDbPath, QFileInfo(mDatabase).absolutePath());
    EXPECT_EQ(gintLoginAttempts, 0);
    EXPECT_TRUE(gblnSwitchingDatabase);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Forms::find<frmMain>(), &form);
    EXPECT_EQ(form.SSTabNavigate->Tab(), 0);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_EQ(login->Caption(), "Login To Database You Selected");
    EXPECT_EQ(login->cmdExit->text(), "Cancel");
}

} // namespace
