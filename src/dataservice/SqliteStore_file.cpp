// The library file as a whole: a backup copy taken while others use it, and a compaction that
// replaces the file only once its successor is whole on disc.

#include "SqliteStore.h"

#include "CoalescingVfs.h"
#include "ServiceErrors.h"
#include "SqliteHandle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace qs {

namespace {

std::function<void()> gBeforeReplaceHook;

// Forces what was written to the file, or to a folder's list of names, onto the disc.
bool SyncPath(const QString& path, bool folder) {
    const int fd =
        ::open(QFile::encodeName(path).constData(), folder ? O_RDONLY | O_DIRECTORY : O_RDONLY);
    if (fd < 0)
        return false;
    const bool synced = ::fsync(fd) == 0;
    ::close(fd);
    return synced;
}

void RemoveWithCompanions(const QString& path) {
    for (const char* suffix : {"", "-journal", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(suffix));
}

} // namespace

void SqliteStore::backupTo(const QString& path, const QString& source) {
    sqlite3* from = SqliteHandleOf(mDb);
    if (!from)
        raiseStorage(QStringLiteral("The database engine gives no handle to copy from."), source);
    // Pages come from the mapped file where it holds them, without a read call each; they go out
    // gathered into large writes.
    sqlite3_exec(from, "PRAGMA mmap_size = 2147418112", nullptr, nullptr, nullptr);
    sqlite3* to = nullptr;
    const int opened =
        sqlite3_open_v2(QFile::encodeName(path).constData(), &to,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, CoalescingVfsName());
    QString failure;
    if (opened == SQLITE_OK) {
        // The copy needs no journal: it becomes a backup only once it is whole and renamed.  A
        // small cache writes the pages out as they come instead of holding them.
        sqlite3_exec(to,
                     "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; "
                     "PRAGMA cache_size = 100",
                     nullptr, nullptr, nullptr);
        // All pages in one step: one read transaction, so one consistent state of the library
        // whatever other connections write meanwhile.
        sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
        if (!backup) {
            failure = QString::fromUtf8(sqlite3_errmsg(to));
        } else {
            const int stepped = sqlite3_backup_step(backup, -1);
            const int finished = sqlite3_backup_finish(backup);
            if (stepped != SQLITE_DONE || finished != SQLITE_OK)
                failure =
                    QString::fromUtf8(sqlite3_errstr(stepped != SQLITE_DONE ? stepped : finished));
        }
    } else {
        failure = QString::fromUtf8(to ? sqlite3_errmsg(to) : sqlite3_errstr(opened));
    }
    // Written as a plain copy is, without waiting for the disc: the library itself is untouched.
    sqlite3_close(to);
    if (!failure.isEmpty())
        raiseStorage(failure, source);
}

void SqliteStore::compact(const QString& path, const QString& source) {
    std::unique_ptr<SqliteStore> store = open(path, source);

    // The file is replaced by name: nobody else may have it open, and nobody may open it until
    // the new one stands in its place.  Leaving WAL journaling needs the file to oneself, and the
    // exclusive locking mode keeps the lock from then on.
    QSqlQuery take(store->mDb);
    const bool alone = take.exec(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE")) &&
                       take.exec(QStringLiteral("PRAGMA journal_mode = DELETE")) && take.next() &&
                       take.value(0).toString() == QLatin1String("delete");
    take.finish();
    if (!alone)
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("The library is open in another window or program; it "
                                         "can be compacted only when nothing else has it open."));
    store->run(QStringLiteral("BEGIN EXCLUSIVE"), {}, source);
    store->run(QStringLiteral("COMMIT"), {}, source);

    const QString building = path + QStringLiteral(".compacting");
    RemoveWithCompanions(building); // what a compaction stopped half-way left behind
    try {
        store->run(QStringLiteral("VACUUM INTO ?"), {building}, source);
        if (!SyncPath(building, false))
            store->raiseStorage(QStringLiteral("The compacted library could not be written to "
                                               "the disc."),
                                source);
        if (gBeforeReplaceHook)
            gBeforeReplaceHook();
        if (std::rename(QFile::encodeName(building).constData(),
                        QFile::encodeName(path).constData()) != 0)
            store->raiseStorage(QStringLiteral("The compacted library could not take the place "
                                               "of %1.")
                                    .arg(QDir::toNativeSeparators(path)),
                                source);
    } catch (...) {
        store.reset();
        RemoveWithCompanions(building);
        throw;
    }
    SyncPath(QFileInfo(path).absolutePath(), true);
}

void SqliteStore::setBeforeReplaceHook(std::function<void()> hook) {
    gBeforeReplaceHook = std::move(hook);
}

} // namespace qs
