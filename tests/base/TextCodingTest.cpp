// The Windows-1252 codec and the repair of malformed UTF-16.
#include "Cp1252.h"
#include "Utf16Text.h"

#include <gtest/gtest.h>

using namespace qs;

TEST(Cp1252, EveryByteComesBackThroughTheCodePage) {
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all.append(char(b));
    const QString text = FromCp1252(all);
    EXPECT_EQ(text.at(0x80), QChar(0x20AC));
    EXPECT_EQ(text.at(0x95), QChar(0x2022));
    EXPECT_EQ(text.at(0x9F), QChar(0x0178));
    EXPECT_EQ(text.at(0x81), QChar(0x0081));
    EXPECT_EQ(text.at(0xFF), QChar(0x00FF));
    EXPECT_EQ(ToCp1252(text), all);
    EXPECT_EQ(Cp1252Byte(0x20AC), 0x80);
    EXPECT_EQ(Cp1252Byte(0x4E2D), -1);
}

TEST(Cp1252, EachCharacterTheCodePageLacksIsOneQuestionMark) {
    const QChar high(0xD83D), low(0xDE00);
    const struct {
        QString text;
        QByteArray bytes;
    } cases[] = {
        {QStringLiteral("a") + QChar(0x4E2D) + QChar(0x0100) + "b", "a??b"},
        {QString::fromUtf8("a\xf0\x9f\x98\x80"
                           "b"),
         "a?b"},
        {QStringLiteral("a") + high + "b" + low, "a?b?"},
        {QString(low) + high + low, "??"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.bytes.toStdString());
        EXPECT_EQ(ToCp1252(c.text), c.bytes);
    }
}

TEST(Utf16Text, LoneSurrogatesBecomeReplacementsAndTheRestStays) {
    const QChar high(0xD83D), low(0xDE00), bad(QChar::ReplacementCharacter);
    const QString pair = QString(high) + low;
    const struct {
        QString text;
        QString fixed;
    } cases[] = {
        {QStringLiteral("plain ") + pair, QStringLiteral("plain ") + pair},
        {QStringLiteral("a") + high + "b", QStringLiteral("a") + bad + "b"},
        {QStringLiteral("a") + low + "b", QStringLiteral("a") + bad + "b"},
        {QStringLiteral("ab") + high, QStringLiteral("ab") + bad},
        {QString(high) + high + low + low, QString(bad) + pair + bad},
        {QString(low) + high, QString(bad) + bad},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.fixed.toStdString());
        EXPECT_EQ(WellFormedUtf16(c.text), c.fixed);
        EXPECT_EQ(IsWellFormedUtf16(c.text), c.text == c.fixed);
    }
}
