// GetLookup with the fixed rows, and the category operations.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

using namespace qs;
using namespace qs::test;

namespace {
QStringList texts(const VbArray<LookupRow>& rows) {
    QStringList out;
    for (const LookupRow& row : rows)
        out << row.Id + QLatin1Char('=') + row.Description;
    return out;
}
} // namespace

using Lookup = DataServiceTest;

TEST_F(Lookup, NewDatabaseHoldsTheFixedRows) {
    cLibraryService library(dbPath);
    EXPECT_EQ(texts(library.GetLookup(QStringLiteral("FileType"))),
              (QStringList{"101=Article", "102=Component"}));
    EXPECT_EQ(
        texts(library.GetLookup(QStringLiteral("CodeType"))),
        (QStringList{"201=Code Snippet", "202=Tip", "203=Class Module", "204=General Module"}));
    EXPECT_EQ(texts(library.GetLookup(QStringLiteral("CodeStatus"), QVariant(), true, false)),
              (QStringList{"1=Tested", "2=UnTested"}));
    EXPECT_EQ(texts(library.GetLookup(QStringLiteral("AccessType"))),
              (QStringList{"1=Admin", "2=Read", "3=Read/Write", "4=Unauthorized"}));
    EXPECT_EQ(texts(library.GetLookup(QStringLiteral("Category"))),
              (QStringList{"1=Visual Basic"}));
    const auto none = library.GetLookup(QStringLiteral("Path"));
    EXPECT_EQ(none.LBound(), 0);
    EXPECT_EQ(none.UBound(), 0);
}

TEST_F(Lookup, UnknownTableNameIsRefusedWithoutTouchingSql) {
    cLibraryService library(dbPath);
    for (const QString& name : {QStringLiteral("Users"), QStringLiteral("Category; DROP TABLE x"),
                                QStringLiteral("category")}) {
        const QsError e = Raised([&] { library.GetLookup(name); });
        EXPECT_EQ(e.number(), kErrMissingParameters);
        EXPECT_EQ(e.description(),
                  QStringLiteral("Required paramaters are missing from the function call."));
    }
}

using Categories = DataServiceTest;

TEST_F(Categories, AddRenameAndDeleteAnEmptyCategory) {
    cLibraryService library(dbPath);
    const int id = library.AddCategory(QStringLiteral("Adding Cat"));
    EXPECT_GT(id, 1);
    library.UpdateCategory(id, QStringLiteral("C++ O'Brien"));
    EXPECT_EQ(texts(library.GetLookup(QStringLiteral("Category"))),
              (QStringList{"1=Visual Basic", QString::number(id) + "=C++ O'Brien"}));
    library.DeleteCategory(id);
    EXPECT_EQ(library.GetLookup(QStringLiteral("Category")).UBound(), 1);
}

TEST_F(Categories, VisualBasicOneHoldingAFolderAndAnUnknownIdAreRefused) {
    cLibraryService library(dbPath);
    const int busy = library.AddCategory(QStringLiteral("Busy"));
    addFile(QStringLiteral("Empty folder"), busy, 102, 0, true);
    EXPECT_EQ(Raised([&] { library.DeleteCategory(1); }).number(), kErrRecordInUse);
    EXPECT_EQ(Raised([&] { library.DeleteCategory(busy); }).number(), kErrRecordInUse);
    EXPECT_EQ(Raised([&] { library.UpdateCategory(77, QStringLiteral("x")); }).number(),
              kErrRecordNotFound);
    EXPECT_EQ(texts(library.GetLookup(QStringLiteral("Category"))),
              (QStringList{"1=Visual Basic", QString::number(busy) + "=Busy"}));
}
