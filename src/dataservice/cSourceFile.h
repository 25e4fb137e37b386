#pragma once

#include "CatalogueItem.h"
#include "SourceFileFacts.h"

#include <QDateTime>
#include <QString>
#include <functional>

namespace qs {

class cFileInfo;

// One stored file (an article or a component) or a folder of them, a row of SourceFile.  The
// bytes live in the database (SourceFileChunk), with the facts learned when the file was loaded.
//
// Save(out id) writes the catalogue fields, the file facts, the stored bytes when a file was
// loaded, and the revision lines added since the record was read, in one transaction.
// - a new record needs CategoryId and FileTypeId (101 or 102) of existing rows, else
//   kErrMissingParameters; AuthorId 0 means no author; DateEntered is the time of the first Save.
// - ParentId is 0 or the id of a folder of SourceFile in the same category, never one inside
//   the item itself; anything else raises kErrInvalidParent and writes nothing.
// - an update writes only the fields set since the record was read (RecordBase); the file's
//   facts count as set when LoadFile or UpdateFile read a file.
// - with Deleted set the row goes with its bytes, its revision lines and every user's bookmark
//   of it; a folder that still holds items is refused with kErrRecordInUse.
// - an update of a row that is gone raises kErrRecordNotFound and writes nothing.
//
// The stored-file operations (LoadFile, UpdateFile, SaveToDisk, File, FormatSize, FormatDate)
// are defined in cSourceFile_content.cpp.  LoadFile and UpdateFile fill mFacts and set
// mContentWriter; Save calls the writer inside its transaction, after the row is written, with
// the row's id, and the writer replaces that id's SourceFileChunk rows.
// Category, parent, texts, author, revision lines and Id come from CatalogueItem.
class cSourceFile : public CatalogueItem {
public:
    // Writes the stored bytes of the row id inside Save's transaction.
    using ContentWriter = std::function<void(SqliteStore& store, int sourceFileId)>;

    // A new item of the database the settings name now.
    cSourceFile() = default;
    // A new item of that database file.
    explicit cSourceFile(const QString& databasePath) : CatalogueItem(databasePath) {}

    // The facts of the stored file, as cFileInfo (with its cFileVersionInfo).
    cFileInfo File() const;
    // The same facts as stored.
    const SourceFileFacts& Facts() const { return mFacts; }

    // True at an update that brings in a new file (UpdateFile).
    bool ReplaceFile() const { return mReplaceFile; }
    void ReplaceFile(bool value) { mReplaceFile = value; }
    // The stored file's extension; the dialogs pick their filters by it.
    const QString& FileTypeName() const { return mFacts.FileTypeName; }
    int FileTypeId() const { return mFileTypeId; }
    void FileTypeId(int value) {
        mFileTypeId = value;
        markSet(kFileTypeId);
    }
    // Reads the file at strPath, its facts and bytes, into this new record; Save stores them.
    void LoadFile(const QString& strPath, int lngAuthorId, int lngCategoryId, int lngFileTypeId);
    // Reads the file at strPath over the stored one; Save stores it.
    void UpdateFile(const QString& strPath);
    int Save();
    void Save(int& lngId) { lngId = Save(); }
    // Writes the stored bytes out to strPath, byte for byte.
    void SaveToDisk(const QString& strPath) const;

    // Size and date texts as the panes show them.
    static QString FormatSize(qint64 lngSize);
    static QString FormatDate(const QDateTime& datValue);

private:
    friend class cLibraryService;
    enum : quint32 { kFileTypeId = kFirstOwnField };

    bool mReplaceFile = false;
    int mFileTypeId = 0;
    SourceFileFacts mFacts;
    ContentWriter mContentWriter; // set by LoadFile/UpdateFile, run and cleared by Save
};

} // namespace qs
