#pragma once

#include "cRevisions.h"

#include <QString>
#include <QVector>

namespace qs {

class SqliteStore;

// Reads and writes the revision lines of one item.  A line's place in the history is its Seq,
// numbered from 1 in the order of entry; new lines are appended after the highest Seq stored.
class RevisionStore {
public:
    // table is "RevHist_SrcCode" or "RevHist_SrcFile"; itemColumn "SourceCodeId" or
    // "SourceFileId".
    RevisionStore(const QString& table, const QString& itemColumn)
        : mTable(table), mItemColumn(itemColumn) {}

    void load(SqliteStore& store, int itemId, cRevisions& into, const QString& source) const;
    // Inserts the lines not stored yet, inside the caller's transaction.  Returns what
    // markStored needs once the transaction has committed.
    struct Written {
        int index; // 0-based place in the list
        QString firstName;
        QString lastName;
    };
    QVector<Written> writeNew(SqliteStore& store, int itemId, const cRevisions& lines,
                              const QString& source) const;
    static void markStored(cRevisions& lines, const QVector<Written>& written);

private:
    QString mTable;
    QString mItemColumn;
};

} // namespace qs
