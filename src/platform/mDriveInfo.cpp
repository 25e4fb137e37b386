#include "mDriveInfo.h"

#include "VbStrings.h"
#include "mErrorHandling.h"

#include <QDir>
#include <QFileInfo>

namespace qs {

QString FormatPath(const QString& strPath) {
    try {
        if (strPath.endsWith(kPathSeparator))
            return strPath;
        return strPath + kPathSeparator;
    } catch (...) {
        HandleFailure("FileAccess:FormatPath;");
        return strPath;
    }
}

QString TrimNull(const QString& strText) {
    const int nul = strText.indexOf(QChar(0));
    if (nul >= 0)
        return strText.left(nul);
    return VbTrim(strText);
}

QString ExtractFilePath(const QString& strPath, bool blnKeepSlash) {
    const int last = strPath.lastIndexOf(kPathSeparator);
    if (last < 0)
        return QString();
    return strPath.left(blnKeepSlash ? last + 1 : last);
}

bool FileExists(const QString& strPath) {
    // The file search finds no entry for a name that ends in the separator.
    if (strPath.isEmpty() || strPath.endsWith(kPathSeparator))
        return false;
    const QFileInfo info(strPath);
    const QString name = info.fileName();
    if (name.contains(QLatin1Char('*')) || name.contains(QLatin1Char('?'))) {
        const QDir dir = info.dir();
        return dir.exists() && !dir.entryList({name}, QDir::AllEntries | QDir::Hidden |
                                                          QDir::System | QDir::NoDotAndDotDot)
                                    .isEmpty();
    }
    return info.exists();
}

} // namespace qs
