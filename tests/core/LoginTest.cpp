#include "CoreFixture.h"
#include "ExitWays.h"

#include "FormBase.h"
#include "Globals.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "frmLogin.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

class Login : public CoreFixture {
protected:
    void SetUp() override {
        CoreFixture::SetUp();
        makeLibrary();
        addUser(QStringLiteral("ada"), QStringLiteral("secret"));
    }
    frmLogin& form() { return Forms::get<frmLogin>(); }
    void type(const QString& id, const QString& password) {
        form().txtUserId->setText(id);
        form().txtPassword->setText(password);
    }
    void failOnce() {
        type(QStringLiteral("ada"), QStringLiteral("wrong"));
        hostScript.expectMsgBox(QStringLiteral("Invalid login - Please try again."));
        form().cmdOk->click();
    }
    int msgBoxCount() const { return hostScript.msgBoxes().size(); }
    // Fills the boxes of change-password mode; the caller presses OK.
    void askToChange(const QString& old, const QString& fresh, const QString& confirm) {
        form().Show();
        form().cmdChangePwd->click();
        type(QStringLiteral("ada"), old);
        form().txtNewPwd->setText(fresh);
        form().txtConfirmPwd->setText(confirm);
    }
};

TEST_F(Login, ChangePasswordModeShowsTheNewBoxesAndCancelLeavesIt) {
    form().Show();
    EXPECT_TRUE(form().txtNewPwd->isHidden());
    EXPECT_TRUE(form().cmdCancel->isHidden());
    EXPECT_FALSE(form().ValidUser());
    form().cmdChangePwd->click();
    EXPECT_FALSE(form().txtNewPwd->isHidden());
    EXPECT_FALSE(form().lblConfirmPwd->isHidden());
    EXPECT_FALSE(form().cmdCancel->isHidden());
    EXPECT_FALSE(form().cmdChangePwd->isEnabled());
    EXPECT_EQ(form().focusWidget(), form().txtUserId);
    form().cmdCancel->click();
    EXPECT_TRUE(form().txtConfirmPwd->isHidden());
    EXPECT_TRUE(form().cmdChangePwd->isEnabled());
}

