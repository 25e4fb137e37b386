#include "SqliteStore.h"

#include "LibrarySchema.h"
#include "SearchTokenizer.h"
#include "ServiceErrors.h"
#include "Utf16Text.h"

#include <QAtomicInteger>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMutex>
#include <QSqlError>
#include <QThread>

namespace qs {

namespace {

QAtomicInteger<quint64> gConnectionCounter;
std::function<void()> gBeforeCommitHook;

const QByteArray kSqliteMagic("SQLite format 3\0", 16);
constexpr int kHeaderSize = 100;
constexpr int kApplicationIdOffset = 68;
constexpr int kUserVersionOffset = 60;
// The page size of a new library.
constexpr int kPageSize = 8192;

quint32 headerWord(const QByteArray& header, int offset) {
    const auto* p = reinterpret_cast<const uchar*>(header.constData()) + offset;
    return (quint32(p[0]) << 24) | (quint32(p[1]) << 16) | (quint32(p[2]) << 8) | quint32(p[3]);
}

// Every store alive in this process, for closeAll.  Stores are made on any thread, so the list
// has its lock.  Neither is destroyed: a store held by a static object goes after every other
// static is gone.
QList<SqliteStore*>& liveStores() {
    static auto* stores = new QList<SqliteStore*>();
    return *stores;
}

QMutex& liveStoresLock() {
    static auto* lock = new QMutex();
    return *lock;
}

QString nextConnectionName() {
    return QStringLiteral("qs_store_%1").arg(++gConnectionCounter);
}

} // namespace

bool SqliteStore::hasLibraryHeader(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(kHeaderSize);
    if (header.size() < kHeaderSize || !header.startsWith(kSqliteMagic))
        return false;
    // The header also carries the schema version, so a library of a newer program is turned
    // away before SQLite opens it (opening may leave journal files behind).
    return headerWord(header, kApplicationIdOffset) == kApplicationId &&
           headerWord(header, kUserVersionOffset) <= quint32(LatestSchemaVersion());
}

SqliteStore::SqliteStore(const QString& path, const QString& connectionName)
    : mPath(path), mConnectionName(connectionName), mThread(QThread::currentThread()) {
    const QMutexLocker locker(&liveStoresLock());
    liveStores().append(this);
}

SqliteStore::~SqliteStore() {
    {
        const QMutexLocker locker(&liveStoresLock());
        liveStores().removeOne(this);
    }
    if (mDb.isValid()) {
        mDb.close();
        mDb = QSqlDatabase();
        QSqlDatabase::removeDatabase(mConnectionName);
    }
}

void SqliteStore::connect(const QString& source) {
    mDb = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), mConnectionName);
    mDb.setDatabaseName(mPath);
    mDb.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyTimeoutMs));
    if (!mDb.open())
        raiseStorage(mDb.lastError().text(), source);
    if (!InstallSearchTokenizer(mDb))
        raiseStorage(QStringLiteral("The database engine has no full-text search."), source);
    QSqlQuery pragma(mDb);
    pragma.exec(QStringLiteral("PRAGMA foreign_keys = ON"));
}

void SqliteStore::raiseStorage(const QString& text, const QString& source) {
    RaiseServiceError(kErrStorage, source, text);
}

