// AddBookmark, DeleteBookmark and GetBookmarks: per user, both tables.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

using namespace qs;
using namespace qs::test;

namespace {
const QString kCode = QStringLiteral("BkMark_SrcCode");
const QString kFile = QStringLiteral("BkMark_SrcFile");
} // namespace

class Bookmarks : public DataServiceTest {
protected:
    void SetUp() override {
        DataServiceTest::SetUp();
        addUser(QStringLiteral("ann"));
        addUser(QStringLiteral("bob"));
    }
};

TEST_F(Bookmarks, EachUserSeesOnlyHisOwnInBothTablesOnceEachInTheOrderAdded) {
    const int older = addCode(QStringLiteral("Alpha"));
    const int code = addCode(QStringLiteral("Snippet"), 1, 201, 1);
    const int file = addFile(QStringLiteral("Paper"), 1, 101);
    cLibraryService library(dbPath);
    library.AddBookmark(kCode, code, QStringLiteral("ann"), true);
    library.AddBookmark(kCode, older, QStringLiteral("ann"), true);
    library.AddBookmark(kFile, file, QStringLiteral("ann"), true);
    library.AddBookmark(kFile, file, QStringLiteral("ann"), true); // a second time adds nothing
    library.AddBookmark(kFile, file, QStringLiteral("bob"), true);

    // Neither by id nor by name: as they were added.
    const auto annCode = library.GetBookmarks(kCode, QStringLiteral("ann"), true);
    ASSERT_EQ(annCode.UBound(), 2);
    EXPECT_EQ(annCode(2).Id, older);
    EXPECT_EQ(annCode(1).Id, code);
    EXPECT_EQ(annCode(1).TypeId, 201);
    EXPECT_EQ(annCode(1).Tested, 1);
    EXPECT_EQ(annCode(1).Description, QStringLiteral("Snippet"));
    const auto annFile = library.GetBookmarks(kFile, QStringLiteral("ann"));
    ASSERT_EQ(annFile.UBound(), 1);
    EXPECT_EQ(annFile(1).TypeId, 101);
    const auto bobCode = library.GetBookmarks(kCode, QStringLiteral("bob"));
    EXPECT_EQ(bobCode.LBound(), 0);
    EXPECT_EQ(bobCode.UBound(), 0);
}

TEST_F(Bookmarks, DeletingABookmarkLeavesTheItemAndOtherUsersBookmarks) {
    const int code = addCode(QStringLiteral("Kept"));
    cLibraryService library(dbPath);
    library.AddBookmark(kCode, code, QStringLiteral("ann"));
    library.AddBookmark(kCode, code, QStringLiteral("bob"));
    library.DeleteBookmark(kCode, QStringLiteral("ann"), code);
    library.DeleteBookmark(kCode, QStringLiteral("ann"), code); // gone already: nothing
    EXPECT_EQ(library.GetBookmarks(kCode, QStringLiteral("ann")).UBound(), 0);
    EXPECT_EQ(library.GetBookmarks(kCode, QStringLiteral("bob")).UBound(), 1);
    EXPECT_EQ(library.GetSourceCode(code).Description(), QStringLiteral("Kept"));
}

TEST_F(Bookmarks, UnknownUserItemOrTableIsRefused) {
    const int code = addCode(QStringLiteral("x"));
    cLibraryService library(dbPath);
    EXPECT_EQ(Raised([&] { library.AddBookmark(kCode, code, QStringLiteral("nobody")); }).number(),
              kErrMissingParameters);
    EXPECT_EQ(Raised([&] { library.AddBookmark(kCode, 999, QStringLiteral("ann")); }).number(),
              kErrMissingParameters);
    EXPECT_EQ(Raised([&] {
                  library.AddBookmark(QStringLiteral("SourceCode"), code, QStringLiteral("ann"));
              }).number(),
              kErrMissingParameters);
    EXPECT_EQ(library.GetBookmarks(kCode, QStringLiteral("ann")).UBound(), 0);
}
