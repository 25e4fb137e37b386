// Saving a user from frmUser, including the first user of an empty database, who becomes the
// administrator and the first author.

#include "frmUser.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "cAuthor.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "mComboBox.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mINIReadWrite.h"
#include "mRegConstants.h"
#include "quillstone_private.h"

#include <QLineEdit>

namespace qs {

namespace {

// The logged-in user saved his own record: the session follows it, a new id included, and so
// does the id the login remembers.
void FollowOwnRecord(const cUser& saved, const QString& oldId) {
    *gobjCurrentUser = saved;
    gstrUserId = saved.UserId();
    gstrFirstName = saved.FirstName();
    gstrLastName = saved.LastName();
    gstrUserName = gstrFirstName + QLatin1Char(' ') + gstrLastName;
    const QString settings = SettingsFilePath();
    const QString section = QString::fromLatin1(INI_SECTION_APPSETTINGS);
    const QString key = QString::fromLatin1(INI_KEY_USERID);
    if (gstrUserId != oldId && FileExists(settings) &&
        File_GetSpecificKeySetting_FromSpecificFile(settings, section, key) == oldId)
        File_WriteSpecificKeyNameAndSetting_ToSpecificFile(section, key, gstrUserId, settings);
}

} // namespace

void frmUser::cmdUserUpdate_Click() {
    try {
        if (mintMode != ModeAdd && mintMode != ModeEdit)
            return;
        if (!ValidateUserFields())
            return;
        if (cboUsers->ListCount() == 0 && cboAccessType->Text() == QLatin1String("Read")) {
            host().msgBox(QStringLiteral("The first user has to be an ''Admin'' so that you can "
                                         "add people and modify data"),
                          vbInformation, QString());
            cboAccessType->setFocus();
            return;
        }

        const QString id = txtUserId->text();
        QString foundId;
        if (id != mstrUserId || mintMode == ModeAdd) {
            mobjSecurity = std::make_unique<cSecurityService>();
            foundId = mobjSecurity->GetUser(id, QString(), gstrUserId).UserId();
        }

        if (foundId == QLatin1String("Q70707") && gblnFirstUser) {
            // The marker record becomes the administrator, stored at once.
            gobjCurrentUser =
                std::make_shared<cUser>(mobjSecurity->GetUser(id, txtPassword->text(), QString()));
            gobjCurrentUser->BeginEdit(0);
            gobjCurrentUser->UserId(id);
            gobjCurrentUser->FirstName(txtUserFName->text());
            gobjCurrentUser->LastName(txtUserLName->text());
            gobjCurrentUser->Password(txtPassword->text());
            gobjCurrentUser->Question(txtQuestion->text());
            gobjCurrentUser->Answer(txtAnswer->text());
            gobjCurrentUser->AccessLevel(1);
            gobjCurrentUser->Save(id, 0);

            gstrAccessType = QStringLiteral("Admin");
            gstrUserId = gobjCurrentUser->UserId();
            gstrFirstName = gobjCurrentUser->FirstName();
            gstrLastName = gobjCurrentUser->LastName();
            gstrUserName = gstrFirstName + QLatin1Char(' ') + gstrLastName;
            gintAccessLevel = gobjCurrentUser->AccessLevel();

            const QString settings = SettingsFilePath();
            if (FileExists(settings))
                File_WriteSpecificKeyNameAndSetting_ToSpecificFile(
                    QString::fromLatin1(INI_SECTION_APPSETTINGS),
                    QString::fromLatin1(INI_KEY_USERID), QString(), settings);
        }
        mobjSecurity.reset();

        if (foundId == id && !gblnFirstUser) {
            host().msgBox(QStringLiteral("Please enter a different UserId.\r\nThe UserId already "
                                         "exists in the database."),
                          vbInformation, QStringLiteral("UserID?"));
            txtUserId->setFocus();
            return;
        }

        if (mintMode == ModeAdd)
            mobjUser = std::make_shared<cUser>();
        if (mobjUser) {
            const QString oldId = mobjUser->UserId();
            const bool ownRecord =
                mintMode == ModeEdit && gobjCurrentUser && oldId == gobjCurrentUser->UserId();
            mobjUser->BeginEdit(0);
            if (mintMode == ModeEdit)
                mobjUser->NewUserId(id);
            else
                mobjUser->UserId(id);
            mobjUser->Password(txtPassword->text());
            mobjUser->FirstName(txtUserFName->text());
            mobjUser->LastName(txtUserLName->text());
            mobjUser->AccessLevel(
                static_cast<short>(cboAccessType->ItemData(cboAccessType->ListIndex())));
            mobjUser->Question(txtQuestion->text());
            mobjUser->Answer(txtAnswer->text());
            mobjUser->Save(actingUserId(), 0);
            if (ownRecord)
                FollowOwnRecord(*mobjUser, oldId);
        }

        if (gblnFirstUser) {
            gstrFirstUserId = id;
            gstrFirstUserPassword = txtPassword->text();
            // The first user is also the first author.
            mobjAuthor = std::make_unique<cAuthor>();
            mobjAuthor->BeginEdit(0);
            mobjAuthor->FirstName(txtUserFName->text());
            mobjAuthor->LastName(txtUserLName->text());
            mobjAuthor->Save();
            cmdExit_Click();
            return;
        }

        mstrUserId.clear();
        const QPointer<frmUser> self(this);
        PopulateUserCbo();
        if (!StillLoaded(self))
            return;
        if (gobjCurrentUser) {
            cboUsers->setVisible(true);
            const QString entry = txtUserFName->text() + QLatin1Char(' ') + txtUserLName->text() +
                                  QStringLiteral("  (") + id + QLatin1Char(')');
            if (cboUsers->ListCount() > 0)
                cboSearchWithString(*cboUsers, entry);
        }
        SetUserMode(ModeView);
        if (gobjCurrentUser)
            cboUsers_Click();
    } catch (...) {
        mobjSecurity.reset();
        HandleFailure("frmAuthorUser:cmdUserUpdate_Click;");
    }
}

} // namespace qs
