#include "AppPaths.h"

#include <QDir>
#include <QStandardPaths>

namespace qs {

QString AppPath() {
    QString path = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(path);
    path = QDir::toNativeSeparators(QDir::cleanPath(path));
    while (path.size() > 1 && path.endsWith(QDir::separator()))
        path.chop(1);
    return path;
}

} // namespace qs
