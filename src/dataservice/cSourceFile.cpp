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

    checkParent(*store, table, source);
    const QDateTime entered = enteredForSave();
    const bool file = bool(mContentWriter);
    const int id = writeRow(*store, table,
                            {{"ParentId", mParentId, isSet(kParentId)},
                             {"CategoryId", mCategoryId, isSet(kCategoryId)},
                             {"FileTypeId", mFileTypeId, isSet(kFileTypeId)},
                             {"AuthorId", OptionalId(mAuthorId), isSet(kAuthorId)},
                             {"IsFolder", mIsFolder ? 1 : 0, isSet(kIsFolder)},
                             {"Description", mDescription, isSet(kDescription)},
                             enteredColumn(entered),
                             {"Notes", mNotes, isSet(kNotes)},
                             {"FileName", mFacts.FileName, file},
                             {"FullPath", mFacts.FullPath, file},
                             {"DosName", mFacts.DosName, file},
                             {"FileTypeName", mFacts.FileTypeName, file},
                             {"Size", mFacts.Size, file},
                             {"DateCreated", StoredDate(mFacts.DateCreated), file},
                             {"ReadOnly", mFacts.ReadOnly ? 1 : 0, file},
                             {"Hidden", mFacts.Hidden ? 1 : 0, file},
                             {"System", mFacts.System ? 1 : 0, file},
                             {"Archive", mFacts.Archive ? 1 : 0, file},
                             {"Temporary", mFacts.Temporary ? 1 : 0, file},
                             {"Compressed", mFacts.Compressed ? 1 : 0, file},
                             {"Icon",
                              mFacts.IconPng.isEmpty() ? QVariant(QMetaType(QMetaType::QByteArray))
                                                       : QVariant(mFacts.IconPng),
                              file},
                             {"VersionInfo", mFacts.VersionInfoJson, file}},
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
