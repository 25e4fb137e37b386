// frmSourceCode: the import of a text file into the code box.

#include "frmSourceCode.h"

#include "Host.h"
#include "RichTextBox.h"
#include "TextImport.h"
#include "mCommonDialog.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"

#include <QFile>
#include <QLabel>

namespace qs {

QString frmSourceCode::ImportFilter(const QString& strSourceType) {
    using Entries = const char* const[4];
    static Entries kClass = {kFilterVbClass, kFilterVbMod, kFilterText, kFilterAllFiles};
    static Entries kModule = {kFilterVbMod, kFilterVbClass, kFilterText, kFilterAllFiles};
    static Entries kSnippet = {kFilterText, kFilterVbMod, kFilterVbClass, kFilterAllFiles};
    static Entries kOther = {kFilterAllFiles, kFilterVbMod, kFilterVbClass, kFilterText};
    const char* const* entries = strSourceType == QLatin1String("Class Module")     ? kClass
                                 : strSourceType == QLatin1String("General Module") ? kModule
                                 : strSourceType == QLatin1String("Code Snippet")   ? kSnippet
                                                                                    : kOther;
    QString filter;
    for (int i = 0; i < 4; ++i)
        filter += QString::fromLatin1(entries[i]) + QLatin1Char(':');
    return filter;
}

void frmSourceCode::mnuAsciiFile_Click() {
    try {
        FileNameDialog dialog;
        dialog.filter = ImportFilter(lblSourceType->text());
        // A cancel, or a name that is not there, changes nothing and says nothing.
        if (!VBGetOpenFileName(dialog) || dialog.fileName.isEmpty() || !FileExists(dialog.fileName))
            return;
        QFile file(dialog.fileName);
        if (!file.open(QIODevice::ReadOnly)) {
            host().msgBox(QStringLiteral("The file ''%1'' could not be read: %2")
                              .arg(dialog.fileName, file.errorString()),
                          vbInformation, QStringLiteral("Import Ascii File?"));
            return;
        }
        const QString content = DecodeImportedText(file.readAll());
        const QString old = RTBoxAddOrUpdate->Text();
        RTBoxAddOrUpdate->setText(old.isEmpty() ? content
                                                : old + QStringLiteral("\r\n\r\n") + content);
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuAsciiFile_Click;");
    }
}

} // namespace qs
