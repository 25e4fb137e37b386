#include "Cp1252.h"

#include <array>

namespace qs {

namespace {

// Code points of the bytes 0x80-0x9F; an unassigned byte maps to the C1 control of its value.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

int Cp1252Byte(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
        return static_cast<int>(codePoint);
    for (std::size_t i = 0; i < kHigh.size(); ++i) {
        if (kHigh[i] == codePoint)
            return static_cast<int>(0x80 + i);
    }
    return -1;
}

QByteArray ToCp1252(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        // A pair is one character; its halves never reach the table.
        if (c.isHighSurrogate() && i + 1 < n && text.at(i + 1).isLowSurrogate()) {
            ++i;
            out.append('?');
            continue;
        }
        const int byte = c.isSurrogate() ? -1 : Cp1252Byte(c.unicode());
        out.append(byte < 0 ? '?' : static_cast<char>(byte));
    }
    return out;
}

QString FromCp1252(const QByteArray& bytes) {
    QString out;
    out.reserve(bytes.size());
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b >= 0x80 && b <= 0x9F)
            out.append(QChar(kHigh[b - 0x80]));
        else
            out.append(QChar(b));
    }
    return out;
}

} // namespace qs
