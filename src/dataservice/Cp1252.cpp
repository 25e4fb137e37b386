#include "Cp1252.h"

#include <QList>

#include <array>

namespace qs {

namespace {

// Code points of the bytes 0x80-0x9F; an unassigned byte maps to the C1 control of its value.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char encodeOne(uint cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
        return static_cast<char>(cp);
    for (std::size_t i = 0; i < kHigh.size(); ++i) {
        if (kHigh[i] == cp)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

} // namespace

QByteArray ToCp1252(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    const auto ucs4 = text.toUcs4();
    for (const uint cp : ucs4)
        out.append(encodeOne(cp));
    return out;
}

QString FromCp1252(const QByteArray& bytes) {
    QString out;
    out.reserve(bytes.size());
    for (char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b >= 0x80 && b <= 0x9F)
            out.append(QChar(kHigh[b - 0x80]));
        else
            out.append(QChar(b));
    }
    return out;
}

} // namespace qs
