#include "frmLogin.h"

#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mINIReadWrite.h"
#include "mRegConstants.h"
#include "quillstone_private.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace qs {

namespace {

QLineEdit* makeBox(const char* name, QWidget* parent, bool password) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(QString::fromLatin1(name));
    if (password)
        box->setEchoMode(QLineEdit::Password);
    return box;
}

QLabel* makeLabel(const char* name, const char* caption, QWidget* parent) {
    auto* label = new QLabel(QString::fromLatin1(caption), parent);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

QPushButton* makeButton(const char* name, const char* caption, QWidget* parent) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    button->setObjectName(QString::fromLatin1(name));
    // Return in the user id box must not press a button; only the password boxes
    // press cmdOk.
    button->setAutoDefault(false);
    return button;
}

void focusIfVisible(QLineEdit* box) {
    if (box->isVisible())
        box->setFocus(Qt::OtherFocusReason);
}

} // namespace

frmLogin::frmLogin() : FormBase(QStringLiteral("frmLogin")) {
    setCaption(QStringLiteral("Login"));
    buildLayout();
    connectEvents();
}

frmLogin::~frmLogin() = default;

void frmLogin::buildLayout() {
    frmeLogin = new QGroupBox(this);
    frmeLogin->setObjectName(QStringLiteral("frmeLogin"));
    lblUserId = makeLabel("lblUserId", "User ID:", frmeLogin);
    txtUserId = makeBox("txtUserId", frmeLogin, false);
    lblPassword = makeLabel("lblPassword", "Password:", frmeLogin);
    txtPassword = makeBox("txtPassword", frmeLogin, true);
    lblNewPwd = makeLabel("lblNewPwd", "New Password:", frmeLogin);
    txtNewPwd = makeBox("txtNewPwd", frmeLogin, true);
    lblConfirmPwd = makeLabel("lblConfirmPwd", "Confirm Password:", frmeLogin);
    txtConfirmPwd = makeBox("txtConfirmPwd", frmeLogin, true);
    chkRememberUserId = new QCheckBox(QStringLiteral("Remember User Id"), frmeLogin);
    chkRememberUserId->setObjectName(QStringLiteral("chkRememberUserId"));

    auto* grid = new QGridLayout(frmeLogin);
    grid->addWidget(lblUserId, 0, 0);
    grid->addWidget(txtUserId, 0, 1);
    grid->addWidget(lblPassword, 1, 0);
    grid->addWidget(txtPassword, 1, 1);
    grid->addWidget(lblNewPwd, 2, 0);
    grid->addWidget(txtNewPwd, 2, 1);
    grid->addWidget(lblConfirmPwd, 3, 0);
    grid->addWidget(txtConfirmPwd, 3, 1);
    grid->addWidget(chkRememberUserId, 4, 1);
    txtUserId->setMinimumWidth(180);

    cmdOk = makeButton("cmdOk", "OK", this);
    cmdChangePwd = makeButton("cmdChangePwd", "Change Password", this);
    cmdCancel = makeButton("cmdCancel", "Cancel", this);
    cmdForgotPwd = makeButton("cmdForgotPwd", "Forgot Password", this);
    cmdExit = makeButton("cmdExit", "Exit", this);

    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {cmdOk, cmdChangePwd, cmdCancel, cmdForgotPwd, cmdExit})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(frmeLogin);
    layout->addLayout(buttons);
}

void frmLogin::connectEvents() {
    Wire(this, cmdOk, &QPushButton::clicked, "cmdOk_Click", [this] { cmdOk_Click(); });
    Wire(this, cmdChangePwd, &QPushButton::clicked, "cmdChangePwd_Click",
         [this] { cmdChangePwd_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, cmdForgotPwd, &QPushButton::clicked, "cmdForgotPwd_Click",
         [this] { cmdForgotPwd_Click(); });
    Wire(this, cmdExit, &QPushButton::clicked, "cmdExit_Click", [this] { cmdExit_Click(); });
    Wire(this, txtPassword, &QLineEdit::returnPressed, "txtPassword_KeyPress", [this] {
        int key = 13;
        txtPassword_KeyPress(key);
    });
    Wire(this, txtConfirmPwd, &QLineEdit::returnPressed, "txtConfirmPwd_KeyPress", [this] {
        int key = 13;
        txtConfirmPwd_KeyPress(key);
    });
    for (QLineEdit* box : {txtUserId, txtPassword, txtNewPwd, txtConfirmPwd})
        box->installEventFilter(this);
}

bool frmLogin::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        // The box selects its text itself on focus; the handler runs after that.
        void (frmLogin::*handler)() = nullptr;
        if (watched == txtUserId)
            handler = &frmLogin::txtUserId_GotFocus;
        else if (watched == txtPassword)
            handler = &frmLogin::txtPassword_GotFocus;
        else if (watched == txtNewPwd)
            handler = &frmLogin::txtNewPwd_GotFocus;
        else if (watched == txtConfirmPwd)
            handler = &frmLogin::txtConfirmPwd_GotFocus;
        if (handler)
            QTimer::singleShot(0, this, [this, handler] {
                RunHandler(this, "GotFocus", [this, handler] { (this->*handler)(); });
            });
    }
    return FormBase::eventFilter(watched, event);
}

