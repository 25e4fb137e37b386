#include "frmInsert.h"

#include "DialogParts.h"
#include "EventWiring.h"
#include "Globals.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qs {

using dialogparts::button;

namespace {
constexpr long kHelpInsert = 1600;
} // namespace

frmInsert::frmInsert() : FormBase(QStringLiteral("frmInsert")) {
    setCaption(QStringLiteral("Insert Source Item Dialog"));
    frmeOptions = new QGroupBox(QStringLiteral("Specify which item is to be inserted:"), this);
    frmeOptions->setObjectName(QStringLiteral("frmeOptions"));
    optFolder = new QRadioButton(QStringLiteral("Insert Source Code Folder"), frmeOptions);
    optFolder->setObjectName(QStringLiteral("optFolder"));
    optFolder->setChecked(true);
    optSource = new QRadioButton(QStringLiteral("Insert Source Code"), frmeOptions);
    optSource->setObjectName(QStringLiteral("optSource"));
    auto* options = new QVBoxLayout(frmeOptions);
    options->addWidget(optFolder);
    options->addWidget(optSource);
    cmdOk = button(this, "cmdOk", QStringLiteral("OK"));
    cmdCancel = button(this, "cmdCancel", QStringLiteral("Cancel"));
    cmdHelp = button(this, "cmdHelp", QStringLiteral("Help"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdHelp);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmeOptions);
    layout->addLayout(buttons);

    Wire(this, cmdOk, &QPushButton::clicked, "cmdOk_Click", [this] { cmdOk_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, cmdHelp, &QPushButton::clicked, "cmdHelp_Click", [this] { cmdHelp_Click(); });
}

void frmInsert::Form_Load() {
    CenterOnScreen();
    gblnInsertCancelled = false;
}

void frmInsert::cmdOk_Click() {
    try {
        if (optFolder->isChecked())
            gstrInsertChoice = QStringLiteral("Add Folder");
        else if (optSource->text() == QLatin1String("Insert Source Code"))
            gstrInsertChoice = QStringLiteral("Add Source Code");
        else
            gstrInsertChoice = QStringLiteral("Add Source File");
        Unload();
    } catch (...) {
        HandleFailure("frmInsert:cmdOk_Click;");
    }
}

void frmInsert::cmdCancel_Click() {
    try {
        gblnInsertCancelled = true;
        Unload();
    } catch (...) {
        HandleFailure("frmInsert:cmdCancel_Click;");
    }
}

void frmInsert::cmdHelp_Click() {
    try {
        ShowHelpTopic(kHelpInsert);
    } catch (...) {
        HandleFailure("frmInsert:cmdHelp_Click;");
    }
}

} // namespace qs
