#include "mCommonDialog.h"

#include "Host.h"
#include "QsError.h"
#include "mErrorHandling.h"

#include <QDir>
#include <QFileInfo>

namespace qs {

namespace {

bool showFileDialog(FileNameDialog& d, bool forSave) {
    long flags = d.flags;
    if (d.hideReadOnly)
        flags |= cdlOFNHideReadOnly;
    if (forSave) {
        if (d.overwritePrompt)
            flags |= cdlOFNOverwritePrompt;
    } else if (d.fileMustExist) {
        flags |= cdlOFNFileMustExist | cdlOFNPathMustExist;
    }
    FileDialogRequest request;
    request.title = d.dlgTitle;
    request.filter = d.filter;
    request.filterIndex = d.filterIndex;
    request.initDir = d.initDir;
    request.fileName = StrZToStr(d.fileName);
    request.defaultExt = d.defaultExt;
    request.forSave = forSave;
    request.overwritePrompt = forSave && (flags & cdlOFNOverwritePrompt);
    request.mustExist = !forSave && (flags & cdlOFNFileMustExist);
    const QString chosen = host().fileDialog(request);
    if (chosen.isEmpty())
        return false;
    d.fileName = chosen;
    d.fileTitle = QFileInfo(chosen).fileName();
    if (!d.defaultExt.isEmpty() &&
        QFileInfo(chosen).suffix().compare(d.defaultExt, Qt::CaseInsensitive) != 0)
        flags |= cdlOFNExtensionDifferent;
    d.flags = flags;
    return true;
}

} // namespace

bool VBGetOpenFileName(FileNameDialog& dialog) {
    return showFileDialog(dialog, false);
}

bool VBGetSaveFileName(FileNameDialog& dialog) {
    return showFileDialog(dialog, true);
}

QString StrZToStr(const QString& strText) {
    const int nul = strText.indexOf(QChar(0));
    return nul < 0 ? strText : strText.left(nul);
}

QString FilterLookup(const QString& strFilter, int intIndex) {
    if (intIndex < 1)
        return QString();
    const QStringList parts = strFilter.split(QLatin1Char('|'));
    const int at = 2 * intIndex - 1;
    return at < parts.size() ? parts[at] : QString();
}

QString GetFileName(CommonDialog& dialog, const QString& strFilter, const QString& strTitle,
                    const QString& strFile, const QString& strFolder, bool blnForSave) {
    try {
        dialog.FileName.clear();
        dialog.Filter = strFilter;
        dialog.DialogTitle = strTitle;
        dialog.InitDir = strFolder.isEmpty() ? QDir::homePath() : strFolder;
        dialog.FileName = strFile;
        dialog.Flags = blnForSave
                           ? (cdlOFNOverwritePrompt | cdlOFNHideReadOnly)
                           : (cdlOFNFileMustExist | cdlOFNPathMustExist | cdlOFNHideReadOnly);
        dialog.CancelError = true;
        if (blnForSave)
            dialog.ShowSave();
        else
            dialog.ShowOpen();
        return dialog.FileName;
    } catch (const QsError& e) {
        if (e.number() == cdlCancel)
            return QString();
        HandleFailure("mCommonDialog:GetFileName;");
    } catch (...) {
        HandleFailure("mCommonDialog:GetFileName;");
    }
    return QString();
}

} // namespace qs