TEST_F(Login, EmptyIdIsRefusedWithoutCountingAnAttempt) {
    form().Show();
    hostScript.expectMsgBox(QStringLiteral("Please enter your UserId."));
    form().cmdOk->click();
    const HostCall box = hostScript.msgBoxes().last();
    EXPECT_EQ(box.text, QStringLiteral("Please enter your UserId.\r\nPlease enter your Password."));
    EXPECT_EQ(box.title, QStringLiteral("True"));
    EXPECT_EQ(box.icon(), vbCritical);
    EXPECT_EQ(gintLoginAttempts, 0);
    EXPECT_EQ(form().focusWidget(), form().txtUserId);
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(Login, MissingBoxesOfTheModeAreListedInOrderWithFocusOnTheFirst) {
    form().Show();
    form().cmdChangePwd->click();
    type(QStringLiteral("ada"), QString());
    hostScript.expectMsgBox(QStringLiteral("Please enter your Password."));
    form().cmdOk->click();
    EXPECT_EQ(hostScript.msgBoxes().last().text,
              QStringLiteral("Please enter your Password.\r\nPlease enter your New "
                             "Password.\r\nPlease Confirm Password."));
    EXPECT_EQ(form().focusWidget(), form().txtPassword);
}

TEST_F(Login, MismatchOfNewAndConfirmIsNamedWithFocusOnTheNewPassword) {
    askToChange(QStringLiteral("secret"), QStringLiteral("fresh"), QStringLiteral("fresh!"));
    hostScript.expectMsgBox(QStringLiteral("Your Confirm password is not equal to the New Password "
                                           "you entered."));
    form().cmdOk->click();
    EXPECT_EQ(form().focusWidget(), form().txtNewPwd);
    EXPECT_EQ(gintLoginAttempts, 0);
    EXPECT_TRUE(canLogIn(QStringLiteral("ada"), QStringLiteral("secret")));
}

TEST_F(Login, FourthPressIsRefusedWithoutAskingTheService) {
    form().Show();
    failOnce();
    failOnce();
    failOnce();
    EXPECT_EQ(gintLoginAttempts, 3);
    EXPECT_TRUE(form().IsLoaded());

    // The right password now: asking the service would log in.
    type(QStringLiteral("ada"), QStringLiteral("secret"));
    hostScript.expectMsgBox(QStringLiteral("You have exceeded the allocated number of login "
                                           "attempts.\r\n\r\nExiting Program..."));
    form().cmdOk->click();

    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbCritical);
    EXPECT_EQ(gintLoginAttempts, 4);
    EXPECT_TRUE(gstrUserId.isEmpty());
    EXPECT_EQ(Forms::find<frmMain>(), nullptr);
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(Login, WrongPasswordKeepsTheFormWithWhatWasTyped) {
    form().Show();
    failOnce();
    const HostCall box = hostScript.msgBoxes().last();
    EXPECT_EQ(box.title, QStringLiteral("Quillstone"));
    EXPECT_EQ(box.icon(), vbCritical);
    EXPECT_TRUE(form().IsLoaded());
    EXPECT_FALSE(form().ValidUser());
    EXPECT_EQ(form().txtPassword->text(), QStringLiteral("wrong"));
    EXPECT_EQ(form().focusWidget(), form().txtUserId);
}

TEST_F(Login, PasswordChangeWithAWrongOldPasswordIsRefusedAndChangesNothing) {
    askToChange(QStringLiteral("guess"), QStringLiteral("fresh"), QStringLiteral("fresh"));
    hostScript.expectMsgBox(QStringLiteral("Invalid login - Please try again."));
    form().cmdOk->click();

    EXPECT_TRUE(canLogIn(QStringLiteral("ada"), QStringLiteral("secret")));
    EXPECT_FALSE(canLogIn(QStringLiteral("ada"), QStringLiteral("fresh")));
    EXPECT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_FALSE(form().cmdCancel->isHidden());
    EXPECT_EQ(Forms::find<frmMain>(), nullptr);
}

TEST_F(Login, PasswordChangeWithTheRightOldPasswordStoresTheNewOne) {
    askToChange(QStringLiteral("secret"), QStringLiteral("fresh"), QStringLiteral("fresh"));
    hostScript.expectMsgBox(QStringLiteral("Your password has been changed successfully."));
    form().cmdOk->click();

    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbInformation);
    EXPECT_TRUE(canLogIn(QStringLiteral("ada"), QStringLiteral("fresh")));
    EXPECT_FALSE(canLogIn(QStringLiteral("ada"), QStringLiteral("secret")));
}

TEST_F(Login, GoodLoginFillsTheGlobalsShowsTheMainWindowAndUnloads) {
    addUser(QStringLiteral("bob"), QStringLiteral("pw"), 2, QStringLiteral("Bob"),
            QStringLiteral("Stone"));
    form().Show();
    type(QStringLiteral("bob"), QStringLiteral("pw"));
    form().cmdOk->click();

    EXPECT_EQ(gstrUserId, QStringLiteral("bob"));
    EXPECT_EQ(gstrUserName, QStringLiteral("Bob Stone"));
    EXPECT_EQ(gintAccessLevel, 2);
    EXPECT_EQ(gstrAccessType, QStringLiteral("User"));
    ASSERT_TRUE(gobjCurrentUser);
    EXPECT_EQ(gobjCurrentUser->UserId(), QStringLiteral("bob"));
    EXPECT_EQ(gintLoginAttempts, 1);
    frmMain* main = Forms::find<frmMain>();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
}

TEST_F(Login, FirstLoginWithAWrongPasswordStillLetsTheAdministratorBackIn) {
    // As the first-user window leaves things.
    gblnFirstUser = true;
    gstrUserId = QStringLiteral("ada");
    gstrFirstName = QStringLiteral("Ada");
    gstrLastName = QStringLiteral("Byron");
    form().Show();
    type(QStringLiteral("ada"), QStringLiteral("typo"));
    form().cmdOk->click();

    // The first login is not stopped by the marker, and writes nothing away.
    ASSERT_NE(Forms::find<frmMain>(), nullptr);
    EXPECT_EQ(gstrUserId, QStringLiteral("ada"));
    EXPECT_TRUE(canLogIn(QStringLiteral("ada"), QStringLiteral("secret")));
    const cUser stored = cSecurityService().GetUser(QStringLiteral("ada"), QString(), "ada");
    EXPECT_EQ(stored.Question(), QStringLiteral("First pet"));
    EXPECT_EQ(stored.Answer(), QStringLiteral("Rex"));
    EXPECT_EQ(stored.AccessLevel(), 1);
}

