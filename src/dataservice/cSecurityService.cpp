#include "cSecurityService.h"

#include "DatabaseLocation.h"
#include "ServiceErrors.h"
#include "SqliteStore.h"

#include <QSqlQuery>

namespace qs {

cSecurityService::cSecurityService() : mDatabasePath(ConfiguredDatabasePath()) {}

cSecurityService::cSecurityService(const QString& databasePath) : mDatabasePath(databasePath) {}

cSecurityService::~cSecurityService() = default;

SqliteStore& cSecurityService::store(const QString& source) {
    if (!mStore)
        mStore = SqliteStore::open(mDatabasePath, source);
    return *mStore;
}

cUser cSecurityService::GetUser(const QString& strUserId, const QString& strPassword,
                                const QString&) {
    const QString source = QStringLiteral("cSecurityService:GetUser;");
    QSqlQuery query = store(source).run(
        QStringLiteral("SELECT UserKey, UserId, Password, FirstName, LastName, AccessLevel, "
                       "Question, Answer FROM Users WHERE UserId = ?"),
        {strUserId}, source);
    cUser user(mDatabasePath);
    if (!query.next() || (!strPassword.isEmpty() && query.value(2).toString() != strPassword)) {
        user.mUserId = QString::fromLatin1(cUser::kNoSuchUser);
        return user;
    }
    user.mUserKey = query.value(0).toLongLong();
    user.mUserId = query.value(1).toString();
    user.mPassword = query.value(2).toString();
    user.mFirstName = query.value(3).toString();
    user.mLastName = query.value(4).toString();
    user.mAccessLevel = static_cast<short>(query.value(5).toInt());
    user.mQuestion = query.value(6).toString();
    user.mAnswer = query.value(7).toString();
    return user;
}

VbArray<UserRow> cSecurityService::GetUsers(int, int, bool, const QString&) {
    const QString source = QStringLiteral("cSecurityService:GetUsers;");
    return listUsers(store(source), source);
}

VbArray<UserRow> cSecurityService::listUsers(SqliteStore& store, const QString& source) {
    QSqlQuery query = store.run(
        QStringLiteral("SELECT u.UserId, COALESCE(t.Description, ''), u.FirstName, u.LastName, "
                       "u.AccessLevel FROM Users u LEFT JOIN AccessType t ON t.Id = "
                       "u.AccessLevel ORDER BY u.LastName, u.FirstName, u.UserId"),
        {}, source);
    VbArray<UserRow> rows;
    while (query.next()) {
        UserRow row;
        row.UserId = query.value(0).toString();
        row.AccessType = query.value(1).toString();
        row.FirstName = query.value(2).toString();
        row.LastName = query.value(3).toString();
        row.DisplayName = row.FirstName + QLatin1Char(' ') + row.LastName;
        row.AccessLevel = query.value(4).toInt();
        rows.append(row);
    }
    return rows;
}

QString cSecurityService::GetPasswordQuestion(const QString& strUserId) {
    const QString source = QStringLiteral("cSecurityService:GetPasswordQuestion;");
    return store(source)
        .scalar(QStringLiteral("SELECT Question FROM Users WHERE UserId = ?"), {strUserId}, source)
        .toString();
}

QString cSecurityService::GetForgottenPassword(const QString& strUserId, const QString& strAnswer) {
    const QString source = QStringLiteral("cSecurityService:GetForgottenPassword;");
    QSqlQuery query = store(source).run(
        QStringLiteral("SELECT Password, Answer FROM Users WHERE UserId = ?"), {strUserId}, source);
    if (query.next() && query.value(1).toString() == strAnswer)
        return query.value(0).toString();
    return QString::fromLatin1(kWrongAnswer);
}

} // namespace qs
