#include "cSourceFile.h"

#include "RevisionStore.h"
#include "ServiceErrors.h"
#include "SqliteStore.h"

namespace qs {

int cSourceFile::Save() {
    const QString source = QStringLiteral("cSourceFile:Save;");
    checkEditing(source);
    if (!mDeleted && (mCategoryId == 0 || mFileTypeId == 0 || (mId != 0 && mParentId == mId)))
        RaiseServiceError(kErrMissingParameters, source);
    auto store = SqliteStore::open(mDatabasePath, source);
    SqliteStore::Transaction transaction(*store, source);
    const RevisionStore revisions(QStringLiteral("RevHist_SrcFile"),
                                  QStringLiteral("SourceFileId"));

    if (mDeleted) {
        if (mId != 0) {
            if (store
                    ->scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM SourceFile WHERE "
                                            "ParentId = ?)"),
                             {mId}, source)
                    .toBool())
                RaiseServiceError(kErrRecordInUse, source,
                                  QStringLiteral("the folder still holds items."));
            store->run(QStringLiteral("DELETE FROM SourceFile WHERE Id = ?"), {mId}, source);
        }
        transaction.commit();
        const int id = mId;
        mId = 0;
        endEdit();
        return id;
    }

    const QDateTime entered = mDateEntered.isValid() ? mDateEntered : QDateTime::currentDateTime();
    const QVariantList values{mParentId,
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
                              mFacts.VersionInfoJson};
    int id = mId;
    if (id == 0) {
        QSqlQuery insert = store->run(
            QStringLiteral("INSERT INTO SourceFile (ParentId, CategoryId, FileTypeId, AuthorId, "
                           "IsFolder, Description, DateEntered, Notes, FileName, FullPath, "
                           "DosName, FileTypeName, Size, DateCreated, ReadOnly, Hidden, System, "
                           "Archive, Temporary, Compressed, Icon, VersionInfo) VALUES (?, ?, ?, "
                           "?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            values, source);
        id = insert.lastInsertId().toInt();
    } else {
        QVariantList binds = values;
        binds.append(id);
        QSqlQuery update = store->run(
            QStringLiteral("UPDATE SourceFile SET ParentId = ?, CategoryId = ?, FileTypeId = ?, "
                           "AuthorId = ?, IsFolder = ?, Description = ?, DateEntered = ?, "
                           "Notes = ?, FileName = ?, FullPath = ?, DosName = ?, "
                           "FileTypeName = ?, Size = ?, DateCreated = ?, ReadOnly = ?, "
                           "Hidden = ?, System = ?, Archive = ?, Temporary = ?, Compressed = ?, "
                           "Icon = ?, VersionInfo = ? WHERE Id = ?"),
            binds, source);
        if (update.numRowsAffected() == 0)
            RaiseServiceError(kErrRecordNotFound, source);
    }
    if (mContentWriter)
        mContentWriter(*store, id);
    const auto written = revisions.writeNew(*store, id, mRevisions, source);
    QSqlQuery author =
        store->run(QStringLiteral("SELECT FirstName, LastName FROM Authors WHERE AuthorId = ?"),
                   {mAuthorId}, source);
    const bool hasAuthor = author.next();
    const QString first = hasAuthor ? author.value(0).toString() : QString();
    const QString last = hasAuthor ? author.value(1).toString() : QString();
    author.finish();
    transaction.commit();

    mId = id;
    mDateEntered = entered;
    mAuthorFirstName = first;
    mAuthorLastName = last;
    mContentWriter = nullptr;
    mReplaceFile = false;
    RevisionStore::markStored(mRevisions, written);
    endEdit();
    return id;
}

} // namespace qs
