#include "ServiceErrors.h"
#include "SqliteStore.h"
#include "cLibraryService.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

namespace qs {

void cLibraryService::CreateDatabase(const QString& strDatabasePath,
                                     const QString& strSettingsFile) {
    SqliteStore::create(strDatabasePath, strSettingsFile,
                        QStringLiteral("cLibraryService:CreateDatabase;"));
}

QString cLibraryService::BackupDatabase(const QString& strDatabasePath) {
    const QString source = QStringLiteral("cLibraryService:BackupDatabase;");
    auto library = SqliteStore::open(strDatabasePath, source);
    const QFileInfo info(strDatabasePath);
    const QDir folder(info.absoluteDir().filePath(QStringLiteral("Backup")));
    QDir().mkpath(folder.path());
    const QString stem = info.completeBaseName() + QLatin1Char(' ') +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HHmmss"));
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    QString target = folder.filePath(stem + suffix);
    for (int n = 2; QFileInfo::exists(target); ++n)
        target = folder.filePath(QStringLiteral("%1 (%2)%3").arg(stem).arg(n).arg(suffix));

    // The copy is renamed into place only once it is whole.
    const QString building = target + QStringLiteral(".building");
    QFile::remove(building);
    try {
        library->backupTo(building, source);
    } catch (...) {
        QFile::remove(building);
        throw;
    }
    if (!QFile::rename(building, target)) {
        QFile::remove(building);
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("The backup could not be written at %1.")
                              .arg(QDir::toNativeSeparators(target)));
    }
    return QDir::toNativeSeparators(target);
}

void cLibraryService::CompactDatabase(const QString& strDatabasePath) {
    // This object's own connection would keep the library shared; it opens again at next use.
    mStore.reset();
    SqliteStore::compact(strDatabasePath, QStringLiteral("cLibraryService:CompactDatabase;"));
}

} // namespace qs
