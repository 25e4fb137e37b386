#pragma once

#include "RecordBase.h"
#include "SqliteStore.h"
#include "cRevisions.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantList>

namespace qs {

// What an item of the catalogue shares, a row of SourceCode or of SourceFile: its place in the
// tree, its category, author, texts and revision lines, and the steps of Save that do not depend
// on the table.  source is always the caller's own ("cSourceCode:Save;", "cSourceFile:Save;").
class CatalogueItem : public RecordBase {
public:
    int CategoryId() const { return mCategoryId; }
    void CategoryId(int value) { mCategoryId = value; }
    const QDateTime& DateEntered() const { return mDateEntered; }
    int ParentId() const { return mParentId; }
    void ParentId(int value) { mParentId = value; }
    const QString& Description() const { return mDescription; }
    void Description(const QString& value) { mDescription = value; }
    const QString& Notes() const { return mNotes; }
    void Notes(const QString& value) { mNotes = value; }
    bool IsFolder() const { return mIsFolder; }
    void IsFolder(bool value) { mIsFolder = value; }
    const QString& AuthorFirstName() const { return mAuthorFirstName; }
    const QString& AuthorLastName() const { return mAuthorLastName; }
    int AuthorId() const { return mAuthorId; }
    void AuthorId(int value) { mAuthorId = value; }
    cRevisions& Revisions() { return mRevisions; }
    const cRevisions& Revisions() const { return mRevisions; }

    // The row id; 0 for a record not saved yet.
    int Id() const { return mId; }

protected:
    CatalogueItem() = default;
    explicit CatalogueItem(const QString& databasePath) : RecordBase(databasePath) {}

    // Raises "Object is read-only." outside BeginEdit, and kErrMissingParameters when a record
    // to be written lacks its category or type, or names itself as its parent.
    void checkSave(int typeId, const QString& source) const;
    // The delete of Save: refuses a folder that still holds items, removes the row (a row that
    // is gone already counts as deleted), commits and closes the record.  Returns the old id.
    int saveDeletion(SqliteStore& store, SqliteStore::Transaction& transaction,
                     const QString& table, const QString& source);
    // DateEntered as Save stores it: the time of the Save when it is unset.
    QDateTime enteredForSave() const;
    // Inserts the row (mId 0) or updates it, the columns bound in order to values; an update of
    // a row that is gone raises kErrRecordNotFound.  Returns the row's id.
    int writeRow(SqliteStore& store, const QString& table, const QStringList& columns,
                 const QVariantList& values, const QString& source) const;
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
