#include "frmChooseFolderType.h"

#include "ComboBox.h"
#include "DialogParts.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "quillstone_private.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qs {

using dialogparts::button;

namespace {

constexpr long kHelpAddFolder = 1590;

QRadioButton* radio(QWidget* owner, const char* name, const QString& caption) {
    auto* opt = new QRadioButton(caption, owner);
    opt->setObjectName(QString::fromLatin1(name));
    return opt;
}

QLabel* label(QWidget* owner, const char* name, const QString& caption) {
    auto* l = new QLabel(caption, owner);
    l->setObjectName(QString::fromLatin1(name));
    return l;
}

} // namespace

frmChooseFolderType::frmChooseFolderType() : FormBase(QStringLiteral("frmChooseFolderType")) {
    setCaption(QStringLiteral("Add Folder"));
    frmeOptions = new QGroupBox(QStringLiteral("Select the Desired Folder Type"), this);
    frmeOptions->setObjectName(QStringLiteral("frmeOptions"));
    optCodeFolder = radio(frmeOptions, "optCodeFolder", QStringLiteral("Code Folder"));
    optTipFolder = radio(frmeOptions, "optTipFolder", QStringLiteral("Tip Folder"));
    optClassFolder = radio(frmeOptions, "optClassFolder", QStringLiteral("Class Folder"));
    optModFolder = radio(frmeOptions, "optModFolder", QStringLiteral("Module Folder"));
    lblFolderType = label(frmeOptions, "lblFolderType", QStringLiteral("Folder Type:"));
    lblFolderTypeName = label(frmeOptions, "lblFolderTypeName", QString());
    lblFolderType->setVisible(false);
    lblFolderTypeName->setVisible(false);
    auto* options = new QGridLayout(frmeOptions);
    options->addWidget(optCodeFolder, 0, 0);
    options->addWidget(optTipFolder, 0, 1);
    options->addWidget(optClassFolder, 1, 0);
    options->addWidget(optModFolder, 1, 1);
    options->addWidget(lblFolderType, 2, 0);
    options->addWidget(lblFolderTypeName, 2, 1);

    txtFolderName = new QLineEdit(this);
    txtFolderName->setObjectName(QStringLiteral("txtFolderName"));
    txtFolderName->setMaxLength(50);
    cboAuthors = new ComboBox(QStringLiteral("cboAuthors"), this);
    lblPersonCap = label(this, "lblPersonCap", QStringLiteral("Person Adding:"));
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
    layout->addWidget(label(this, "lblFolderName", QStringLiteral("Folder Name")));
    layout->addWidget(txtFolderName);
    layout->addWidget(lblPersonCap);
    layout->addWidget(cboAuthors);
    layout->addLayout(buttons);

    Wire(this, cmdOk, &QPushButton::clicked, "cmdOk_Click", [this] { cmdOk_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, cmdHelp, &QPushButton::clicked, "cmdHelp_Click", [this] { cmdHelp_Click(); });
    Wire(this, txtFolderName, &QLineEdit::returnPressed, "txtFolderName_KeyPress", [this] {
        int key = 13;
        txtFolderName_KeyPress(key);
    });
}

void frmChooseFolderType::Form_Load() {
    try {
        host().setMousePointer(vbHourglass);
        CenterOnScreen();
        FillComboBox(QStringLiteral("Authors"), cboAuthors);
        for (int i = 0; i < cboAuthors->ListCount(); ++i)
            if (cboAuthors->List(i) == gstrUserName)
                cboAuthors->setText(gstrUserName);
        txtFolderName->clear();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmChoseFolderType:Form_Load;");
    }
}

QRadioButton* frmChooseFolderType::option(const QString& strFolderType) const {
    if (strFolderType == QLatin1String("Code"))
        return optCodeFolder;
    if (strFolderType == QLatin1String("Tip"))
        return optTipFolder;
    if (strFolderType == QLatin1String("Class"))
        return optClassFolder;
    if (strFolderType == QLatin1String("Module"))
        return optModFolder;
    return nullptr;
}

void frmChooseFolderType::PresetFileFolder(const QString& strTypeName) {
    for (QRadioButton* opt : {optCodeFolder, optTipFolder, optClassFolder, optModFolder})
        opt->setVisible(false);
    lblFolderType->setVisible(true);
    lblFolderTypeName->setVisible(true);
    frmeOptions->setTitle(QStringLiteral("Folder Type"));
    lblFolderTypeName->setText(strTypeName);
}

void frmChooseFolderType::PresetOption(const QString& strFolderType, bool blnFrameCaption) {
    if (QRadioButton* chosen = option(strFolderType))
        chosen->setChecked(true);
    for (QRadioButton* opt : {optCodeFolder, optTipFolder, optClassFolder, optModFolder})
        opt->setVisible(false);
    if (blnFrameCaption)
        frmeOptions->setTitle(QStringLiteral("Folder Type"));
}

void frmChooseFolderType::cmdOk_Click() {
    try {
        if (cboAuthors->Text().isEmpty()) {
            host().msgBox(QStringLiteral("Please select the ''Person Adding''."), vbInformation,
                          QStringLiteral("Author?"));
            cboAuthors->setFocus();
            return;
        }
        QString type;
        for (const char* t : {"Code", "Tip", "Class", "Module"})
            if (option(QString::fromLatin1(t))->isChecked())
                type = QString::fromLatin1(t);
        if (lblFolderTypeName->isHidden() && type.isEmpty()) {
            host().msgBox(QStringLiteral("Please select a ''Folder Type''."), vbInformation,
                          QStringLiteral("Folder Type?"));
            return;
        }
        if (txtFolderName->text().isEmpty()) {
            host().msgBox(QStringLiteral("Please enter a ''Folder Name''."), vbInformation,
                          QStringLiteral("Folder Name?"));
            host().setMousePointer(vbDefault);
            txtFolderName->setFocus();
            return;
        }
        glngFolderAuthorId = cboAuthors->ItemData(cboAuthors->ListIndex());
        gstrFolderType = type;
        gstrFolderName = txtFolderName->text();
        gblnFolderAccepted = true;
        Unload();
    } catch (...) {
        HandleFailure("frmChoseFolderType:cmdOk_Click;");
    }
}

void frmChooseFolderType::cmdCancel_Click() {
    try {
        gblnFolderAccepted = false;
        Unload();
    } catch (...) {
        HandleFailure("frmChoseFolderType:cmdCancel_Click;");
    }
}

void frmChooseFolderType::cmdHelp_Click() {
    try {
        ShowHelpTopic(kHelpAddFolder);
    } catch (...) {
        HandleFailure("frmChoseFolderType:cmdHelp_Click;");
    }
}

void frmChooseFolderType::txtFolderName_KeyPress(int& KeyAscii) {
    if (KeyAscii == 13)
        cmdOk->click();
}

} // namespace qs
