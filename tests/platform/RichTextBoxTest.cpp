#include "RichTextBox.h"
#include "LineEnds.h"
#include "OleColor.h"
#include "QsError.h"
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
    box.setText("one\r\ntwo");
    EXPECT_EQ(box.toPlainText(), "one\ntwo");
    EXPECT_EQ(box.Text(), "one\r\ntwo");
    box.setText("a\nb\nc\n");
    EXPECT_EQ(box.Text(), "a\r\nb\r\nc\r\n");
    box.setText("x\ry");
    EXPECT_EQ(box.Text(), "x\r\ny");
    EXPECT_EQ(box.objectName(), "RichTextBoxCode");
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

TEST(RichTextBox, PositionsCountALineEndAsTwo) {
    RichTextBox box("r");
    box.setText("ab\r\ncd\r\nef");
    box.setSelStart(4);
    box.setSelLength(2);
    EXPECT_EQ(box.SelText(), "cd");
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(box.SelLength(), 2);

    box.setSelStart(1);
    box.setSelLength(4);
    EXPECT_EQ(box.SelText(), "b\r\nc");
    EXPECT_EQ(box.SelLength(), 4);

    // Select all, as the select-all command does.
    box.setSelStart(0);
    box.setSelLength(box.Text().size());
    EXPECT_EQ(box.SelText(), box.Text());
    EXPECT_EQ(box.SelLength(), 10);
}

TEST(RichTextBox, SelTextReplacesTheSelection) {
    RichTextBox box("r");
    box.setText("one two");
    select(box, "two");
    box.setSelText("2\r\n3");
    EXPECT_EQ(box.Text(), "one 2\r\n3");
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

TEST(RichTextBox, SaveFileWritesPlainTextInTheAnsiCodePageOrRichText) {
    test::TestHome home;
    RichTextBox box("r");
    box.setText(QString("caf") + QChar(0xE9) + "\n" + QChar(0x2022));

    const QString plain = home.file("out.htm");
    box.SaveFile(plain, rtfText);
    QFile p(plain);
    ASSERT_TRUE(p.open(QIODevice::ReadOnly));
    EXPECT_EQ(p.readAll(), QByteArray("caf\xE9\r\n\x95"));

    const QString rich = home.file("out.rtf");
    box.SaveFile(rich);
    QFile r(rich);
    ASSERT_TRUE(r.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromLatin1(r.readAll()), box.TextRTF());
}

TEST(RichTextBox, SaveFileAsTextPutsOneQuestionMarkForACharacterTheCodePageLacks) {
    // As the text export does: one mark per character, an emoji included.
    test::TestHome home;
    RichTextBox box("r");
    box.setText(QString::fromUtf8("a\xf0\x9f\x98\x80"
                                  "b\xe4\xb8\xad"
                                  "c"));
    const QString path = home.file("out.txt");
    box.SaveFile(path, rtfText);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("a?b?c"));
}

TEST(RichTextBox, SaveFileToAnEmptyPathRaisesPathFileAccess) {
    RichTextBox box("r");
    box.setText("x");
    try {
        box.SaveFile("", rtfText);
        FAIL() << "no error raised";
    } catch (const QsError& e) {
        EXPECT_EQ(e.number(), 75);
    }
}

TEST(RichTextBox, LockedBoxKeepsTakingTextFromCode) {
    RichTextBox box("r");
    box.setLocked(true);
    box.setText("set by code");
    EXPECT_TRUE(box.Locked());
    EXPECT_EQ(box.Text(), "set by code");
}

TEST(LineEnds, EveryLineEndBecomesCrLfOrLf) {
    EXPECT_EQ(ToCrLf("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(ToLf("a\r\nb\rc\n"), "a\nb\nc\n");
    EXPECT_EQ(ToCrLf("\r\n\r\n"), "\r\n\r\n");
}
