#include "cAuthor.h"

#include "ServiceErrors.h"
#include "SqliteStore.h"

namespace qs {

void cAuthor::Save() {
    const QString source = QStringLiteral("cAuthor:Save;");
    checkEditing(source);
    auto store = SqliteStore::open(mDatabasePath, source);
    SqliteStore::Transaction transaction(*store, source);
    int id = mAuthorId;
    if (mDeleted) {
        if (id != 0) {
            const bool credited =
                store
                    ->scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM SourceCode WHERE "
                                            "AuthorId = ?) OR EXISTS (SELECT 1 FROM "
                                            "SourceFile WHERE AuthorId = ?)"),
                             {id, id}, source)
                    .toBool();
            if (credited)
                RaiseServiceError(kErrRecordInUse, source,
                                  QStringLiteral("the author is credited with items."));
            store->run(QStringLiteral("DELETE FROM Authors WHERE AuthorId = ?"), {id}, source);
        }
        id = 0;
    } else if (id == 0) {
        QSqlQuery insert =
            store->run(QStringLiteral("INSERT INTO Authors (FirstName, LastName) VALUES (?, ?)"),
                       {mFirstName, mLastName}, source);
        id = insert.lastInsertId().toInt();
    } else {
        QStringList sets{QStringLiteral("AuthorId = AuthorId")};
        QVariantList binds;
        if (isSet(kFirstName)) {
            sets << QStringLiteral("FirstName = ?");
            binds << mFirstName;
        }
        if (isSet(kLastName)) {
            sets << QStringLiteral("LastName = ?");
            binds << mLastName;
        }
        binds << id;
        QSqlQuery update = store->run(QStringLiteral("UPDATE Authors SET %1 WHERE AuthorId = ?")
                                          .arg(sets.join(QStringLiteral(", "))),
                                      binds, source);
        if (update.numRowsAffected() == 0)
            RaiseServiceError(kErrRecordNotFound, source);
    }
    transaction.commit();
    mAuthorId = id;
    endEdit();
}

} // namespace qs
