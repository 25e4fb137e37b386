#include "WindowLibrary.h"

#include "SqliteStore.h"
#include "TreeShape.h"

#include <QDateTime>
#include <QFile>
#include <QSqlQuery>
#include <QStringList>

namespace qs::bench {

namespace {

const QString kSource = QStringLiteral("bench:WindowLibrary;");

const QStringList kTopics{"Windows API", "Database",   "Strings",  "Forms",   "Graphics",
                          "Registry",    "Networking", "Printing", "Dates",   "Controls",
                          "Files",       "Security",   "Sound",    "Classes", "Math"};

// About `bytes` of a module's code: a header, then numbered procedures.
QString bigModule(int bytes) {
    QString code =
        QStringLiteral("Attribute VB_Name = \"mLargeModule\"\r\nOption Explicit\r\n\r\n");
    for (int n = 1; code.size() < bytes; ++n)
        code += QStringLiteral("Public Function Routine%1(ByVal lngValue As Long) As Long\r\n"
                               "    ' Step %1 of the conversion table.\r\n"
                               "    Routine%1 = lngValue * %1 + %2\r\nEnd Function\r\n\r\n")
                    .arg(n)
                    .arg(n % 7);
    return code;
}

} // namespace

QVector<ItemRow> WindowLibrary::rowsOf(int items) {
    const int firstId =
        items == kLargeItems ? kSmallItems + TreeShape::folderCount(kSmallItems) + 1 : 1;
    return TreeShape::rows(items, categoryOf(items), firstId);
}

int WindowLibrary::bigItemId() {
    return kSmallItems + TreeShape::folderCount(kSmallItems) + kLargeItems +
           TreeShape::folderCount(kLargeItems) + 1;
}

void WindowLibrary::build(const QString& path) {
    for (const char* suffix : {"", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(suffix));
    SqliteStore::create(path, QString(), kSource);
    auto store = SqliteStore::open(path, kSource);
    store->run(QStringLiteral("PRAGMA synchronous = OFF"), {}, kSource);
    SqliteStore::Transaction transaction(*store, kSource);
    // Category 1, "Visual Basic", comes with a new library.
    for (int c = 2; c <= kCategories; ++c)
        store->run(QStringLiteral("INSERT INTO Category (Id, Description) VALUES (?, ?)"),
                   {c, QStringLiteral("%1 %2").arg(kTopics.at(c % kTopics.size())).arg(c)},
                   kSource);
    store->run(QStringLiteral("INSERT INTO Authors (FirstName, LastName) VALUES ('Bench', "
                              "'Writer')"),
               {}, kSource);

    QSqlQuery insert = store->prepare(
        QStringLiteral("INSERT INTO SourceCode (Id, ParentId, CategoryId, CodeTypeId, Tested, "
                       "AuthorId, IsFolder, Description, DateWritten, DateEntered, Code) VALUES "
                       "(?, ?, ?, ?, ?, 1, ?, ?, ?, ?, ?)"),
        kSource);
    const QVariant date = StoredDate(QDateTime(QDate(2003, 4, 1), QTime(10, 0)));
    const auto add = [&](const ItemRow& row, const QString& code) {
        const QVariantList values{row.Id,
                                  row.ParentId,
                                  row.CategoryId,
                                  row.TypeId,
                                  row.Tested,
                                  row.IsFolder ? 1 : 0,
                                  row.Description,
                                  date,
                                  date,
                                  code};
        for (int i = 0; i < values.size(); ++i)
            insert.bindValue(i, values.at(i));
        store->exec(insert, kSource);
    };
    for (int items : {kSmallItems, kLargeItems})
        for (const ItemRow& row : rowsOf(items))
            add(row, row.IsFolder
                         ? QString()
                         : QStringLiteral("' %1\r\nDebug.Print \"%1\"\r\n").arg(row.Description));

    ItemRow big;
    big.Id = bigItemId();
    big.CategoryId = kBigItemCategory;
    big.TypeId = TreeShape::kTypeId;
    big.Tested = TreeShape::kTested;
    big.Description = QStringLiteral("Large conversion module");
    add(big, bigModule(kBigItemCodeBytes));
    const QDateTime first(QDate(2003, 4, 1), QTime(10, 0));
    for (int r = 0; r < kBigItemRevisions; ++r)
        store->run(QStringLiteral("INSERT INTO RevHist_SrcCode (SourceCodeId, Seq, AuthorId, "
                                  "Version, Comment, DateRevised) VALUES (?, ?, 1, ?, ?, ?)"),
                   {big.Id, r + 1, QStringLiteral("1.%1.%2").arg(r / 10).arg(r % 10),
                    QStringLiteral("Revision %1 of the table").arg(r + 1),
                    StoredDate(first.addDays(7 * r))},
                   kSource);
    insert.finish();
    transaction.commit();
    store->run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"), {}, kSource);
}

} // namespace qs::bench
