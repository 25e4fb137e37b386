#pragma once

#include "RecordBase.h"

#include <QString>

namespace qs {

// One user, as cSecurityService hands it out.
//
// Passwords and answers are stored as typed, in clear: the forgotten-password flow hands the
// password back, so it must be recoverable, and a key kept beside the file would protect
// nothing.  Whoever can read the file can read them; keep the file where only its users can.
// User ids, passwords and answers compare case-sensitively.
//
// Save(actingUserId, 0):
// - who may save: anyone while the database holds no user (the first user); an acting user
//   with AccessLevel 1 ("Admin"); a user saving his own record, whose AccessLevel then stays as
//   stored.  Anyone else is refused with "Access Not Authorized \"" (kErrNotAuthorized).  The
//   access level of one's own record never changes through one's own Save, so the last
//   administrator cannot lock himself out.
// - a record that came from nothing (the default constructor, or the "Q70707" marker of a
//   failed GetUser) is written under UserId; if that id is stored already, the stored user is
//   written over, as the windows check for a taken id before they add one.  An empty id or the
//   marker id itself is refused (kErrMissingParameters).
// - a stored record is updated; NewUserId, when set and different (else a changed UserId),
//   renames the user everywhere the id is used, bookmarks included.  A rename onto a taken id
//   is refused (kErrDuplicateUser) and nothing changes.
// - with Deleted set the user and his bookmarks go; authors are not touched.
class cUser : public RecordBase {
public:
    // The marker id of the record GetUser returns for an unknown id or a wrong password.
    static constexpr const char kNoSuchUser[] = "Q70707";

    // A new user of the database the settings name now.
    cUser() = default;
    // A new user of that database file.
    explicit cUser(const QString& databasePath) : RecordBase(databasePath) {}

    short AccessLevel() const { return mAccessLevel; }
    void AccessLevel(short value) { mAccessLevel = value; }
    const QString& Password() const { return mPassword; }
    void Password(const QString& value) { mPassword = value; }
    void NewUserId(const QString& value) { mNewUserId = value; }
    const QString& UserId() const { return mUserId; }
    void UserId(const QString& value) { mUserId = value; }
    const QString& FirstName() const { return mFirstName; }
    void FirstName(const QString& value) { mFirstName = value; }
    const QString& LastName() const { return mLastName; }
    void LastName(const QString& value) { mLastName = value; }
    void Save(const QString& actingUserId, int flag = 0);
    const QString& Question() const { return mQuestion; }
    void Question(const QString& value) { mQuestion = value; }
    const QString& Answer() const { return mAnswer; }
    void Answer(const QString& value) { mAnswer = value; }

    // True for a record read from the database (not one made here or a marker).
    bool IsStored() const { return mUserKey != 0; }

private:
    friend class cSecurityService;

    short mAccessLevel = 0;
    QString mPassword;
    QString mNewUserId;
    QString mUserId;
    QString mFirstName;
    QString mLastName;
    QString mQuestion;
    QString mAnswer;
    qint64 mUserKey = 0; // row key; 0 until stored
};

} // namespace qs
