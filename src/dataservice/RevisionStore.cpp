#include "RevisionStore.h"

#include "SqliteStore.h"

namespace qs {

void RevisionStore::load(SqliteStore& store, int itemId, cRevisions& into,
                         const QString& source) const {
    QSqlQuery query =
        store.run(QStringLiteral("SELECT r.AuthorId, r.Comment, r.Version, r.DateRevised, "
                                 "COALESCE(a.FirstName, ''), COALESCE(a.LastName, '') FROM %1 r "
                                 "LEFT JOIN Authors a ON a.AuthorId = r.AuthorId WHERE r.%2 = ? "
                                 "ORDER BY r.Seq")
                      .arg(mTable, mItemColumn),
                  {itemId}, source);
    into.mLines.clear();
    while (query.next()) {
        cRevision line;
        line.mAuthorId = query.value(0).toInt();
        line.mComment = query.value(1).toString();
        line.mVersion = query.value(2).toString();
        line.mDateRevised = DateFromStored(query.value(3));
        line.mAuthorFirstName = query.value(4).toString();
        line.mAuthorLastName = query.value(5).toString();
        line.mStored = true;
        into.mLines.push_back(std::move(line));
    }
}

QVector<RevisionStore::Written> RevisionStore::writeNew(SqliteStore& store, int itemId,
                                                        const cRevisions& lines,
                                                        const QString& source) const {
    QVector<Written> written;
    int seq = store
                  .scalar(QStringLiteral("SELECT COALESCE(MAX(Seq), 0) FROM %1 WHERE %2 = ?")
                              .arg(mTable, mItemColumn),
                          {itemId}, source)
                  .toInt();
    QSqlQuery insert = store.prepare(
        QStringLiteral("INSERT INTO %1 (%2, Seq, AuthorId, Version, Comment, DateRevised) "
                       "VALUES (?, ?, ?, ?, ?, ?)")
            .arg(mTable, mItemColumn),
        source);
    QSqlQuery names = store.prepare(
        QStringLiteral("SELECT FirstName, LastName FROM Authors WHERE AuthorId = ?"), source);
    int index = 0;
    for (const cRevision& line : lines) {
        if (!line.isStored()) {
            insert.addBindValue(itemId);
            insert.addBindValue(++seq);
            insert.addBindValue(OptionalId(line.AuthorId()));
            insert.addBindValue(line.Version());
            insert.addBindValue(line.Comment());
            insert.addBindValue(StoredDate(line.DateRevised()));
            store.exec(insert, source);
            Written entry{index, QString(), QString()};
            names.addBindValue(line.AuthorId());
            store.exec(names, source);
            if (names.next()) {
                entry.firstName = names.value(0).toString();
                entry.lastName = names.value(1).toString();
            }
            names.finish();
            written.append(entry);
        }
        ++index;
    }
    return written;
}

void RevisionStore::markStored(cRevisions& lines, const QVector<Written>& written) {
    for (const Written& entry : written) {
        cRevision& line = lines.mLines[static_cast<size_t>(entry.index)];
        line.mAuthorFirstName = entry.firstName;
        line.mAuthorLastName = entry.lastName;
        line.mStored = true;
    }
}

} // namespace qs
