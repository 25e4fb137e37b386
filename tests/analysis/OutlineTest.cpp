// The outline of a module in the three item trees, driven through the main window.

#include "SampleModule.h"
#include "TreeWindowFixture.h"

#include "NodeKeys.h"
#include "cLibraryService.h"

using namespace qs;
using namespace qs::test;

namespace {

// The outline of kClass; the constant rule strips "Global " in tvwMain only.
QStringList classOutline(const char* globalName) {
    return {QStringLiteral("Constants: %1, MAX_PATH").arg(QLatin1String(globalName)),
            "Types: PRINTER_INFO ",
            "Enums: PrintState",
            "APIDeclares: GetDefaultPrinter, GetTickCount",
            "Properties: Get Name, Let Name",
            "Functions: Refresh",
            "Subs: Class_Initialize, Reset"};
}

class Outline : public TreeWindow {
protected:
    int addModule(const QString& description, const QString& code, int typeId = 203,
                  int categoryId = 1) {
        return addCode(description, typeId, 1, 0, false, categoryId, code);
    }

    // Each group under the item, in the order shown, with its members' texts as shown.
    static QStringList outline(TreeView& tree, const QString& itemKey) {
        QStringList lines;
        for (Node group = tree.Nodes(itemKey).Child(); group; group = group.Next()) {
            QStringList members;
            for (Node member = group.Child(); member; member = member.Next())
                members << member.Text();
            lines << group.Text() + QStringLiteral(": ") + members.join(QStringLiteral(", "));
        }
        return lines;
    }
};

TEST_F(Outline, ModulesUnfoldInEveryTreeWithGlobalStrippedInTheItemTreeOnly) {
    const int id = addModule(QStringLiteral("Printer info"), kClass);
    const QString code = QStringLiteral("SC%1").arg(id);
    addUser(gstrUserId);
    cLibraryService(mDatabase).AddBookmark(QStringLiteral("BkMark_SrcCode"), id, gstrUserId);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1203");
    const QString mainKey = code + QStringLiteral("ClassTested");
    click(*form.tvwMain, mainKey);
    EXPECT_EQ(outline(*form.tvwMain, mainKey), classOutline("APP_NAME"));

    form.SSTabNavigate->setTab(1);
    click(*form.tvwBookMarks, code);
    EXPECT_EQ(outline(*form.tvwBookMarks, code), classOutline("Global"));

    form.SSTabNavigate->setTab(2);
    search(form, QStringLiteral("Refresh"), "Class Module");
    const QString hit = QStringLiteral("SRCH") + code;
    click(*form.tvwSearchResults, hit);
    EXPECT_EQ(outline(*form.tvwSearchResults, hit), classOutline("Global"));

    // A member click in each tree shows the member as stored, with its leading line end.
    const QString getName = crlf("\nPublic Property Get Name() As String\n    Name = mstrName\n"
                                 "End Property");
    for (auto [tree, itemKey] :
         {std::pair{form.tvwMain, mainKey}, std::pair{form.tvwBookMarks, code},
          std::pair{form.tvwSearchResults, hit}}) {
        SCOPED_TRACE(tree->Name().toStdString());
        click(*tree, NodeKeys::OutlineMemberKey(id, itemKey, QStringLiteral("PropertyNoDrag"), 1));
        EXPECT_EQ(form.RichTextBoxCode->Text(), getName);
        EXPECT_EQ(form.lblCodeSnipDescr->text(), "Get Name");
    }
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(Outline, NameRulesOnTheLayoutsOfRealModules) {
    struct Case {
        const char* name;
        QString code;
        QStringList expected;
    };
    const Case cases[] = {
        {"a type whose first field is not indented keeps more of the line",
         crlf("Public Type T\nx As Long\nEnd Type\nPublic Const Sep = \",\"\n"),
         {"Constants: Sep", "Types: T\r"}},
        {"variables and Option Explicit alone make no outline",
         crlf("Option Explicit\nPrivate mstrA As String\nDim B As Long\n"),
         {}},
    };
    QList<int> ids;
    for (const Case& c : cases)
        ids << addModule(QString::fromLatin1(c.name), c.code, 204);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1204");
    for (int i = 0; i < ids.size(); ++i) {
        SCOPED_TRACE(cases[i].name);
        const QString key = QStringLiteral("SC%1ModuleTested").arg(ids[i]);
        click(*form.tvwMain, key);
        EXPECT_EQ(outline(*form.tvwMain, key), cases[i].expected);
    }
}

TEST_F(Outline, BuiltOnlyForAClassOrModuleOfAVisualBasicCategory) {
    const int other = addCategory(QStringLiteral("Delphi"));
    struct Case {
        const char* category;
        const char* itemKey;
        int typeId;
        int categoryId;
    };
    const Case cases[] = {{"CTested1201", "CodeTested", 201, 1},
                          {"CTested1202", "TipTested", 202, 1},
                          {"CTested2203", "ClassTested", 203, other}};
    QList<int> ids;
    for (const Case& c : cases)
        ids << addModule(QString::fromLatin1(c.itemKey), kClass, c.typeId, c.categoryId);
    frmMain& form = open();
    for (int i = 0; i < ids.size(); ++i) {
        SCOPED_TRACE(cases[i].category);
        click(*form.tvwCategories, QLatin1String(cases[i].category));
        const QString key = QStringLiteral("SC%1").arg(ids[i]) + QLatin1String(cases[i].itemKey);
        click(*form.tvwMain, key);
        EXPECT_EQ(form.tvwMain->Nodes(key).Children(), 0);
        EXPECT_EQ(form.RichTextBoxCode->Text(), kClass);
    }
}

TEST_F(Outline, GroupClickShowsTheListInSourceOrderAndMemberClickItsElement) {
    const int id =
        addModule(QStringLiteral("Subs"), crlf("Public Sub Zeta()\nEnd Sub\n\nPublic Sub Alpha()\n"
                                               "    Zeta\nEnd Sub\n"));
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1203");
    const QString item = QStringLiteral("SC%1ClassTested").arg(id);
    click(*form.tvwMain, item);
    const QString group = NodeKeys::OutlineGroupKey(id, item, QStringLiteral("SubsNoDrag"));
    const auto sub = [&](int n) {
        return NodeKeys::OutlineMemberKey(id, item, QStringLiteral("SubNoDrag"), n);
    };
    // Shown sorted, kept by source index.
    EXPECT_EQ(childKeys(*form.tvwMain, group), QStringList({sub(2), sub(1)}));
    click(*form.tvwMain, group);
    EXPECT_EQ(form.RichTextBoxCode->Text(),
              crlf("\nPublic Sub Zeta()\nEnd Sub\n\nPublic Sub Alpha()\n    Zeta\nEnd Sub"));
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Subs");
    click(*form.tvwMain, sub(2));
    EXPECT_EQ(form.RichTextBoxCode->Text(), crlf("\nPublic Sub Alpha()\n    Zeta\nEnd Sub"));
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Alpha");
    EXPECT_EQ(form.tvwMain->Nodes(item).Children(), 1);
}

TEST_F(Outline, AFailingNameRuleKeepsWhatWasBuiltAndIsNotTriedAgain) {
    const int id = addModule(QStringLiteral("Broken"),
                             crlf("Private Const A = 1\nPrivate Type T\n    x As Long\nEnd Type\n"
                                  "Private Declare Function Ok Lib \"k\" () As Long\n"
                                  "Private Declare Function NoLib Alias \"b\" () As Long\n"
                                  "Public Sub Later()\nEnd Sub\n"));
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1203");
    const QString item = QStringLiteral("SC%1ClassTested").arg(id);
    hostScript.expectMsgBox(QStringLiteral("Error Number: 5"));
    click(*form.tvwMain, item);
    ASSERT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_TRUE(hostScript.msgBoxes().at(0).title.endsWith("frmMain:ParseModule;"));
    const QStringList built = {"Constants: A", "Types: T", "APIDeclares: Ok"};
    EXPECT_EQ(outline(*form.tvwMain, item), built);

    click(*form.tvwMain, QStringLiteral("ROOT"));
    click(*form.tvwMain, item);
    EXPECT_EQ(outline(*form.tvwMain, item), built);
    EXPECT_EQ(hostScript.msgBoxes().size(), 1);
}

} // namespace
