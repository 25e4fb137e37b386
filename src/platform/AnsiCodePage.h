#pragma once

#include <QByteArray>
#include <QString>

namespace qs {

// The system's ANSI code page (Windows-1252), used wherever text leaves as single bytes.

// The code-page byte of `c`, or -1 when the code page has no such character.
int AnsiCode(QChar c);
// Text to bytes; a character the code page lacks becomes "?".
QByteArray ToAnsi(const QString& text);
// Bytes to text; the five unassigned codes map to the control characters of the same value.
QString FromAnsi(const QByteArray& bytes);

} // namespace qs
