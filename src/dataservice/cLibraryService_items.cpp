#include "ServiceErrors.h"
#include "SqliteStore.h"
#include "cLibraryService.h"

#include <QSqlQuery>

namespace qs {

namespace {

bool isCodeTable(const QString& table) {
    return table == QLatin1String("SourceCode");
}

// The item table a bookmark table points into, and the columns of both.
struct BookmarkTable {
    QString table;
    QString itemTable;
    QString itemColumn;
};

BookmarkTable bookmarkTable(const QString& name, const QString& source) {
    if (name == QLatin1String("BkMark_SrcCode"))
        return {name, QStringLiteral("SourceCode"), QStringLiteral("SourceCodeId")};
    if (name == QLatin1String("BkMark_SrcFile"))
        return {name, QStringLiteral("SourceFile"), QStringLiteral("SourceFileId")};
    RaiseServiceError(kErrMissingParameters, source);
}

// Item-row columns of either table, as itemRowFrom reads them.
QString itemColumns(const QString& table, const QString& alias) {
    if (isCodeTable(table))
        return QStringLiteral("%1.ParentId, %1.Id, %1.CategoryId, %1.CodeTypeId, %1.Tested, "
                              "%1.Description, %1.IsFolder")
            .arg(alias);
    return QStringLiteral("%1.ParentId, %1.Id, %1.CategoryId, %1.FileTypeId, 0, "
                          "%1.Description, %1.IsFolder")
        .arg(alias);
}

} // namespace

VbArray<ItemRow> cLibraryService::GetItems(const QString& strTable, int, int lngCategoryId,
                                           int lngCodeTypeId, int lngAuthorId, int, int intStatus,
                                           int) {
    const QString source = QStringLiteral("cLibraryService:GetItems;");
    if (strTable != QLatin1String("SourceCode") && strTable != QLatin1String("SourceFile"))
        RaiseServiceError(kErrMissingParameters, source);
    const bool code = isCodeTable(strTable);
    QStringList where;
    QVariantList binds;
    if (lngCategoryId != 0) {
        where << QStringLiteral("s.CategoryId = ?");
        binds << lngCategoryId;
    }
    if (lngCodeTypeId != 0) {
        where << (code ? QStringLiteral("s.CodeTypeId = ?") : QStringLiteral("s.FileTypeId = ?"));
        binds << lngCodeTypeId;
    }
    if (lngAuthorId != 0) {
        where << QStringLiteral("s.AuthorId = ?");
        binds << lngAuthorId;
    }
    if (intStatus != 0 && code) {
        where << QStringLiteral("s.Tested = ?");
        binds << intStatus;
    }
    QString sql = QStringLiteral("SELECT %1 FROM %2 s")
                      .arg(itemColumns(strTable, QStringLiteral("s")), strTable);
    if (!where.isEmpty())
        sql += QStringLiteral(" WHERE ") + where.join(QStringLiteral(" AND "));
    sql += QStringLiteral(" ORDER BY s.Id");
    QSqlQuery query = store(source).run(sql, binds, source);
    VbArray<ItemRow> rows;
    while (query.next())
        rows.append(itemRowFrom(query));
    orderParentsFirst(rows);
    return rows;
}

int cLibraryService::AddCategory(const QString& strName) {
    const QString source = QStringLiteral("cLibraryService:AddCategory;");
    SqliteStore& db = store(source);
    SqliteStore::Transaction transaction(db, source);
    QSqlQuery insert =
        db.run(QStringLiteral("INSERT INTO Category (Description) VALUES (?)"), {strName}, source);
    const int id = insert.lastInsertId().toInt();
    transaction.commit();
    return id;
}

void cLibraryService::DeleteCategory(int lngId) {
    const QString source = QStringLiteral("cLibraryService:DeleteCategory;");
    if (lngId == 1)
        RaiseServiceError(kErrRecordInUse, source,
                          QStringLiteral("\"Visual Basic\" cannot be deleted."));
    SqliteStore& db = store(source);
    SqliteStore::Transaction transaction(db, source);
    const bool used = db.scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM SourceCode WHERE "
                                               "CategoryId = ?) OR EXISTS (SELECT 1 FROM "
                                               "SourceFile WHERE CategoryId = ?)"),
                                {lngId, lngId}, source)
                          .toBool();
    if (used)
        RaiseServiceError(kErrRecordInUse, source, QStringLiteral("the category holds items."));
    db.run(QStringLiteral("DELETE FROM Category WHERE Id = ?"), {lngId}, source);
    transaction.commit();
}

void cLibraryService::UpdateCategory(int lngId, const QString& strName) {
    const QString source = QStringLiteral("cLibraryService:UpdateCategory;");
    SqliteStore& db = store(source);
    SqliteStore::Transaction transaction(db, source);
    QSqlQuery update = db.run(QStringLiteral("UPDATE Category SET Description = ? WHERE Id = ?"),
                              {strName, lngId}, source);
    if (update.numRowsAffected() == 0)
        RaiseServiceError(kErrRecordNotFound, source);
    transaction.commit();
}

void cLibraryService::AddBookmark(const QString& strTable, int lngItemId, const QString& strUserId,
                                  bool) {
    const QString source = QStringLiteral("cLibraryService:AddBookmark;");
    const BookmarkTable bk = bookmarkTable(strTable, source);
    SqliteStore& db = store(source);
    SqliteStore::Transaction transaction(db, source);
    const QVariant userKey = db.scalar(QStringLiteral("SELECT UserKey FROM Users WHERE UserId = ?"),
                                       {strUserId}, source);
    if (!userKey.isValid())
        RaiseServiceError(kErrMissingParameters, source);
    db.run(QStringLiteral("INSERT OR IGNORE INTO %1 (UserKey, %2) VALUES (?, ?)")
               .arg(bk.table, bk.itemColumn),
           {userKey, lngItemId}, source);
    transaction.commit();
}

void cLibraryService::DeleteBookmark(const QString& strTable, const QString& strUserId,
                                     int lngItemId) {
    const QString source = QStringLiteral("cLibraryService:DeleteBookmark;");
    const BookmarkTable bk = bookmarkTable(strTable, source);
    SqliteStore& db = store(source);
    SqliteStore::Transaction transaction(db, source);
    db.run(QStringLiteral("DELETE FROM %1 WHERE %2 = ? AND UserKey = (SELECT UserKey FROM Users "
                          "WHERE UserId = ?)")
               .arg(bk.table, bk.itemColumn),
           {lngItemId, strUserId}, source);
    transaction.commit();
}

VbArray<ItemRow> cLibraryService::GetBookmarks(const QString& strTable, const QString& strUserId,
                                               bool) {
    const QString source = QStringLiteral("cLibraryService:GetBookmarks;");
    const BookmarkTable bk = bookmarkTable(strTable, source);
    QSqlQuery query = store(source).run(
        QStringLiteral("SELECT %1 FROM %2 b JOIN Users u ON u.UserKey = b.UserKey "
                       "JOIN %3 s ON s.Id = b.%4 WHERE u.UserId = ? ORDER BY b.BkMarkId")
            .arg(itemColumns(bk.itemTable, QStringLiteral("s")), bk.table, bk.itemTable,
                 bk.itemColumn),
        {strUserId}, source);
    VbArray<ItemRow> rows;
    while (query.next())
        rows.append(itemRowFrom(query));
    return rows;
}

} // namespace qs
