#include "HostFixture.h"

#include "ComboBox.h"
#include "EventWiring.h"
#include "FormBase.h"
#include "Globals.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmLogin.h"
#include "frmMain.h"
#include "frmUser.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

const QStringList kAdminButtons = {
    QStringLiteral("Add Category"),   QStringLiteral("Add Folder"),
    QStringLiteral("Add SourceCode"), QStringLiteral("Add SourceFile"),
    QStringLiteral("DeleteNode"),     QStringLiteral("Seperator2"),
    QStringLiteral("ReName Item")};

// An empty library that the settings name, and a logged-in user of the given access type.
class MainWindow : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        addGlobalReset("core", [] { ResetGlobals(); });
        mDatabase = home->file(QStringLiteral("Libraries/Quillstone.mdb"));
        cLibraryService(mDatabase).CreateDatabase(mDatabase, QString());
        pointAt(mDatabase);
        gstrUserId = QStringLiteral("ada");
        gstrAccessType = QStringLiteral("Admin");
    }

    static void pointAt(const QString& path) {
        const QFileInfo file(path);
        SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                       QString::fromLatin1(REG_VAL_DATABASE_PATH), file.absolutePath());
        SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                       QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file.fileName());
    }

    static QString registryValue(const char* name) {
        return GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE), QString::fromLatin1(name))
            .toString();
    }

    static QAction* entry(frmMain& form, const QString& name) {
        return form.findChild<QAction*>(name);
    }

    static QStringList comboEntries(const ComboBox& combo) {
        QStringList list;
        for (int i = 0; i < combo.ListCount(); ++i)
            list << combo.List(i);
        return list;
    }

    QString mDatabase;
};

// ---------------------------------------------------------------------------------------------
// Menu bar and tool bar.

using MainMenus = MainWindow;

TEST_F(MainMenus, MenuBarHoldsTheTopMenusInOrderWithTheirAccelerators) {
    frmMain& form = Forms::get<frmMain>();
    EXPECT_EQ(form.Caption(), QStringLiteral("Ovrin Quillstone"));

    QStringList shown;
    for (QAction* top : form.menuBar->actions())
        if (top->isVisible())
            shown << top->objectName() + QLatin1Char('=') + top->text();
    EXPECT_EQ(
        shown,
        QStringList({QStringLiteral("mnuFile=&File"), QStringLiteral("mnuEdit=&Edit"),
                     QStringLiteral("mnuView=&View"), QStringLiteral("mnuBookMarkSearch=&Search"),
                     QStringLiteral("mnuAdmin=&Admin"), QStringLiteral("mnuDatabase=&Database"),
                     QStringLiteral("mnuHelp=&Help")}));
    // The bookmark pop-up belongs to the bar but never shows there.
    ASSERT_NE(entry(form, QStringLiteral("mnuBk")), nullptr);
    EXPECT_FALSE(form.mnuBk->isVisible());
    EXPECT_EQ(form.mnuBk->text(), QStringLiteral("BkMenu"));
}

