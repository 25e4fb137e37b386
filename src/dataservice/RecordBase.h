#pragma once

#include <QString>

namespace qs {

// What every record shares: the database file it belongs to and the editing discipline.
// BeginEdit(0) opens the record; fields are set; Deleted may be set; Save writes, in one
// transaction, and closes the record again.  Nothing is written before Save, and a Save without
// BeginEdit raises "Object is read-only.".  A record keeps the path of its file, not a
// connection: it stays usable after the service object that handed it out is gone, and each
// Save opens its own connection.  A record made by its default constructor belongs to the
// database the settings name at the moment it is made.
//
// A Save that updates a stored row writes only the fields set since the record was read or last
// saved: a field the caller did not set keeps what is stored, whatever the record holds for it
// (an empty marker record, or a copy older than another program's change).
class RecordBase {
public:
    void BeginEdit(int flag = 0);
    void Deleted(bool value) { mDeleted = value; }
    bool Deleted() const { return mDeleted; }
    bool IsEditing() const { return mEditing; }
    // The file this record is read from and saved to.
    const QString& DatabasePath() const { return mDatabasePath; }

protected:
    RecordBase();
    explicit RecordBase(const QString& databasePath) : mDatabasePath(databasePath) {}

    // Raises "Object is read-only." unless BeginEdit was called; source names the Save.
    void checkEditing(const QString& source) const;
    void endEdit() {
        mEditing = false;
        mDeleted = false;
        mSetFields = 0;
    }
    // Field bits are each record's own; a setter marks its field.
    void markSet(quint32 field) { mSetFields |= field; }
    bool isSet(quint32 field) const { return (mSetFields & field) != 0; }

    QString mDatabasePath;
    bool mEditing = false;
    bool mDeleted = false;
    quint32 mSetFields = 0;
};

} // namespace qs
