// GetItems: every filter, 0 filtering nothing, parents before children.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

#include <QHash>

using namespace qs;
using namespace qs::test;

namespace {
QStringList names(const VbArray<ItemRow>& rows) {
    QStringList out;
    for (const ItemRow& row : rows)
        out << row.Description;
    return out;
}
} // namespace

using GetItems = DataServiceTest;

TEST_F(GetItems, EachFilterNarrowsAndZeroFiltersNothing) {
    cLibraryService library(dbPath);
    const int other = library.AddCategory(QStringLiteral("Other"));
    const int author = addAuthor(QStringLiteral("A"), QStringLiteral("Writer"));
    addCode(QStringLiteral("tested tip"), 1, 202, 1);
    addCode(QStringLiteral("untested tip"), 1, 202, 2);
    addCode(QStringLiteral("tested class"), 1, 203, 1, 0, false, author);
    addCode(QStringLiteral("other tip"), other, 202, 1);

    const QString t = QStringLiteral("SourceCode");
    EXPECT_EQ(library.GetItems(t, 0, 0, 0, 0, 0, 0, 0).UBound(), 4);
    EXPECT_EQ(names(library.GetItems(t, 0, 1, 202, 0, 0, 1, 0)), QStringList{"tested tip"});
    EXPECT_EQ(names(library.GetItems(t, 0, 1, 202, 0, 0, 2, 0)), QStringList{"untested tip"});
    EXPECT_EQ(names(library.GetItems(t, 0, 1, 0, 0, 0, 1, 0)),
              (QStringList{"tested tip", "tested class"}));
    EXPECT_EQ(names(library.GetItems(t, 0, 0, 0, author, 0, 0, 0)), QStringList{"tested class"});
    EXPECT_EQ(names(library.GetItems(t, 0, other, 0, 0, 0, 0, 0)), QStringList{"other tip"});
    EXPECT_EQ(names(library.GetItems(t, 0, 0, 202, 0, 0, 0, 0)),
              (QStringList{"tested tip", "untested tip", "other tip"}));
    const auto none =
        library.GetItems(t, 0, library.AddCategory(QStringLiteral("Empty")), 0, 0, 0, 0, 0);
    EXPECT_EQ(none.LBound(), 0);
    EXPECT_EQ(none.UBound(), 0);
}

TEST_F(GetItems, RowsCarryTheirFieldsInOrder) {
    const int folder = addCode(QStringLiteral("Folder"), 1, 204, 2, 0, true);
    const int item = addCode(QStringLiteral("Module"), 1, 204, 2, folder);
    const auto rows =
        cLibraryService(dbPath).GetItems(QStringLiteral("SourceCode"), 0, 1, 204, 0, 0, 2, 0);
    ASSERT_EQ(rows.UBound(), 2);
    EXPECT_EQ(rows(1).Id, folder);
    EXPECT_TRUE(rows(1).IsFolder);
    EXPECT_EQ(rows(1).ParentId, 0);
    EXPECT_EQ(rows(2).Id, item);
    EXPECT_EQ(rows(2).ParentId, folder);
    EXPECT_EQ(rows(2).TypeId, 204);
    EXPECT_EQ(rows(2).Tested, 2);
    EXPECT_FALSE(rows(2).IsFolder);
}

TEST_F(GetItems, ParentComesBeforeChildrenWhateverTheWritingOrder) {
    // Written children first, then moved under folders made later, nested three deep.
    const int leaf = addCode(QStringLiteral("leaf"));
    const int middle = addCode(QStringLiteral("middle"), 1, 201, 1, 0, true);
    const int top = addCode(QStringLiteral("top"), 1, 201, 1, 0, true);
    cLibraryService library(dbPath);
    auto moveUnder = [&](int id, int parent) {
        cSourceCode record = library.GetSourceCode(id);
        record.BeginEdit(0);
        record.ParentId(parent);
        record.Save();
    };
    moveUnder(leaf, middle);
    moveUnder(middle, top);
    const int sibling = addCode(QStringLiteral("sibling"), 1, 201, 1, top);

    const auto rows = library.GetItems(QStringLiteral("SourceCode"), 0, 1, 201, 0, 0, 1, 0);
    ASSERT_EQ(rows.UBound(), 4);
    QHash<int, int> place;
    for (int i = 1; i <= rows.UBound(); ++i)
        place.insert(rows(i).Id, i);
    for (const ItemRow& row : rows) {
        if (row.ParentId != 0) {
            EXPECT_LT(place.value(row.ParentId), place.value(row.Id))
                << row.Description.toStdString();
        }
    }
    EXPECT_EQ(rows(1).Id, top);
    EXPECT_TRUE(place.contains(sibling));
}

TEST_F(GetItems, LoopOfParentsStillGivesEveryRowOnce) {
    const int a = addCode(QStringLiteral("a"), 1, 201, 1, 0, true);
    const int b = addCode(QStringLiteral("b"), 1, 201, 1, a, true);
    {
        RawDb raw(dbPath);
        ASSERT_TRUE(raw.exec(
            QStringLiteral("UPDATE SourceCode SET ParentId = %1 WHERE Id = %2").arg(b).arg(a)));
    }
    const auto rows =
        cLibraryService(dbPath).GetItems(QStringLiteral("SourceCode"), 0, 0, 0, 0, 0, 0, 0);
    EXPECT_EQ(rows.UBound(), 2);
}

TEST_F(GetItems, StoredFilesAreFilteredByFileTypeAndIgnoreTheStatus) {
    addFile(QStringLiteral("article"), 1, 101);
    addFile(QStringLiteral("component"), 1, 102);
    cLibraryService library(dbPath);
    const QString t = QStringLiteral("SourceFile");
    EXPECT_EQ(names(library.GetItems(t, 0, 1, 102, 0, 0, 0, 0)), QStringList{"component"});
    EXPECT_EQ(library.GetItems(t, 0, 1, 0, 0, 0, 1, 0).UBound(), 2);
    EXPECT_EQ(library.GetItems(t, 0, 1, 101, 0, 0, 0, 0)(1).Tested, 0);
}

TEST_F(GetItems, UnknownTableIsRefused) {
    EXPECT_EQ(Raised([&] {
                  cLibraryService(dbPath).GetItems(QStringLiteral("Users"), 0, 0, 0, 0, 0, 0, 0);
              }).number(),
              kErrMissingParameters);
}
