#pragma once

#include <QString>

namespace qs::test {

// A header as the rich text box writes it, with fonts and colours to choose from:
// fonts 0 "MS Sans Serif", 1 "Courier New", 2 "MS Sans Serif" again, 3 "Arial";
// colours (behind the automatic one) 0 "000000", 1 "FF0000", 2 "0080FF".
inline QString rtfHeader() {
    return QStringLiteral("{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
                          "{\\f1\\fmodern Courier New;}{\\f2\\fswiss MS Sans Serif;}"
                          "{\\f3\\fswiss Arial;}}\r\n"
                          "{\\colortbl;\\red0\\green0\\blue0;\\red255\\green0\\blue0;"
                          "\\red0\\green128\\blue255;}\r\n");
}

// `body` as the one line of a rich text box: it follows "\pard\plain " on the \deflang line
// and ends before the closing "\par }".
inline QString oneLine(const QString& body) {
    return rtfHeader() + QStringLiteral("\\deflang1033\\pard\\plain ") + body +
           QStringLiteral("\r\n\\par }\r\n");
}

} // namespace qs::test
