#pragma once

#include "FormBase.h"

#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;

namespace qs {

class ComboBox;
class cAuthor;
class cSecurityService;
class cUser;

// User maintenance, and the window in which the first user of an empty database is made.
// Failures report under the name "frmAuthorUser".
class frmUser : public FormBase {
    Q_OBJECT
public:
    // Modes of the window.
    enum UserMode : short { ModeAdd = 0, ModeEdit = 1, ModeView = 2 };

    frmUser();
    ~frmUser() override;

    // Controls, by design name.
    ComboBox* cboUsers = nullptr;
    QLineEdit* txtUserId = nullptr;
    QLineEdit* txtUserFName = nullptr;
    QLineEdit* txtUserLName = nullptr;
    QLineEdit* txtPassword = nullptr;
    QLineEdit* txtQuestion = nullptr;
    QLineEdit* txtAnswer = nullptr;
    ComboBox* cboAccessType = nullptr;
    QPushButton* cmdUserAdd = nullptr;
    QPushButton* cmdUserEdit = nullptr;
    QPushButton* cmdUserUpdate = nullptr;
    QPushButton* cmdUserDelete = nullptr;
    QPushButton* cmdUserCancel = nullptr;
    QPushButton* cmdHelp = nullptr;
    QPushButton* cmdExit = nullptr;

    void PopulateUserCbo(bool blnSelectFirst = false);
    void ClearUserFields();
    bool ValidateUserFields();
    void SetUserMode(short intMode);
    void LookupUser(const QString& strId);
    void FillUserFields();
    bool ValidUser(const QString& strId);
    void DeleteUser(const QString& strId, const QString& strActingId);

    void cboUsers_Click();
    void cmdUserAdd_Click();
    void cmdUserEdit_Click();
    void cmdUserUpdate_Click();
    void cmdUserDelete_Click();
    void cmdUserCancel_Click();
    void cmdHelp_Click();
    void cmdExit_Click();

    short Mode() const { return mintMode; }
    // The record the window works on; null while none is chosen.
    cUser* CurrentUser() const { return mobjUser.get(); }

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(int& cancel) override;
    // The first-user form asks before the program ends.
    ExitCommand exitCommand() override {
        return {"cmdExit_Click", [this] { cmdExit_Click(); }};
    }

private:
    void buildLayout();
    void connectEvents();
    // The id of whoever acts on the records: the logged-in user, or the form's record while
    // nobody is logged in.
    QString actingUserId() const;

    std::shared_ptr<cUser> mobjUser;
    std::unique_ptr<cSecurityService> mobjSecurity;
    std::unique_ptr<cAuthor> mobjAuthor;
    short mintMode = ModeView;
    QString mstrUserId;
};

} // namespace qs
