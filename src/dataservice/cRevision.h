#pragma once

#include <QDateTime>
#include <QString>

namespace qs {

// One line of an item's revision history.  It comes only from a cRevisions list: a stored line
// is history and refuses changes ("Object is read-only."); a line added by cRevisions::Add is
// filled by the caller and written by the Save of its item.
class cRevision {
public:
    cRevision() = default;

    const QString& AuthorFirstName() const { return mAuthorFirstName; }
    const QString& AuthorLastName() const { return mAuthorLastName; }
    int AuthorId() const { return mAuthorId; }
    void AuthorId(int value);
    const QString& Comment() const { return mComment; }
    void Comment(const QString& value);
    const QString& Version() const { return mVersion; }
    void Version(const QString& value);
    const QDateTime& DateRevised() const { return mDateRevised; }
    void DateRevised(const QDateTime& value);

    bool isStored() const { return mStored; }

private:
    friend class cRevisions;
    friend class RevisionStore;
    void checkWritable() const;

    QString mAuthorFirstName;
    QString mAuthorLastName;
    int mAuthorId = 0;
    QString mComment;
    QString mVersion;
    QDateTime mDateRevised;
    bool mStored = false;
};

} // namespace qs
