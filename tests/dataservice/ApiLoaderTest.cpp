#include "DataServiceFixture.h"
#include "QsError.h"
#include "TestHome.h"
#include "cApiLoader.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace qs;

namespace {

QString sampleFile() {
    return qEnvironmentVariable("QS_SOURCE_DIR", QStringLiteral(".")) +
           QStringLiteral("/data/Datafiles/Win32api.txt");
}

QStringList names(const VbArray<QString>& a) {
    QStringList out;
    for (int i = 1; i <= a.UBound(); ++i)
        out << a(i);
    return out;
}

class ApiLoader : public ::testing::Test {
protected:
    QString write(const QByteArray& text, const char* name = "api.txt") {
        return qs::test::WriteFile(home.file(name), text);
    }
    qs::test::TestHome home;
    cApiLoader api;
};

} // namespace

TEST_F(ApiLoader, ShippedSampleHasHundredsOfEachKind) {
    ASSERT_TRUE(QFile::exists(sampleFile())) << "QS_SOURCE_DIR does not lead to the sources";
    api.LoadFile(sampleFile());
    EXPECT_GE(api.ConstantNames().UBound(), 200);
    EXPECT_GE(api.DeclareNames().UBound(), 200);
    EXPECT_GE(api.TypeNames().UBound(), 200);
    EXPECT_EQ(api.ConstantNames().LBound(), 1);
    EXPECT_EQ(api.Constants().size(), api.ConstantNames().UBound());
    EXPECT_EQ(api.Declares().size(), api.DeclareNames().UBound());
    EXPECT_EQ(api.Types().size(), api.TypeNames().UBound());
    // Every listed name finds its text, and no text keeps a scope word or a continuation.
    for (const QString& n : names(api.DeclareNames())) {
        const QString text = api.Declares().value(n);
        ASSERT_TRUE(text.startsWith("Declare ")) << n.toStdString();
        EXPECT_FALSE(text.contains(" _")) << n.toStdString();
    }
    EXPECT_TRUE(api.Types().value("RECT").startsWith("Type RECT\r\n"));
    EXPECT_TRUE(api.Types().value("RECT").endsWith("\r\nEnd Type"));
}

TEST_F(ApiLoader, EachKindIsKeyedByNameWithItsTextWithoutScope) {
    api.LoadFile(write("' header comment\r\n"
                       "\r\n"
                       "Public Const WM_CLOSE = &H10\r\n"
                       "Const max_len& = 260\r\n"
                       "Private Const SAMPLE_TEXT As String = \"a = b\"\r\n"
                       "Public Declare Function GetTickCount Lib \"kernel32\" () As Long\r\n"
                       "Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)\r\n"
                       "Public Type POINTAPI\r\n"
                       "    x As Long ' across\r\n"
                       "\r\n"
                       "    ' a comment inside\r\n"
                       "    y As Long\r\n"
                       "End Type\r\n"));
    // Names are sorted with case ignored.
    EXPECT_EQ(names(api.ConstantNames()), (QStringList{"max_len", "SAMPLE_TEXT", "WM_CLOSE"}));
    EXPECT_EQ(api.Constants().value("WM_CLOSE"), "Const WM_CLOSE = &H10");
    EXPECT_EQ(api.Constants().value("SAMPLE_TEXT"), "Const SAMPLE_TEXT As String = \"a = b\"");
    EXPECT_EQ(names(api.DeclareNames()), (QStringList{"GetTickCount", "Sleep"}));
    EXPECT_EQ(api.Declares().value("Sleep"),
              "Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)");
    EXPECT_EQ(names(api.TypeNames()), QStringList{"POINTAPI"});
    EXPECT_EQ(api.Types().value("POINTAPI"),
              "Type POINTAPI\r\n    x As Long ' across\r\n    y As Long\r\nEnd Type");
}

TEST_F(ApiLoader, ContinuationsAreJoinedIntoOneStatement) {
    api.LoadFile(write("Declare Function SendMessage Lib \"user32\" Alias \"SendMessageA\" _\n"
                       "    (ByVal hwnd As Long, _\n"
                       "\tByVal wMsg As Long) As Long\n"
                       "Const A = 1 + _\n"
                       "  2\n"));
    EXPECT_EQ(api.Declares().value("SendMessage"),
              "Declare Function SendMessage Lib \"user32\" Alias \"SendMessageA\" (ByVal hwnd As "
              "Long, ByVal wMsg As Long) As Long");
    EXPECT_EQ(api.Constants().value("A"), "Const A = 1 + 2");
}

TEST_F(ApiLoader, MalformedLinesAreSkippedAndTheRestIsRead) {
    api.LoadFile(write("Const = 5\r\n"
                       "Const NOVALUE =\r\n"
                       "Declare Function Lib \"x\" ()\r\n"
                       "Declare Function NoLib (ByVal a As Long)\r\n"
                       "garbage line ### \r\n"
                       "End Type\r\n"
                       "Type BROKEN\r\n"
                       "    a As Long\r\n"
                       "Type GOOD\r\n"
                       "    b As Long\r\n"
                       "End Type\r\n"
                       "Const GOOD_ONE = 1\r\n"
                       "Const good_one = 2\r\n"
                       "Type OPEN_AT_END\r\n"
                       "    c As Long\r\n"));
    EXPECT_EQ(names(api.ConstantNames()), QStringList{"GOOD_ONE"});
    EXPECT_EQ(api.Constants().value("GOOD_ONE"), "Const GOOD_ONE = 1");
    EXPECT_EQ(api.DeclareNames().UBound(), 0);
    EXPECT_EQ(api.DeclareNames().LBound(), 0);
    EXPECT_EQ(names(api.TypeNames()), QStringList{"GOOD"});
}

TEST_F(ApiLoader, TextIsReadInTheAnsiCodePageOrUtf8WithBom) {
    api.LoadFile(write("Const EURO_SIGN = \"\x80\xe9\"\r\n"));
    EXPECT_EQ(api.Constants().value("EURO_SIGN"),
              QString::fromUtf8("Const EURO_SIGN = \"\xe2\x82\xac\xc3\xa9\""));
    api.LoadFile(write("\xef\xbb\xbf"
                       "Const EURO_SIGN = \"\xe2\x82\xac\"\r\n"));
    EXPECT_EQ(api.Constants().value("EURO_SIGN"),
              QString::fromUtf8("Const EURO_SIGN = \"\xe2\x82\xac\""));
}

TEST_F(ApiLoader, MissingFileOrOneWithANullByteRaisesLeavingNothingOfTheLastLoad) {
    const QString binary = write(QByteArray("Const B = 2\r\n\x7f"
                                            "ELF\0\0",
                                            19),
                                 "binary.txt");
    const struct {
        QString path;
        int number;
        const char* text;
    } cases[] = {{home.file("nowhere.txt"), 53, "nowhere.txt"},
                 {binary, 321, "is not a text file"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        api.LoadFile(write("Const A = 1\n"));
        const QsError e = qs::test::Raised([&] { api.LoadFile(c.path); });
        EXPECT_EQ(e.number(), c.number);
        EXPECT_EQ(e.source(), "cApiLoader:LoadFile;");
        EXPECT_TRUE(e.description().contains(c.text)) << e.description().toStdString();
        EXPECT_EQ(api.ConstantNames().UBound(), 0);
        EXPECT_TRUE(api.Constants().isEmpty());
    }
}
