#pragma once

#include "CatalogueItem.h"

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
// - ParentId is 0 or the id of a folder of SourceCode in the same category, never one inside
//   the item itself; anything else raises kErrInvalidParent and writes nothing.
// - an update writes only the fields set since the record was read (RecordBase).
// - with Deleted set, the row goes together with its revision lines and every user's bookmark
//   of it.  A folder that still holds items is refused with kErrRecordInUse.  A row another
//   user deleted already counts as deleted.
// - an update of a row that is gone raises kErrRecordNotFound and writes nothing.
// - the full-text index follows every Save (triggers of the schema).
// Category, parent, texts, author, revision lines and Id come from CatalogueItem.
class cSourceCode : public CatalogueItem {
public:
    // A new item of the database the settings name now.
    cSourceCode() = default;
    // A new item of that database file.
    explicit cSourceCode(const QString& databasePath) : CatalogueItem(databasePath) {}

    const QDateTime& DateWritten() const { return mDateWritten; }
    void DateWritten(const QDateTime& value) {
        mDateWritten = value;
        markSet(kDateWritten);
    }
    using CatalogueItem::DateEntered;
    void DateEntered(const QDateTime& value) {
        mDateEntered = value;
        markSet(kDateEntered);
    }
    const QString& Example() const { return mExample; }
    void Example(const QString& value) {
        mExample = value;
        markSet(kExample);
    }
    int CodeTypeId() const { return mCodeTypeId; }
    void CodeTypeId(int value) {
        mCodeTypeId = value;
        markSet(kCodeTypeId);
    }
    int Tested() const { return mTested; }
    void Tested(int value) {
        mTested = value;
        markSet(kTested);
    }
    // Writes the record; returns (and hands out) the id of its row.
    int Save();
    void Save(int& lngId) { lngId = Save(); }
    const QString& Code() const { return mCode; }
    void Code(const QString& value) {
        mCode = value;
        markSet(kCode);
    }

    // Writes the item as XML to strFile: a new file, or appended to an earlier export when
    // blnAppend is set (a file that is not such an export raises and stays as it was).  Each
    // item starts on a line holding `<SourceItem SourceId = "` and its id; the revision lines
    // come along when blnIncludeHistory is set.  An empty strFile writes nothing and raises
    // nothing.
    void ExportXml(const QString& strFile, bool blnAppend, bool blnIncludeHistory) const;
    // Writes strText as a paginated, monospaced PDF with page numbers.
    void ExportPdf(const QString& strFile, const QString& strText) const;
    // Writes strText with CR LF line ends in the Windows-1252 code page.
    void ExportText(const QString& strFile, const QString& strText) const;

private:
    friend class cLibraryService;
    enum : quint32 {
        kDateWritten = kFirstOwnField,
        kExample = kFirstOwnField << 1,
        kCodeTypeId = kFirstOwnField << 2,
        kTested = kFirstOwnField << 3,
        kCode = kFirstOwnField << 4
    };

    QDateTime mDateWritten;
    QString mExample;
    int mCodeTypeId = 0;
    int mTested = 0;
    QString mCode;
};

} // namespace qs
