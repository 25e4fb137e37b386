#pragma once

#include <QByteArray>
#include <QString>

namespace qs {

// The Windows ANSI code page (1252) that the system's text files are written in.  Qt has no
// converter for it without ICU, so the table lives here: 0x80-0x9F by the code page's own
// assignments, everything else as Latin-1.
//
// A character the code page cannot hold becomes "?" (one per character, not per UTF-16 unit).
QByteArray ToCp1252(const QString& text);
// The five bytes the code page leaves unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) come back as the
// C1 control characters of the same value, as Windows decodes them.
QString FromCp1252(const QByteArray& bytes);

} // namespace qs
