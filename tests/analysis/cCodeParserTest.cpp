#include "cCodeParser.h"
#include "HostFixture.h"
#include "SampleModule.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

using namespace qs;
using namespace qs::test;

namespace {

// A member text as the parser stores it: every line behind a CR LF.
QString member(const char* lines) {
    return QStringLiteral("\r\n") + crlf(lines);
}

// The members expected, by list name; a list not named is expected empty.
using Lists = QMap<QString, QStringList>;

void expectList(const char* name, const MemberList& actual, const QStringList& expected) {
    SCOPED_TRACE(name);
    if (expected.isEmpty()) {
        EXPECT_EQ(actual.LBound(), 0);
        EXPECT_EQ(actual.UBound(), 0);
        EXPECT_EQ(actual(0), QString());
        return;
    }
    EXPECT_EQ(actual.LBound(), 1);
    EXPECT_EQ(actual.UBound(), expected.size());
    EXPECT_EQ(actual.elements(), expected);
}

void expectLists(const cCodeParser& parser, const Lists& expected) {
    expectList("Functions", parser.Functions(), expected.value("Functions"));
    expectList("Subs", parser.Subs(), expected.value("Subs"));
    expectList("APIDeclares", parser.APIDeclares(), expected.value("APIDeclares"));
    expectList("Types", parser.Types(), expected.value("Types"));
    expectList("Enums", parser.Enums(), expected.value("Enums"));
    expectList("Constants", parser.Constants(), expected.value("Constants"));
    expectList("ModuleVars", parser.ModuleVars(), expected.value("ModuleVars"));
    expectList("Properties", parser.Properties(), expected.value("Properties"));
}

struct Case {
    const char* name;
    QString code;
    Lists expected;
};

// One parser serves all rows, so every row also shows that a parse starts from empty lists.
void runCases(const QList<Case>& cases) {
    cCodeParser parser;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        parser.ParseSourceCode(c.code);
        expectLists(parser, c.expected);
    }
}

const char* const kForm = R"(VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.Form frmDemo
   Caption         =   "Demo"
   Begin VB.CommandButton cmdOk
      Caption         =   "OK"
      BeginProperty Font
         Name            =   "Arial"
      EndProperty
   End
End
Attribute VB_Name = "frmDemo"
Attribute VB_GlobalNameSpace = False
Option Explicit

Private Sub cmdOk_Click()
    Unload Me
End Sub

Private Sub Form_Load()
    Caption = "Demo"
End Sub)";

} // namespace

TEST(cCodeParser, ModulesSplitIntoTheirMembers) {
    runCases({
        {"class module: comments stay outside a member but behind its header inside; Static and "
         "Default procedures pass unseen",
         kClass,
         {{"Functions",
           {member("Public Function Refresh() As Boolean ' comment behind the header\n"
                   "    Dim blnOk As Boolean\n    Const RETRIES = 3\n\n    Refresh = True\n"
                   "End Function")}},
          {"Subs",
           {member("Friend Sub Reset()\n    mstrName = \"\"\nEnd Sub"),
            member("Private Sub Class_Initialize()\n    mstrName = \"Default\"\nEnd Sub")}},
          {"APIDeclares",
           {member(
                R"(Private Declare Function GetDefaultPrinter Lib "winspool.drv" Alias "GetDefaultPrinterA" _
    (ByVal pszBuffer As String, pcchBuffer As Long) As Long)"),
            member(R"(Private Declare Function GetTickCount Lib "kernel32" () As Long ' ticks)")}},
          {"Types",
           {member("Private Type PRINTER_INFO ' one printer\n    pName As String\nEnd Type")}},
          {"Enums", {member("Public Enum PrintState\n    psIdle = 0\nEnd Enum")}},
          {"Constants",
           {member(R"(Global Const APP_NAME As String = "Spool")"),
            member("Private Const MAX_PATH As Long = 260   ' buffer size")}},
          {"Properties",
           {member("Public Property Get Name() As String\n    Name = mstrName\nEnd Property"),
            member("Public Property Let Name(ByVal strValue As String)\n    mstrName = strValue\n"
                   "End Property")}}}},
        {"form text: the control section is passed over",
         crlf(kForm),
         {{"Subs",
           {member("Private Sub cmdOk_Click()\n    Unload Me\nEnd Sub"),
            member("Private Sub Form_Load()\n    Caption = \"Demo\"\nEnd Sub")}}}},
        {"empty code", QString(), {}},
    });
}

