#pragma once

#include <QString>

namespace qs {

// Fills a message template: replaces the first `strMarker` by `strValue`; with `intOccurrence`
// above 0 the n-th marker instead (the markers in front turn into "^" meanwhile, and afterwards
// every "^" of the text becomes "?").
QString ValidateSSN(const QString& strTemplate, const QString& strValue,
                    const QString& strMarker = QStringLiteral("?"), int intOccurrence = 0);

// Position (from 1) of the first letter A-Z or a-z of the trimmed text; 0 if there is none.
int FirstAlphaCharacter(const QString& strText);

// True when every character is a letter A-Z or a-z.
bool IsAlpha(const QString& strValue);

} // namespace qs
