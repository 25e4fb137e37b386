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

TEST(NodeKeys, KeysOfEveryTreeReadBackToTheirIdFamilyAndType) {
    struct Case {
        QString key;
        int id;
        const char* family;
        int type;
        const char* typeName;
    };
    const Case cases[] = {
        {ItemKey(row(0, 57, 203, 2, false)), 57, "SC", 203, "Class Module"},
        {ItemKey(row(0, 1234, 101, 0, true)), 1234, "SF", 101, "Article"},
        {ItemKey(row(0, 2, 102, 0, false)), 2, "SF", 102, "Component"},
        {ItemKey(row(0, 6, 201, 1, false)), 6, "SC", 201, "Code Snippet"},
        {BookmarkKey(102, 88), 88, "SF", 0, ""}, // no kind word: all digits
        {SearchKey(204, 31), 31, "SC", 0, ""},
        // Text comparison: the last word that matches wins, in any case.
        {QStringLiteral("sc5moduleTESTED"), 5, "sc", 204, "General Module"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key.toStdString());
        EXPECT_EQ(IdOf(c.key), c.id);
        EXPECT_EQ(Family(c.key), QLatin1String(c.family));
        EXPECT_EQ(TypeCodeOf(c.key), c.type);
        EXPECT_EQ(TypeName(c.type), QLatin1String(c.typeName));
    }
    EXPECT_EQ(TypeName(205), QString());
}

TEST(NodeKeys, DigitWidthOfTheCategoryBoundAndAfterPastTheEnd) {
    const int widths[][2] = {{0, 1},    {9, 1},     {10, 2},    {99, 2},     {100, 3},
                             {9999, 4}, {10000, 5}, {99999, 5}, {100000, 6}, {5000000, 6}};
    for (const auto& w : widths)
        EXPECT_EQ(DigitWidth(w[0]), w[1]) << w[0];
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
    const QString item = ItemKey(row(0, 57, 203, 1, false));
    EXPECT_TRUE(IsModuleMember(OutlineGroupKey(57, item, QStringLiteral("FunctionsNoDrag"))));
    EXPECT_TRUE(IsModuleMember(OutlineMemberKey(57, item, QStringLiteral("FunctionNoDrag"), 12)));
    EXPECT_TRUE(IsModuleMember(QStringLiteral("x_nodrag")));
    EXPECT_FALSE(IsModuleMember(item));
}

} // namespace