std::unique_ptr<SqliteStore> SqliteStore::open(const QString& path, const QString& source) {
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        RaiseServiceError(kErrDatabaseNotFound, source);
    if (!info.isFile() || !hasLibraryHeader(path))
        RaiseServiceError(kErrDatabaseCorrupt, source);

    std::unique_ptr<SqliteStore> store(new SqliteStore(path, nextConnectionName()));
    try {
        store->connect(source);
    } catch (const QsError&) {
        RaiseServiceError(kErrDatabaseCorrupt, source);
    }

    // Reads only, until the file has shown itself to be a library this program knows.
    QSqlQuery tables(store->mDb);
    tables.setForwardOnly(true);
    if (!tables.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'")))
        RaiseServiceError(kErrDatabaseCorrupt, source);
    QStringList present;
    while (tables.next())
        present << tables.value(0).toString();
    tables.finish();
    if (!present.contains(QStringLiteral("SchemaVersion")))
        RaiseServiceError(kErrDatabaseCorrupt, source);
    QSqlQuery version(store->mDb);
    if (!version.exec(QStringLiteral("SELECT MAX(Version) FROM SchemaVersion")) || !version.next())
        RaiseServiceError(kErrDatabaseCorrupt, source);
    const int fileVersion = version.value(0).toInt();
    version.finish();
    if (fileVersion < 1 || fileVersion > LatestSchemaVersion())
        RaiseServiceError(kErrDatabaseCorrupt, source);
    if (fileVersion == LatestSchemaVersion()) {
        for (const QString& table : RequiredTables())
            if (!present.contains(table))
                RaiseServiceError(kErrDatabaseCorrupt, source);
    }

    // From here on the file is ours to write.
    if (fileVersion < LatestSchemaVersion())
        store->migrate(fileVersion, source);
    QSqlQuery mode(store->mDb);
    if (mode.exec(QStringLiteral("PRAGMA journal_mode")) && mode.next() &&
        mode.value(0).toString().compare(QStringLiteral("wal"), Qt::CaseInsensitive) != 0) {
        mode.finish();
        mode.exec(QStringLiteral("PRAGMA journal_mode = WAL"));
    }
    mode.finish();
    return store;
}

void SqliteStore::migrate(int fromVersion, const QString& source) {
    Transaction transaction(*this, source);
    for (const SchemaMigration& step : SchemaMigrations()) {
        if (step.version <= fromVersion)
            continue;
        for (const QString& statement : step.statements) {
            QSqlQuery query(mDb);
            if (!query.exec(statement))
                raiseStorage(query.lastError().text(), source);
        }
        run(QStringLiteral("INSERT INTO SchemaVersion (Version, AppliedOn) VALUES (?, ?)"),
            {step.version, StoredDate(QDateTime::currentDateTime())}, source);
        run(QStringLiteral("PRAGMA user_version = %1").arg(step.version), {}, source);
    }
    transaction.commit();
}

void SqliteStore::create(const QString& path, const QString& settingsFile, const QString& source) {
    if (path.isEmpty())
        RaiseServiceError(kErrMissingParameters, source);
    if (QFileInfo::exists(path))
        RaiseServiceError(
            kErrStorage, source,
            QStringLiteral("A file already exists at %1.").arg(QDir::toNativeSeparators(path)));
    const QFileInfo info(path);
    QDir().mkpath(info.absolutePath());
    const QString building = path + QStringLiteral(".building");
    for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(building + suffix);
    {
        SqliteStore store(building, nextConnectionName());
        try {
            store.connect(source);
            QSqlQuery setup(store.mDb);
            // A text item is a few KB: on pages of 8 KB most stand in a page of their own without
            // a chain of overflow pages, so a search that reads many items reads one page for
            // each, and no more than it needs.
            if (!setup.exec(QStringLiteral("PRAGMA page_size = %1").arg(kPageSize)) ||
                !setup.exec(QStringLiteral("PRAGMA application_id = %1").arg(kApplicationId)) ||
                !setup.exec(QStringLiteral("PRAGMA journal_mode = WAL")))
                store.raiseStorage(setup.lastError().text(), source);
            setup.finish();
            store.run(QStringLiteral("CREATE TABLE SchemaVersion (Version INTEGER PRIMARY KEY, "
                                     "AppliedOn TEXT NOT NULL)"),
                      {}, source);
            store.migrate(0, source);
            const QString now = StoredDate(QDateTime::currentDateTime()).toString();
            store.run(QStringLiteral("INSERT INTO LibraryInfo (Name, Value) VALUES "
                                     "('Application', 'Quillstone'), ('Created', ?), "
                                     "('SettingsFile', ?)"),
                      {now, settingsFile.isNull() ? QStringLiteral("") : settingsFile}, source);
        } catch (...) {
            store.mDb.close();
            for (const QString& suffix :
                 {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
                QFile::remove(building + suffix);
            throw;
        }
    }
    if (!QFile::rename(building, path)) {
        QFile::remove(building);
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("The database could not be written at %1.")
                              .arg(QDir::toNativeSeparators(path)));
    }
}

QSqlQuery SqliteStore::prepare(const QString& sql, const QString& source) {
    QSqlQuery query(mDb);
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        raiseStorage(query.lastError().text(), source);
    return query;
}

void SqliteStore::exec(QSqlQuery& query, const QString& source) {
    // A null QString is text that was never set: it is stored as empty text, not as NULL.
    // A NULL is asked for with a typed null QVariant (StoredDate, OptionalId).  Text goes to the
    // engine well-formed: SQLite's UTF-16 to UTF-8 step takes the unit after a lone surrogate
    // with it, so each one is stored as U+FFFD instead.
    const QVariantList bound = query.boundValues();
    for (int i = 0; i < bound.size(); ++i) {
        const QVariant& value = bound.at(i);
        if (value.isNull() || value.typeId() != QMetaType::QString)
            continue;
        const QString text = value.toString();
        if (text.isNull())
            query.bindValue(i, QStringLiteral(""));
        else if (!IsWellFormedUtf16(text))
            query.bindValue(i, WellFormedUtf16(text));
    }
    if (query.exec())
        return;
    const QString text = query.lastError().text();
    // A reference to a row that isn't there is a caller's bad id; a second user of one id is
    // the one uniqueness rule a caller can run into.
    if (text.contains(QLatin1String("FOREIGN KEY constraint failed")))
        RaiseServiceError(kErrMissingParameters, source);
    if (text.contains(QLatin1String("UNIQUE constraint failed: Users.UserId")))
        RaiseServiceError(kErrDuplicateUser, source);
    raiseStorage(text, source);
}

QSqlQuery SqliteStore::run(const QString& sql, const QVariantList& binds, const QString& source) {
    QSqlQuery query = prepare(sql, source);
    for (const QVariant& value : binds)
        query.addBindValue(value);
    exec(query, source);
    return query;
}

QVariant SqliteStore::scalar(const QString& sql, const QVariantList& binds, const QString& source) {
    QSqlQuery query = run(sql, binds, source);
    QVariant value;
    if (query.next())
        value = query.value(0);
    query.finish();
    return value;
}

SqliteStore::Transaction::Transaction(SqliteStore& store, const QString& source)
    : mStore(store), mSource(source) {
    QSqlQuery begin(mStore.mDb);
    if (!begin.exec(QStringLiteral("BEGIN IMMEDIATE")))
        mStore.raiseStorage(begin.lastError().text(), mSource);
    mOpen = true;
}

SqliteStore::Transaction::~Transaction() {
    if (mOpen) {
        QSqlQuery rollback(mStore.mDb);
        rollback.exec(QStringLiteral("ROLLBACK"));
    }
}

void SqliteStore::Transaction::commit() {
    if (gBeforeCommitHook)
        gBeforeCommitHook();
    QSqlQuery commit(mStore.mDb);
    if (!commit.exec(QStringLiteral("COMMIT")))
        mStore.raiseStorage(commit.lastError().text(), mSource);
    mOpen = false;
}

void SqliteStore::closeAll() {
    const QMutexLocker locker(&liveStoresLock());
    for (SqliteStore* store : liveStores()) {
        // A connection serves only the thread that opened it.
        if (store->mThread != QThread::currentThread() || !store->mDb.isOpen())
            continue;
        {
            QSqlQuery checkpoint(store->mDb);
            checkpoint.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
        }
        store->mDb.close();
    }
}

void SqliteStore::setBeforeCommitHook(std::function<void()> hook) {
    gBeforeCommitHook = std::move(hook);
}

QVariant StoredDate(const QDateTime& value) {
    if (!value.isValid())
        return QVariant(QMetaType(QMetaType::QString));
    return value.toUTC().toString(Qt::ISODateWithMs);
}

QDateTime DateFromStored(const QVariant& value) {
    if (value.isNull())
        return QDateTime();
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs).toLocalTime();
}

QVariant OptionalId(int id) {
    if (id == 0)
        return QVariant(QMetaType(QMetaType::Int));
    return id;
}

} // namespace qs
