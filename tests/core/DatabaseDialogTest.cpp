#include "CoreFixture.h"
#include "ExitWays.h"
#include "FirstUserScript.h"

#include "FormBase.h"
#include "Globals.h"
#include "frmDatabase.h"
#include "frmLogin.h"
#include "frmUser.h"
#include "quillstone_private.h"

#include <QFileInfo>
#include <QPushButton>
#include <QRadioButton>

using namespace qs;
using namespace qs::test;

namespace {

class DatabaseDialog : public CoreFixture {
protected:
    void SetUp() override {
        CoreFixture::SetUp();
        missing = libraryPath(QStringLiteral("Missing.mdb"));
        pointDatabaseAt(missing);
        dialog().Show();
    }
    frmDatabase& dialog() { return Forms::get<frmDatabase>(); }
    QString missing;
};

TEST_F(DatabaseDialog, CancellingTheFileDialogLeavesTheDialogOpenAndTheRegistryUnchanged) {
    dialog().optSearch->setChecked(true);
    hostScript.answerFileDialog(QString());
    dialog().cmdOK->click();

    EXPECT_EQ(hostScript.lastFileDialog().title, QStringLiteral("Select a Tarnwick Database."));
    EXPECT_EQ(hostScript.lastFileDialog().filter, QStringLiteral("MsAccess Files (*.mdb)|*.mdb"));
    EXPECT_FALSE(hostScript.lastFileDialog().forSave);
    EXPECT_EQ(registryFileName(), QStringLiteral("Missing.mdb"));
    EXPECT_EQ(registryPath(), QFileInfo(missing).absolutePath());
    ASSERT_NE(Forms::find<frmDatabase>(), nullptr);
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(DatabaseDialog, ChoosingADatabaseNamesItResetsTheAttemptsAndShowsTheLogin) {
    const QString found = makeLibrary(QStringLiteral("Found.mdb"));
    pointDatabaseAt(missing);
    gintLoginAttempts = 3;
    dialog().optSearch->setChecked(true);
    hostScript.answerFileDialog(found);
    dialog().cmdOK->click();

    EXPECT_EQ(registryFileName(), QStringLiteral("Found.mdb"));
    EXPECT_EQ(registryPath(), QFileInfo(found).absolutePath());
    EXPECT_EQ(gstrPriorDbFile, QStringLiteral("Missing.mdb"));
    EXPECT_EQ(gintLoginAttempts, 0);
    EXPECT_EQ(Forms::find<frmDatabase>(), nullptr);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_TRUE(login->isVisible());
    EXPECT_EQ(login->Caption(), QStringLiteral("Login To Database You Selected"));
}

TEST_F(DatabaseDialog, NewDatabaseRefusesANameOfAnotherKind) {
    hostScript.answerFileDialog(libraryPath(QStringLiteral("data.txt")));
    hostScript.expectMsgBox(QStringLiteral("You can only enter an access database (.mdb)."));
    dialog().cmdOK->click();

    EXPECT_EQ(hostScript.lastFileDialog().title,
              QStringLiteral("Please select path and enter new database name."));
    EXPECT_TRUE(hostScript.lastFileDialog().forSave);
    EXPECT_EQ(hostScript.msgBoxes().last().title, QStringLiteral("Database?"));
    EXPECT_EQ(registryFileName(), QStringLiteral("Missing.mdb"));
    EXPECT_FALSE(QFileInfo::exists(libraryPath(QStringLiteral("data.txt"))));
    EXPECT_NE(Forms::find<frmDatabase>(), nullptr);
}

// A name without the ending gets it; an upper-case ending passes unchanged.
TEST_F(DatabaseDialog, NewDatabaseIsMadeAsMdbWithItsFirstUserAndTheLoginFollows) {
    bool addModeOnShow = false;
    hostScript.onModal<frmUser>("frmUser", [&](frmUser& user) {
        addModeOnShow = user.Mode() == frmUser::ModeAdd;
        makeFirstUser(user, "ada", "secret");
    });
    for (const auto& [typed, made] : {std::pair("data", "data.mdb"), {"DATA.MDB", "DATA.MDB"}}) {
        SCOPED_TRACE(typed);
        UnloadAllForms(QString());
        dialog().Show();
        hostScript.clearCalls();
        addModeOnShow = false;
        hostScript.answerFileDialog(libraryPath(typed));
        hostScript.expectMsgBox("Please add the first user");
        dialog().cmdOK->click();

        EXPECT_TRUE(addModeOnShow);
        EXPECT_TRUE(QFileInfo::exists(libraryPath(made)));
        EXPECT_EQ(registryFileName(), made);
        EXPECT_TRUE(gblnFirstUser);
        EXPECT_TRUE(canLogIn("ada", "secret"));
        EXPECT_EQ(Forms::find<frmDatabase>(), nullptr);
        frmLogin* login = Forms::find<frmLogin>();
        ASSERT_NE(login, nullptr);
        EXPECT_EQ(login->Caption(), "Login To Database You Selected");
        EXPECT_EQ(windowOrder(),
                  QStringList({"FileSave: Please select path and enter new database name.",
                               "MsgBox: Please add the first user", "Modal: frmUser"}));
    }
}

TEST_F(DatabaseDialog, NewDatabaseOnAnExistingFileIsRefusedThoughTheRegistryNamesIt) {
    const QString existing = makeLibrary(QStringLiteral("Existing.mdb"));
    pointDatabaseAt(missing);
    hostScript.answerFileDialog(existing);
    hostScript.expectMsgBox(
        QStringLiteral("You can only enter an access database that does not already exist"));
    dialog().cmdOK->click();

    EXPECT_EQ(registryFileName(), QStringLiteral("Existing.mdb"));
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Modal")).isEmpty());
    EXPECT_NE(Forms::find<frmDatabase>(), nullptr);
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(DatabaseDialog, LeavingTheFirstUserFormWithoutAUserEndsTheProgram) {
    hostScript.answerFileDialog(libraryPath(QStringLiteral("Fresh.mdb")));
    hostScript.expectMsgBox(QStringLiteral("Please add the first user"));
    hostScript.onModal<frmUser>(QStringLiteral("frmUser"), [this](frmUser& user) {
        hostScript.expectMsgBox(QStringLiteral("There are no users in the database."));
        hostScript.expectMsgBox(QStringLiteral("Exiting without entering an employee"), vbYes);
        user.cmdExit_Click();
    });
    EXPECT_TRUE(hostScript.runToEnd([this] { dialog().cmdOK_Click(); }));
    EXPECT_TRUE(gblnFirstUserCancelled);
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
}

// Cancel, Escape and the close box all ask through cmdExit_Click.
class DatabaseDialogLeft : public DatabaseDialog, public ::testing::WithParamInterface<Leave> {};

TEST_P(DatabaseDialogLeft, AnsweredNoKeepsTheDialog) {
    hostScript.expectMsgBox(QStringLiteral("Exiting without finding or creating a new database "
                                           "\r\nwill cause the program to exit completely."
                                           "\r\n\r\nDo you wish to continue?"),
                            vbNo);
    leave(dialog(), GetParam(), dialog().cmdCancel, dialog().optSearch);
    ASSERT_FALSE(hostScript.msgBoxes().isEmpty());
    EXPECT_EQ(hostScript.msgBoxes().last().flags, vbYesNo | vbQuestion);
    EXPECT_FALSE(hostScript.ended());
    EXPECT_NE(Forms::find<frmDatabase>(), nullptr);
    EXPECT_TRUE(dialog().isVisible());
}

TEST_P(DatabaseDialogLeft, AnsweredYesEndsTheProgram) {
    hostScript.expectMsgBox(QStringLiteral("Do you wish to continue?"), vbYes);
    leave(dialog(), GetParam(), dialog().cmdCancel, dialog().optSearch);
    EXPECT_TRUE(hostScript.ended());
    EXPECT_EQ(Forms::count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Ways, DatabaseDialogLeft, everyWay(), WayName());

} // namespace
