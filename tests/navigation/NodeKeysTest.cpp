#include "NodeKeys.h"

#include <gtest/gtest.h>

using namespace qs;
using namespace qs::NodeKeys;

namespace {

ItemRow row(int parent, int id, int type, int tested, bool folder) {
    ItemRow r;
    r.ParentId = parent;
    r.Id = id;
    r.TypeId = type;
    r.Tested = tested;
    r.IsFolder = folder;
    return r;
}

TEST(NodeKeys, ItemRowsGiveKeyTagImageAndTheirParent) {
    struct Case {
        ItemRow row;
        const char* key;
        const char* tag;
        const char* image;
        const char* parent;
    };
    const Case cases[] = {
        {row(12, 57, 203, 2, false), "SC57ClassUnTested", "SC12ClassUnTested", "Class3",
         "SC12ClassUnTestedFolder"},
        {row(0, 12, 203, 2, true), "SC12ClassUnTestedFolder", "SC0ClassUnTestedFolder",
         "ClosedFolder", "ROOT"},
        {row(0, 7, 202, 2, false), "SC7TipUnTested", "SC0TipUnTested", "Tip", "ROOT"},
        {row(3, 9, 201, 1, false), "SC9CodeTested", "SC3CodeTested", "TestedSnippet",
         "SC3CodeTestedFolder"},
        {row(3, 9, 201, 0, false), "SC9CodeUnTested", "SC3CodeUnTested", "UnTestedSnippet",
         "SC3CodeUnTestedFolder"},
        {row(30, 4, 204, 1, false), "SC4ModuleTested", "SC30ModuleTested", "Module",
         "SC30ModuleTestedFolder"},
        // Stored files are not split by tested state.
        {row(5, 8, 101, 1, false), "SF8Article", "SF5Article", "Article", "SF5ArticleFolder"},
        {row(0, 2, 102, 2, true), "SF2ComponentFolder", "SF0ComponentFolder", "ClosedFolder",
         "ROOT"},
        // Any other code gets no node.
        {row(0, 3, 205, 1, false), "", "", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        EXPECT_EQ(ItemKey(c.row), QLatin1String(c.key));
        EXPECT_EQ(ItemTag(c.row), QLatin1String(c.tag));
        EXPECT_EQ(ItemImage(c.row.TypeId, IsTested(c.row.Tested), c.row.IsFolder),
                  QLatin1String(c.image));
        EXPECT_EQ(ParentKeyOfTag(ItemTag(c.row)), QLatin1String(c.parent));
    }
}

TEST(NodeKeys, AddedTextItemsAreTaggedByTheirOwnStateButAnUntestedModuleAsTested) {
    const struct {
        int type;
        int tested;
        const char* tag;
    } cases[] = {
        {201, 1, "SC12CodeTested"},    {202, 1, "SC12TipTested"},    {203, 1, "SC12ClassTested"},
        {204, 1, "SC12ModuleTested"},  {201, 2, "SC12CodeUnTested"}, {202, 2, "SC12TipUnTested"},
        {203, 2, "SC12ClassUnTested"}, {204, 2, "SC12ModuleTested"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.tag);
        EXPECT_EQ(AddedItemTag(row(12, 40, c.type, c.tested, false)), QLatin1String(c.tag));
    }
}

TEST(NodeKeys, KeysOfEveryTreeReadBackToTheirIdFamilyAndType) {
    struct Case {
        QString key;
        int id;
        const char* family;
        int type;
    };
    const Case cases[] = {
        {ItemKey(row(0, 57, 203, 2, false)), 57, "SC", 203},
        {ItemKey(row(0, 1234, 101, 0, true)), 1234, "SF", 101},
        {BookmarkKey(102, 88), 88, "SF", 0}, // no kind word: all digits
        {SearchKey(204, 31), 31, "SC", 0},
        {ItemKey(row(0, 6, 201, 1, false)), 6, "SC", 201},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key.toStdString());
        EXPECT_EQ(IdOf(c.key), c.id);
        EXPECT_EQ(Family(c.key), QLatin1String(c.family));
        EXPECT_EQ(TypeCodeOf(c.key), c.type);
    }
    EXPECT_EQ(SearchKey(204, 31), QStringLiteral("SRCHSC31"));
    // Text comparison: the last word that matches wins, in any case.
    EXPECT_EQ(TypeCodeOf(QStringLiteral("sc5moduleTESTED")), 204);
    EXPECT_EQ(TypeName(TypeCodeOf(QStringLiteral("SC5CodeTested"))),
              QStringLiteral("Code Snippet"));
    EXPECT_EQ(TypeName(203), QStringLiteral("Class Module"));
    EXPECT_EQ(TypeName(102), QStringLiteral("Component"));
    EXPECT_EQ(TypeName(205), QString());
}

TEST(NodeKeys, OutlineKeysAreMembersAndCarryModuleIdAndIndex) {
    const QString item = ItemKey(row(0, 57, 203, 1, false));
    const QString group = OutlineGroupKey(57, item, QStringLiteral("FunctionsNoDrag"));
    const QString member = OutlineMemberKey(57, item, QStringLiteral("FunctionNoDrag"), 12);
    EXPECT_EQ(group, QStringLiteral("57_SC57ClassTestedFunctionsNoDrag"));
    EXPECT_EQ(member, QStringLiteral("57_SC57ClassTestedFunctionNoDrag12"));
    EXPECT_TRUE(IsModuleMember(member));
    EXPECT_TRUE(IsModuleMember(QStringLiteral("x_nodrag")));
    EXPECT_FALSE(IsModuleMember(item));
    EXPECT_EQ(member.left(member.indexOf(QLatin1Char('_'))).toInt(), 57);
    EXPECT_EQ(member.mid(member.lastIndexOf(QLatin1Char('g')) + 1).toInt(), 12);
}

TEST(NodeKeys, CategoryTypeKeysKeepTheirUnpaddedPositionAndTheDigitRule) {
    EXPECT_EQ(CodeTypeKey(true, 3, QStringLiteral("201")), QStringLiteral("CTested3201"));
    EXPECT_EQ(CodeTypeKey(false, 3, QStringLiteral("201")), QStringLiteral("CUntested3201"));
    EXPECT_EQ(FileTypeKey(12, QStringLiteral("101")), QStringLiteral("FT12101"));
    EXPECT_EQ(TestedBranchKey(CategoryKey(QStringLiteral("12"))), QStringLiteral("TestedC12"));
    EXPECT_EQ(UnTestedBranchKey(QStringLiteral("C12")), QStringLiteral("UnTestedC12"));
    // "CUntested" does not hold "CTested", so the two branches are told apart.
    EXPECT_FALSE(CodeTypeKey(false, 1, QStringLiteral("201")).contains(QLatin1String("CTested")));

    const int widths[][2] = {{0, 1},    {9, 1},     {10, 2},    {99, 2},     {100, 3},
                             {9999, 4}, {10000, 5}, {99999, 5}, {100000, 6}, {5000000, 6}};
    for (const auto& w : widths)
        EXPECT_EQ(DigitWidth(w[0]), w[1]) << w[0];
    // With ten categories a key of the third reads the wrong type id, as kept.
    EXPECT_EQ(After(QStringLiteral("CTested3201"), 7 + DigitWidth(10)), QStringLiteral("01"));
    EXPECT_EQ(After(QStringLiteral("CTested3201"), 7 + DigitWidth(9)), QStringLiteral("201"));
    EXPECT_EQ(After(QStringLiteral("FT1"), 5), QString());
}

TEST(NodeKeys, NodeKindsFromImageAndKey) {
    EXPECT_TRUE(IsFolder(QStringLiteral("SC3CodeTestedFolder"), QStringLiteral("x")));
    EXPECT_TRUE(IsFolder(QStringLiteral("C3"), QStringLiteral("OpenFolder")));
    EXPECT_FALSE(IsFolder(QStringLiteral("SC3CodeTested"), QStringLiteral("TestedSnippet")));
    EXPECT_TRUE(IsItemImage(QStringLiteral("Class3")));
    EXPECT_FALSE(IsItemImage(QStringLiteral("ClosedFolder")));
    EXPECT_TRUE(IsSourceFileImage(QStringLiteral("Component")));
    EXPECT_FALSE(IsSourceFileImage(QStringLiteral("Tip")));
    EXPECT_EQ(TypeNodeImage(QStringLiteral("Code Snippet"), false),
              QStringLiteral("UnTestedSnippet"));
    EXPECT_EQ(TypeNodeImage(QStringLiteral("Macro"), true), QString());
}

} // namespace
