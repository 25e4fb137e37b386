// cSourceFile: the catalogue fields and revisions (the bytes and facts are tested with them).
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

#include <QMap>
#include <QStringList>

using namespace qs;
using namespace qs::test;

using SourceFileRecord = DataServiceTest;

TEST_F(SourceFileRecord, CatalogueFieldsAndRevisionsRoundTrip) {
    const int author = addAuthor(QStringLiteral("Ada"), QStringLiteral("Lovelace"));
    const int folder = addFile(QStringLiteral("Papers"), 1, 101, 0, true);
    cSourceFile item(dbPath);
    item.BeginEdit(0);
    item.CategoryId(1);
    item.FileTypeId(101);
    item.AuthorId(author);
    item.ParentId(folder);
    item.Description(QStringLiteral("Notes on the engine"));
    item.Notes(QStringLiteral("Translated"));
    cRevision& line = item.Revisions().Add(0);
    line.Version(QStringLiteral("1.0.0"));
    line.Comment(QStringLiteral("Initial Source File Entry"));
    line.AuthorId(author);
    const int id = item.Save();

    const cSourceFile back = cLibraryService(dbPath).GetSourceFile(id);
    EXPECT_EQ(back.Description(), QStringLiteral("Notes on the engine"));
    EXPECT_EQ(back.Notes(), QStringLiteral("Translated"));
    EXPECT_EQ(back.ParentId(), folder);
    EXPECT_EQ(back.FileTypeId(), 101);
    EXPECT_FALSE(back.IsFolder());
    EXPECT_TRUE(back.DateEntered().isValid());
    EXPECT_EQ(back.AuthorLastName(), QStringLiteral("Lovelace"));
    ASSERT_EQ(back.Revisions().Count(), 1);
    EXPECT_EQ(back.Revisions().Item(1).Comment(), QStringLiteral("Initial Source File Entry"));
    EXPECT_EQ(back.Revisions().Item(1).AuthorFirstName(), QStringLiteral("Ada"));
    EXPECT_TRUE(cLibraryService(dbPath).GetSourceFile(folder).IsFolder());
}

TEST_F(SourceFileRecord, RenameKeepsDateEnteredAndRevisions) {
    const int id = addFile(QStringLiteral("Old name"));
    cSourceFile item = cLibraryService(dbPath).GetSourceFile(id);
    const QDateTime entered = item.DateEntered();
    item.BeginEdit(0);
    item.Description(QStringLiteral("New name"));
    item.Save();
    const cSourceFile back = cLibraryService(dbPath).GetSourceFile(id);
    EXPECT_EQ(back.Description(), QStringLiteral("New name"));
    EXPECT_EQ(back.DateEntered(), entered);
}

TEST_F(SourceFileRecord, UnknownIdRaisesNotFound) {
    const QsError e = Raised([&] { cLibraryService(dbPath).GetSourceFile(4711); });
    EXPECT_EQ(e.number(), kErrRecordNotFound);
    EXPECT_EQ(e.source(), QStringLiteral("cLibraryService:GetSourceFile;"));
}

TEST_F(SourceFileRecord, DeleteTakesBookmarksRevisionsAndStoredBytes) {
    addUser(QStringLiteral("bob"));
    const int id = addFile(QStringLiteral("Doomed"));
    cLibraryService library(dbPath);
    library.AddBookmark(QStringLiteral("BkMark_SrcFile"), id, QStringLiteral("bob"));
    {
        RawDb raw(dbPath);
        ASSERT_TRUE(raw.exec(QStringLiteral("PRAGMA foreign_keys = ON")));
        ASSERT_TRUE(raw.exec(
            QStringLiteral(
                "INSERT INTO SourceFileChunk (SourceFileId, Seq, Data) VALUES (%1, 1, x'00ff')")
                .arg(id)));
    }
    cSourceFile item = library.GetSourceFile(id);
    DeleteRecord(item);
    for (const char* table : {"SourceFileChunk", "BkMark_SrcFile", "SourceFile"})
        EXPECT_EQ(rows(QString::fromLatin1(table)), 0) << table;
}

TEST_F(SourceFileRecord, ADeleteThatFailsMidwayLeavesTheItemWithAllItHolds) {
    addUser(QStringLiteral("bob"));
    const QString path = WriteFile(home->file(QStringLiteral("paper.txt")), "the stored bytes");
    cSourceFile item(dbPath);
    item.LoadFile(path, 0, 1, 101);
    item.BeginEdit(0);
    item.Description(QStringLiteral("Kept"));
    item.Revisions().Add(0).Version(QStringLiteral("1.0.0"));
    const int id = item.Save();
    cLibraryService library(dbPath);
    library.AddBookmark(QStringLiteral("BkMark_SrcFile"), id, QStringLiteral("bob"));
    const QStringList tables = {"SourceFile", "RevHist_SrcFile", "BkMark_SrcFile",
                                "SourceFileChunk"};
    QMap<QString, int> before;
    for (const QString& table : tables)
        before[table] = rows(table);
    // The last part of the delete, the bookmarks, fails.
    ASSERT_TRUE(RawDb(dbPath).exec(QStringLiteral(
        "CREATE TRIGGER Refuse BEFORE DELETE ON BkMark_SrcFile BEGIN SELECT RAISE(ABORT, "
        "'disc full'); END")));

    cSourceFile doomed = library.GetSourceFile(id);
    Raised([&] { DeleteRecord(doomed); });
    for (const QString& table : tables) {
        EXPECT_GT(before[table], 0) << table.toStdString();
        EXPECT_EQ(rows(table), before[table]) << table.toStdString();
    }
    const QString out = home->file(QStringLiteral("out.txt"));
    library.GetSourceFile(id).SaveToDisk(out);
    EXPECT_EQ(ReadFile(out), "the stored bytes");
}
