// User maintenance: the list of users, the three modes, save, cancel, delete and leaving.

#include "frmUser.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "mComboBox.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mINIReadWrite.h"
#include "mRegConstants.h"
#include "mStrings.h"
#include "quillstone_private.h"

#include <QLineEdit>
#include <QPushButton>

namespace qs {

namespace {

const char kMarkerNoUser[] = "Q70707";
const char kNotInDatabase[] = "The UserId: ? is not not in the database.";

// The entry of a user in cboUsers: "First Last  (UserId)".
QString UserEntry(const QString& first, const QString& last, const QString& id) {
    return first + QLatin1Char(' ') + last + QStringLiteral("  (") + id + QLatin1Char(')');
}

// The id back out of an entry: what follows the first "(" up to the last character, trimmed.
QString IdOfEntry(const QString& entry) {
    const int open = entry.indexOf(QLatin1Char('('));
    if (open < 0)
        return QString();
    return entry.mid(open + 1, entry.size() - open - 2).trimmed();
}

} // namespace

frmUser::frmUser() : FormBase(QStringLiteral("frmUser")) {
    setCaption(QStringLiteral("User Maintenance"));
    buildLayout();
    connectEvents();
}

frmUser::~frmUser() = default;

QString frmUser::actingUserId() const {
    if (gobjCurrentUser)
        return gobjCurrentUser->UserId();
    if (mobjUser)
        return mobjUser->UserId();
    return QString();
}

void frmUser::Form_Load() {
    try {
        CenterOnScreen();
        NewLibrary();
        // The fills yield; the window may be closed meanwhile, and then the load stops.
        const QPointer<frmUser> self(this);
        PopulateUserCbo();
        if (!StillLoaded(self))
            return;
        FillComboBox(QStringLiteral("AccessType"), cboAccessType);
        if (!StillLoaded(self))
            return;
        cboSearchByItemData(*cboAccessType, gintAccessLevel);
        SetUserMode(ModeView);
        cboSearchWithString(*cboUsers, UserEntry(gstrFirstName, gstrLastName, gstrUserId));
        cboUsers_Click();
    } catch (...) {
        HandleFailure("frmAuthorUser:Form_Load;");
    }
}

void frmUser::Form_Activate() {}

void frmUser::Form_Unload(int& cancel) {
    (void)cancel;
    try {
        mobjSecurity.reset();
        mobjAuthor.reset();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmAuthorUser:Form_Unload;");
    }
}

void frmUser::PopulateUserCbo(bool blnSelectFirst) {
    try {
        const QPointer<frmUser> self(this);
        FillComboBox(QStringLiteral("Users"), cboUsers);
        if (!StillLoaded(self))
            return;
        if (blnSelectFirst && cboUsers->ListCount() > 0)
            cboUsers->setListIndex(0);
    } catch (...) {
        HandleFailure("frmAuthorUser:PopulateUserCbo;");
    }
}

void frmUser::ClearUserFields() {
    try {
        for (QLineEdit* box :
             {txtUserId, txtUserFName, txtUserLName, txtPassword, txtQuestion, txtAnswer})
            box->clear();
        cboAccessType->setListIndex(-1);
    } catch (...) {
        HandleFailure("frmAuthorUser:ClearUserFields;");
    }
}

bool frmUser::ValidateUserFields() {
    try {
        QStringList missing;
        if (txtUserId->text().isEmpty())
            missing << QStringLiteral("UserId");
        if (txtUserFName->text().isEmpty())
            missing << QStringLiteral(" First Name");
        if (txtUserLName->text().isEmpty())
            missing << QStringLiteral(" Last Name");
        if (txtPassword->text().isEmpty())
            missing << QStringLiteral(" Password");
        if (txtQuestion->text().isEmpty())
            missing << QStringLiteral(" Password Question");
        if (txtAnswer->text().isEmpty())
            missing << QStringLiteral(" Password Answer");
        if (cboAccessType->ListIndex() < 0)
            missing << QStringLiteral(" Access Level");
        if (missing.isEmpty())
            return true;
        host().msgBox(QStringLiteral("The following field(s) are required for update:.\r\n\r\n") +
                          missing.join(QStringLiteral("\r\n")),
                      vbCritical, QString());
        return false;
    } catch (...) {
        HandleFailure("frmAuthorUser:ValidateUserFields;");
    }
    return false;
}

void frmUser::SetUserMode(short intMode) {
    try {
        mintMode = intMode;
        const bool view = intMode == ModeView;
        for (QLineEdit* box :
             {txtUserId, txtUserFName, txtUserLName, txtPassword, txtQuestion, txtAnswer})
            box->setReadOnly(view);
        // A locked combo takes no choice.
        cboUsers->setVisible(view);
        cboUsers->setEnabled(view);
        cboAccessType->setEnabled(!view);
        cmdUserAdd->setEnabled(view);
        cmdUserEdit->setEnabled(view);
        cmdUserDelete->setEnabled(view);
        cmdUserUpdate->setEnabled(!view);
        cmdUserCancel->setEnabled(!view);
        if (!view && !gblnFirstUser && txtUserId->isVisible())
            txtUserId->setFocus();
    } catch (...) {
        HandleFailure("frmAuthorUser:SetUserMode;");
    }
}

void frmUser::cmdUserAdd_Click() {
    try {
        ClearUserFields();
        SetUserMode(ModeAdd);
    } catch (...) {
        HandleFailure("frmAuthorUser:cmdUserAdd_Click;");
    }
}

void frmUser::cmdUserEdit_Click() {
    try {
        mstrUserId = txtUserId->text();
        SetUserMode(ModeEdit);
    } catch (...) {
        HandleFailure("frmAuthorUser:cmdUserEdit_Click;");
    }
}

void frmUser::cboUsers_Click() {
    try {
        if (cboUsers->ListIndex() < 0 || cboUsers->ListCount() == 0)
            return;
        const QString id = IdOfEntry(cboUsers->List(cboUsers->ListIndex()));
        mobjSecurity = std::make_unique<cSecurityService>();
        mobjUser = std::make_shared<cUser>(mobjSecurity->GetUser(id, QString(), actingUserId()));
        mobjSecurity.reset();
        if (!mobjUser->UserId().isEmpty())
            FillUserFields();
    } catch (...) {
        mobjSecurity.reset();
        HandleFailure("frmAuthorUser:cboUsers_Click;");
    }
}

void frmUser::FillUserFields() {
    try {
        if (!mobjUser)
            return;
        txtUserId->setText(mobjUser->UserId());
        txtUserFName->setText(mobjUser->FirstName());
        txtUserLName->setText(mobjUser->LastName());
        txtQuestion->setText(mobjUser->Question());
        txtAnswer->setText(mobjUser->Answer());
        txtPassword->setText(mobjUser->Password());
        cboSearchByItemData(*cboAccessType, mobjUser->AccessLevel());
    } catch (...) {
        HandleFailure("frmAuthorUser:FillUserFields;");
    }
}

void frmUser::LookupUser(const QString& strId) {
    try {
        // The service answers every id with a record (the marker record for an unknown one),
        // so there is no absent user to report here.
        cSecurityService security;
        mobjUser = std::make_shared<cUser>(security.GetUser(strId, QString(), actingUserId()));
        FillUserFields();
    } catch (...) {
        HandleFailure("frmAuthorUser:LookupUser;");
    }
}

bool frmUser::ValidUser(const QString& strId) {
    try {
        // Every id gets a record back (the marker record for an unknown one), so an id is
        // refused here only when the lookup itself fails.
        cSecurityService security;
        security.GetUser(strId, QString(), QString());
        return true;
    } catch (...) {
        HandleFailure("frmAuthorUser:ValidUser;", FailureTail::KeepPointer);
    }
    return false;
}

void frmUser::DeleteUser(const QString& strId, const QString& strActingId) {
    try {
        cSecurityService security;
        cUser user = security.GetUser(strId, QString(), strActingId);
        user.BeginEdit(0);
        user.Deleted(true);
        user.Save(strActingId, 0);
    } catch (...) {
        HandleFailure("frmAuthorUser:DeleteUser;");
    }
}

void frmUser::cmdUserDelete_Click() {
    try {
        const QString id = txtUserId->text();
        if (id.isEmpty()) {
            host().msgBox(QStringLiteral("Please enter either a UserId."), vbInformation,
                          QStringLiteral("UserId"));
            txtUserId->setFocus();
            return;
        }
        if (!ValidUser(id)) {
            host().msgBox(ValidateSSN(QString::fromLatin1(kNotInDatabase), id), vbInformation,
                          QStringLiteral("UserId Not Found"));
            return;
        }
        const int answer =
            host().msgBox(ValidateSSN(QStringLiteral("Are you sure you want to delete the "
                                                     "UserId: ??."),
                                      id),
                          vbYesNo | vbExclamation, QStringLiteral("Delete User?"));
        if (answer == vbNo)
            return;
        DeleteUser(id, actingUserId());
        PopulateUserCbo();
    } catch (...) {
        HandleFailure("frmAuthorUser:cmdUserDelete_Click;");
    }
}

void frmUser::cmdUserCancel_Click() {
    try {
        if (mintMode == ModeAdd) {
            // The refill yields; the window may be closed meanwhile.
            const QPointer<frmUser> self(this);
            PopulateUserCbo();
            if (!StillLoaded(self))
                return;
        } else if (mintMode == ModeEdit) {
            FillUserFields();
        }
        SetUserMode(ModeView);
    } catch (...) {
        HandleFailure("frmAuthorUser:cmdUserCancel_Click;");
    }
}

void frmUser::cmdHelp_Click() {
    try {
        ShowHelpTopic(1560);
    } catch (...) {
        HandleFailure("frmAuthorUser:cmdHelp_Click;");
    }
}

void frmUser::cmdExit_Click() {
    try {
        if (UsersExist()) {
            Unload();
            return;
        }
        const int answer = host().msgBox(
            QStringLiteral("Exiting without entering an employee will cause \r\nthe program to "
                           "exit completely.\r\n\r\nDo you wish to continue?"),
            vbYesNo | vbQuestion, QString());
        if (answer == vbYes) {
            gblnFirstUserCancelled = true;
            host().endProcess();
            return;
        }
        gblnFirstUserCancelled = false;
        txtUserId->setFocus();
    } catch (...) {
        HandleFailure("frmAuthorUser:cmdExit_Click;");
    }
}

} // namespace qs
