#pragma once

#include <QString>

namespace qs {

// One row of GetUsers.  The program reads UserId, FirstName and LastName; the fields between
// keep their places and carry what a list may show without giving away a password.
struct UserRow {
    QString UserId;
    QString AccessType;  // description of the user's AccessType row
    QString DisplayName; // "First Last"
    QString Reserved;    // always empty
    QString FirstName;
    QString LastName;
    int AccessLevel = 0;
};

} // namespace qs
