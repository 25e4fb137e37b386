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

    // Who acts: the first user needs no one; otherwise an administrator, or the user himself.
    short level = mAccessLevel;
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
        if (actingKey == key)
            level = static_cast<short>(actingLevel);
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

    if (key == 0) {
        QSqlQuery insert = store->run(
            QStringLiteral("INSERT INTO Users (UserId, Password, FirstName, LastName, "
                           "AccessLevel, Question, Answer) VALUES (?, ?, ?, ?, ?, ?, ?)"),
            {target, mPassword, mFirstName, mLastName, int(level), mQuestion, mAnswer}, source);
        key = insert.lastInsertId().toLongLong();
    } else {
        if (target.isEmpty() || target == QLatin1String(kNoSuchUser))
            RaiseServiceError(kErrMissingParameters, source);
        QSqlQuery update = store->run(
            QStringLiteral("UPDATE Users SET UserId = ?, Password = ?, FirstName = ?, "
                           "LastName = ?, AccessLevel = ?, Question = ?, Answer = ? "
                           "WHERE UserKey = ?"),
            {target, mPassword, mFirstName, mLastName, int(level), mQuestion, mAnswer, key},
            source);
        if (update.numRowsAffected() == 0)
            RaiseServiceError(kErrRecordNotFound, source);
    }
    transaction.commit();
    mUserKey = key;
    mUserId = target;
    mAccessLevel = level;
    mNewUserId.clear();
    endEdit();
}

} // namespace qs
