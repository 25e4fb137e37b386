#include "HostFixture.h"
#include "RtfFrame.h"

#include "OleColor.h"
#include "RichTextBox.h"
#include "mRTFtoHTML.h"

#include <gtest/gtest.h>

using namespace qs;
using namespace qs::test;

namespace {

struct Row {
    const char* body;
    const char* options;
    QString expected;
};

const QString kFontCourier = QStringLiteral("<FONT FACE=\"Courier New\">");
const QString kTableOpen =
    QStringLiteral("<TABLE ALIGN=\"left\" CELLSPACING=0 CELLPADDING=0 WIDTH=\"100%\">");

} // namespace

// One line of text: the characters, the control words and the formatting state they leave.
TEST(RTF2HTML, ConvertsTheCharactersAndControlWordsOfALine) {
    const Row rows[] = {
        {"a{b}c", "", "abc"},
        {"x<B>y", "", "x&lt;B&gt;y"},
        {"x<B>y", "+I", "x<B>y"},
        {"a&b\"c", "", "a&amp;b&quot;c"},
        {"    x  y", "", "&nbsp;&nbsp;&nbsp;&nbsp;x  y"},
        // Direct appends stand in front of the font tag that waits for the next character.
        {"\\f1     x", "", "&nbsp;" + kFontCourier + "   x</FONT>"},
        {"\\f1 <x", "", "&lt;" + kFontCourier + "x</FONT>"},
        {"\\f1 <x", "+I", kFontCourier + "<x</FONT>"},
        {"\\'e9\\'E9\\'e4\\'99\\'85\\'00\\'a0\\'ae.", "",
         QString::fromUtf8("&eacute;\u00e9<FONT SIZE=\"-1\"><SUP>TM</SUP></FONT>\u2122...&nbsp;"
                           "\u00a0\u00ae.")},
        // Quotes, bullet, hard blank and escaped braces drop the character behind them.
        {"don\\rquote t", "", QString::fromUtf8("don\u2019")},
        {"a\\lquote xb\\ldblquote xc\\rdblquote xd\\bullet xe", "",
         QString::fromUtf8("a\u2018b\u201cc\u201dd\u2022e")},
        {"a\\emdash b\\tab c", "", QString::fromUtf8("a\u2014b&#9;c")},
        {"a\\~xb\\{xc\\}xd\\\\xe", "", "a b{c}d\\e"},
        {"a\\\r\nb\r\nc", "", "a\r\nbc"},
        // Bold and italic close at a brace or \plain, never at \b0.
        {"\\b x}y\\i z\\b0 w", "", "<B>x</B>y<I>zw</I>"},
        {"\\b\\i x}y", "", "<B><I>x</I></B>y"},
        {"\\b x\\plain y", "", "<B>x</B>y"},
        {"\\b x\\pard\\plain y", "", "<B>x</B>y"},
        {"\\b x\\foo}y", "", "<B>xy</B>"},
        {"\\strike x}\\strike\\b y", "", "<STRIKE>x</STRIKE><STRIKE>b y</STRIKE>"},
        {"\\ul x}\\ul\\i y\\ulnone z", "", "<U> x</U><U><I>yz</I></U>"},
        // Colours: a number beyond the table changes nothing; \cf runs on to a blank.
        {"\\cf1 x\\cf9 y\\cf2 z", "", "<FONT COLOR=\"#FF0000\">xy<FONT COLOR=\"#0080FF\">z</FONT>"},
        {"\\cf1}ab cd", "", "<FONT COLOR=\"#FF0000\">cd</FONT>"},
        {"\\cf0 x", "", "<FONT COLOR=\"#000000\">x</FONT>"},
        // Fonts: a name equal to that of font 0 changes nothing.
        {"\\f1 x\\f2 y\\f3 z", "", kFontCourier + "xy<FONT FACE=\"Arial\">z</FONT>"},
        {"\\f1\\cf2 x", "", "<FONT FACE=\"Courier New\" COLOR=\"#0080FF\">x</FONT>"},
        // Sizes: n / 5 - 2 within 1 to 8; 20 to 24 give no size and no change.
        {"\\f1\\fs25 a\\fs16 b\\fs10 c\\fs60 d\\fs24 e\\fs20 f", "",
         "<FONT FACE=\"Courier New\" SIZE = \"3\">a<FONT FACE=\"Courier New\" SIZE = \"1\">b"
         "<FONT FACE=\"Courier New\" SIZE = \"1\">c<FONT FACE=\"Courier New\" SIZE = \"8\">def"
         "</FONT>"},
        {"\\fs30 x\\cf1 y", "", "x<FONT COLOR=\"#FF0000\" SIZE = \"4\">y</FONT>"},
        {"\\f1 x\\plain y\\f1\\plain z", "", kFontCourier + "x</FONT>yz"},
        // \plain keeps the size.
        {"\\f1\\fs30 x\\plain\\cf1 y", "",
         "<FONT FACE=\"Courier New\" SIZE = \"4\">x</FONT><FONT COLOR=\"#FF0000\" SIZE = "
         "\"4\">y</FONT>"},
        // Alignment waits for a font change; a blank behind \qc or \qr takes a character.
        {"\\qc\\f1 x\\plain y", "",
         kTableOpen + "<TR ALIGN=\"center\"><TD>" + kFontCourier +
             "x</FONT></TD></TR></TABLE><BR>y"},
        {"\\qc\\f1 x\\plain y", "+CR",
         kTableOpen + "<TR ALIGN=\"center\"><TD>" + kFontCourier +
             "x</FONT></TD></TR></TABLE><BR>\r\ny"},
        {"\\qr xy\\f1 z", "",
         "y" + kTableOpen + "<TR ALIGN=\"right\"><TD>" + kFontCourier + "z</FONT>"},
        {"\\qc xy", "", "y"},
        {"\\qr\\f1 z", "", kTableOpen + "<TR ALIGN=\"right\"><TD>" + kFontCourier + "z</FONT>"},
        {"x{\\pntext\\f1\\'b7\\tab}y{\\pntxtb\\'b7}z", "", "xyz"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.body);
        SCOPED_TRACE(row.options);
        EXPECT_EQ(RTF2HTML(oneLine(QString::fromUtf8(row.body)), QString::fromLatin1(row.options))
                      .toStdString(),
                  row.expected.toStdString());
    }
}

