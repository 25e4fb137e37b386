// The main window's clipboard and print commands: Advanced Copy, Copy, Select All and Print.

#include "frmMain.h"

#include "Host.h"
#include "RichTextBox.h"
#include "frmCopyDialog.h"
#include "mEditCommands.h"
#include "mErrorHandling.h"
#include "mPrint.h"

#include <QPointer>

namespace qs {

void frmMain::AdvancedCopy() {
    try {
        setEnabled(false);
        if (mobjSourceCode) {
            QPointer<frmCopyDialog> dialog = &Forms::get<frmCopyDialog>();
            dialog->SourceCodeItem(mobjSourceCode);
            dialog->Show(vbModal);
            // Cancel too puts the export text on the clipboard, as the dialog left it.
            host().clipboardClear();
            host().clipboardSetText(frmCopyDialog::SourceText());
            if (dialog)
                dialog->Unload();
        }
        setEnabled(true);
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:AdvancedCopy;");
    }
}

void frmMain::mnuCopy_Click() {
    try {
        host().setMousePointer(vbHourglass);
        Copy();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuCopy_Click;");
    }
}

void frmMain::mnuSelectAll_Click() {
    try {
        host().setMousePointer(vbHourglass);
        RichTextBoxCode->SetFocus();
        RichTextBoxCode->setSelStart(0);
        RichTextBoxCode->setSelLength(RichTextBoxCode->Text().size());
        host().doEvents();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuSelectAll_Click;");
    }
}

void frmMain::subPrint() {
    try {
        if (RichTextBoxCode->Text().isEmpty()) {
            host().msgBox(QStringLiteral("Nothing in code window to print."), vbInformation,
                          QStringLiteral("Print?"));
            return;
        }
        host().setMousePointer(vbHourglass);
        const QString text =
            RichTextBoxCode->SelLength() > 0 ? RichTextBoxCode->SelText() : RichTextBoxCode->Text();
        prntTextWithNumberOfPagesDialog(CommonDialog1, text);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:subPrint;");
    }
}

} // namespace qs
