// GetAuthor, GetAuthors and the cAuthor record.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

using namespace qs;
using namespace qs::test;

using Authors = DataServiceTest;

TEST_F(Authors, SaveRenameAndListInNameOrder) {
    const int turing = addAuthor(QStringLiteral("Alan"), QStringLiteral("Turing"));
    const int hopper = addAuthor(QStringLiteral("Grace"), QStringLiteral("Hopper"));
    cLibraryService library(dbPath);
    std::optional<cAuthor> author = library.GetAuthor(turing);
    ASSERT_TRUE(author.has_value());
    EXPECT_EQ(author->FirstName(), QStringLiteral("Alan"));
    author->BeginEdit(0);
    author->FirstName(QStringLiteral("A. M."));
    author->Save();
    EXPECT_EQ(author->AuthorId(), turing);

    const auto rows = library.GetAuthors(false);
    ASSERT_EQ(rows.UBound(), 2);
    EXPECT_EQ(rows(1).AuthorId, hopper);
    EXPECT_EQ(rows(2).FirstName, QStringLiteral("A. M."));
    EXPECT_EQ(rows(2).LastName, QStringLiteral("Turing"));
}

TEST_F(Authors, SaveWritesOnlyTheNameItWasGiven) {
    const int id = addAuthor(QStringLiteral("Alan"), QStringLiteral("Turing"));
    cLibraryService library(dbPath);
    cAuthor mine = *library.GetAuthor(id);
    cAuthor theirs = *library.GetAuthor(id);
    theirs.BeginEdit(0);
    theirs.LastName(QStringLiteral("Mathison"));
    theirs.Save();
    mine.BeginEdit(0);
    mine.FirstName(QStringLiteral("A."));
    mine.Save();

    const cAuthor back = *library.GetAuthor(id);
    EXPECT_EQ(back.FirstName(), QStringLiteral("A."));
    EXPECT_EQ(back.LastName(), QStringLiteral("Mathison"));
}

TEST_F(Authors, CreditedAuthorIsNotDeleted) {
    const int author = addAuthor(QStringLiteral("Busy"), QStringLiteral("Writer"));
    addCode(QStringLiteral("Work"), 1, 201, 1, 0, false, author);
    cAuthor record = *cLibraryService(dbPath).GetAuthor(author);
    record.BeginEdit(0);
    record.Deleted(true);
    EXPECT_EQ(Raised([&] { record.Save(); }).number(), kErrRecordInUse);
    EXPECT_TRUE(cLibraryService(dbPath).GetAuthor(author).has_value());
}

TEST_F(Authors, DeletedAuthorLeavesRevisionLinesWithoutNames) {
    const int author = addAuthor(QStringLiteral("Gone"), QStringLiteral("Soon"));
    cSourceCode item = newCode();
    item.Revisions().Add(0).AuthorId(author);
    const int id = item.Save();
    cAuthor record = *cLibraryService(dbPath).GetAuthor(author);
    DeleteRecord(record);
    const cSourceCode back = cLibraryService(dbPath).GetSourceCode(id);
    ASSERT_EQ(back.Revisions().Count(), 1);
    EXPECT_TRUE(back.Revisions().Item(1).AuthorLastName().isEmpty());
    // An unknown id gives nothing and raises nothing.
    EXPECT_FALSE(cLibraryService(dbPath).GetAuthor(author).has_value());
}
