// The login itself, the forgotten password and the way out of frmLogin.
#include "frmLogin.h"

#include "Globals.h"
#include "Host.h"
#include "VbStrings.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "frmMain.h"
#include "mConstants.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mINIReadWrite.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace qs {

namespace {

QString AccessTypeOfLevel(short level) {
    switch (level) {
    case 1:
        return QStringLiteral("Admin");
    case 2:
        return QStringLiteral("User");
    default:
        return QStringLiteral("Unauthorized");
    }
}

QString AppTitle() {
    return QString::fromLatin1(APP_TITLE);
}

} // namespace

void frmLogin::cmdOk_Click() {
    try {
        host().setMousePointer(vbHourglass);
        mblnValidUser = false;
        if (!VerifyData()) {
            host().setMousePointer(vbDefault);
            return;
        }

        // Good logins count too; only choosing a database sets the counter back.
        ++gintLoginAttempts;
        if (gintLoginAttempts >= 4) {
            attemptsExceeded();
            return;
        }

        cSecurityService security;
        auto objUser = std::make_shared<cUser>(
            security.GetUser(txtUserId->text(), txtPassword->text(), QString()));

        if (objUser->UserId() == QLatin1String(USER_NOT_VALID) && !gblnFirstUser) {
            host().setMousePointer(vbDefault);
            host().msgBox(QStringLiteral("Invalid login - Please try again."), vbCritical,
                          AppTitle());
            txtUserId->setFocus(Qt::OtherFocusReason);
            return;
        }

        if (gblnFirstUser) {
            // The first user is written anew as the administrator.
            objUser->BeginEdit(0);
            objUser->AccessLevel(1);
            objUser->UserId(gstrUserId);
            objUser->FirstName(gstrFirstName);
            objUser->LastName(gstrLastName);
            objUser->Save(gstrUserId, 0);
        }

        gintAccessLevel = objUser->AccessLevel();
        gstrAccessType = AccessTypeOfLevel(gintAccessLevel);
        gstrUserId = objUser->UserId();
        gstrFirstName = objUser->FirstName();
        gstrLastName = objUser->LastName();
        gstrUserName = gstrFirstName + QLatin1Char(' ') + gstrLastName;

        const QString settingsFile = SettingsFilePath();
        if (FileExists(settingsFile))
            File_WriteSpecificKeyNameAndSetting_ToSpecificFile(
                QString::fromLatin1(INI_SECTION_APPSETTINGS), QString::fromLatin1(INI_KEY_USERID),
                chkRememberUserId->isChecked() ? gstrUserId : QString(), settingsFile);

        gobjCurrentUser = objUser;

        if (changePasswordMode()) {
            // The password was checked by the login above, so only its owner gets
            // here.
            objUser->BeginEdit(0);
            objUser->Password(txtNewPwd->text());
            const QString actingId = objUser->UserId();
            objUser->Save(actingId, 0);
            host().msgBox(QStringLiteral("Your password has been changed successfully."),
                          vbInformation, QString());
        }

        mblnValidUser = true;

        // Loading and starting frmMain yield: an event run meanwhile may close the main window
        // or this one, and then the login leaves quietly.
        const QPointer<frmLogin> self(this);
        QPointer<frmMain> main;
        const auto gone = [&self, &main] {
            if (StillLoaded(main) && StillLoaded(self))
                return false;
            host().setMousePointer(vbDefault);
            return true;
        };
        if (gblnSwitchingDatabase) {
            main = &Forms::get<frmMain>();
            if (gone())
                return;
            main->Show(vbModeless);
            main->ClearAllControls();
            main->ClearControlsSourceFileTab();
            main->StartUp();
            if (gone())
                return;
        }

        host().setMousePointer(vbHourglass);
        main = &Forms::get<frmMain>();
        if (gone())
            return;
        main->Show(vbModeless);
        RestoreSearchSettings(*main);
        // The pointer is left to frmMain.
        Unload();
    } catch (...) {
        HandleFailure("frmLogin:cmdOk_Click;");
    }
}

void frmLogin::attemptsExceeded() {
    if (gblnSwitchingDatabase) {
        // The registry still names the database that failed; only cmdExit puts the
        // old one back.
        host().msgBox(QStringLiteral("You have exceeded the login attempts to the "
                                     "database you selected!"),
                      vbCritical, AppTitle());
        Forms::get<frmMain>().Show(vbModeless);
        host().setMousePointer(vbDefault);
        Unload();
        return;
    }
    host().msgBox(QStringLiteral("You have exceeded the allocated number of login attempts.\r\n"
                                 "\r\nExiting Program..."),
                  vbCritical, QString());
    host().setMousePointer(vbDefault);
    // With no window left the program ends.
    UnloadAllForms(QString());
}

void frmLogin::cmdForgotPwd_Click() {
    try {
        host().setMousePointer(vbHourglass);
        if (txtUserId->text().isEmpty()) {
            host().setMousePointer(vbDefault);
            host().msgBox(QStringLiteral("Please enter your userid:  "), vbCritical,
                          AppTitle() + QStringLiteral("  -  Need UserId"));
            txtUserId->setFocus(Qt::OtherFocusReason);
            return;
        }

        auto security = std::make_unique<cSecurityService>();
        const QString userId = VbTrim(txtUserId->text());
        const QString question = security->GetPasswordQuestion(userId);
        host().setMousePointer(vbDefault);
        const QString answer = host().inputBox(
            QStringLiteral("Answer the following question to retrieve your password:      "
                           "\r\n\r\n") +
                question + QStringLiteral(" ?"),
            AppTitle() + QStringLiteral("Forgotten Password Assist"), QString());

        const QString password = security->GetForgottenPassword(userId, VbTrim(answer));
        if (password == QLatin1String(ANSWER_NOT_VALID))
            host().msgBox(
                QStringLiteral("The Answer given for the Password question was incorrect."),
                vbCritical, AppTitle() + QStringLiteral("  -  Incorrect Response"));
        else
            host().msgBox(QStringLiteral("Your password is:  ") + password, vbInformation,
                          AppTitle() + QStringLiteral(" - Display User Password"));

        security.reset();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmLogin:cmdForgotPwd_Click;");
    }
}

void frmLogin::cmdExit_Click() {
    try {
        if (gblnSwitchingDatabase) {
            // Abandoning the other database: the registry names the one in use again.
            SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                           QString::fromLatin1(REG_VAL_DATABASE_PATH), gstrPriorDbPath);
            SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                           QString::fromLatin1(REG_VAL_DATABASE_FILENAME), gstrPriorDbFile);
            Forms::get<frmMain>().Show(vbModeless);
            Unload();
            return;
        }
        UnloadAllForms(QString());
        host().endProcess();
    } catch (...) {
        HandleFailure("frmLogin:cmdExit_Click;");
    }
}

} // namespace qs
