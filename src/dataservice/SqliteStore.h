#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

class QThread;

namespace qs {

// One connection to one library file.  Every service object and every record Save owns its own
// store, under a connection name of its own, so that objects may come and go in any order.
//
// Opening checks before any write that the file is a library: the SQLite header with this
// program's application id, a schema version table, and a schema version this program knows.
// An older schema is brought up to date by the migrations of LibrarySchema; anything else raises
// "The database is missing or corrupt." and the file is left exactly as it was.  The connection
// runs with foreign keys on, WAL journaling and a busy timeout, so that two programs can share
// a file: a writer waits up to kBusyTimeoutMs for another writer before it gives up.
class SqliteStore {
public:
    static constexpr int kBusyTimeoutMs = 10000;
    // "QSLB" in the application-id field of the SQLite header marks a library file.
    static constexpr quint32 kApplicationId = 0x51534C42;

    // Opens an existing library.  Raises kErrDatabaseNotFound / kErrDatabaseCorrupt with the
    // given source.
    static std::unique_ptr<SqliteStore> open(const QString& path, const QString& source);
    // Makes a new, empty library with the fixed rows.  The file is built beside the target and
    // renamed into place, so a failure leaves no half-made library behind.  An existing file at
    // the path is refused (kErrStorage), never overwritten.
    static void create(const QString& path, const QString& settingsFile, const QString& source);
    // True when the file's first 100 bytes are those of a library (no SQL is run).
    static bool hasLibraryHeader(const QString& path);
    // Compacts the library at the path: a compacted copy is built beside it ("<path>.compacting"),
    // forced onto the disc and renamed over the library, so that the path names the whole old
    // library or the whole new one at every moment.  The file is replaced by name, so nothing
    // else may have it open: a library open elsewhere is refused with kErrStorage, and nobody can
    // open it while the copy is made.  Defined in SqliteStore_file.cpp.
    static void compact(const QString& path, const QString& source);

    ~SqliteStore();
    SqliteStore(const SqliteStore&) = delete;
    SqliteStore& operator=(const SqliteStore&) = delete;

    const QString& path() const { return mPath; }
    QSqlDatabase& db() { return mDb; }

    // A forward-only query prepared on this connection; raises kErrStorage when SQL is refused.
    QSqlQuery prepare(const QString& sql, const QString& source);
    // Runs a prepared query; raises kErrStorage with the engine's text on failure.
    void exec(QSqlQuery& query, const QString& source);
    // Copies the library, as one consistent state while other connections write, to a new file
    // at `path` with the engine's online backup.
    void backupTo(const QString& path, const QString& source);

    // Prepares, binds in order, runs.
    QSqlQuery run(const QString& sql, const QVariantList& binds, const QString& source);
    // The first column of the first row, or an invalid QVariant when there is no row.
    QVariant scalar(const QString& sql, const QVariantList& binds, const QString& source);

    // One write transaction (BEGIN IMMEDIATE): commit() makes it durable; leaving the scope
    // without commit() rolls everything back.
    class Transaction {
    public:
        Transaction(SqliteStore& store, const QString& source);
        ~Transaction();
        Transaction(const Transaction&) = delete;
        Transaction& operator=(const Transaction&) = delete;
        void commit();

    private:
        SqliteStore& mStore;
        QString mSource;
        bool mOpen = false;
    };

    // Puts every commit of every open connection of this process into its main file (a WAL
    // checkpoint) and closes the connection, so that each library file alone holds all that was
    // saved.  For the way out of the program: a store used afterwards fails its next statement.
    static void closeAll();

    // Test seam: called inside every write transaction just before COMMIT.  Tests use it to stop
    // a process in the middle of a save; nothing else sets it.
    static void setBeforeCommitHook(std::function<void()> hook);
    // Test seam: called when a compacted copy is whole on disc, just before it replaces the
    // library.
    static void setBeforeReplaceHook(std::function<void()> hook);

private:
    SqliteStore(const QString& path, const QString& connectionName);
    void connect(const QString& source);
    void migrate(int fromVersion, const QString& source);
    [[noreturn]] void raiseStorage(const QString& text, const QString& source);

    QString mPath;
    QString mConnectionName;
    QThread* mThread;
    QSqlDatabase mDb;
};

// Text of a date as stored (ISO 8601 in UTC with milliseconds); null stays null.
QVariant StoredDate(const QDateTime& value);
QDateTime DateFromStored(const QVariant& value);
// 0 means "none" for optional references; stored as NULL.
QVariant OptionalId(int id);

} // namespace qs
