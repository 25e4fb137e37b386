#include "mPathHelpers.h"

#include "Host.h"
#include "VbStrings.h"
#include "mDriveInfo.h"

namespace qs {

QString Get_FilePath_FromFilePathFileNameFileType(const QString& strPath) {
    const QString path = VbTrim(strPath);
    if (path.isEmpty())
        return QString();
    return path.left(path.lastIndexOf(kPathSeparator) + 1);
}

QString StripFileName(const QString& strPath) {
    return strPath.mid(strPath.lastIndexOf(kPathSeparator) + 1);
}

long StartURL(const QString& strTarget) {
    return host().shellExecute(QStringLiteral("open"), strTarget, QString(), QString(), 1);
}

} // namespace qs
