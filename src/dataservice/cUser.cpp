#include "cUser.h"

#include "ServiceErrors.h"
#include "SqliteStore.h"

namespace qs {

void cUser::Save(const QString& actingUserId, int) {
    const QString source = QStringLiteral("cUser:Save;");
    checkEditing(source);
    auto store = SqliteStore::open(mDatabasePath, source);
    SqliteStore::Transaction transaction(*store, source);

    // The stored row this record writes to: its own, or for a new record one of the same id.
    qint64 key = mUserKey;
    const QString target = (!mNewUserId.isEmpty() && key != 0) ? mNewUserId : mUserId;
    if (key == 0 && !mDeleted) {
        if (target.isEmpty() || target == QLatin1String(kNoSuchUser))
            RaiseServiceError(kErrMissingParameters, source);
        key = store
                  ->scalar(QStringLiteral("SELECT UserKey FROM Users WHERE UserId = ?"), {target},
                           source)
                  .toLongLong();
    }

    // Who acts: the first user needs no one; otherwise an administrator, or the user himself,
    // whose own level then stays as stored.
    bool ownRecord = false;
    const bool anyUser =
        store->scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM Users)"), {}, source).toBool();
    if (anyUser) {
        QSqlQuery acting =
            store->run(QStringLiteral("SELECT UserKey, AccessLevel FROM Users WHERE UserId = ?"),
                       {actingUserId}, source);
        qint64 actingKey = 0;
        int actingLevel = 0;
        if (acting.next()) {
            actingKey = acting.value(0).toLongLong();
            actingLevel = acting.value(1).toInt();
        }
        acting.finish();
        if (actingKey == 0 || (actingLevel != 1 && actingKey != key))
            RaiseServiceError(kErrNotAuthorized, source);
        ownRecord = actingKey == key;
    }

    if (mDeleted) {
        if (key != 0)
            store->run(QStringLiteral("DELETE FROM Users WHERE UserKey = ?"), {key}, source);
        transaction.commit();
        mUserKey = 0;
        mNewUserId.clear();
        endEdit();
        return;
    }

    if (target.isEmpty() || target == QLatin1String(kNoSuchUser))
        RaiseServiceError(kErrMissingParameters, source);
    if (key == 0) {
        QSqlQuery insert = store->run(
            QStringLiteral("INSERT INTO Users (UserId, Password, FirstName, LastName, "
                           "AccessLevel, Question, Answer) VALUES (?, ?, ?, ?, ?, ?, ?)"),
            {target, mPassword, mFirstName, mLastName, int(mAccessLevel), mQuestion, mAnswer},
            source);
        key = insert.lastInsertId().toLongLong();
    } else {
        QStringList sets{QStringLiteral("UserId = ?")};
        QVariantList binds{target};
        const auto setIf = [&](quint32 field, const char* column, const QVariant& value) {
            if (!isSet(field))
                return;
            sets << QStringLiteral("%1 = ?").arg(QLatin1String(column));
            binds << value;
        };
        setIf(kPassword, "Password", mPassword);
        setIf(kFirstName, "FirstName", mFirstName);
        setIf(kLastName, "LastName", mLastName);
        if (!ownRecord)
            setIf(kAccessLevel, "AccessLevel", int(mAccessLevel));
        setIf(kQuestion, "Question", mQuestion);
        setIf(kAnswer, "Answer", mAnswer);
        binds << key;
        QSqlQuery update = store->run(QStringLiteral("UPDATE Users SET %1 WHERE UserKey = ?")
                                          .arg(sets.join(QStringLiteral(", "))),
                                      binds, source);
        if (update.numRowsAffected() == 0)
            RaiseServiceError(kErrRecordNotFound, source);
    }
    readRow(*store, key, source);
    transaction.commit();
    mNewUserId.clear();
    endEdit();
}

void cUser::readRow(SqliteStore& store, qint64 key, const QString& source) {
    QSqlQuery row = store.run(QStringLiteral("SELECT UserId, Password, FirstName, LastName, "
                                             "AccessLevel, Question, Answer FROM Users WHERE "
                                             "UserKey = ?"),
                              {key}, source);
    if (!row.next())
        RaiseServiceError(kErrRecordNotFound, source);
    mUserKey = key;
    mUserId = row.value(0).toString();
    mPassword = row.value(1).toString();
    mFirstName = row.value(2).toString();
    mLastName = row.value(3).toString();
    mAccessLevel = static_cast<short>(row.value(4).toInt());
    mQuestion = row.value(5).toString();
    mAnswer = row.value(6).toString();
}

} // namespace qs
