#include "frmCopyDialog.h"

#include "CommentHeader.h"
#include "DialogParts.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "RichTextBox.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs {

using namespace dialogparts;

namespace {
const QString kCrLf = QStringLiteral("\r\n");
constexpr long kHelpAdvancedCopy = 1540;
} // namespace

frmCopyDialog::frmCopyDialog() : FormBase(QStringLiteral("frmCopyDialog")) {
    const CommentFrame comments = commentFrame(this);
    frmeComments = comments.frame;
    chkAuthor = comments.chkAuthor;
    chkVersion = comments.chkVersion;
    chkCreateDate = comments.chkCreateDate;
    chkDescription = comments.chkDescription;
    chkRevisionHistory = comments.chkRevisionHistory;
    txtCommentSpec = comments.txtCommentSpec;
    cmdOK = button(this, "cmdOK", QStringLiteral("OK"));
    cmdOK->setDefault(true);
    cmdCancel = button(this, "cmdCancel", QStringLiteral("Cancel"));
    cmdHelp = button(this, "cmdHelp", QStringLiteral("Help"));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdHelp);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmeComments);
    layout->addLayout(buttons);
    setCaption(QStringLiteral("Advanced Copy Dialog"));

    Wire(this, cmdOK, &QPushButton::clicked, "cmdOK_Click", [this] { cmdOK_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, cmdHelp, &QPushButton::clicked, "cmdHelp_Click", [this] { cmdHelp_Click(); });
}

QString frmCopyDialog::SourceText() {
    return gstrExportText;
}

void frmCopyDialog::Form_Load() {
    txtCommentSpec->setText(QStringLiteral("'"));
    CenterOnScreen();
}

void frmCopyDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    RunHandler(this, "cmdCancel_Click", [this] { cmdCancel_Click(); });
}

void frmCopyDialog::cmdOK_Click() {
    try {
        host().setMousePointer(vbHourglass);
        QString& text = gstrExportText;
        text.clear();
        const QString spec = CommentSpecifier(txtCommentSpec->text());
        if (mobjSourceCode) {
            const cSourceCode& item = *mobjSourceCode;
            if (chkAuthor->isChecked())
                text = AuthorLine(spec, item);
            if (chkVersion->isChecked())
                text += VersionLine(spec, HeaderVersion(item.Revisions()));
            if (chkCreateDate->isChecked())
                text += CreateDateLine(spec, item);
            if (chkDescription->isChecked())
                text += DescriptionLine(spec, item);
            if (chkRevisionHistory->isChecked())
                text += RevisionHistoryBlock(spec, item.Revisions());
        }
        const frmMain* main = Forms::find<frmMain>();
        const QString code = main ? main->RichTextBoxCode->Text() : QString();
        if (!text.isEmpty())
            text += kCrLf + kCrLf + spec + QStringLiteral("Source Code") + kCrLf + code + kCrLf;
        else
            text = code + kCrLf;
        host().setMousePointer(vbDefault);
        Unload();
    } catch (...) {
        HandleFailure("frmCopyDialog:cmdOK_Click;");
    }
}

void frmCopyDialog::cmdCancel_Click() {
    try {
        gblnExportCancelled = true;
        Unload();
    } catch (...) {
        HandleFailure("frmCopyDialog:cmdCancel_Click;");
    }
}

void frmCopyDialog::cmdHelp_Click() {
    try {
        ShowHelpTopic(kHelpAdvancedCopy);
    } catch (...) {
        HandleFailure("frmCopyDialog:cmdHelp_Click;");
    }
}

} // namespace qs
