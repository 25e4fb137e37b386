#include "PlainScan.h"

#include "SearchMatcher.h"
#include "TokenCharacters.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace qs::bench {

namespace {

int gConnections = 0;

QSqlQuery forwardQuery(const QString& connection, const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(connection));
    query.setForwardOnly(true);
    query.exec(sql);
    return query;
}

} // namespace

PlainScan::PlainScan(const QString& path)
    : mConnectionName(QStringLiteral("bench_scan_%1").arg(++gConnections)) {
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), mConnectionName);
    db.setDatabaseName(path);
    db.open();
}

PlainScan::~PlainScan() {
    QSqlDatabase::database(mConnectionName).close();
    QSqlDatabase::removeDatabase(mConnectionName);
}

QList<int> PlainScan::items(int categoryId, int codeTypeId, int status) {
    QList<int> ids;
    QSqlQuery query = forwardQuery(
        mConnectionName, QStringLiteral("SELECT ParentId, Id, CategoryId, CodeTypeId, Tested, "
                                        "Description, IsFolder FROM SourceCode NOT INDEXED"));
    while (query.next()) {
        if ((categoryId == 0 || query.value(2).toInt() == categoryId) &&
            (codeTypeId == 0 || query.value(3).toInt() == codeTypeId) &&
            (status == 0 || query.value(4).toInt() == status))
            ids << query.value(1).toInt();
    }
    return ids;
}

QString PlainScan::code(int id) {
    QString found;
    QSqlQuery query = forwardQuery(mConnectionName,
                                   QStringLiteral("SELECT Id, Code FROM SourceCode NOT INDEXED"));
    while (query.next()) {
        if (query.value(0).toInt() == id)
            found = query.value(1).toString();
    }
    return found;
}

QList<int> PlainScan::search(int mode, const QString& text, int categoryId, int status,
                             int codeTypeId, bool itemsOnly) {
    QSqlQuery definition = forwardQuery(
        mConnectionName,
        QStringLiteral("SELECT sql FROM sqlite_master WHERE name = 'SourceCodeSearch'"));
    definition.next();
    auto& tokens = TokenCharacters::forTokenizer(
        TokenCharacters::tokenizerOf(definition.value(0).toString()), QStringLiteral("bench"));
    const SearchMatcher matcher(mode, text, tokens);
    QList<int> ids;
    QSqlQuery query = forwardQuery(
        mConnectionName, QStringLiteral("SELECT Id, CategoryId, CodeTypeId, Tested, Description, "
                                        "Code, Notes, Example, IsFolder FROM SourceCode NOT "
                                        "INDEXED"));
    while (query.next()) {
        if ((!itemsOnly || !query.value(8).toBool()) &&
            (categoryId == 0 || query.value(1).toInt() == categoryId) &&
            (codeTypeId == 0 || query.value(2).toInt() == codeTypeId) &&
            (status == 0 || query.value(3).toInt() == status) &&
            matcher.rowMatches({query.value(4).toString(), query.value(5).toString(),
                                query.value(6).toString(), query.value(7).toString()}))
            ids << query.value(0).toInt();
    }
    return ids;
}

qint64 PlainScan::itemCount(const QString& path) {
    PlainScan scan(path);
    qint64 count = -1;
    {
        QSqlQuery query = forwardQuery(scan.mConnectionName,
                                       QStringLiteral("SELECT count(*) FROM SourceCode WHERE "
                                                      "IsFolder = 0"));
        if (query.next())
            count = query.value(0).toLongLong();
    }
    return count;
}

} // namespace qs::bench
