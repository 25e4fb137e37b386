#include "CommonDialog.h"

#include "Host.h"
#include "QsError.h"

#include <QDir>
#include <QFileInfo>

namespace qs {

CommonDialog::CommonDialog() : InitDir(QDir::homePath()) {}

void CommonDialog::cancelled() const {
    if (CancelError)
        throw QsError(cdlCancel, QStringLiteral("CommonDialog"),
                      QStringLiteral("Cancel was selected."));
}

void CommonDialog::showFile(bool forSave) {
    FileDialogRequest request;
    request.title = DialogTitle;
    request.filter = Filter;
    request.filterIndex = FilterIndex;
    request.initDir = InitDir;
    request.fileName = FileName;
    request.defaultExt = DefaultExt;
    request.forSave = forSave;
    request.overwritePrompt = forSave && (Flags & cdlOFNOverwritePrompt);
    request.mustExist = !forSave && (Flags & cdlOFNFileMustExist);
    const QString chosen = host().fileDialog(request);
    if (chosen.isEmpty()) {
        cancelled();
        return;
    }
    FileName = chosen;
    FileTitle = QFileInfo(chosen).fileName();
}

void CommonDialog::ShowOpen() {
    showFile(false);
}

void CommonDialog::ShowSave() {
    showFile(true);
}

void CommonDialog::ShowPrinter() {
    const PrinterChoice choice = host().printerDialog(Copies);
    if (!choice.accepted) {
        cancelled();
        return;
    }
    Copies = choice.copies;
    PrinterName = choice.printerName;
    PrinterOutputFile = choice.outputFile;
}

} // namespace qs
