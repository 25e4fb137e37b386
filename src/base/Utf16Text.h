#pragma once

#include <QString>

namespace qs {

// True when every UTF-16 surrogate of the text stands in a pair, a high one before a low one.
bool IsWellFormedUtf16(const QString& text);
// The text with every lone surrogate replaced by U+FFFD, one for one, so that whatever converts
// it to UTF-8 keeps every other character.
QString WellFormedUtf16(const QString& text);

} // namespace qs
