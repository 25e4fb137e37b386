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

    checkParent(*store, table, source);
    const int tested = mTested == 0 ? 2 : mTested;
    const QDateTime entered = enteredForSave();
    const int id = writeRow(*store, table,
                            {{"ParentId", mParentId, isSet(kParentId)},
                             {"CategoryId", mCategoryId, isSet(kCategoryId)},
                             {"CodeTypeId", mCodeTypeId, isSet(kCodeTypeId)},
                             {"Tested", tested, isSet(kTested)},
                             {"AuthorId", OptionalId(mAuthorId), isSet(kAuthorId)},
                             {"IsFolder", mIsFolder ? 1 : 0, isSet(kIsFolder)},
                             {"Description", mDescription, isSet(kDescription)},
                             {"DateWritten", StoredDate(mDateWritten), isSet(kDateWritten)},
                             enteredColumn(entered),
                             {"Notes", mNotes, isSet(kNotes)},
                             {"Example", mExample, isSet(kExample)},
                             {"Code", mCode, isSet(kCode)}},
                            source);
    finishSave(*store, transaction, id, entered, QStringLiteral("RevHist_SrcCode"),
               QStringLiteral("SourceCodeId"), source);
    mTested = tested;
    return id;
}

} // namespace qs
