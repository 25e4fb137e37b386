#include "cSourceFile.h"

#include "SqliteStore.h"

namespace qs {

int cSourceFile::Save() {
    const QString source = QStringLiteral("cSourceFile:Save;");
    const QString table = QStringLiteral("SourceFile");
    checkSave(mFileTypeId, source);
    auto store = SqliteStore::open(mDatabasePath, source);
    SqliteStore::Transaction transaction(*store, source);
    if (mDeleted)
        return saveDeletion(*store, transaction, table, source);

    const QDateTime entered = enteredForSave();
    const int id =
        writeRow(*store, table, {QStringLiteral("ParentId"),    QStringLiteral("CategoryId"),
                                 QStringLiteral("FileTypeId"),  QStringLiteral("AuthorId"),
                                 QStringLiteral("IsFolder"),    QStringLiteral("Description"),
                                 QStringLiteral("DateEntered"), QStringLiteral("Notes"),
                                 QStringLiteral("FileName"),    QStringLiteral("FullPath"),
                                 QStringLiteral("DosName"),     QStringLiteral("FileTypeName"),
                                 QStringLiteral("Size"),        QStringLiteral("DateCreated"),
                                 QStringLiteral("ReadOnly"),    QStringLiteral("Hidden"),
                                 QStringLiteral("System"),      QStringLiteral("Archive"),
                                 QStringLiteral("Temporary"),   QStringLiteral("Compressed"),
                                 QStringLiteral("Icon"),        QStringLiteral("VersionInfo")},
                 {mParentId,
                  mCategoryId,
                  mFileTypeId,
                  OptionalId(mAuthorId),
                  mIsFolder ? 1 : 0,
                  mDescription,
                  StoredDate(entered),
                  mNotes,
                  mFacts.FileName,
                  mFacts.FullPath,
                  mFacts.DosName,
                  mFacts.FileTypeName,
                  mFacts.Size,
                  StoredDate(mFacts.DateCreated),
                  mFacts.ReadOnly ? 1 : 0,
                  mFacts.Hidden ? 1 : 0,
                  mFacts.System ? 1 : 0,
                  mFacts.Archive ? 1 : 0,
                  mFacts.Temporary ? 1 : 0,
                  mFacts.Compressed ? 1 : 0,
                  mFacts.IconPng.isEmpty() ? QVariant(QMetaType(QMetaType::QByteArray))
                                           : QVariant(mFacts.IconPng),
                  mFacts.VersionInfoJson},
                 source);
    // The bytes go in with the row, inside the same transaction.
    if (mContentWriter)
        mContentWriter(*store, id);
    finishSave(*store, transaction, id, entered, QStringLiteral("RevHist_SrcFile"),
               QStringLiteral("SourceFileId"), source);
    mContentWriter = nullptr;
    mReplaceFile = false;
    return id;
}

} // namespace qs
