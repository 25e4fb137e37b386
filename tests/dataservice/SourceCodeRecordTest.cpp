// cSourceCode: the editing discipline, revisions and one transaction per Save.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

using namespace qs;
using namespace qs::test;

using SourceCodeRecord = DataServiceTest;

TEST_F(SourceCodeRecord, SaveWritesEveryFieldAndGetSourceCodeReadsThemBack) {
    const int author = addAuthor(QStringLiteral("Grace"), QStringLiteral("Hopper"));
    const QDateTime written(QDate(2001, 2, 3), QTime(4, 5, 6));
    cSourceCode item = newCode(203);
    item.Tested(2);
    item.AuthorId(author);
    item.DateWritten(written);
    item.Description(QStringLiteral("Stack"));
    item.Notes(QStringLiteral("Notes \"quoted\"\r\nsecond line"));
    item.Example(QStringLiteral("Set s = New Stack"));
    item.Code(QStringLiteral("Option Explicit\r\nPrivate m() As Variant"));
    int id = 0;
    item.Save(id);
    ASSERT_GT(id, 0);
    EXPECT_EQ(item.Id(), id);

    const cSourceCode back = cLibraryService(dbPath).GetSourceCode(id);
    EXPECT_EQ(back.CategoryId(), 1);
    EXPECT_EQ(back.CodeTypeId(), 203);
    EXPECT_EQ(back.Tested(), 2);
    EXPECT_EQ(back.AuthorFirstName(), QStringLiteral("Grace"));
    EXPECT_EQ(back.AuthorLastName(), QStringLiteral("Hopper"));
    EXPECT_EQ(back.DateWritten(), written);
    EXPECT_TRUE(back.DateEntered().isValid());
    EXPECT_EQ(back.Notes(), QStringLiteral("Notes \"quoted\"\r\nsecond line"));
    EXPECT_EQ(back.Example(), QStringLiteral("Set s = New Stack"));
    EXPECT_EQ(back.Code(), QStringLiteral("Option Explicit\r\nPrivate m() As Variant"));
    EXPECT_FALSE(back.IsFolder());
}

TEST_F(SourceCodeRecord, SaveWithoutBeginEditIsRefusedAndNothingIsWrittenBeforeSave) {
    const int id = addCode(QStringLiteral("Before"));
    cSourceCode item = cLibraryService(dbPath).GetSourceCode(id);
    item.Description(QStringLiteral("Changed"));
    const QsError e = Raised([&] { item.Save(); });
    EXPECT_EQ(e.number(), kErrReadOnly);
    EXPECT_EQ(e.description(), QStringLiteral("Object is read-only."));

    item.BeginEdit(0);
    item.Description(QStringLiteral("After"));
    item.Revisions().Add(0).Version(QStringLiteral("1.1.0"));
    const cSourceCode stored = cLibraryService(dbPath).GetSourceCode(id);
    EXPECT_EQ(stored.Description(), QStringLiteral("Before"));
    EXPECT_EQ(stored.Revisions().Count(), 0);
}

TEST_F(SourceCodeRecord, RevisionsKeepTheirEntryOrderAcrossSaves) {
    const int author = addAuthor(QStringLiteral("Alan"), QStringLiteral("Turing"));
    cSourceCode item = newCode();
    item.Description(QStringLiteral("Versions"));
    // Versions that sort differently as text, by date and by entry.
    const QStringList versions{QStringLiteral("1.0.0"), QStringLiteral("1.10.0"),
                               QStringLiteral("1.2.0")};
    for (int i = 0; i < 3; ++i) {
        cRevision& line = item.Revisions().Add(0);
        line.Version(versions[i]);
        line.Comment(QStringLiteral("comment %1").arg(i));
        line.AuthorId(author);
        line.DateRevised(QDateTime(QDate(2020, 1, 10 - i), QTime(12, 0)));
    }
    const int id = item.Save();
    EXPECT_EQ(item.Revisions().Item(1).AuthorLastName(), QStringLiteral("Turing"));

    cSourceCode again = cLibraryService(dbPath).GetSourceCode(id);
    again.BeginEdit(0);
    again.Revisions().Add(0).Version(QStringLiteral("0.9.0"));
    again.Save();

    const cSourceCode back = cLibraryService(dbPath).GetSourceCode(id);
    ASSERT_EQ(back.Revisions().Count(), 4);
    QStringList seen;
    for (const cRevision& line : back.Revisions())
        seen << line.Version();
    EXPECT_EQ(seen, (QStringList{"1.0.0", "1.10.0", "1.2.0", "0.9.0"}));
    EXPECT_EQ(back.Revisions().Item(2).Comment(), QStringLiteral("comment 1"));
    EXPECT_EQ(back.Revisions().Item(1).AuthorFirstName(), QStringLiteral("Alan"));
    EXPECT_EQ(back.Revisions().Item(3).DateRevised(), QDateTime(QDate(2020, 1, 8), QTime(12, 0)));
}

TEST_F(SourceCodeRecord, RevisionLineOutsideTheListRaisesAndAStoredOneIsReadOnly) {
    cSourceCode item = newCode();
    item.Revisions().Add(0).Version(QStringLiteral("1.0.0"));
    EXPECT_EQ(Raised([&] { item.Revisions().Item(0); }).number(), 9);
    EXPECT_EQ(Raised([&] { item.Revisions().Item(2); }).number(), 9);
    const int id = item.Save();
    cSourceCode back = cLibraryService(dbPath).GetSourceCode(id);
    EXPECT_EQ(Raised([&] { back.Revisions().Item(1).Comment(QStringLiteral("rewrite")); }).number(),
              kErrReadOnly);
}