TEST(cCodeParser, MembersEndOnlyAtTheirClosingLineOrWithoutContinuation) {
    runCases({
        {"blanks around the closing line close it",
         crlf("Sub A()\n   End Sub   \nSub B()\nEnd Sub"),
         {{"Subs", {member("Sub A()\n   End Sub   "), member("Sub B()\nEnd Sub")}}}},
        {"a comment behind, lower case or a tab keep the member open up to a proper close",
         crlf("Sub A()\nEnd Sub ' done\nSub B()\nend sub\nSub C()\n\tEnd Sub\nSub D()\nEnd Sub\n"
              "Sub E()\nEnd Sub"),
         {{"Subs",
           {member("Sub A()\nEnd Sub ' done\nSub B()\nend sub\nSub C()\n\tEnd Sub\nSub D()\n"
                   "End Sub"),
            member("Sub E()\nEnd Sub")}}}},
        {"continued declaration and constant; a blank behind the underscore breaks it",
         crlf(R"(Private Declare Function SendMessage Lib "user32" _
    (ByVal hWnd As Long) As Long
Const MSG = "a" & _
    "b"
Const BROKEN = 1 + _ 
    2)"),
         {{"APIDeclares", {member(R"(Private Declare Function SendMessage Lib "user32" _
    (ByVal hWnd As Long) As Long)")}},
          {"Constants",
           {member("Const MSG = \"a\" & _\n    \"b\""), member("Const BROKEN = 1 + _ ")}}}},
        {"a continued procedure header runs to its closing line",
         crlf("Public Function Pair(ByVal a As Long, _\n    ByVal b As Long)\n"
              "    Pair = a + b\nEnd Function"),
         {{"Functions",
           {member("Public Function Pair(ByVal a As Long, _\n    ByVal b As Long)\n"
                   "    Pair = a + b\nEnd Function")}}}},
        {"an empty line after a constant does nothing; indented members and Dim lines open none",
         crlf("Const A = 1\n\n  Public Sub Hidden()\n  End Sub\nDim \nDim  Sub"),
         {{"Constants", {member("Const A = 1")}}}},
        {"an unindented Const inside a sub ends the sub and joins the last constant",
         crlf("Const A = 1\nSub S()\n    x = 1\nConst B = 2\n    y = 2\nEnd Sub\nSub T()\n"
              "End Sub"),
         {{"Subs", {member("Sub S()\n    x = 1"), member("Sub T()\nEnd Sub")}},
          {"Constants", {member("Const A = 1\nConst B = 2")}}}},
    });
}

TEST(cCodeParser, ConstantInsideASubWithNoConstantYetGoesToTheHiddenElementZero) {
    cCodeParser parser;
    parser.ParseSourceCode(crlf("Sub S()\nConst B = 2\nEnd Sub"));
    const MemberList constants = parser.Constants();
    EXPECT_EQ(constants.LBound(), 0);
    EXPECT_EQ(constants.UBound(), 0);
    EXPECT_EQ(constants(0), member("Const B = 2"));
    EXPECT_EQ(parser.Subs().elements(), QStringList{member("Sub S()")});
}

// The text is split in memory into the lines a temporary file would give back, and no file is
// left behind.
TEST(cCodeParser, WindowsAndLinuxLineEndsGiveTheSameMembers) {
    QTemporaryDir temp;
    ASSERT_TRUE(temp.isValid());
    const QByteArray oldTmp = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(temp.path()));

    const QString linux =
        QStringLiteral("Sub A()\n\nEnd Sub\nSub B()\nEnd Sub\nConst C = 1 _\n  + 2");
    const Lists expected{{"Subs", {member("Sub A()\n\nEnd Sub"), member("Sub B()\nEnd Sub")}},
                         {"Constants", {member("Const C = 1 _\n  + 2")}}};
    runCases({
        {"Windows", crlf(linux.toUtf8().constData()), expected},
        {"Linux", linux, expected},
        {"lone CR", QString(linux).replace(QLatin1Char('\n'), QLatin1Char('\r')), expected},
        {"Linux with a trailing Windows line end", linux + QStringLiteral("\r\n"), expected},
        {"a trailing line end inside a member is an empty last line",
         QStringLiteral("Sub A()\n"),
         {{"Subs", {member("Sub A()\n")}}}},
    });

    if (oldTmp.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", oldTmp);
    EXPECT_TRUE(QDir(temp.path()).isEmpty());
}

using cCodeParserFailure = HostFixture;

// A scope word with no blank behind it has no word behind it: the parse stops with the standard
// report, and the lists keep what was collected before.
TEST_F(cCodeParserFailure, LoneScopeWordStopsTheParseWithTheReport) {
    const QList<Case> cases = {
        {"Public alone between two subs",
         crlf("Public Sub A()\nEnd Sub\nPublic\nPublic Sub B()\nEnd Sub"),
         {{"Subs", {member("Public Sub A()\nEnd Sub")}}}},
        {"Dim alone inside a function",
         crlf("Const K = 1\nFunction F()\nDim\nEnd Function\nSub B()\nEnd Sub"),
         {{"Functions", {member("Function F()")}}, {"Constants", {member("Const K = 1")}}}},
        {"an empty line after a line whose second word is a scope word",
         crlf("Type T\nEnd Type\nPrivate Public x\n\nSub B()\nEnd Sub"),
         {{"Types", {member("Type T\nEnd Type")}}}},
    };
    cCodeParser parser;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        hostScript.clearCalls();
        hostScript.answerMsgBox(vbOK);
        parser.ParseSourceCode(c.code);
        expectLists(parser, c.expected);
        const QList<HostCall> boxes = hostScript.msgBoxes();
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_EQ(boxes.first().title,
                  QStringLiteral("Quillstone - QuillstonecCodeParserParseCode;"));
        EXPECT_EQ(boxes.first().text, QStringLiteral("An Error occurred in Module:  "
                                                     "QuillstonecCodeParserParseCode;\r\n\r\n"
                                                     "Error Number: 9\r\n"
                                                     "Error Description: Subscript out of range"));
        EXPECT_EQ(boxes.first().icon(), vbCritical);
    }
}
