#pragma once

#include "RecordBase.h"
#include "cRevisions.h"

#include <QDateTime>
#include <QString>

namespace qs {

// One text item (code snippet, tip, class module, general module) or a folder of them, a row of
// SourceCode.
//
// Save(out id) writes the record and every revision line added since it was read, in one
// transaction; the lines keep their order.  The service adds no revision of its own.
// - a new record needs CategoryId and CodeTypeId (201 to 204) of existing rows, else
//   kErrMissingParameters; Tested 0 is stored as 2 (untested); AuthorId 0 means no author;
//   an unset DateEntered becomes the time of the Save.
// - ParentId is the id of a folder of SourceCode or 0; an item cannot be its own parent.
// - with Deleted set, the row goes together with its revision lines and every user's bookmark
//   of it.  A folder that still holds items is refused with kErrRecordInUse.  A row another
//   user deleted already counts as deleted.
// - an update of a row that is gone raises kErrRecordNotFound and writes nothing.
// - the full-text index follows every Save (triggers of the schema).
class cSourceCode : public RecordBase {
public:
    // A new item of the database the settings name now.
    cSourceCode() = default;
    // A new item of that database file.
    explicit cSourceCode(const QString& databasePath) : RecordBase(databasePath) {}

    int CategoryId() const { return mCategoryId; }
    void CategoryId(int value) { mCategoryId = value; }
    const QDateTime& DateWritten() const { return mDateWritten; }
    void DateWritten(const QDateTime& value) { mDateWritten = value; }
    const QDateTime& DateEntered() const { return mDateEntered; }
    void DateEntered(const QDateTime& value) { mDateEntered = value; }
    int ParentId() const { return mParentId; }
    void ParentId(int value) { mParentId = value; }
    const QString& Example() const { return mExample; }
    void Example(const QString& value) { mExample = value; }
    const QString& Description() const { return mDescription; }
    void Description(const QString& value) { mDescription = value; }
    const QString& Notes() const { return mNotes; }
    void Notes(const QString& value) { mNotes = value; }
    int CodeTypeId() const { return mCodeTypeId; }
    void CodeTypeId(int value) { mCodeTypeId = value; }
    int Tested() const { return mTested; }
    void Tested(int value) { mTested = value; }
    const QString& AuthorFirstName() const { return mAuthorFirstName; }
    const QString& AuthorLastName() const { return mAuthorLastName; }
    int AuthorId() const { return mAuthorId; }
    void AuthorId(int value) { mAuthorId = value; }
    cRevisions& Revisions() { return mRevisions; }
    const cRevisions& Revisions() const { return mRevisions; }
    // Writes the record; returns (and hands out) the id of its row.
    int Save();
    void Save(int& lngId) { lngId = Save(); }
    const QString& Code() const { return mCode; }
    void Code(const QString& value) { mCode = value; }
    bool IsFolder() const { return mIsFolder; }
    void IsFolder(bool value) { mIsFolder = value; }

    // Writes the item as XML to strFile: a new file, or appended to an earlier export when
    // blnAppend is set (a file that is not such an export raises and stays as it was).  Each
    // item starts on a line holding `<SourceItem SourceId = "` and its id; the revision lines
    // come along when blnIncludeHistory is set.
    void ExportXml(const QString& strFile, bool blnAppend, bool blnIncludeHistory) const;
    // Writes strText as a paginated, monospaced PDF with page numbers.
    void ExportPdf(const QString& strFile, const QString& strText) const;
    // Writes strText with CR LF line ends in the Windows-1252 code page.
    void ExportText(const QString& strFile, const QString& strText) const;

    // The row id; 0 for a record not saved yet.
    int Id() const { return mId; }

private:
    friend class cLibraryService;

    int mId = 0;
    int mCategoryId = 0;
    QDateTime mDateWritten;
    QDateTime mDateEntered;
    int mParentId = 0;
    QString mExample;
    QString mDescription;
    QString mNotes;
    int mCodeTypeId = 0;
    int mTested = 0;
    QString mAuthorFirstName;
    QString mAuthorLastName;
    int mAuthorId = 0;
    cRevisions mRevisions;
    QString mCode;
    bool mIsFolder = false;
};

} // namespace qs
