#include "CatalogueItem.h"

#include "RevisionStore.h"
#include "ServiceErrors.h"

namespace qs {

void CatalogueItem::checkSave(int typeId, const QString& source) const {
    checkEditing(source);
    if (!mDeleted && (mCategoryId == 0 || typeId == 0 || (mId != 0 && mParentId == mId)))
        RaiseServiceError(kErrMissingParameters, source);
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

int CatalogueItem::writeRow(SqliteStore& store, const QString& table, const QStringList& columns,
                            const QVariantList& values, const QString& source) const {
    if (mId == 0) {
        QStringList marks;
        for (qsizetype i = 0; i < columns.size(); ++i)
            marks.append(QStringLiteral("?"));
        QSqlQuery insert = store.run(
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                .arg(table, columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
            values, source);
        return insert.lastInsertId().toInt();
    }
    QVariantList binds = values;
    binds.append(mId);
    QSqlQuery update = store.run(QStringLiteral("UPDATE %1 SET %2 = ? WHERE Id = ?")
                                     .arg(table, columns.join(QStringLiteral(" = ?, "))),
                                 binds, source);
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
