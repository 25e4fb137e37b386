#include "RichTextBox.h"
#include "LineEnds.h"
#include "OleColor.h"
#include "Raised.h"
#include "TestHome.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace qs;

namespace {

const QString kHeader = "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
                        "{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss Arial;}"
                        "{\\f3\\fswiss Arial;}}\r\n";
const QString kBlackTable = "{\\colortbl\\red0\\green0\\blue0;}\r\n";
const long kFindBlue = 16711680; // blue-green-red order: shows blue

// Selects text by the positions of the CR LF text, as the logic does with InStr.
void select(RichTextBox& box, const QString& word) {
    box.setSelStart(box.Text().indexOf(word));
    box.setSelLength(word.size());
}

} // namespace

TEST(RichTextBox, TextGoesOutWithCrLfAndComesInWithAnyLineEnd) {
    RichTextBox box("RichTextBoxCode");
    for (const auto& [in, out] :
         {std::pair{"one\r\ntwo", "one\r\ntwo"}, std::pair{"a\nb\nc\n", "a\r\nb\r\nc\r\n"},
          std::pair{"x\ry", "x\r\ny"}}) {
        box.setText(in);
        EXPECT_EQ(box.Text(), out) << in;
        EXPECT_EQ(box.toPlainText(), QString(out).replace("\r\n", "\n")) << in;
    }
    EXPECT_EQ(ToCrLf("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(ToLf("a\r\nb\rc\n"), "a\nb\nc\n");
    EXPECT_EQ(ToCrLf("\r\n\r\n"), "\r\n\r\n");
}

// Plain text, an empty box and LF-only text: the header, the black colour table and one \par
// per line.
TEST(RichTextBox, PlainTextWritesTheBoxLayoutLineByLine) {
    const std::pair<QString, QString> rows[] = {
        {"Hello\r\nWorld", "Hello\r\n\\par World\r\n\\par }\r\n"},
        {"", "\r\n\\par }\r\n"},
        {"a\nb\n", "a\r\n\\par b\r\n\\par \r\n\\par }\r\n"},
    };
    for (const auto& [text, body] : rows) {
        SCOPED_TRACE(text.toStdString());
        RichTextBox box("r");
        if (!text.isEmpty())
            box.setText(text);
        EXPECT_EQ(box.TextRTF(),
                  kHeader + kBlackTable + "\\deflang1033\\pard\\plain\\f3\\fs17 " + body);
    }
}

TEST(RichTextBox, ColouredAndBoldRunsUseTheColourTableAndPlainResets) {
    RichTextBox box("r");
    box.setText("one two three\r\nred");
    select(box, "two");
    box.setSelColor(kFindBlue);
    box.setSelBold(true);
    select(box, "red");
    box.setSelColor(vbRed);

    const QString expected = kHeader + "{\\colortbl\\red0\\green0\\blue0;\\red0\\green0\\blue255;"
                                       "\\red255\\green0\\blue0;}\r\n"
                                       "\\deflang1033\\pard\\plain\\f3\\fs17 one "
                                       "\\plain\\f3\\fs17\\cf1\\b two\\b0\\plain\\f3\\fs17 "
                                       " three\r\n"
                                       "\\par \\plain\\f3\\fs17\\cf2 red\r\n"
                                       "\\par }\r\n";
    EXPECT_EQ(box.TextRTF().toStdString(), expected.toStdString());
}

TEST(RichTextBox, RichTextRoundTripKeepsTextColourAndBold) {
    RichTextBox box("r");
    box.setText("Sub Main()\r\n    Call Main\r\nEnd Sub");
    select(box, "Main");
    box.setSelColor(kFindBlue);
    box.setSelBold(true);
    select(box, "End");
    box.setSelBold(true);

    RichTextBox copy("copy");
    copy.setTextRTF(box.TextRTF());

    EXPECT_EQ(copy.Text(), box.Text());
    EXPECT_EQ(copy.TextRTF(), box.TextRTF());
    select(copy, "Main");
    EXPECT_EQ(copy.SelColor(), kFindBlue);
    EXPECT_TRUE(copy.SelBold());
    select(copy, "End");
    EXPECT_EQ(copy.SelColor(), vbBlack);
    EXPECT_TRUE(copy.SelBold());
    select(copy, "Call");
    EXPECT_FALSE(copy.SelBold());
    EXPECT_EQ(copy.SelColor(), vbBlack);
}

TEST(RichTextBox, SpecialCharactersAreEscapedAndComeBack) {
    RichTextBox box("r");
    const QString text = QString("a\\b{c}d\te") + QChar(0xE9) + QChar(0x20AC) + QChar(0x4E2D) + "z";
    box.setText(text);
    const QString rtf = box.TextRTF();
    EXPECT_TRUE(rtf.contains("\\fs17 a\\\\b\\{c\\}d\\tab e\\'e9\\'80\\u20013\\'3fz\r\n"))
        << rtf.toStdString();

    RichTextBox copy("copy");
    copy.setTextRTF(rtf);
    EXPECT_EQ(copy.Text(), text);
}

TEST(RichTextBox, TextThatIsNotRichTextIsKeptAsPlainText) {
    RichTextBox box("RichTextBoxHTML");
    const QString html = "<HTML><BODY>{\\b not rich}</BODY>\r\n</HTML>";
    box.setTextRTF(html);
    EXPECT_EQ(box.Text(), html);
    box.setTextRTF(" {\\rtf1 leading blank}");
    EXPECT_EQ(box.Text(), " {\\rtf1 leading blank}");
}

TEST(RichTextBox, ReaderPassesOverUnknownWordsAndDestinations) {
    RichTextBox box("r");
    box.setTextRTF("{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Courier;}}"
                   "{\\colortbl ;\\red255\\green0\\blue0;}"
                   "{\\*\\generator Some Writer 1.0;}{\\info{\\title Secret}}"
                   "\\viewkind4\\uc1\\pard\\lang1033\\f0\\fs20 A\\cf1 B\\cf0 C{\\b D}E"
                   "\\par F\\~G\\u8364?\\emdash\\par\r\n}");
    EXPECT_EQ(box.Text(),
              QString("ABCDE\r\nF") + QChar(0xA0) + "G" + QChar(0x20AC) + QChar(0x2014));
    select(box, "B");
    EXPECT_EQ(box.SelColor(), vbRed);
    select(box, "C");
    EXPECT_EQ(box.SelColor(), vbBlack);
    select(box, "D");
    EXPECT_TRUE(box.SelBold());
    select(box, "E");
    EXPECT_FALSE(box.SelBold());
}

TEST(RichTextBox, PositionsCountALineEndAsTwoAndSelTextReplacesTheSelection) {
    RichTextBox box("r");
    box.setText("ab\r\ncd\r\nef");
    for (const auto& [start, length, text] : {std::tuple{4, 2, "cd"}, std::tuple{1, 4, "b\r\nc"},
                                              std::tuple{0, 10, "ab\r\ncd\r\nef"}}) {
        box.setSelStart(start);
        box.setSelLength(length);
        EXPECT_EQ(box.SelText(), text);
        EXPECT_EQ(box.SelStart(), start);
        EXPECT_EQ(box.SelLength(), length);
    }
    select(box, "cd");
    box.setSelText("2\r\n3");
    EXPECT_EQ(box.Text(), "ab\r\n2\r\n3\r\nef");
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(box.SelStart(), 8);
}

TEST(RichTextBox, ResettingTheWholeLookClearsColourAndBold) {
    RichTextBox box("r");
    box.setText("find me here");
    select(box, "me");
    box.setSelColor(kFindBlue);
    box.setSelBold(true);
    box.setSelStart(0);
    box.setSelLength(box.Text().size());
    box.setSelColor(0);
    box.setSelBold(false);
    box.setSelStart(0);
    EXPECT_EQ(box.TextRTF(),
              kHeader + kBlackTable +
                  "\\deflang1033\\pard\\plain\\f3\\fs17 find me here\r\n\\par }\r\n");
}

// Text goes out in the ANSI code page with CR LF and one question mark for each character the
// code page lacks, an emoji included; rich text as the box writes it; an empty path fails.
TEST(RichTextBox, SaveFileWritesPlainTextInTheAnsiCodePageOrRichText) {
    test::TestHome home;
    RichTextBox box("r");
    box.setText(QString::fromUtf8("caf\xc3\xa9\n\xe2\x80\xa2\xf0\x9f\x98\x80"
                                  "b\xe4\xb8\xad"
                                  "c"));
    const auto saved = [&](const QString& name, int type) {
        box.SaveFile(home.file(name), type);
        QFile f(home.file(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("unreadable");
    };
    EXPECT_EQ(saved("out.htm", rtfText), QByteArray("caf\xE9\r\n\x95?b?c"));
    EXPECT_EQ(QString::fromLatin1(saved("out.rtf", rtfRTF)), box.TextRTF());
    EXPECT_EQ(raised([&] { box.SaveFile("", rtfText); }), 75);
}

TEST(RichTextBox, LockedBoxKeepsTakingTextFromCode) {
    RichTextBox box("r");
    box.setLocked(true);
    box.setText("set by code");
    EXPECT_EQ(box.Text(), "set by code");
}
