#include "mPrint.h"

#include "CommonDialog.h"
#include "Host.h"
#include "QsError.h"
#include "mErrorHandling.h"

namespace qs {

namespace {
constexpr long kErrPrinter = 482;
} // namespace

// The desktop's printer dialog chooses a printer for this job only and leaves the default printer
// as it was, so there is no default to read before and put back afterwards.
void prntTextWithNumberOfPagesDialog(CommonDialog& dialog, const QString& strText) {
    try {
        dialog.PrinterDefault = true;
        dialog.CancelError = true;
        dialog.ShowPrinter();
        // Each copy prints the text as a line of its own, as a print to the printer object does.
        QString document;
        for (int copy = 1; copy <= dialog.Copies; ++copy)
            document += strText + QStringLiteral("\r\n");
        PrinterChoice printer;
        printer.accepted = true;
        printer.printerName = dialog.PrinterName;
        printer.outputFile = dialog.PrinterOutputFile;
        printer.copies = 1; // the passes above are the copies
        if (!host().printText(printer, QString::fromLatin1(kAppSource), document))
            throw QsError(kErrPrinter, QString::fromLatin1(kAppSource),
                          QStringLiteral("Printer error"));
        host().doEvents();
    } catch (...) {
        HandleFailure("mPrinterprntTextWithNumberOfPagesDialog;");
    }
}

} // namespace qs