TEST_F(Login, UnknownLevelStillLogsInAsUnauthorized) {
    addUser(QStringLiteral("eve"), QStringLiteral("pw"), 4);
    form().Show();
    type(QStringLiteral("eve"), QStringLiteral("pw"));
    form().cmdOk->click();
    EXPECT_EQ(gstrAccessType, QStringLiteral("Unauthorized"));
    EXPECT_NE(Forms::find<frmMain>(), nullptr);
}

TEST_F(Login, ReturnInThePasswordBoxPressesOk) {
    form().Show();
    type(QStringLiteral("ada"), QStringLiteral("wrong"));
    hostScript.expectMsgBox(QStringLiteral("Invalid login - Please try again."));
    QTest::keyClick(form().txtPassword, Qt::Key_Return);
    EXPECT_EQ(gintLoginAttempts, 1);
}

TEST_F(Login, RememberedIdIsOfferedAndClearedWhenUnticked) {
    writeSettingsFile(QStringLiteral("ada"));
    form().Show();
    EXPECT_TRUE(form().chkRememberUserId->isChecked());
    EXPECT_EQ(form().txtUserId->text(), QStringLiteral("ada"));
    EXPECT_EQ(form().focusWidget(), form().txtPassword);

    form().chkRememberUserId->setChecked(false);
    form().txtPassword->setText(QStringLiteral("secret"));
    form().cmdOk->click();

    ASSERT_EQ(gstrUserId, QStringLiteral("ada"));
    EXPECT_EQ(settingsValue(QStringLiteral("UserId")), QString());
}

TEST_F(Login, TickedBoxRemembersTheIdAndAStoredPasswordIsFilledIn) {
    writeSettingsFile(QString(), QStringLiteral("secret"));
    form().Show();
    EXPECT_FALSE(form().chkRememberUserId->isChecked());
    EXPECT_EQ(form().txtPassword->text(), QStringLiteral("secret"));
    form().txtUserId->setText(QStringLiteral("ada"));
    form().chkRememberUserId->setChecked(true);
    form().cmdOk->click();
    EXPECT_EQ(settingsValue(QStringLiteral("UserId")), QStringLiteral("ada"));
}

TEST_F(Login, WithoutASettingsFileTheTickLeavesNoTrace) {
    form().Show();
    type(QStringLiteral("ada"), QStringLiteral("secret"));
    form().chkRememberUserId->setChecked(true);
    form().cmdOk->click();
    ASSERT_EQ(gstrUserId, QStringLiteral("ada"));
    EXPECT_FALSE(QFileInfo::exists(SettingsFilePath()));
    EXPECT_EQ(msgBoxCount(), 0);
}

TEST_F(Login, ForgottenPasswordIsShownForTheRightAnswer) {
    form().Show();
    form().txtUserId->setText(QStringLiteral(" ada "));
    hostScript.answerInputBox(QStringLiteral("  Rex "));
    hostScript.expectMsgBox(QStringLiteral("Your password is:  secret"));
    form().cmdForgotPwd->click();

    const HostCall input = hostScript.callsOf(QStringLiteral("InputBox")).last();
    EXPECT_EQ(input.title, QStringLiteral("QuillstoneForgotten Password Assist"));
    EXPECT_EQ(input.text, QStringLiteral("Answer the following question to retrieve your "
                                         "password:      \r\n\r\nFirst pet ?"));
    const HostCall box = hostScript.msgBoxes().last();
    EXPECT_EQ(box.title, QStringLiteral("Quillstone - Display User Password"));
    EXPECT_EQ(box.icon(), vbInformation);
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(Login, WrongAnswerIsToldAndCountsNoAttempt) {
    form().Show();
    form().txtUserId->setText(QStringLiteral("ada"));
    hostScript.answerInputBox(QStringLiteral("Fido"));
    hostScript.expectMsgBox(QStringLiteral("The Answer given for the Password question was "
                                           "incorrect."));
    form().cmdForgotPwd->click();
    EXPECT_EQ(hostScript.msgBoxes().last().title,
              QStringLiteral("Quillstone  -  Incorrect Response"));
    EXPECT_EQ(gintLoginAttempts, 0);
}

TEST_F(Login, ForgottenPasswordWithoutAnIdAsksForItFirst) {
    form().Show();
    hostScript.expectMsgBox(QStringLiteral("Please enter your userid:  "));
    form().cmdForgotPwd->click();
    EXPECT_EQ(hostScript.msgBoxes().last().title, QStringLiteral("Quillstone  -  Need UserId"));
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("InputBox")).isEmpty());
    EXPECT_EQ(form().focusWidget(), form().txtUserId);
}

