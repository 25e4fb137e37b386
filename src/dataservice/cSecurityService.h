#pragma once

#include "UserRow.h"
#include "VbArray.h"
#include "cUser.h"

#include <QString>
#include <memory>

namespace qs {

class SqliteStore;

// Who a user is.  Like cLibraryService, a new object takes the database file the settings name
// at the moment it is made, keeps it, opens it at the first call, and raises
// kErrDatabaseNotFound / kErrDatabaseCorrupt with the fixed texts; sources are
// "cSecurityService:<operation>;".
class cSecurityService {
public:
    // The answer of GetForgottenPassword to a wrong answer or an unknown id.
    static constexpr const char kWrongAnswer[] = "707070";

    cSecurityService();
    // An object on that file, whatever the settings say.
    explicit cSecurityService(const QString& databasePath);
    ~cSecurityService();
    cSecurityService(const cSecurityService&) = delete;
    cSecurityService& operator=(const cSecurityService&) = delete;

    const QString& DatabasePath() const { return mDatabasePath; }

    // With a password: a login.  The record of that user when the password matches exactly;
    // otherwise (wrong password or unknown id alike) a new, empty record whose UserId is
    // "Q70707", which may be filled and saved like any new cUser.
    // Without a password: a lookup, the full record, password included; an unknown id gives the
    // same "Q70707" record.  The acting id restricts nothing here (cUser::Save checks it).
    cUser GetUser(const QString& strUserId, const QString& strPassword,
                  const QString& strActingUserId);
    // Every user, ordered by last name, first name, id; empty (bounds 0/0) when there is none.
    // The arguments change nothing.
    VbArray<UserRow> GetUsers(int reserved1 = 0, int reserved2 = 0, bool blnFlag = false,
                              const QString& strReserved = QString());
    // The user's forgotten-password question; an empty string for an unknown id.
    QString GetPasswordQuestion(const QString& strUserId);
    // The stored password when strAnswer equals the stored answer exactly, else "707070" (also
    // for an unknown id).
    QString GetForgottenPassword(const QString& strUserId, const QString& strAnswer);

private:
    friend class cLibraryService;
    SqliteStore& store(const QString& source);
    static VbArray<UserRow> listUsers(SqliteStore& store, const QString& source);

    QString mDatabasePath;
    std::unique_ptr<SqliteStore> mStore;
};

} // namespace qs
