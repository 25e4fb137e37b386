#include "RtfTables.h"

#include "Cp1252.h"
#include "RtfText.h"

#include <array>
#include <cmath>

namespace qs {

namespace {

struct CharacterRow {
    const char* code;
    const char16_t* text;
};

// The character table in its own order.  e4 is the trademark row on purpose; a0, ae and the
// range 80 to 9f but 85 have no row.
constexpr CharacterRow kCharacterRows[96] = {
    {"00", u"&nbsp;"},   {"a9", u"&copy;"},   {"b4", u"&acute;"},  {"ab", u"&laquo;"},
    {"bb", u"&raquo;"},  {"a1", u"&iexcl;"},  {"bf", u"&iquest;"}, {"c0", u"&Agrave;"},
    {"e0", u"&agrave;"}, {"c1", u"&Aacute;"}, {"e1", u"&aacute;"}, {"c2", u"&Acirc;"},
    {"e2", u"&acirc;"},  {"c3", u"&Atilde;"}, {"e3", u"&atilde;"}, {"c4", u"&Auml;"},
    {"e4", u"<tm>"},     {"c5", u"&Aring;"},  {"e5", u"&aring;"},  {"c6", u"&AElig;"},
    {"e6", u"&aelig;"},  {"c7", u"&Ccedil;"}, {"e7", u"&ccedil;"}, {"d0", u"&ETH;"},
    {"f0", u"&eth;"},    {"c8", u"&Egrave;"}, {"e8", u"&egrave;"}, {"c9", u"&Eacute;"},
    {"e9", u"&eacute;"}, {"ca", u"&Ecirc;"},  {"ea", u"&ecirc;"},  {"cb", u"&Euml;"},
    {"eb", u"&euml;"},   {"cc", u"&Igrave;"}, {"ec", u"&igrave;"}, {"cd", u"&Iacute;"},
    {"ed", u"&iacute;"}, {"ce", u"&Icirc;"},  {"ee", u"&icirc;"},  {"cf", u"&Iuml;"},
    {"ef", u"&iuml;"},   {"d1", u"&Ntilde;"}, {"f1", u"&ntilde;"}, {"d2", u"&Ograve;"},
    {"f2", u"&ograve;"}, {"d3", u"&Oacute;"}, {"f3", u"&oacute;"}, {"d4", u"&Ocirc;"},
    {"f4", u"&ocirc;"},  {"d5", u"&Otilde;"}, {"f5", u"&otilde;"}, {"d6", u"&Ouml;"},
    {"f6", u"&ouml;"},   {"d8", u"&Oslash;"}, {"f8", u"&oslash;"}, {"d9", u"&Ugrave;"},
    {"f9", u"&ugrave;"}, {"da", u"&Uacute;"}, {"fa", u"&uacute;"}, {"db", u"&Ucirc;"},
    {"fb", u"&ucirc;"},  {"dc", u"&Uuml;"},   {"fc", u"&uuml;"},   {"dd", u"&Yacute;"},
    {"fd", u"&yacute;"}, {"ff", u"&yuml;"},   {"de", u"&THORN;"},  {"fe", u"&thorn;"},
    {"df", u"&szlig;"},  {"a7", u"&sect;"},   {"b6", u"&para;"},   {"b5", u"&micro;"},
    {"a6", u"&brvbar;"}, {"b1", u"&plusmn;"}, {"b7", u"&middot;"}, {"a8", u"&uml;"},
    {"b8", u"&cedil;"},  {"aa", u"&ordf;"},   {"ba", u"&ordm;"},   {"ac", u"&not;"},
    {"ad", u"&shy;"},    {"af", u"&macr;"},   {"b0", u"&deg;"},    {"b9", u"&sup1;"},
    {"b2", u"&sup2;"},   {"b3", u"&sup3;"},   {"bc", u"&frac14;"}, {"bd", u"&frac12;"},
    {"be", u"&frac34;"}, {"d7", u"&times;"},  {"f7", u"&divide;"}, {"a2", u"&cent;"},
    {"a3", u"&pound;"},  {"a4", u"&curren;"}, {"a5", u"&yen;"},    {"85", u"..."},
};

// The value of a hexadecimal digit, lower case only when `lowerOnly`; -1 for anything else.
int hexDigit(QChar c, bool lowerOnly) {
    const char16_t u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (!lowerOnly && u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

// The rows indexed by the value of their code, built once.
const std::array<QStringView, 256>& characterIndex() {
    static const std::array<QStringView, 256> index = [] {
        std::array<QStringView, 256> built{};
        for (const CharacterRow& row : kCharacterRows) {
            const int value = hexDigit(QLatin1Char(row.code[0]), true) * 16 +
                              hexDigit(QLatin1Char(row.code[1]), true);
            built[value] = QStringView(row.text);
        }
        return built;
    }();
    return index;
}

bool isDigit(QChar c) {
    return c.unicode() >= '0' && c.unicode() <= '9';
}

// The number a short decimal text stands for, read the way the system reads numbers out of text:
// leading blanks passed over, a sign, digits, a decimal point; nothing numeric reads as 0.  The
// value is then rounded to a whole number, halves to even, as a hexadecimal conversion does.
qint64 wholeNumberOf(const QString& text) {
    qsizetype i = 0;
    while (i < text.size() && (text.at(i) == QLatin1Char(' ') || text.at(i) == QLatin1Char('\t') ||
                               text.at(i) == QLatin1Char('\n')))
        ++i;
    double sign = 1;
    if (i < text.size() && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+'))) {
        sign = text.at(i) == QLatin1Char('-') ? -1 : 1;
        ++i;
    }
    double value = 0;
    while (i < text.size() && isDigit(text.at(i)))
        value = value * 10 + (text.at(i++).unicode() - '0');
    if (i < text.size() && text.at(i) == QLatin1Char('.')) {
        double scale = 0.1;
        for (++i; i < text.size() && isDigit(text.at(i)); ++i, scale /= 10)
            value += (text.at(i).unicode() - '0') * scale;
    }
    return static_cast<qint64>(std::nearbyint(sign * value));
}

// Upper-case hexadecimal of a 32-bit whole number, negative numbers in two's complement.
QString hexOf(qint64 value) {
    return QString::number(static_cast<quint32>(static_cast<qint32>(value)), 16).toUpper();
}

// One colour component: the character behind the word in any case, and each of the next two
// when it is a digit by itself.
QString componentHex(const RtfText& rtf, qsizetype wordEnd) {
    QString text = rtf.mid(wordEnd, 1).toString();
    for (qsizetype at = wordEnd + 1; at <= wordEnd + 2; ++at)
        if (rtf.isDigitAt(at))
            text += QChar(rtf.at(at));
    QString hex = hexOf(wholeNumberOf(text));
    if (hex.size() == 1)
        hex.prepend(QLatin1Char('0'));
    return hex;
}

} // namespace

QStringList ReadColourTable(const QString& text) {
    const RtfText rtf(text);
    QStringList table{QString()};
    const qsizetype start = rtf.find(1, u"\\colortbl");
    const qsizetype end = rtf.find(start, u";}");
    if (!start || !end)
        return table;
    qsizetype position = rtf.find(start, u"\\red");
    for (int index = 0; position != 0 && position <= end; ++index) {
        while (table.size() <= index)
            table.append(QString());
        for (const QStringView word :
             {QStringView(u"\\red"), QStringView(u"\\green"), QStringView(u"\\blue")}) {
            position = rtf.find(position, word);
            // An entry cut short ends the table where it stands.
            if (!position)
                return table;
            table[index] += componentHex(rtf, position + word.size());
        }
        position = rtf.find(position, u"\\red");
    }
    return table;
}

QList<QStringView> ReadFontTable(const QString& text) {
    const RtfText rtf(text);
    QList<QStringView> table{QStringView()};
    const qsizetype start = rtf.find(1, u"\\fonttbl");
    const qsizetype end = rtf.find(start, u";}}");
    if (!start || !end)
        return table;
    RtfFinder semicolons(rtf, u";");
    qsizetype position = rtf.find(start, u"\\f0");
    for (int index = 0; position != 0 && position <= end; ++index) {
        while (table.size() <= index)
            table.append(QStringView());
        while (position < end + 1 && rtf.at(position) != ' ')
            ++position;
        ++position;
        // Without a ";" behind it the name runs to the end of the text.
        const qsizetype semicolon = semicolons.find(position);
        const qsizetype length = semicolon ? semicolon - position : rtf.size() + 1 - position;
        // Every entry is met once, so the name is the table element itself.
        table[index] = rtf.mid(position, length);
        position = rtf.find(position, QString(QStringLiteral("\\f") + QString::number(index + 1)));
    }
    return table;
}

QStringView CharacterTableText(QStringView hex) {
    if (hex.size() != 2)
        return {};
    const int high = hexDigit(hex.at(0), true);
    const int low = hexDigit(hex.at(1), true);
    if (high < 0 || low < 0)
        return {};
    return characterIndex()[high * 16 + low];
}

QChar AnsiCharacterOfHex(QStringView hex) {
    int value = 0;
    for (const QChar c : hex) {
        const int digit = hexDigit(c, false);
        if (digit < 0)
            break;
        value = value * 16 + digit;
    }
    return FromCp1252(QByteArray(1, static_cast<char>(value))).at(0);
}

} // namespace qs
