#include "OleColor.h"

#include <QApplication>
#include <QPalette>

namespace qs {

QColor OleColorToQColor(long color) {
    if (color & 0x80000000L) {
        const QPalette palette = QApplication::palette();
        switch (color & 0xFF) {
        case 5:
            return palette.color(QPalette::Base);
        case 8:
            return palette.color(QPalette::Text);
        case 13:
            return palette.color(QPalette::Highlight);
        case 14:
            return palette.color(QPalette::HighlightedText);
        case 15:
            return palette.color(QPalette::Button);
        default:
            return palette.color(QPalette::Window);
        }
    }
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                  static_cast<int>((color >> 16) & 0xFF));
}

long QColorToOleColor(const QColor& color) {
    return static_cast<long>(color.red()) | (static_cast<long>(color.green()) << 8) |
           (static_cast<long>(color.blue()) << 16);
}

} // namespace qs
