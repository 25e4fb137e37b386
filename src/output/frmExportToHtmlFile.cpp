#include "frmExportToHtmlFile.h"

#include "CommentHeader.h"
#include "DialogParts.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "RichTextBox.h"
#include "cSourceCode.h"
#include "mCommonDialog.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mPathHelpers.h"
#include "mRTFtoHTML.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs {

using namespace dialogparts;

namespace {
const QString kCrLf = QStringLiteral("\r\n");
const QChar kBackQuote = QLatin1Char('`');
constexpr long kHelpHtmlExport = 1570;
} // namespace

frmExportToHtmlFile::frmExportToHtmlFile() : FormBase(QStringLiteral("frmExportToHtmlFile")) {
    const CommentFrame comments = commentFrame(this);
    frmeComments = comments.frame;
    chkAuthor = comments.chkAuthor;
    chkVersion = comments.chkVersion;
    chkCreateDate = comments.chkCreateDate;
    chkDescription = comments.chkDescription;
    chkRevisionHistory = comments.chkRevisionHistory;
    txtCommentSpec = comments.txtCommentSpec;

    frmeOptions =
        new QGroupBox(QStringLiteral("Select the desired options for the HTML file:"), this);
    frmeOptions->setObjectName(QStringLiteral("frmeOptions"));
    chkH = checkBox(frmeOptions, "chkH", QStringLiteral("Add an HTML Header and Footer"));
    chkG = checkBox(frmeOptions, "chkG", QStringLiteral("Add a Generator MetaTag"));
    chkT = checkBox(frmeOptions, "chkT",
                    QStringLiteral("Add a Title  (Only works if Header and Footer is checked)"));
    chkCR =
        checkBox(frmeOptions, "chkCR", QStringLiteral("Add a Carraige Return after all <BR>'s"));
    chkI = checkBox(frmeOptions, "chkI", QStringLiteral("Keep HTML Codes intact"));
    auto* options = new QVBoxLayout(frmeOptions);
    for (QCheckBox* box : {chkH, chkG, chkT, chkCR, chkI})
        options->addWidget(box);

    cmdOk = button(this, "cmdOk", QStringLiteral("OK"));
    cmdOk->setDefault(true);
    cmdCancel = button(this, "cmdCancel", QStringLiteral("Cancel"));
    cmdHelp = button(this, "cmdHelp", QStringLiteral("Help"));
    RichTextBoxHTML = new RichTextBox(QStringLiteral("RichTextBoxHTML"), this);
    RichTextBoxHTML->setVisible(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdHelp);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmeComments);
    layout->addWidget(frmeOptions);
    layout->addLayout(buttons);
    setCaption(QStringLiteral("Export To Html Dialog"));

    Wire(this, cmdOk, &QPushButton::clicked, "cmdOk_Click", [this] { cmdOk_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, cmdHelp, &QPushButton::clicked, "cmdHelp_Click", [this] { cmdHelp_Click(); });
}

QString frmExportToHtmlFile::SourceTextHtml() {
    return gstrExportText;
}

void frmExportToHtmlFile::Form_Load() {
    try {
        host().setMousePointer(vbHourglass);
        CenterOnScreen();
        txtCommentSpec->setText(QStringLiteral("'"));
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmExportToHtml:Form_Load;");
    }
}

void frmExportToHtmlFile::Form_Unload(int& cancel) {
    (void)cancel;
    gstrExportText.clear();
}

void frmExportToHtmlFile::askTitle(QString& options) {
    for (;;) {
        const QString title = host().inputBox(QStringLiteral("Please enter a ''Title''"),
                                              QStringLiteral("HTML Title"), QString());
        QString question;
        if (title.isEmpty())
            question = QStringLiteral("No Title was entered, Do you want a title");
        else if (title.contains(kBackQuote))
            // The message names a tilde; the back-quote is what delimits the option.
            question = QStringLiteral(
                "Title cannot have the character ~, Do you want to enter another title?");
        if (question.isEmpty()) {
            options += QStringLiteral("+T=`") + title + kBackQuote;
            return;
        }
        if (host().msgBox(question, vbYesNo, QStringLiteral("Title Error")) != vbYes) {
            chkT->setChecked(false);
            return;
        }
    }
}

void frmExportToHtmlFile::cmdOk_Click() {
    try {
        host().setMousePointer(vbHourglass);
        RichTextBoxHTML->setText(QString());
        QString& text = gstrExportText;
        text.clear();
        const QString spec = CommentSpecifier(txtCommentSpec->text());
        if (mobjSourceCode) {
            const cSourceCode& item = *mobjSourceCode;
            if (chkAuthor->isChecked())
                text = AuthorLine(spec, item);
            // This dialog looks up no revision, so the line carries no version.
            if (chkVersion->isChecked())
                text += VersionLine(spec, QString());
            if (chkCreateDate->isChecked())
                text += CreateDateLine(spec, item);
            if (chkDescription->isChecked())
                text += DescriptionLine(spec, item);
            // Header and code join directly, the first code line behind a tab.
            if (text.isEmpty())
                text = item.Code() + kCrLf;
            else
                text += QLatin1Char('\t') + item.Code() + kCrLf;
            if (chkRevisionHistory->isChecked())
                text += RevisionHistoryBlock(spec, item.Revisions());
        }
        RichTextBoxHTML->setText(text);

        if (chkT->isChecked() && !chkH->isChecked()) {
            host().msgBox(
                QStringLiteral("You have to check ''Header and Footer'' to add a ''Title''."),
                vbInformation, QStringLiteral("Title?"));
            host().setMousePointer(vbDefault);
            return;
        }
        QString options;
        if (chkH->isChecked())
            options = QStringLiteral("+H");
        if (chkG->isChecked())
            options += QStringLiteral("+G");
        if (chkT->isChecked())
            askTitle(options);
        if (chkCR->isChecked())
            options += QStringLiteral("+CR");
        // A title keeps the HTML of the text live; chkI is read by nothing.
        if (chkT->isChecked())
            options += QStringLiteral("+I");
        // The result is no rich text, so the box keeps it as plain text.
        RichTextBoxHTML->setTextRTF(RTF2HTML(RichTextBoxHTML->TextRTF(), options));

        host().setMousePointer(vbDefault);
        const QString path = GetFileName(
            CommonDialog1, QStringLiteral("HTML Files (*.html)|*.html"),
            QStringLiteral("Select a path to save html file"), QString(), QString(), true);
        // The save comes first: an empty path is refused there and ends in the failure report.
        RichTextBoxHTML->SaveFile(path, rtfText);
        if (path.isEmpty()) {
            host().msgBox(QStringLiteral("You did not choose to save file."), vbInformation,
                          QStringLiteral("Save?"));
            host().setMousePointer(vbDefault);
            return;
        }
        if (host().msgBox(
                QStringLiteral("Do you want to launch your html file in you default browser?"),
                vbYesNo + vbQuestion, QStringLiteral("Launch Html File?")) == vbYes)
            StartURL(path);
        host().setMousePointer(vbDefault);
        Unload();
    } catch (...) {
        HandleFailure("frmExportToHtml:cmdOk_Click;");
    }
}

void frmExportToHtmlFile::cmdCancel_Click() {
    try {
        Unload();
    } catch (...) {
        HandleFailure("frmExportToHtml:cmdCancel_Click;");
    }
}

void frmExportToHtmlFile::cmdHelp_Click() {
    try {
        ShowHelpTopic(kHelpHtmlExport);
    } catch (...) {
        HandleFailure("frmExportToHtml:cmdHelp_Click;");
    }
}

} // namespace qs
