#pragma once

#include "RecordBase.h"

#include <QString>

namespace qs {

class SqliteStore;

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
//   failed GetUser) is written under UserId; if that id is stored already, the fields set on the
//   record are written over the stored user's and the rest stay as stored, as the windows check
//   for a taken id before they add one (and the first login writes the administrator anew from
//   a marker).  An empty id or the marker id itself is refused (kErrMissingParameters).
// - a stored record is updated, the fields set since it was read and nothing else; NewUserId,
//   when set and different (else a changed UserId), renames the user everywhere the id is used,
//   bookmarks included.  A rename onto a taken id is refused (kErrDuplicateUser) and nothing
//   changes.
// - after a Save that writes, the record holds its row as stored.
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
    void AccessLevel(short value) {
        mAccessLevel = value;
        markSet(kAccessLevel);
    }
    const QString& Password() const { return mPassword; }
    void Password(const QString& value) {
        mPassword = value;
        markSet(kPassword);
    }
    void NewUserId(const QString& value) { mNewUserId = value; }
    const QString& UserId() const { return mUserId; }
    void UserId(const QString& value) {
        mUserId = value;
        markSet(kUserId);
    }
    const QString& FirstName() const { return mFirstName; }
    void FirstName(const QString& value) {
        mFirstName = value;
        markSet(kFirstName);
    }
    const QString& LastName() const { return mLastName; }
    void LastName(const QString& value) {
        mLastName = value;
        markSet(kLastName);
    }
    void Save(const QString& actingUserId, int flag = 0);
    const QString& Question() const { return mQuestion; }
    void Question(const QString& value) {
        mQuestion = value;
        markSet(kQuestion);
    }
    const QString& Answer() const { return mAnswer; }
    void Answer(const QString& value) {
        mAnswer = value;
        markSet(kAnswer);
    }

    // True for a record read from the database (not one made here or a marker).
    bool IsStored() const { return mUserKey != 0; }

private:
    friend class cSecurityService;
    enum : quint32 {
        kAccessLevel = 1,
        kPassword = 2,
        kUserId = 4,
        kFirstName = 8,
        kLastName = 16,
        kQuestion = 32,
        kAnswer = 64
    };
    // Fills the fields from the stored row of key.
    void readRow(SqliteStore& store, qint64 key, const QString& source);

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
