// The stored-file operations of cSourceFile: facts and bytes in, bytes out.  The bytes never
// sit in memory as a whole: they move between disc and SourceFileChunk rows one chunk at a time.
#include "cSourceFile.h"

#include "ServiceErrors.h"
#include "SqliteStore.h"
#include "cFileInfo.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace qs {

namespace {

constexpr qint64 kChunkSize = 1024 * 1024;

[[noreturn]] void raiseFileNotFound(const QString& path, const QString& source) {
    throw QsError(53, source, QStringLiteral("File not found: %1").arg(path));
}

// The writer Save runs inside its transaction: the row's chunks are replaced by the file's
// bytes, read now in chunks.  A file that changed size since its facts were taken raises, and
// the transaction leaves the row as it was.
cSourceFile::ContentWriter chunkWriter(const QString& path, qint64 expectedSize) {
    return [path, expectedSize](SqliteStore& store, int id) {
        const QString source = QStringLiteral("cSourceFile:Save;");
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            raiseFileNotFound(path, source);
        store.run(QStringLiteral("DELETE FROM SourceFileChunk WHERE SourceFileId = ?"), {id},
                  source);
        QSqlQuery insert = store.prepare(
            QStringLiteral(
                "INSERT INTO SourceFileChunk (SourceFileId, Seq, Data) VALUES (?, ?, ?)"),
            source);
        qint64 total = 0;
        for (int seq = 1;; ++seq) {
            const QByteArray chunk = file.read(kChunkSize);
            if (chunk.isEmpty())
                break;
            total += chunk.size();
            insert.bindValue(0, id);
            insert.bindValue(1, seq);
            insert.bindValue(2, chunk);
            store.exec(insert, source);
        }
        if (file.error() != QFileDevice::NoError || total != expectedSize)
            RaiseServiceError(kErrStorage, source,
                              QStringLiteral("The file changed after it was loaded: %1").arg(path));
    };
}

void readFileInto(const QString& path, SourceFileFacts& facts, cSourceFile::ContentWriter& writer,
                  const QString& source) {
    const QFileInfo fi(path);
    if (path.isEmpty() || !fi.isFile())
        raiseFileNotFound(path, source);
    cFileInfo info;
    try {
        info = cFileInfo::Capture(path);
    } catch (QsError& e) {
        throw QsError(e.number(), source, e.description());
    }
    facts = info.ToFacts();
    writer = chunkWriter(info.FullPath(), info.Size());
}

} // namespace

cFileInfo cSourceFile::File() const {
    return cFileInfo::FromFacts(mFacts);
}

void cSourceFile::LoadFile(const QString& strPath, int lngAuthorId, int lngCategoryId,
                           int lngFileTypeId) {
    readFileInto(strPath, mFacts, mContentWriter, QStringLiteral("cSourceFile:LoadFile;"));
    AuthorId(lngAuthorId);
    CategoryId(lngCategoryId);
    FileTypeId(lngFileTypeId);
}

void cSourceFile::UpdateFile(const QString& strPath) {
    readFileInto(strPath, mFacts, mContentWriter, QStringLiteral("cSourceFile:UpdateFile;"));
}

void cSourceFile::SaveToDisk(const QString& strPath) const {
    const QString source = QStringLiteral("cSourceFile:SaveToDisk;");
    if (mId == 0 || strPath.isEmpty())
        RaiseServiceError(kErrMissingParameters, source);
    auto store = SqliteStore::open(mDatabasePath, source);
    if (!store
             ->scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM SourceFile WHERE Id = ?)"),
                      {mId}, source)
             .toBool())
        RaiseServiceError(kErrRecordNotFound, source);
    const qint64 expected =
        store->scalar(QStringLiteral("SELECT Size FROM SourceFile WHERE Id = ?"), {mId}, source)
            .toLongLong();
    // Written beside the target and renamed at the end: a failure leaves no half file.
    QSaveFile out(strPath);
    if (!out.open(QIODevice::WriteOnly))
        RaiseServiceError(kErrStorage, source, out.errorString());
    QSqlQuery chunks = store->run(
        QStringLiteral("SELECT Data FROM SourceFileChunk WHERE SourceFileId = ? ORDER BY Seq"),
        {mId}, source);
    qint64 total = 0;
    while (chunks.next()) {
        const QByteArray chunk = chunks.value(0).toByteArray();
        if (out.write(chunk) != chunk.size())
            RaiseServiceError(kErrStorage, source, out.errorString());
        total += chunk.size();
    }
    chunks.finish();
    if (total != expected)
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("The stored file is incomplete (%1 of %2 bytes).")
                              .arg(total)
                              .arg(expected));
    if (!out.commit())
        RaiseServiceError(kErrStorage, source, out.errorString());
}

QString cSourceFile::FormatSize(qint64 lngSize) {
    return cFileInfo::FormatSize(lngSize);
}

QString cSourceFile::FormatDate(const QDateTime& datValue) {
    return cFileInfo::FormatDate(datValue);
}

} // namespace qs
