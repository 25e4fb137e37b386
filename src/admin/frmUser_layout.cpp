// The controls of frmUser and their events.

#include "EventWiring.h"
#include "frmUser.h"

#include "ComboBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs {

namespace {

QLineEdit* textBox(QWidget* owner, const char* name) {
    auto* box = new QLineEdit(owner);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

QPushButton* button(QWidget* owner, const char* name, const QString& caption) {
    auto* cmd = new QPushButton(caption, owner);
    cmd->setObjectName(QString::fromLatin1(name));
    cmd->setAutoDefault(false);
    return cmd;
}

QLabel* label(QWidget* owner, const char* name, const QString& caption, QWidget* buddy) {
    auto* lbl = new QLabel(caption, owner);
    lbl->setObjectName(QString::fromLatin1(name));
    lbl->setBuddy(buddy);
    return lbl;
}

} // namespace

void frmUser::buildLayout() {
    cboUsers = new ComboBox(QStringLiteral("cboUsers"), this);
    txtUserId = textBox(this, "txtUserId");
    txtUserFName = textBox(this, "txtUserFName");
    txtUserLName = textBox(this, "txtUserLName");
    txtPassword = textBox(this, "txtPassword");
    txtPassword->setEchoMode(QLineEdit::Password);
    txtQuestion = textBox(this, "txtQuestion");
    txtAnswer = textBox(this, "txtAnswer");
    cboAccessType = new ComboBox(QStringLiteral("cboAccessType"), this);

    cmdUserAdd = button(this, "cmdUserAdd", QStringLiteral("Add"));
    cmdUserEdit = button(this, "cmdUserEdit", QStringLiteral("Edit"));
    cmdUserUpdate = button(this, "cmdUserUpdate", QStringLiteral("Update"));
    cmdUserDelete = button(this, "cmdUserDelete", QStringLiteral("Delete"));
    cmdUserCancel = button(this, "cmdUserCancel", QStringLiteral("Cancel"));
    cmdHelp = button(this, "cmdHelp", QStringLiteral("Help"));
    cmdExit = button(this, "cmdExit", QStringLiteral("Exit"));

    auto* fields = new QGridLayout;
    int row = 0;
    const auto addRow = [&](const char* name, const QString& caption, QWidget* control) {
        fields->addWidget(label(this, name, caption, control), row, 0);
        fields->addWidget(control, row, 1);
        ++row;
    };
    addRow("lblUsers", QStringLiteral("Available Users:"), cboUsers);
    addRow("lblUserId", QStringLiteral("User ID:"), txtUserId);
    addRow("lblUserFName", QStringLiteral("First Name:"), txtUserFName);
    addRow("lblUserLName", QStringLiteral("Last Name:"), txtUserLName);
    addRow("lblPassword", QStringLiteral("Password:"), txtPassword);
    addRow("lblQuestion", QStringLiteral("Password Question:"), txtQuestion);
    addRow("lblAnswer", QStringLiteral("Password Answer:"), txtAnswer);
    addRow("lblAccessType", QStringLiteral("Access Type:"), cboAccessType);
    fields->setColumnMinimumWidth(1, 260);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* cmd :
         {cmdUserAdd, cmdUserEdit, cmdUserUpdate, cmdUserDelete, cmdUserCancel, cmdHelp, cmdExit})
        buttons->addWidget(cmd);

    auto* main = new QVBoxLayout(this);
    main->addLayout(fields);
    main->addSpacing(8);
    main->addLayout(buttons);
}

void frmUser::connectEvents() {
    const auto wire = [this](QPushButton* cmd, const char* name, void (frmUser::*handler)()) {
        Wire(this, cmd, &QPushButton::clicked, name, [this, handler] { (this->*handler)(); });
    };
    wire(cmdUserAdd, "cmdUserAdd_Click", &frmUser::cmdUserAdd_Click);
    wire(cmdUserEdit, "cmdUserEdit_Click", &frmUser::cmdUserEdit_Click);
    wire(cmdUserUpdate, "cmdUserUpdate_Click", &frmUser::cmdUserUpdate_Click);
    wire(cmdUserDelete, "cmdUserDelete_Click", &frmUser::cmdUserDelete_Click);
    wire(cmdUserCancel, "cmdUserCancel_Click", &frmUser::cmdUserCancel_Click);
    wire(cmdHelp, "cmdHelp_Click", &frmUser::cmdHelp_Click);
    wire(cmdExit, "cmdExit_Click", &frmUser::cmdExit_Click);
    Wire(this, cboUsers->Click, "cboUsers_Click", [this] { cboUsers_Click(); });
}

} // namespace qs
