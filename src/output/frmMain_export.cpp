// The main window's export commands: HTML and XML through their dialogs, RTF, text and PDF
// through the copy dialog; and the wiring of every output command of the menu bar.

#include "frmMain.h"

#include "AppPaths.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "QsError.h"
#include "RichTextBox.h"
#include "cSourceCode.h"
#include "frmCopyDialog.h"
#include "frmExportToHtmlFile.h"
#include "frmExportToXMLFile.h"
#include "mCommonDialog.h"
#include "mErrorHandling.h"
#include "mLaunchAppsAndProcesses.h"

#include <QAction>
#include <QPointer>

namespace qs {

namespace {
const QString kNoCodeForHtml = QStringLiteral("No code in the ''Code Window'' to convert to html");
} // namespace

// One row of the file exports that share the copy dialog.
struct FileExportKind {
    enum Writer { Rtf, Text, Pdf };
    const char* literal; // the handler's failure literal
    const char* caption;
    const char* saveTitle;
    const char* filter;
    const char* ending;
    const char* launchTitle;
    const char* launchQuestion;
    Writer writer;
};

namespace {
const FileExportKind kRtfExport = {"frmMain:mnuRTF_Click;",
                                   "Export to RTF File",
                                   "Save RTF File",
                                   "RTF Files (*.rtf)|*.rtf",
                                   ".rtf",
                                   "Launch RTF File?",
                                   "Do you want to launch your rtf file?",
                                   FileExportKind::Rtf};
const FileExportKind kTextExport = {"frmMain:mnuTextFile_Click;",
                                    "Export to Text File",
                                    "Save Text File",
                                    "Text Files (*.txt)|*.txt",
                                    ".txt",
                                    "Launch Text File?",
                                    "Do you want to launch your text file?",
                                    FileExportKind::Text};
const FileExportKind kPdfExport = {"frmMain:mnuPDF_Click;",
                                   "Export to PDF File",
                                   "Save PDF File",
                                   "PDF Files (*.pdf)|*.pdf",
                                   ".pdf",
                                   "Launch PDF File?",
                                   "Do you want to launch your pdf file?",
                                   FileExportKind::Pdf};

// Unloads a dialog unless it unloaded itself, and is maybe gone already, on the way out.
template <class Form> void release(const QPointer<Form>& dialog) {
    if (dialog)
        dialog->Unload();
}

// The record the export hands its text to.
const cSourceCode& exportRecord(const std::shared_ptr<cSourceCode>& record) {
    if (!record)
        throw QsError(91, QString::fromLatin1(kAppSource),
                      QStringLiteral("Object variable or With block variable not set"));
    return *record;
}
} // namespace

void frmMain::connectOutput() {
    struct Route {
        QAction* action;
        const char* handler;
        void (frmMain::*member)();
    };
    const Route routes[] = {
        {mnuRTF, "mnuRTF_Click", &frmMain::mnuRTF_Click},
        {mnuPDF, "mnuPDF_Click", &frmMain::mnuPDF_Click},
        {mnuXml, "mnuXml_Click", &frmMain::mnuXml_Click},
        {mnuHtml, "mnuHtml_Click", &frmMain::mnuHtml_Click},
        {mnuTextFile, "mnuTextFile_Click", &frmMain::mnuTextFile_Click},
        {mnuCopy, "mnuCopy_Click", &frmMain::mnuCopy_Click},
        {mnuAdvancedCopy, "mnuAdvancedCopy_Click", &frmMain::AdvancedCopy},
        {mnuSelectAll, "mnuSelectAll_Click", &frmMain::mnuSelectAll_Click},
    };
    for (const Route& r : routes)
        Wire(this, r.action, &QAction::triggered, r.handler,
             [this, member = r.member] { (this->*member)(); });
}

void frmMain::mnuHtml_Click() {
    try {
        setEnabled(false);
        if (RichTextBoxCode->Text().isEmpty()) {
            host().msgBox(kNoCodeForHtml, vbInformation, QStringLiteral("Convert To HTML?"));
            setEnabled(true);
            return;
        }
        host().setMousePointer(vbHourglass);
        if (mobjSourceCode) {
            QPointer<frmExportToHtmlFile> dialog = &Forms::get<frmExportToHtmlFile>();
            dialog->SourceCodeItem(mobjSourceCode);
            dialog->Show(vbModal);
            gstrExportText.clear();
            release(dialog);
        }
        host().setMousePointer(vbDefault);
        setEnabled(true);
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuHtml_Click;");
    }
}

void frmMain::mnuXml_Click() {
    try {
        setEnabled(false);
        if (RichTextBoxCode->Text().isEmpty()) {
            host().msgBox(QStringLiteral("No code in the ''Code Window'' to convert to XML"),
                          vbInformation, QStringLiteral("Convert To XML?"));
            setEnabled(true);
            return;
        }
        host().setMousePointer(vbHourglass);
        QPointer<frmExportToXMLFile> dialog = &Forms::get<frmExportToXMLFile>();
        dialog->Show(vbModal);
        release(dialog);
        host().setMousePointer(vbDefault);
        setEnabled(true);
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuXml_Click;");
    }
}

void frmMain::mnuRTF_Click() {
    exportThroughCopyDialog(kRtfExport);
}

void frmMain::mnuTextFile_Click() {
    exportThroughCopyDialog(kTextExport);
}

void frmMain::mnuPDF_Click() {
    exportThroughCopyDialog(kPdfExport);
}

void frmMain::exportThroughCopyDialog(const FileExportKind& kind) {
    try {
        setEnabled(false);
        // All three carry the wording of the HTML command.
        if (RichTextBoxCode->Text().isEmpty()) {
            host().msgBox(kNoCodeForHtml, vbInformation, QStringLiteral("Convert To HTML?"));
            setEnabled(true);
            return;
        }
        if (mobjSourceCode) {
            QPointer<frmCopyDialog> dialog = &Forms::get<frmCopyDialog>();
            dialog->setCaption(QString::fromLatin1(kind.caption));
            dialog->SourceCodeItem(mobjSourceCode);
            dialog->Show(vbModal);
            release(dialog);
        }
        FileNameDialog save;
        if (!gblnExportCancelled) {
            save.initDir = AppPath();
            save.overwritePrompt = true;
            save.dlgTitle = QString::fromLatin1(kind.saveTitle);
            save.filter = QString::fromLatin1(kind.filter);
            save.filterIndex = 1;
            if (VBGetSaveFileName(save)) {
                // Exact: an ending in capitals gets the ending added too.
                const QString ending = QString::fromLatin1(kind.ending);
                QString path = save.fileName;
                if (path.right(4) != ending)
                    path += ending;
                switch (kind.writer) {
                case FileExportKind::Rtf:
                    RichTextBoxHold->setText(QString());
                    RichTextBoxHold->setText(gstrExportText);
                    RichTextBoxHold->SaveFile(path, rtfRTF);
                    break;
                case FileExportKind::Text:
                    exportRecord(mobjSourceCode).ExportText(path, frmCopyDialog::SourceText());
                    break;
                case FileExportKind::Pdf:
                    exportRecord(mobjSourceCode).ExportPdf(path, frmCopyDialog::SourceText());
                    break;
                }
                gstrExportText.clear();
                if (host().msgBox(QString::fromLatin1(kind.launchQuestion), vbYesNo + vbQuestion,
                                  QString::fromLatin1(kind.launchTitle)) == vbYes)
                    extLaunchApp(path);
            }
        }
        gblnExportCancelled = false;
        setEnabled(true);
    } catch (...) {
        setEnabled(true);
        HandleFailure(kind.literal);
    }
}

} // namespace qs