// Whole texts: where the sections are found, and what joins them.
TEST(RTF2HTML, JoinsSectionsWithTheirLineAndListTags) {
    const QString head = rtfHeader();
    const struct {
        QString rtf;
        const char* options;
        QString expected;
    } rows[] = {
        {head + "\\deflang1033\\pard\\plain a\r\n\\par b\r\n\\par }", "", "a<BR>b"},
        {head + "\\deflang1033\\pard\\plain a\r\n\\par b\r\n\\par }", "+CR", "a<BR>\r\nb"},
        // Without \pard\plain the first line joins the second.
        {head + "\\deflang1033 a\r\n\\par b\r\n\\par c\r\n\\par }", "+CR", "ab<BR>\r\nc"},
        {head + "\\deflang1033\\pard\\plain x\r\n\\par \\pnlvlblt\\fi0 a\r\n\\par b\r\n"
                "\\par \\pard\\plain c\r\n\\par }",
         "", "x<BR><UL><LI>a</LI><LI>b</LI></UL>c"},
        {head + "\\deflang1033\\pard\\plain\\b a\r\n\\par b\r\n\\par }", "", "<B>a<BR>b</B>"},
        // Text behind the last \par is not converted.
        {head + "\\deflang1033 a\r\n\\par b", "", "a"},
        {"{\\rtf1}\\deflang1033 x\r\n\\par }", "", "deflang1033 x"},
        {"{\\rtf1\r\n\\deflang1033 ab\\par c}", "", "ab"},
        {"{\\rtf1\r\n\\deflang1033 ab}", "", ""},
        {"{\\rtf1 a\r\n\\par b}", "", ""},
        {"", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rtf.toStdString());
        EXPECT_EQ(RTF2HTML(row.rtf, QString::fromLatin1(row.options)).toStdString(),
                  row.expected.toStdString());
    }
}

TEST(RTF2HTML, WrapsAPageAsTheMarkersSay) {
    const QString page = "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2//EN\">\r\n<HTML>\r\n"
                         "<HEAD>\r\n<TITLE>%1</TITLE>\r\n%2\r\n</HEAD>\r\n<BODY>\r\nx</BODY>\r\n"
                         "</HTML>";
    const QString generator = "<META NAME=\"GENERATOR\" CONTENT=\"RTF2HTML\">";
    const std::pair<const char*, QString> rows[] = {
        {"+H", page.arg("", "")},
        {"+H+G+T=`My Page`", page.arg("My Page", generator)},
        {"+T=`My Page`+G", "x"},
        // The markers are found in the title too.
        {"+H+T=`a+Gb`", page.arg("a+Gb", generator)},
        {"+H+T", page.arg("", "")},
    };
    for (const auto& [options, expected] : rows) {
        SCOPED_TRACE(options);
        EXPECT_EQ(RTF2HTML(oneLine("x"), QString::fromLatin1(options)).toStdString(),
                  expected.toStdString());
    }
}

// The converter's input as the program makes it: the code pane's own rich text.
TEST(RTF2HTML, ConvertsWhatTheRichTextBoxWrites) {
    RichTextBox box("RichTextBoxCode");
    box.setText(QString("Sub Main()\r\n    x = 1 < 2\r\nEnd Sub\r\na\\b{c}d\te") + QChar(0xE9));
    box.setSelStart(0);
    box.setSelLength(3);
    box.setSelColor(16711680); // blue
    box.setSelBold(true);
    EXPECT_EQ(RTF2HTML(box.TextRTF(), QString()).toStdString(),
              QString::fromUtf8("<B><FONT FACE=\"Arial\" COLOR=\"#0000FF\" SIZE = \"1\">Sub</FONT>"
                                "</B> <FONT FACE=\"Arial\" SIZE = \"1\">Main()<BR>"
                                "&nbsp;&nbsp;&nbsp;&nbsp;x = 1 &lt; 2<BR>End Sub<BR>"
                                "a\\{}&#9;e&eacute;</FONT>")
                  .toStdString());
}

class RTF2HTMLFailure : public HostFixture {};

TEST_F(RTF2HTMLFailure, AFontBeyondTheTableIsReportedAndGivesNothing) {
    hostScript.answerMsgBox(vbOK);
    EXPECT_EQ(RTF2HTML(oneLine("a\\f4 b"), "+H"), QString());
    ASSERT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_EQ(hostScript.msgBoxes().first().text,
              "An Error occurred in Module:  QuillstonemRTFtoHTML:RTF2HTML;\r\n\r\n"
              "Error Number: 9\r\nError Description: Subscript out of range");
}
