#pragma once

#include "FormBase.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace qs {

// The login window: takes a user id and a password, and on success fills the login globals,
// shows frmMain and unloads itself.  It also changes a password and retrieves a forgotten one.
class frmLogin : public FormBase {
    Q_OBJECT
public:
    frmLogin();
    ~frmLogin() override;

    // Controls, by design name.
    QGroupBox* frmeLogin = nullptr;
    QLabel* lblUserId = nullptr;
    QLineEdit* txtUserId = nullptr;
    QLabel* lblPassword = nullptr;
    QLineEdit* txtPassword = nullptr;
    QLabel* lblNewPwd = nullptr;
    QLineEdit* txtNewPwd = nullptr;
    QLabel* lblConfirmPwd = nullptr;
    QLineEdit* txtConfirmPwd = nullptr;
    QCheckBox* chkRememberUserId = nullptr;
    QPushButton* cmdOk = nullptr;
    QPushButton* cmdChangePwd = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdForgotPwd = nullptr;
    QPushButton* cmdExit = nullptr; // "Exit", or "Cancel" during a login to another database

    bool ValidUser() const { return mblnValidUser; }
    bool VerifyData();
    void DisplayChangePassword(bool blnShow);

    void cmdOk_Click();
    void cmdChangePwd_Click();
    void cmdCancel_Click();
    void cmdForgotPwd_Click();
    void cmdExit_Click();

    void txtUserId_GotFocus();
    void txtPassword_GotFocus();
    void txtNewPwd_GotFocus();
    void txtConfirmPwd_GotFocus();
    // A carriage return (13) presses cmdOk.
    void txtPassword_KeyPress(int& KeyAscii);
    void txtConfirmPwd_KeyPress(int& KeyAscii);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    // Escape and the close box: Exit, or Cancel during a login to another database.
    ExitCommand exitCommand() override {
        return {"cmdExit_Click", [this] { cmdExit_Click(); }};
    }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void connectEvents();
    // Change-password mode is on while cmdCancel shows; the form keeps no flag of its own.
    bool changePasswordMode() const;
    // Steps of cmdOk_Click.
    void attemptsExceeded();
    void restoreSearchSettings();

    bool mblnValidUser = false;
};

} // namespace qs
