#pragma once

#include <QColor>

namespace qs {

// Colours as the logic holds them: a 32-bit value in blue-green-red byte order (red in the low
// byte), or a system colour with the high bit set (0x80000005 is the window background).
enum SystemColor : long {
    vbWindowBackground = 0x80000005L,
    vbWindowText = 0x80000008L,
    vbHighlight = 0x8000000DL,
    vbHighlightText = 0x8000000EL,
};
inline constexpr long vbBlack = 0x000000L;
inline constexpr long vbRed = 0x0000FFL;
inline constexpr long vbBlue = 0xFF0000L;

QColor OleColorToQColor(long color);
// The blue-green-red value of a colour (never a system colour).
long QColorToOleColor(const QColor& color);

} // namespace qs
