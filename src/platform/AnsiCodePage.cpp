#include "AnsiCodePage.h"

namespace qs {

namespace {

// Windows-1252 codes 0x80 to 0x9F; 0 marks the five unassigned codes.
constexpr char16_t kHigh[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

} // namespace

int AnsiCode(QChar c) {
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF))
        return u;
    for (int i = 0; i < 32; ++i)
        if (kHigh[i] == u && u != 0)
            return 0x80 + i;
    // The unassigned codes stand for themselves, so bytes survive a round trip.
    if (u >= 0x80 && u <= 0x9F && kHigh[u - 0x80] == 0)
        return u;
    return -1;
}

QByteArray ToAnsi(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const int code = AnsiCode(c);
        out += static_cast<char>(code < 0 ? '?' : code);
    }
    return out;
}

QString FromAnsi(const QByteArray& bytes) {
    QString out;
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        if (b >= 0x80 && b <= 0x9F && kHigh[b - 0x80] != 0)
            out += QChar(kHigh[b - 0x80]);
        else
            out += QChar(b);
    }
    return out;
}

} // namespace qs
