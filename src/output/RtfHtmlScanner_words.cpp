// The control words the scanner understands, dispatched on the first character behind the
// backslash.  Each row leaves an advance; together with the two steps after it, that is what
// decides which characters behind a word are read as text, and the advances are part of the
// output format.
#include "RtfHtmlScanner.h"

#include "QsError.h"
#include "RtfTables.h"

#include <algorithm>

namespace qs {

namespace {

constexpr QStringView kBlank = u" ";
constexpr QStringView kTab = u"&#9;";
constexpr QStringView kTrademark = u"<FONT SIZE=\"-1\"><SUP>TM</SUP></FONT>";
// Large enough that every comparison it meets comes out as for any larger number.
constexpr qint64 kNumberCap = qint64(1) << 40;

} // namespace

void RtfHtmlScanner::controlWord() {
    ++p;
    const int c = rtf.at(p);
    const int next = rtf.at(p + 1);
    qsizetype advance = 0;
    switch (c) {
    case 'b':
    case 'i':
        if (next == ' ' || next == '\\') {
            if (c == 'b')
                openTag(u"<B>", CloseB);
            else
                openTag(u"<I>", CloseI);
            advance = next == ' ' ? 1 : 0;
        } else if (c == 'b' && rtf.startsAt(p, QLatin1String("bullet "))) {
            setPending(QChar(0x2022));
            emitPending = true;
            advance = 6;
        } else {
            skip = true;
        }
        break;
    case 'c':
        if (rtf.startsAt(p, QLatin1String("cf")) && rtf.isDigitAt(p + 2)) {
            qsizetype n = 0;
            for (qsizetype at = p + 2; at < p + 7 && rtf.isDigitAt(at); ++at)
                n = n * 10 + (rtf.at(at) - '0');
            if (n <= colourTable.size() - 1) {
                fontColour = QLatin1Char('#') + colourTable.at(n);
                fontChanged = true;
            }
            advance = toBlankOrBackslash();
        } else {
            skip = true;
        }
        break;
    case 'e':
        if (rtf.startsAt(p, QLatin1String("emdash "))) {
            setPending(QChar(0x2014));
            emitPending = true;
            advance = 5;
        } else {
            skip = true;
        }
        break;
    case 'f':
        advance = fontWord();
        break;
    case 'l':
        if (rtf.startsAt(p, QLatin1String("ldblquote "))) {
            setPending(QChar(0x201C));
            emitPending = true;
            advance = 9;
        } else if (rtf.startsAt(p, QLatin1String("lquote "))) {
            setPending(QChar(0x2018));
            emitPending = true;
            advance = 6;
        } else {
            skip = true;
        }
        break;
    case 'p':
        advance = paragraphWord();
        break;
    case 'q':
        if (rtf.startsAt(p, QLatin1String("qc\\")) || rtf.startsAt(p, QLatin1String("qc ")) ||
            rtf.startsAt(p, QLatin1String("qr\\")) || rtf.startsAt(p, QLatin1String("qr "))) {
            alignment = next == 'c' ? QStringLiteral("center") : QStringLiteral("right");
            advance = rtf.at(p + 2) == ' ' ? 3 : 1;
        } else {
            skip = true;
        }
        break;
    case 'r':
        if (rtf.startsAt(p, QLatin1String("rquote "))) {
            setPending(QChar(0x2019));
            emitPending = true;
            advance = 6;
        } else if (rtf.startsAt(p, QLatin1String("rdblquote "))) {
            setPending(QChar(0x201D));
            emitPending = true;
            advance = 9;
        } else {
            skip = true;
        }
        break;
    case 's':
        if (rtf.startsAt(p, QLatin1String("strike\\")) ||
            rtf.startsAt(p, QLatin1String("strike "))) {
            openTag(u"<STRIKE>", CloseStrike);
            advance = 6;
        } else {
            skip = true;
        }
        break;
    case 't':
        if (rtf.startsAt(p, QLatin1String("tab "))) {
            setPending(kTab);
            emitPending = true;
            advance = 2;
        } else {
            skip = true;
        }
        break;
    case 'u':
        if (rtf.startsAt(p, QLatin1String("ul ")) || rtf.startsAt(p, QLatin1String("ul\\"))) {
            openTag(u"<U>", CloseU);
            advance = 1;
        } else {
            skip = true;
        }
        break;
    case '\'':
        hexadecimalStep();
        emitPending = true;
        advance = 1;
        break;
    case '~':
        setPending(kBlank);
        emitPending = true;
        break;
    case '{':
    case '}':
    case '\\':
        setPending(QChar(c));
        emitPending = true;
        break;
    case '\n':
    case '\r':
        currentLine += u"\r\n";
        break;
    default:
        skip = true;
        break;
    }

    p += advance;
    if (skip) {
        skip = false;
        while (p <= rtf.size() && rtf.at(p) != ' ' && rtf.at(p) != '\\' && rtf.at(p) != '}')
            ++p;
        if (rtf.at(p) == '\\')
            --p;
    }
    ++p;
}

// \fN chooses a font, \fsN a size.
qsizetype RtfHtmlScanner::fontWord() {
    const qsizetype digitsAt = rtf.isDigitAt(p + 1) ? p + 1 : p + 2;
    if (!rtf.isDigitAt(p + 1) && !(rtf.at(p + 1) == 's' && rtf.isDigitAt(p + 2))) {
        skip = true;
        return 0;
    }
    qint64 n = 0;
    qsizetype end = digitsAt;
    for (; rtf.isDigitAt(end); ++end)
        n = std::min(kNumberCap, n * 10 + (rtf.at(end) - '0'));
    if (digitsAt == p + 1) {
        // The entry is read whatever the comparison, so a number beyond the table fails.
        if (n > fontTable.size() - 1)
            throw QsError(9, QString::fromLatin1(kAppSource),
                          QStringLiteral("Subscript out of range"));
        if (!sameAsFirstFont(n)) {
            fontFace = fontTable.at(n);
            fontChanged = true;
        }
    } else {
        // The whole part of n / 5 - 2, rounded down.
        const qint64 tenths = n - 10;
        const qint64 s = tenths >= 0 ? tenths / 5 : -((-tenths + 4) / 5);
        if (s == 2) {
            fontSizeSet = {};
        } else {
            fontChanged = true;
            fontSizeSet = rtf.mid(p, end - p);
            fontSize = static_cast<qint16>(std::clamp<qint64>(s, 1, 8));
        }
    }
    return toBlankOrBackslash();
}

qsizetype RtfHtmlScanner::paragraphWord() {
    if (rtf.startsAt(p, QLatin1String("plain\\")) || rtf.startsAt(p, QLatin1String("plain "))) {
        plainSteps();
        return rtf.at(p + 5) == '\\' ? 4 : 5;
    }
    if (rtf.startsAt(p, QLatin1String("pnlvlblt\\"))) {
        closingTags.clear();
        sectionStartTag = QStringLiteral("<UL>");
        lineStartTag = QStringLiteral("<LI>");
        lineEndTag = QStringLiteral("</LI>");
        paragraphEndTag = QStringLiteral("</UL>");
        return 7;
    }
    if (rtf.startsAt(p, QLatin1String("pntext\\")) || rtf.startsAt(p, QLatin1String("pntxtb"))) {
        // Without a "}" behind it, the rest of the text goes with it.
        const qsizetype brace = braces.find(p);
        p = brace ? brace : rtf.size() + 1;
        return 0;
    }
    if (rtf.startsAt(p, QLatin1String("pard\\plain"))) {
        flushClosingTags(currentLine);
        put(currentLine, paragraphEndTag);
        paragraphEndTag.clear();
        lineStartTag.clear();
        lineEndTag = QStringLiteral("<BR>") + lineBreak;
        return 3;
    }
    skip = true;
    return 0;
}

bool RtfHtmlScanner::sameAsFirstFont(qsizetype n) {
    signed char& known = fontSameAsFirst[static_cast<std::size_t>(n)];
    if (known < 0)
        known = fontTable.at(n) == fontTable.at(0) ? 1 : 0;
    return known == 1;
}

qsizetype RtfHtmlScanner::toBlankOrBackslash() {
    while (p <= rtf.size() && rtf.at(p) != ' ' && rtf.at(p) != '\\')
        ++p;
    return rtf.at(p) == ' ' ? 0 : -1;
}

void RtfHtmlScanner::hexadecimalStep() {
    const QStringView h = rtf.mid(p + 1, 2);
    const QStringView row = CharacterTableText(h);
    if (row.isEmpty())
        setPending(AnsiCharacterOfHex(h));
    else if (row == u"<tm>")
        setPending(kTrademark);
    else
        setPending(row);
}

} // namespace qs
