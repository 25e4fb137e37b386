// The controls of frmAuthor and their events.

#include "EventWiring.h"
#include "frmAuthor.h"

#include "ComboBox.h"
#include "DialogParts.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs {

using dialogparts::button;

namespace {

QLineEdit* textBox(QWidget* owner, const char* name) {
    auto* box = new QLineEdit(owner);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

} // namespace

void frmAuthor::buildLayout() {
    cboAuthors = new ComboBox(QStringLiteral("cboAuthors"), this);
    txtAuthorId = textBox(this, "txtAuthorId");
    txtAuthorFName = textBox(this, "txtAuthorFName");
    txtAuthorLName = textBox(this, "txtAuthorLName");
    cmdAuthorAdd = button(this, "cmdAuthorAdd", QStringLiteral("Add"));
    cmdAuthorEdit = button(this, "cmdAuthorEdit", QStringLiteral("Edit"));
    cmdAuthorUpdate = button(this, "cmdAuthorUpdate", QStringLiteral("Update"));
    cmdAuthorDelete = button(this, "cmdAuthorDelete", QStringLiteral("Delete"));
    cmdAuthorCancel = button(this, "cmdAuthorCancel", QStringLiteral("Cancel"));
    cmdHelp = button(this, "cmdHelp", QStringLiteral("Help"));
    cmdExit = button(this, "cmdExit", QStringLiteral("Exit"));

    auto* fields = new QGridLayout;
    int row = 0;
    const auto addRow = [&](const char* name, const QString& caption, QWidget* control) {
        auto* lbl = new QLabel(caption, this);
        lbl->setObjectName(QString::fromLatin1(name));
        lbl->setBuddy(control);
        fields->addWidget(lbl, row, 0);
        fields->addWidget(control, row, 1);
        ++row;
    };
    addRow("lblAuthors", QStringLiteral("Available Authors:"), cboAuthors);
    addRow("lblAuthorId", QStringLiteral("Author ID:"), txtAuthorId);
    addRow("lblAuthorFName", QStringLiteral("First Name:"), txtAuthorFName);
    addRow("lblAuthorLName", QStringLiteral("Last Name:"), txtAuthorLName);
    fields->setColumnMinimumWidth(1, 260);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* cmd : {cmdAuthorAdd, cmdAuthorEdit, cmdAuthorUpdate, cmdAuthorDelete,
                             cmdAuthorCancel, cmdHelp, cmdExit})
        buttons->addWidget(cmd);

    auto* main = new QVBoxLayout(this);
    main->addLayout(fields);
    main->addSpacing(8);
    main->addLayout(buttons);
}

void frmAuthor::connectEvents() {
    const auto wire = [this](QPushButton* cmd, const char* name, void (frmAuthor::*handler)()) {
        Wire(this, cmd, &QPushButton::clicked, name, [this, handler] { (this->*handler)(); });
    };
    wire(cmdAuthorAdd, "cmdAuthorAdd_Click", &frmAuthor::cmdAuthorAdd_Click);
    wire(cmdAuthorEdit, "cmdAuthorEdit_Click", &frmAuthor::cmdAuthorEdit_Click);
    wire(cmdAuthorUpdate, "cmdAuthorUpdate_Click", &frmAuthor::cmdAuthorUpdate_Click);
    wire(cmdAuthorDelete, "cmdAuthorDelete_Click", &frmAuthor::cmdAuthorDelete_Click);
    wire(cmdAuthorCancel, "cmdAuthorCancel_Click", &frmAuthor::cmdAuthorCancel_Click);
    wire(cmdHelp, "cmdHelp_Click", &frmAuthor::cmdHelp_Click);
    wire(cmdExit, "cmdExit_Click", &frmAuthor::cmdExit_Click);
    Wire(this, cboAuthors->Click, "cboAuthors_Click", [this] { cboAuthors_Click(); });
    // The name boxes select their whole text when they get the focus.
    txtAuthorFName->installEventFilter(this);
    txtAuthorLName->installEventFilter(this);
}

bool frmAuthor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        if (watched == txtAuthorFName)
            RunHandler(this, "txtAuthorFName_GotFocus", [this] { txtAuthorFName_GotFocus(); });
        else if (watched == txtAuthorLName)
            RunHandler(this, "txtAuthorLName_GotFocus", [this] { txtAuthorLName_GotFocus(); });
    }
    return FormBase::eventFilter(watched, event);
}

} // namespace qs
