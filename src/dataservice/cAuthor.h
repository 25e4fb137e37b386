#pragma once

#include "RecordBase.h"

#include <QString>

namespace qs {

// A person credited with items.  Not a user, although the first user is also made an author.
//
// Save writes a new row for a record made here (AuthorId is then set), an update of the names
// set since the record was read otherwise.
// With Deleted set, Save removes the author; an author still credited with an item (SourceCode
// or SourceFile) is refused with kErrRecordInUse and stays.  Revision lines the author made
// stay, with empty author names.  Deleting a record that was never saved does nothing.
class cAuthor : public RecordBase {
public:
    // A new author of the database the settings name now.
    cAuthor() = default;
    // A new author of that database file.
    explicit cAuthor(const QString& databasePath) : RecordBase(databasePath) {}

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
    int AuthorId() const { return mAuthorId; }
    void Save();

private:
    friend class cLibraryService;
    enum : quint32 { kFirstName = 1, kLastName = 2 };

    QString mFirstName;
    QString mLastName;
    int mAuthorId = 0;
};

} // namespace qs
