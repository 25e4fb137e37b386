#include "cSourceCode.h"

#include "RevisionStore.h"
#include "ServiceErrors.h"
#include "SqliteStore.h"

namespace qs {

int cSourceCode::Save() {
    const QString source = QStringLiteral("cSourceCode:Save;");
    checkEditing(source);
    if (!mDeleted && (mCategoryId == 0 || mCodeTypeId == 0 || (mId != 0 && mParentId == mId)))
        RaiseServiceError(kErrMissingParameters, source);
    auto store = SqliteStore::open(mDatabasePath, source);
    SqliteStore::Transaction transaction(*store, source);
    const RevisionStore revisions(QStringLiteral("RevHist_SrcCode"),
                                  QStringLiteral("SourceCodeId"));

    if (mDeleted) {
        if (mId != 0) {
            if (store
                    ->scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM SourceCode WHERE "
                                            "ParentId = ?)"),
                             {mId}, source)
                    .toBool())
                RaiseServiceError(kErrRecordInUse, source,
                                  QStringLiteral("the folder still holds items."));
            store->run(QStringLiteral("DELETE FROM SourceCode WHERE Id = ?"), {mId}, source);
        }
        transaction.commit();
        const int id = mId;
        mId = 0;
        endEdit();
        return id;
    }

    const int tested = mTested == 0 ? 2 : mTested;
    const QDateTime entered = mDateEntered.isValid() ? mDateEntered : QDateTime::currentDateTime();
    const QVariantList values{mParentId,
                              mCategoryId,
                              mCodeTypeId,
                              tested,
                              OptionalId(mAuthorId),
                              mIsFolder ? 1 : 0,
                              mDescription,
                              StoredDate(mDateWritten),
                              StoredDate(entered),
                              mNotes,
                              mExample,
                              mCode};
    int id = mId;
    if (id == 0) {
        QSqlQuery insert = store->run(
            QStringLiteral("INSERT INTO SourceCode (ParentId, CategoryId, CodeTypeId, Tested, "
                           "AuthorId, IsFolder, Description, DateWritten, DateEntered, Notes, "
                           "Example, Code) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            values, source);
        id = insert.lastInsertId().toInt();
    } else {
        QVariantList binds = values;
        binds.append(id);
        QSqlQuery update = store->run(
            QStringLiteral("UPDATE SourceCode SET ParentId = ?, CategoryId = ?, CodeTypeId = ?, "
                           "Tested = ?, AuthorId = ?, IsFolder = ?, Description = ?, "
                           "DateWritten = ?, DateEntered = ?, Notes = ?, Example = ?, Code = ? "
                           "WHERE Id = ?"),
            binds, source);
        if (update.numRowsAffected() == 0)
            RaiseServiceError(kErrRecordNotFound, source);
    }
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
    mTested = tested;
    mDateEntered = entered;
    mAuthorFirstName = first;
    mAuthorLastName = last;
    RevisionStore::markStored(mRevisions, written);
    endEdit();
    return id;
}

} // namespace qs
