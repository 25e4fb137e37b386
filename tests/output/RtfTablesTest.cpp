#include "RtfFrame.h"

#include "Cp1252.h"
#include "RtfTables.h"
#include "mRTFtoHTML.h"

#include <QTextDocument>
#include <gtest/gtest.h>

using namespace qs;
using namespace qs::test;

// Every code of a \'hh escape in lower case: the rows of the character table are entities of
// the code's own character, but for 00, 85 and e4; codes without a row give the code page's
// character.
TEST(RtfTables, CharacterTableHasItsRowsAndNoOthers) {
    int rows = 0;
    for (int code = 0; code < 256; ++code) {
        const QString hex = QString::number(code, 16).rightJustified(2, QLatin1Char('0'));
        SCOPED_TRACE(hex.toStdString());
        const QString html = RTF2HTML(oneLine("\\'" + hex + "."), QString());
        ASSERT_TRUE(html.endsWith('.'));
        const QString text = html.chopped(1);
        const QChar own = FromCp1252(QByteArray(1, char(code))).at(0);
        const bool hasRow = code == 0 || code == 0x85 || (code >= 0xa1 && code != 0xae);
        rows += hasRow ? 1 : 0;
        if (code == 0)
            EXPECT_EQ(text, "&nbsp;");
        else if (code == 0x85)
            EXPECT_EQ(text, "...");
        else if (code == 0xe4)
            EXPECT_EQ(text, "<FONT SIZE=\"-1\"><SUP>TM</SUP></FONT>");
        else if (!hasRow)
            EXPECT_EQ(text, QString(own));
        else {
            EXPECT_TRUE(text.startsWith('&') && text.endsWith(';')) << text.toStdString();
            QTextDocument decoded;
            decoded.setHtml(text);
            EXPECT_EQ(decoded.toRawText(), QString(QChar(code))) << text.toStdString();
        }
    }
    EXPECT_EQ(rows, 96);
}

TEST(RtfTables, ColourTableReadsThreeCharactersPerComponent) {
    const std::pair<const char*, QStringList> rows[] = {
        // The automatic colour of a leading ";" is no entry.
        {"{\\colortbl;\\red255\\green0\\blue0;\\red0\\green128\\blue255;}", {"FF0000", "0080FF"}},
        {"{\\colortbl\\red5\\green10\\blue15;}", {"050A0F"}},
        // Three characters, each digit tested by itself; no "0" in front of three digits.
        {"{\\colortbl\\red1234\\green7x9\\blue300;}", {"7B4F12C"}},
        {"{\\colortbl\\red1\\green2\\blue3;}{\\red4\\green5\\blue6;}", {"010203"}},
        {"{\\colortbl\\red1\\green2;}", {"0102"}},
        {"{\\rtf1 no table}", {""}},
        {"{\\colortbl\\red1\\green2\\blue3", {""}},
    };
    for (const auto& [rtf, expected] : rows) {
        SCOPED_TRACE(rtf);
        EXPECT_EQ(ReadColourTable(QString::fromLatin1(rtf)), expected);
    }
}

TEST(RtfTables, FontTableFindsEachNextNumberFromTheLastName) {
    const std::pair<const char*, QStringList> rows[] = {
        {"{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 Symbol;}}",
         {"MS Sans Serif", "Symbol"}},
        // "\f1" is found inside "\f10"; a missing number ends the table.
        {"{\\fonttbl{\\f0\\fnil A;}{\\f10\\fnil B;}{\\f3\\fnil C;}}", {"A", "B"}},
        // Without a blank the name starts one behind the end of the table.
        {"{\\fonttbl{\\f0\\fnil;}}x;", {"}x"}},
        {"{\\fonttbl{\\f0 A}}", {""}},
        {"{\\rtf1}", {""}},
    };
    for (const auto& [rtf, expected] : rows) {
        SCOPED_TRACE(rtf);
        const QString text = QString::fromLatin1(rtf);
        QStringList names;
        for (const QStringView name : ReadFontTable(text))
            names << name.toString();
        EXPECT_EQ(names, expected);
    }
}
