#pragma once

#include "RecordBase.h"
#include "SqliteStore.h"
#include "cRevisions.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVector>

namespace qs {

// What an item of the catalogue shares, a row of SourceCode or of SourceFile: its place in the
// tree, its category, author, texts and revision lines, and the steps of Save that do not depend
// on the table.  source is always the caller's own ("cSourceCode:Save;", "cSourceFile:Save;").
class CatalogueItem : public RecordBase {
public:
    int CategoryId() const { return mCategoryId; }
    void CategoryId(int value) {
        mCategoryId = value;
        markSet(kCategoryId);
    }
    const QDateTime& DateEntered() const { return mDateEntered; }
    int ParentId() const { return mParentId; }
    void ParentId(int value) {
        mParentId = value;
        markSet(kParentId);
    }
    const QString& Description() const { return mDescription; }
    void Description(const QString& value) {
        mDescription = value;
        markSet(kDescription);
    }
    const QString& Notes() const { return mNotes; }
    void Notes(const QString& value) {
        mNotes = value;
        markSet(kNotes);
    }
    bool IsFolder() const { return mIsFolder; }
    void IsFolder(bool value) {
        mIsFolder = value;
        markSet(kIsFolder);
    }
    const QString& AuthorFirstName() const { return mAuthorFirstName; }
    const QString& AuthorLastName() const { return mAuthorLastName; }
    int AuthorId() const { return mAuthorId; }
    void AuthorId(int value) {
        mAuthorId = value;
        markSet(kAuthorId);
    }
    cRevisions& Revisions() { return mRevisions; }
    const cRevisions& Revisions() const { return mRevisions; }

    // The row id; 0 for a record not saved yet.
    int Id() const { return mId; }

protected:
    // Field bits of the shared fields; a record class numbers its own from kFirstOwnField on.
    enum : quint32 {
        kParentId = 1,
        kCategoryId = 2,
        kDescription = 4,
        kNotes = 8,
        kIsFolder = 16,
        kAuthorId = 32,
        kDateEntered = 64,
        kFirstOwnField = 128
    };
    // One column of a row as Save writes it: an update writes only the columns whose field was
    // set; an insert writes them all.
    struct StoredColumn {
        const char* name;
        QVariant value;
        bool set;
    };

    CatalogueItem() = default;
    explicit CatalogueItem(const QString& databasePath) : RecordBase(databasePath) {}

    // Raises "Object is read-only." outside BeginEdit, and kErrMissingParameters when a record
    // to be written lacks its category or type.
    void checkSave(int typeId, const QString& source) const;
    // Raises kErrInvalidParent unless ParentId is 0 or a folder of table in the record's category
    // that does not lie inside the record itself (a folder moved under its own subtree).
    void checkParent(SqliteStore& store, const QString& table, const QString& source) const;
    // The delete of Save: refuses a folder that still holds items, removes the row (a row that
    // is gone already counts as deleted), commits and closes the record.  Returns the old id.
    int saveDeletion(SqliteStore& store, SqliteStore::Transaction& transaction,
                     const QString& table, const QString& source);
    // DateEntered as Save stores it: the time of the Save when it is unset.
    QDateTime enteredForSave() const;
    // The DateEntered column: written when set, and when the row has none yet.
    StoredColumn enteredColumn(const QDateTime& entered) const;
    // Inserts the row (mId 0) with every column, or updates the columns that were set; an
    // update of a row that is gone raises kErrRecordNotFound.  Returns the row's id.
    int writeRow(SqliteStore& store, const QString& table, const QVector<StoredColumn>& columns,
                 const QString& source) const;
    // The end of Save once the row is written: the new revision lines into revisionTable, the
    // author's name, the commit, then the record takes its id and closes.  Returns the id.
    int finishSave(SqliteStore& store, SqliteStore::Transaction& transaction, int id,
                   const QDateTime& entered, const QString& revisionTable,
                   const QString& revisionColumn, const QString& source);

    int mId = 0;
    int mCategoryId = 0;
    QDateTime mDateEntered;
    int mParentId = 0;
    QString mDescription;
    QString mNotes;
    bool mIsFolder = false;
    QString mAuthorFirstName;
    QString mAuthorLastName;
    int mAuthorId = 0;
    cRevisions mRevisions;
};

} // namespace qs