void frmLogin::Form_Load() {
    try {
        mblnValidUser = false;
        DisplayChangePassword(false);
        CenterOnScreen();
    } catch (...) {
        HandleFailure("frmLogin:Form_Load;");
    }
}

void frmLogin::Form_Activate() {
    try {
        const QString settingsFile = SettingsFilePath();
        if (!FileExists(settingsFile)) {
            focusIfVisible(txtUserId);
            return;
        }
        const QString section = QString::fromLatin1(INI_SECTION_APPSETTINGS);
        const QString userId = File_GetSpecificKeySetting_FromSpecificFile(
            settingsFile, section, QString::fromLatin1(INI_KEY_USERID));
        if (!userId.isEmpty()) {
            chkRememberUserId->setChecked(true);
            txtUserId->setText(userId);
            focusIfVisible(txtPassword);
        } else {
            chkRememberUserId->setChecked(false);
            focusIfVisible(txtUserId);
        }
        const QString password = File_GetSpecificKeySetting_FromSpecificFile(
            settingsFile, section, QString::fromLatin1(INI_KEY_REMEMBERPASS));
        if (!password.isEmpty())
            txtPassword->setText(password);
    } catch (...) {
        HandleFailure("frmLogin:Form_Activate;");
    }
}

bool frmLogin::changePasswordMode() const {
    return !cmdCancel->isHidden();
}

void frmLogin::DisplayChangePassword(bool blnShow) {
    try {
        for (QWidget* w : std::initializer_list<QWidget*>{lblNewPwd, txtNewPwd, lblConfirmPwd,
                                                          txtConfirmPwd, cmdCancel})
            w->setVisible(blnShow);
        cmdChangePwd->setEnabled(!blnShow);
        // The taller layout with the two extra boxes, or the short one without
        // them.
        frmeLogin->adjustSize();
        adjustSize();
        focusIfVisible(txtUserId);
    } catch (...) {
        HandleFailure("frmLogin:DisplayChangePassword;");
    }
}

void frmLogin::cmdChangePwd_Click() {
    try {
        DisplayChangePassword(true);
    } catch (...) {
        HandleFailure("frmLogin:cmdChangePwd_Click;");
    }
}

void frmLogin::cmdCancel_Click() {
    try {
        DisplayChangePassword(false);
    } catch (...) {
        HandleFailure("frmLogin:cmdCancel_Click;");
    }
}

void frmLogin::txtUserId_GotFocus() {
    txtUserId->setSelection(0, txtUserId->text().length());
}

void frmLogin::txtPassword_GotFocus() {
    txtPassword->setSelection(0, txtPassword->text().length());
}

// The two new-password boxes select as far as the old password reaches, not
// their own length.
void frmLogin::txtNewPwd_GotFocus() {
    txtNewPwd->setSelection(0, txtPassword->text().length());
}

void frmLogin::txtConfirmPwd_GotFocus() {
    txtConfirmPwd->setSelection(0, txtPassword->text().length());
}

void frmLogin::txtPassword_KeyPress(int& KeyAscii) {
    if (KeyAscii == 13)
        cmdOk_Click();
}

void frmLogin::txtConfirmPwd_KeyPress(int& KeyAscii) {
    if (KeyAscii == 13)
        cmdOk_Click();
}

bool frmLogin::VerifyData() {
    try {
        QString message;
        QLineEdit* firstFailed = nullptr;
        auto fail = [&message, &firstFailed](QLineEdit* box, const char* text) {
            if (!message.isEmpty())
                message += QLatin1String("\r\n");
            message += QLatin1String(text);
            if (!firstFailed)
                firstFailed = box;
        };
        const bool mode = changePasswordMode();
        if (txtUserId->text().isEmpty())
            fail(txtUserId, "Please enter your UserId.");
        if (txtPassword->text().isEmpty())
            fail(txtPassword, "Please enter your Password.");
        if (mode && txtNewPwd->text().isEmpty())
            fail(txtNewPwd, "Please enter your New Password.");
        if (mode && txtConfirmPwd->text().isEmpty())
            fail(txtConfirmPwd, "Please Confirm Password.");
        // Both boxes are empty outside the mode, so this holds only inside it.
        if (txtConfirmPwd->text() != txtNewPwd->text())
            fail(txtNewPwd, "Your Confirm password is not equal to the New Password "
                            "you entered.");

        if (message.isEmpty())
            return true;
        // The title is the text of a boolean property of the application, which
        // reads "True".
        host().msgBox(message, vbCritical, QStringLiteral("True"));
        firstFailed->setFocus(Qt::OtherFocusReason);
        return false;
    } catch (...) {
        HandleFailure("frmLogin:VerifyData;");
    }
    return false;
}

} // namespace qs
