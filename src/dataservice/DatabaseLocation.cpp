#include "DatabaseLocation.h"

#include "AppPaths.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QDir>

namespace qs {

QString ConfiguredDatabasePath() {
    const QString key = QString::fromLatin1(REG_KEY_DATABASE);
    QString folder = GetRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_PATH),
                                   QString::fromLatin1(REG_DEF_DATABASE_PATH))
                         .toString();
    const QString file = GetRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_FILENAME),
                                       QString::fromLatin1(REG_DEF_DATABASE_FILENAME))
                             .toString();
    if (QDir::isRelativePath(folder))
        folder = QDir(AppPath()).filePath(folder);
    return QDir::cleanPath(QDir(folder).filePath(file));
}

} // namespace qs
