#include "VbArray.h"
#include "QsError.h"

#include <gtest/gtest.h>

using qs::QsError;
using qs::VbArray;

TEST(VbArray, EmptyHasBoundsZeroAndZero) {
    VbArray<int> rows;
    EXPECT_EQ(rows.LBound(), 0);
    EXPECT_EQ(rows.UBound(), 0);
}

TEST(VbArray, RowsAreNumberedFromOneAndIndexZeroRaisesSubscriptError) {
    VbArray<QString> rows{QStringLiteral("a"), QStringLiteral("b")};
    EXPECT_EQ(rows.LBound(), 1);
    EXPECT_EQ(rows.UBound(), 2);
    EXPECT_EQ(rows(1), QStringLiteral("a"));
    EXPECT_EQ(rows(2), QStringLiteral("b"));
    try {
        (void)rows(0);
        FAIL() << "index 0 was accepted";
    } catch (const QsError& e) {
        EXPECT_EQ(e.number(), 9);
    }
    EXPECT_THROW((void)rows(3), QsError);
}

TEST(QsError, SourceGrowsByAppendedLiterals) {
    QsError e(91, QStringLiteral("cLibraryService"), QStringLiteral("Object variable not set"));
    e.appendSource(QStringLiteral("frmMain:Form_Load;"));
    EXPECT_EQ(e.source(), QStringLiteral("cLibraryServicefrmMain:Form_Load;"));
    EXPECT_EQ(e.number(), 91);
}