TEST_F(SourceCodeRecord, FailingSaveWritesNeitherRecordNorRevisions) {
    const int author = addAuthor(QStringLiteral("A"), QStringLiteral("B"));
    cSourceCode item = newCode();
    item.Description(QStringLiteral("Half"));
    item.Revisions().Add(0).AuthorId(author);
    item.Revisions().Add(0).AuthorId(9999); // no such author: the second line fails
    const QsError e = Raised([&] { item.Save(); });
    EXPECT_EQ(e.number(), kErrMissingParameters);
    EXPECT_EQ(item.Id(), 0);
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), 0);
    EXPECT_EQ(rows(QStringLiteral("RevHist_SrcCode")), 0);
}

TEST_F(SourceCodeRecord, NewItemWithoutCategoryOrTypeIsRefused) {
    cSourceCode item(dbPath);
    item.BeginEdit(0);
    item.CodeTypeId(201);
    EXPECT_EQ(Raised([&] { item.Save(); }).number(), kErrMissingParameters);
    item.CategoryId(1);
    item.CodeTypeId(0);
    EXPECT_EQ(Raised([&] { item.Save(); }).number(), kErrMissingParameters);
    item.CodeTypeId(101); // a file type is no code type
    EXPECT_EQ(Raised([&] { item.Save(); }).number(), kErrMissingParameters);
}

TEST_F(SourceCodeRecord, DeleteRemovesRevisionsAndBookmarks) {
    addUser(QStringLiteral("ann"));
    cSourceCode item = newCode(202);
    item.Revisions().Add(0).Version(QStringLiteral("1.0.0"));
    const int id = item.Save();
    cLibraryService library(dbPath);
    library.AddBookmark(QStringLiteral("BkMark_SrcCode"), id, QStringLiteral("ann"));

    cSourceCode doomed = library.GetSourceCode(id);
    DeleteRecord(doomed);

    EXPECT_EQ(Raised([&] { library.GetSourceCode(id); }).number(), kErrRecordNotFound);
    EXPECT_EQ(
        library.GetBookmarks(QStringLiteral("BkMark_SrcCode"), QStringLiteral("ann")).UBound(), 0);
    EXPECT_EQ(rows(QStringLiteral("RevHist_SrcCode")), 0);
}

TEST_F(SourceCodeRecord, FolderThatHoldsItemsCannotBeDeleted) {
    const int folder = addCode(QStringLiteral("Folder"), 1, 201, 1, 0, true);
    addCode(QStringLiteral("Child"), 1, 201, 1, folder);
    cSourceCode record = cLibraryService(dbPath).GetSourceCode(folder);
    record.BeginEdit(0);
    record.Deleted(true);
    EXPECT_EQ(Raised([&] { record.Save(); }).number(), kErrRecordInUse);
    EXPECT_TRUE(cLibraryService(dbPath).GetSourceCode(folder).IsFolder());
}

TEST_F(SourceCodeRecord, SaveWritesOnlyTheFieldsItWasGiven) {
    const int id = addCode(QStringLiteral("Shared"));
    cSourceCode mine = cLibraryService(dbPath).GetSourceCode(id);
    cSourceCode theirs = cLibraryService(dbPath).GetSourceCode(id);
    theirs.BeginEdit(0);
    theirs.Notes(QStringLiteral("Their notes"));
    theirs.Save();
    mine.BeginEdit(0);
    mine.Description(QStringLiteral("Renamed"));
    mine.Save();

    const cSourceCode back = cLibraryService(dbPath).GetSourceCode(id);
    EXPECT_EQ(back.Description(), QStringLiteral("Renamed"));
    EXPECT_EQ(back.Notes(), QStringLiteral("Their notes"));
    EXPECT_EQ(back.Code(), QStringLiteral("code of Shared"));
}

TEST_F(SourceCodeRecord, MalformedTextComesBackAsReplacementWithItsNeighbours) {
    const QChar high(0xD83D), low(0xDE00), bad(0xFFFD);
    const QString emoji = QString(high) + low;
    const struct {
        QString stored;
        QString back;
    } cases[] = {
        {QStringLiteral("a") + high + QStringLiteral("bc"), QStringLiteral("a") + bad + "bc"},
        {QStringLiteral("a") + low + QStringLiteral("bc"), QStringLiteral("a") + bad + "bc"},
        {QStringLiteral("ab") + high, QStringLiteral("ab") + bad},
        {QString(low) + high + emoji + "z", QString(bad) + bad + emoji + "z"},
        {QString(high) + high + low, QString(bad) + emoji},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.back.toStdString());
        cSourceCode item = newCode();
        item.Description(c.stored);
        item.Code(c.stored);
        const int id = item.Save();
        const cSourceCode back = cLibraryService(dbPath).GetSourceCode(id);
        EXPECT_EQ(back.Description(), c.back);
        EXPECT_EQ(back.Code(), c.back);
    }
}

TEST_F(SourceCodeRecord, UpdateOfARowAnotherUserDeletedRaisesNotFound) {
    const int id = addCode(QStringLiteral("Shared"));
    cSourceCode mine = cLibraryService(dbPath).GetSourceCode(id);
    cSourceCode theirs = cLibraryService(dbPath).GetSourceCode(id);
    DeleteRecord(theirs);
    mine.BeginEdit(0);
    mine.Description(QStringLiteral("Too late"));
    mine.Revisions().Add(0);
    EXPECT_EQ(Raised([&] { mine.Save(); }).number(), kErrRecordNotFound);
    EXPECT_EQ(rows(QStringLiteral("RevHist_SrcCode")), 0);
}
