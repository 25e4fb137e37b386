#pragma once

#include <QByteArray>
#include <QString>

namespace qs {

// The Windows ANSI code page (1252) that the system's text files are written in, the one codec
// of every layer.  Qt has no converter for it without ICU, so the table lives here: 0x80-0x9F by
// the code page's own assignments, everything else as Latin-1.

// The byte of a code point, or -1 when the code page has no such character.  The five bytes the
// code page leaves unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the C1 controls of the same
// value, so that any byte survives a round trip.
int Cp1252Byte(char32_t codePoint);
// One byte per character; a character the code page lacks becomes one "?", whatever its length
// in UTF-16 (an emoji is one character, and so is a lone surrogate).
QByteArray ToCp1252(const QString& text);
// The unassigned bytes come back as the C1 control characters of the same value, as Windows
// decodes them.
QString FromCp1252(const QByteArray& bytes);

} // namespace qs