TEST_F(Login, ServiceFailureIsReportedUnderTheLoginProcedureWithThePointerBack) {
    form().Show();
    pointDatabaseAt(libraryPath(QStringLiteral("Gone.mdb")));
    type(QStringLiteral("ada"), QStringLiteral("secret"));
    hostScript.expectMsgBox(QStringLiteral("does not exist in the specified path"));
    form().cmdOk->click();

    const HostCall report = hostScript.msgBoxes().last();
    EXPECT_TRUE(report.title.endsWith(QStringLiteral("frmLogin:cmdOk_Click;")))
        << report.title.toStdString();
    EXPECT_EQ(report.icon(), vbCritical);
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    EXPECT_FALSE(form().ValidUser());
    EXPECT_EQ(Forms::find<frmMain>(), nullptr);
}

// Exit, Escape and the close box all leave through cmdExit_Click.
class LoginLeft : public Login, public ::testing::WithParamInterface<Leave> {};

TEST_P(LoginLeft, EndsTheProgram) {
    form().Show();
    leave(form(), GetParam(), form().cmdExit, form().txtPassword);
    EXPECT_TRUE(hostScript.ended());
    EXPECT_EQ(Forms::count(), 0);
}

// A login to another database: the main window lies hidden while frmLogin asks.
class LoginToAnotherDatabase : public Login {
protected:
    void SetUp() override {
        Login::SetUp();
        form().Show();
        form().txtUserId->setText(QStringLiteral("ada"));
        form().txtPassword->setText(QStringLiteral("secret"));
        form().cmdOk->click();
        ASSERT_NE(Forms::find<frmMain>(), nullptr);

        previous = libraryPath();
        other = makeLibrary(QStringLiteral("Other.mdb"));
        addUser(QStringLiteral("ada"), QStringLiteral("other"));
        gstrPriorDbPath = QFileInfo(previous).absolutePath();
        gstrPriorDbFile = QFileInfo(previous).fileName();
        gblnSwitchingDatabase = true;
        Forms::find<frmMain>()->Hide();
        form().Show();
        form().cmdExit->setText(QStringLiteral("Cancel"));
    }
    QString previous;
    QString other;
};

class LoginToAnotherDatabaseLeft : public LoginToAnotherDatabase,
                                   public ::testing::WithParamInterface<Leave> {};

TEST_P(LoginToAnotherDatabaseLeft, PutsTheFormerDatabaseBackAndShowsTheMainWindow) {
    EXPECT_TRUE(leave(form(), GetParam(), form().cmdExit, form().txtUserId));
    EXPECT_EQ(registryFileName(), QStringLiteral("Quillstone.mdb"));
    EXPECT_EQ(registryPath(), QFileInfo(previous).absolutePath());
    ASSERT_NE(Forms::find<frmMain>(), nullptr);
    EXPECT_TRUE(Forms::find<frmMain>()->isVisible());
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
    EXPECT_FALSE(hostScript.ended());
}

TEST_F(LoginToAnotherDatabase, UsedUpAttemptsShowTheMainWindowAgainAndKeepTheNewDatabase) {
    // One good login counted already; two failures bring the counter to three.
    failOnce();
    failOnce();
    type(QStringLiteral("ada"), QStringLiteral("other"));
    hostScript.expectMsgBox(
        QStringLiteral("You have exceeded the login attempts to the database you selected!"));
    form().cmdOk->click();
    EXPECT_EQ(hostScript.msgBoxes().last().title, QStringLiteral("Quillstone"));
    ASSERT_NE(Forms::find<frmMain>(), nullptr);
    EXPECT_TRUE(Forms::find<frmMain>()->isVisible());
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
    EXPECT_EQ(registryFileName(), QStringLiteral("Other.mdb"));
}

INSTANTIATE_TEST_SUITE_P(Ways, LoginLeft, everyWay(), WayName());
INSTANTIATE_TEST_SUITE_P(Ways, LoginToAnotherDatabaseLeft, everyWay(), WayName());

} // namespace
