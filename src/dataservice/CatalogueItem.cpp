#include "CatalogueItem.h"

#include "RevisionStore.h"
#include "ServiceErrors.h"

namespace qs {

void CatalogueItem::checkSave(int typeId, const QString& source) const {
    checkEditing(source);
    if (!mDeleted && (mCategoryId == 0 || typeId == 0))
        RaiseServiceError(kErrMissingParameters, source);
}

void CatalogueItem::checkParent(SqliteStore& store, const QString& table,
                                const QString& source) const {
    // A row keeps its place unless this Save moves it or changes its category.
    if (mParentId == 0 || (mId != 0 && !isSet(kParentId) && !isSet(kCategoryId)))
        return;
    QSqlQuery parent =
        store.run(QStringLiteral("SELECT IsFolder, CategoryId FROM %1 WHERE Id = ?").arg(table),
                  {mParentId}, source);
    const bool found = parent.next();
    const bool folder = found && parent.value(0).toInt() != 0;
    const int category = found ? parent.value(1).toInt() : 0;
    parent.finish();
    if (!folder)
        RaiseServiceError(kErrInvalidParent, source,
                          QStringLiteral("%1 holds no folder %2.").arg(table).arg(mParentId));
    if (category != mCategoryId)
        RaiseServiceError(kErrInvalidParent, source,
                          QStringLiteral("folder %1 belongs to another category.").arg(mParentId));
    if (mId == 0)
        return;
    // The new parent's chain of ancestors must not pass through the record; UNION stops at a
    // loop that is stored already.
    const bool inside =
        store
            .scalar(QStringLiteral("WITH RECURSIVE up(Id) AS (SELECT ? UNION SELECT t.ParentId "
                                   "FROM %1 t JOIN up ON t.Id = up.Id WHERE t.ParentId <> 0) "
                                   "SELECT EXISTS (SELECT 1 FROM up WHERE Id = ?)")
                        .arg(table),
                    {mParentId, mId}, source)
            .toBool();
    if (inside)
        RaiseServiceError(
            kErrInvalidParent, source,
            QStringLiteral("folder %1 lies inside the item %2 itself.").arg(mParentId).arg(mId));
}

int CatalogueItem::saveDeletion(SqliteStore& store, SqliteStore::Transaction& transaction,
                                const QString& table, const QString& source) {
    if (mId != 0) {
        if (store
                .scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM %1 WHERE ParentId = ?)")
                            .arg(table),
                        {mId}, source)
                .toBool())
            RaiseServiceError(kErrRecordInUse, source,
                              QStringLiteral("the folder still holds items."));
        store.run(QStringLiteral("DELETE FROM %1 WHERE Id = ?").arg(table), {mId}, source);
    }
    transaction.commit();
    const int id = mId;
    mId = 0;
    endEdit();
    return id;
}

QDateTime CatalogueItem::enteredForSave() const {
    return mDateEntered.isValid() ? mDateEntered : QDateTime::currentDateTime();
}

CatalogueItem::StoredColumn CatalogueItem::enteredColumn(const QDateTime& entered) const {
    return {"DateEntered", StoredDate(entered), isSet(kDateEntered) || !mDateEntered.isValid()};
}

int CatalogueItem::writeRow(SqliteStore& store, const QString& table,
                            const QVector<StoredColumn>& columns, const QString& source) const {
    QStringList names;
    QVariantList values;
    for (const StoredColumn& column : columns) {
        if (mId != 0 && !column.set)
            continue;
        names << QLatin1String(column.name);
        values << column.value;
    }
    if (mId == 0) {
        QStringList marks;
        for (qsizetype i = 0; i < names.size(); ++i)
            marks.append(QStringLiteral("?"));
        QSqlQuery insert = store.run(
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                .arg(table, names.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
            values, source);
        return insert.lastInsertId().toInt();
    }
    // With nothing set the row is still touched, so that one that is gone is noticed.
    QStringList sets{QStringLiteral("Id = Id")};
    for (const QString& name : names)
        sets << name + QStringLiteral(" = ?");
    values.append(mId);
    QSqlQuery update = store.run(
        QStringLiteral("UPDATE %1 SET %2 WHERE Id = ?").arg(table, sets.join(QStringLiteral(", "))),
        values, source);
    if (update.numRowsAffected() == 0)
        RaiseServiceError(kErrRecordNotFound, source);
    return mId;
}

int CatalogueItem::finishSave(SqliteStore& store, SqliteStore::Transaction& transaction, int id,
                              const QDateTime& entered, const QString& revisionTable,
                              const QString& revisionColumn, const QString& source) {
    const RevisionStore revisions(revisionTable, revisionColumn);
    const auto written = revisions.writeNew(store, id, mRevisions, source);
    QSqlQuery author =
        store.run(QStringLiteral("SELECT FirstName, LastName FROM Authors WHERE AuthorId = ?"),
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
    RevisionStore::markStored(mRevisions, written);
    endEdit();
    return id;
}

} // namespace qs
