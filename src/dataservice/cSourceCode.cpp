#include "cSourceCode.h"

#include "SqliteStore.h"

namespace qs {

int cSourceCode::Save() {
    const QString source = QStringLiteral("cSourceCode:Save;");
    const QString table = QStringLiteral("SourceCode");
    checkSave(mCodeTypeId, source);
    auto store = SqliteStore::open(mDatabasePath, source);
    SqliteStore::Transaction transaction(*store, source);
    if (mDeleted)
        return saveDeletion(*store, transaction, table, source);

    const int tested = mTested == 0 ? 2 : mTested;
    const QDateTime entered = enteredForSave();
    const int id = writeRow(
        *store, table,
        {QStringLiteral("ParentId"), QStringLiteral("CategoryId"), QStringLiteral("CodeTypeId"),
         QStringLiteral("Tested"), QStringLiteral("AuthorId"), QStringLiteral("IsFolder"),
         QStringLiteral("Description"), QStringLiteral("DateWritten"),
         QStringLiteral("DateEntered"), QStringLiteral("Notes"), QStringLiteral("Example"),
         QStringLiteral("Code")},
        {mParentId, mCategoryId, mCodeTypeId, tested, OptionalId(mAuthorId), mIsFolder ? 1 : 0,
         mDescription, StoredDate(mDateWritten), StoredDate(entered), mNotes, mExample, mCode},
        source);
    finishSave(*store, transaction, id, entered, QStringLiteral("RevHist_SrcCode"),
               QStringLiteral("SourceCodeId"), source);
    mTested = tested;
    return id;
}

} // namespace qs