TEST_F(MainMenus, EverySubMenuHoldsItsEntriesAndSeparatorsInOrder) {
    frmMain& form = Forms::get<frmMain>();
    const auto names = [](QAction* menu) {
        QStringList list;
        for (QAction* a : menu->menu()->actions())
            list << a->objectName() + QLatin1Char('=') +
                        (a->isSeparator() ? QStringLiteral("-") : a->text());
        return list;
    };
    EXPECT_EQ(
        names(form.mnuFile),
        QStringList({"mnuImport=Import", "mnuExport=Export", "Seperator1=-",
                     "mnuLoginReturn=Return to Login Screen", "Seperator2=-", "mnuExit=Exit"}));
    EXPECT_EQ(names(form.mnuImport), QStringList({"mnuImportQSDB=From QS Database"}));
    EXPECT_EQ(names(form.mnuExport), QStringList({"mnuRTF=To RTF", "mnuPDF=To PDF", "mnuXml=To XML",
                                                  "mnuHtml=To HTML", "mnuTextFile=To Text File"}));
    EXPECT_EQ(
        names(form.mnuEdit),
        QStringList({"mnuFind=Find", "mnuCopy=Copy", "mnuAdvancedCopy=Advanced Copy",
                     "mnuSelectAll=Select All Code", "seperator3=-", "mnuBookMark=BookMark"}));
    EXPECT_EQ(names(form.mnuView),
              QStringList({"mnuApiViewer=API Viewer", "mnuBookMarkS=Bookmarks"}));
    EXPECT_EQ(names(form.mnuBookMarkSearch), QStringList({"mnuBookMarkSch=BookMark"}));
    EXPECT_EQ(names(form.mnuAdmin), QStringList({"mnuUpdate=Maintenance", "mnuModify=Modify"}));
    EXPECT_EQ(names(form.mnuUpdate), QStringList({"mnuAuthor=Authors", "mnuUser=Users"}));
    EXPECT_EQ(names(form.mnuModify),
              QStringList({"mnuAddCategory=Add Category", "mnuAddFolder=Add Folder",
                           "mnuAddSourceCode=Add SourceCode", "mnuAddSourceFile=Add SourceFile",
                           "mnuBookMarkA=BookMark", "mnuDelete=Delete", "mnuEditSource=Edit",
                           "mnuRename=Rename"}));
    EXPECT_EQ(names(form.mnuDatabase), QStringList({"mnuOpenDatabase=Open", "mnuNewDatabase=Create",
                                                    "mnuBackup=Backup", "mnuCompact=Compact"}));
    EXPECT_EQ(
        names(form.mnuHelp),
        QStringList({"mnuHelpContents=Contents...", "mnuHelpSearch=Search...",
                     "mnuHelpOnHelp=How to Use Help", "separator4=-", "mnuAboutApp=About App"}));
    EXPECT_EQ(names(form.mnuBk), QStringList({"mnuDelBookmark=Delete BookMark"}));
}

TEST_F(MainMenus, ToolBarHoldsItsButtonsInOrderWithTagToolTipAndImage) {
    frmMain& form = Forms::get<frmMain>();
    QStringList rows;
    for (const auto& button : form.tbToolBar->Buttons)
        rows << QStringList({button->Key(), button->Tag(), button->ToolTipText(), button->Image()})
                    .join(QLatin1Char('|'));
    EXPECT_EQ(rows, QStringList({
                        "Open DataBase|Open DataBase|Open DataBase|OpenDataBase",
                        "Add Category|Add Category|Add Category|Category",
                        "Add Folder|Add Folder|Add Folder|Folder",
                        "Add SourceCode|Add SourceCode|Add SourceCode|SourceCode",
                        "Add SourceFile|Add SourceFile|Add SourceFile|SourceFile",
                        "Seperator2|Seperator2||",
                        "DeleteNode|DeleteNode|Delete Selected Node|Delete",
                        "BookMark|BookMark|BookMark Item|BookMark",
                        "Edit|Edit|Edit Source|Edit",
                        "ReName Item|ReName|Rename Node|ReName2",
                        "Find|Find|Find Item|Find",
                        "BookMarks|BookMarks|View BookMarks|BookMarks",
                        "Back|Back|Next Item|Back",
                        "Forward|Forward|Forward Item|Forward",
                        "Copy|Copy|Copy|Copy",
                        "AdvCopy|AdvCopy|Advanced Copy|AdvCopy",
                        "Print|Print|Print|Print",
                    }));
    EXPECT_EQ(form.tbToolBar->Buttons(QStringLiteral("Seperator2")).Style(), tbrSeparator);
    EXPECT_FALSE(form.tbToolBar->Buttons(QStringLiteral("Edit")).Enabled());
}

// The commands whose windows are not built yet.  Work that builds one takes its name off, so the
// list only shrinks; "mnuImportQSDB" has no command by design.
const QStringList kUnrouted = {"mnuImportQSDB"};

