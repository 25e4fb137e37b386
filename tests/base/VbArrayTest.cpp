#include "VbArray.h"
#include "QsError.h"

#include <gtest/gtest.h>

using qs::QsError;
using qs::VbArray;

TEST(VbArray, RowsAreNumberedFromOneAndOutsideIndexRaisesSubscriptError) {
    EXPECT_EQ(VbArray<int>().LBound(), 0);
    EXPECT_EQ(VbArray<int>().UBound(), 0);
    VbArray<QString> rows{"a", "b"};
    EXPECT_EQ(rows.LBound(), 1);
    EXPECT_EQ(rows.UBound(), 2);
    EXPECT_EQ(rows(1), "a");
    EXPECT_EQ(rows(2), "b");
    for (int outside : {0, 3}) {
        try {
            (void)rows(outside);
            ADD_FAILURE() << "index " << outside << " was accepted";
        } catch (const QsError& e) {
            EXPECT_EQ(e.number(), 9) << outside;
        }
    }
}

TEST(QsError, SourceGrowsByAppendedLiterals) {
    QsError e(91, "cLibraryService", "Object variable not set");
    e.appendSource("frmMain:Form_Load;");
    EXPECT_EQ(e.source(), "cLibraryServicefrmMain:Form_Load;");
    EXPECT_EQ(e.number(), 91);
}
