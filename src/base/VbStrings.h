#pragma once

#include <QString>

namespace qs {

// Trim as the system's string functions do it: blanks (spaces) at both ends only, never tabs or
// line ends.
QString VbTrim(const QString& text);

} // namespace qs