TEST_F(MainMenus, EveryEntryAndButtonReachesAHandlerUnlessListedAsUnbuilt) {
    frmMain& form = Forms::get<frmMain>();
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

TEST_F(MainMenus, ControlsCarryTheirDesignNames) {
    frmMain& form = Forms::get<frmMain>();
    for (const char* name : {"tvwCategories",
                             "tvwMain",
                             "tvwMainCopy",
                             "tvwBookMarks",
                             "tvwSearchResults",
                             "SSTabNavigate",
                             "SSTabAboutCode",
                             "SSTabSourceFile",
                             "RichTextBoxCode",
                             "lvwRevisionHistory",
                             "lstSrcFileRevHist",
                             "cboCategory",
                             "cboCodeType",
                             "cboTestedOrUntested",
                             "txtSearchString",
                             "cmdSearch",
                             "sbStatusBar",
                             "tbToolBar",
                             "lblCodeSnipDescr",
                             "txtNotes",
                             "txtExample",
                             "lboxVerInfo",
                             "picIcon"})
        EXPECT_NE(form.findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
    EXPECT_EQ(form.SSTabNavigate->TabCaption(2), QStringLiteral("Search/Results"));
    EXPECT_EQ(form.lblCategories->text(), QStringLiteral("Quillstone Catagories:"));
}

// ---------------------------------------------------------------------------------------------
// Load, the level rule, start-up and shutdown.

using MainLoad = MainWindow;

TEST_F(MainLoad, AdministratorSeesEveryCommand) {
    frmMain& form = Forms::get<frmMain>();

    for (QAction* a : {form.mnuAdmin, form.mnuBackup, form.mnuCompact, form.mnuNewDatabase})
        EXPECT_TRUE(a->isVisible()) << a->objectName().toStdString();
    for (const auto& button : form.tbToolBar->Buttons)
        EXPECT_TRUE(button->Visible()) << button->Key().toStdString();
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(MainLoad, ReadUserSeesNeitherTheAdminMenuNorTheSevenButtons) {
    gstrAccessType = QStringLiteral("User");
    frmMain& form = Forms::get<frmMain>();

    for (QAction* a : {form.mnuAdmin, form.mnuBackup, form.mnuCompact, form.mnuNewDatabase})
        EXPECT_FALSE(a->isVisible()) << a->objectName().toStdString();
    EXPECT_TRUE(form.mnuDatabase->isVisible());
    EXPECT_TRUE(form.mnuOpenDatabase->isVisible());
    for (const auto& button : form.tbToolBar->Buttons)
        EXPECT_EQ(button->Visible(), !kAdminButtons.contains(button->Key()))
            << button->Key().toStdString();
}

TEST_F(MainLoad, UnauthorizedUserIsCutDownLikeAReader) {
    gstrAccessType = QStringLiteral("Unauthorized");
    frmMain& form = Forms::get<frmMain>();

    EXPECT_FALSE(form.mnuAdmin->isVisible());
    EXPECT_FALSE(form.tbToolBar->Buttons(QStringLiteral("DeleteNode")).Visible());
}

TEST_F(MainLoad, StartUpFillsTheSearchCombosAndMakesTheService) {
    frmMain& form = Forms::get<frmMain>();

    EXPECT_EQ(comboEntries(*form.cboTestedOrUntested),
              QStringList({QStringLiteral("Tested"), QStringLiteral("Untested")}));
    const QStringList types = comboEntries(*form.cboCodeType);
    ASSERT_EQ(types.size(), 6) << types.join(QLatin1Char(',')).toStdString();
    EXPECT_TRUE(types.indexOf(QStringLiteral("Article")) < types.indexOf(QStringLiteral("Tip")));
    EXPECT_TRUE(types.contains(QStringLiteral("Component")));
    EXPECT_TRUE(types.contains(QStringLiteral("General Module")));
    EXPECT_EQ(comboEntries(*form.cboCategory), QStringList({QStringLiteral("Visual Basic")}));
    EXPECT_TRUE(gobjLibrary);
    EXPECT_TRUE(gblnCodeView);
    EXPECT_EQ(form.mstrLastNodeCategory, QStringLiteral("ROOT"));
    EXPECT_EQ(form.mstrLastCodeType, QStringLiteral("ROOT"));
    EXPECT_EQ(form.mstrLastCodeTypeMain, QStringLiteral("ROOT"));
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(MainLoad, UnloadReleasesTheService) {
    frmMain& form = Forms::get<frmMain>();
    ASSERT_TRUE(gobjLibrary);
    EXPECT_TRUE(form.Unload());

    EXPECT_FALSE(gobjLibrary);
    EXPECT_EQ(Forms::find<frmMain>(), nullptr);
}

TEST_F(MainLoad, ActivationOnTheSearchTabFocusesTheSearchBox) {
    frmMain& form = Forms::get<frmMain>();
    form.show();
    QApplication::setActiveWindow(&form);
    form.SSTabNavigate->setTab(2);
    form.tvwCategories->setFocus();
    form.Activate();

    EXPECT_EQ(QApplication::focusWidget(), form.txtSearchString);
}

// ---------------------------------------------------------------------------------------------
// Commands that leave the window.

using MainCommands = MainWindow;

TEST_F(MainCommands, ExitEndsTheProgramAtOnce) {
    frmMain& form = Forms::get<frmMain>();
    form.mnuExit->trigger();
    EXPECT_TRUE(hostScript.ended());
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}

TEST_F(MainCommands, ReturnToLoginUnloadsTheWindowsAndShowsTheLogin) {
    frmMain& form = Forms::get<frmMain>();
    gintLoginAttempts = 2;
    form.mnuLoginReturn->trigger();

    EXPECT_EQ(Forms::find<frmMain>(), nullptr);
    EXPECT_FALSE(gobjLibrary);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_TRUE(login->isVisible());
    EXPECT_EQ(gintLoginAttempts, 2);
}

TEST_F(MainCommands, UsersMenuShowsTheUserWindowModallyAndComesBack) {
    frmMain& form = Forms::get<frmMain>();
    form.show();
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

TEST_F(MainCommands, OpeningAnotherDatabaseCancelledLeavesTheRegistryAndShowsTheWindow) {
    frmMain& form = Forms::get<frmMain>();
    form.show();
    hostScript.answerFileDialog(QString());
    form.mnuOpenDatabase->trigger();

    EXPECT_EQ(hostScript.lastFileDialog().title, QStringLiteral("Select a Tarnwick Database."));
    EXPECT_EQ(hostScript.lastFileDialog().filter, QStringLiteral("MsAccess Files (*.mdb)|*.mdb"));
    EXPECT_EQ(registryValue(REG_VAL_DATABASE_FILENAME), QStringLiteral("Quillstone.mdb"));
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(gblnSwitchingDatabase);
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
}

TEST_F(MainCommands, OpeningAnotherDatabaseNamesItAndShowsTheLoginOverTheHiddenWindow) {
    const QString other = home->file(QStringLiteral("Elsewhere/Other.mdb"));
    cLibraryService(other).CreateDatabase(other, QString());
    frmMain& form = Forms::get<frmMain>();
    form.show();
    form.SSTabNavigate->setTab(1);
    gintLoginAttempts = 3;
    hostScript.answerFileDialog(other);
    form.mnuOpenDatabase->trigger();

    EXPECT_EQ(registryValue(REG_VAL_DATABASE_PATH), QFileInfo(other).absolutePath());
    EXPECT_EQ(registryValue(REG_VAL_DATABASE_FILENAME), QStringLiteral("Other.mdb"));
    EXPECT_EQ(gstrPriorDbFile, QStringLiteral("Quillstone.mdb"));
    EXPECT_EQ(gstrPriorDbPath, QFileInfo(mDatabase).absolutePath());
    EXPECT_EQ(gintLoginAttempts, 0);
    EXPECT_TRUE(gblnSwitchingDatabase);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Forms::find<frmMain>(), &form);
    EXPECT_EQ(form.SSTabNavigate->Tab(), 0);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_EQ(login->Caption(), QStringLiteral("Login To Database You Selected"));
    EXPECT_EQ(login->cmdExit->text(), QStringLiteral("Cancel"));
}

} // namespace
