#include "mStrings.h"

#include "VbStrings.h"

namespace qs {

namespace {

bool isAsciiLetter(QChar c) {
    const ushort u = c.unicode();
    return (u >= 65 && u <= 90) || (u >= 97 && u <= 122);
}

// Replace with a count of one: the first occurrence only; an empty find changes nothing.
QString replaceFirst(const QString& text, const QString& find, const QString& with) {
    if (find.isEmpty())
        return text;
    const int at = text.indexOf(find);
    if (at < 0)
        return text;
    QString result = text;
    result.replace(at, find.size(), with);
    return result;
}

} // namespace

QString ValidateSSN(const QString& strTemplate, const QString& strValue, const QString& strMarker,
                    int intOccurrence) {
    if (intOccurrence <= 0)
        return replaceFirst(strTemplate, strMarker, strValue);
    QString text = strTemplate;
    for (int i = 1; i < intOccurrence; ++i)
        text = replaceFirst(text, strMarker, QStringLiteral("^"));
    text = replaceFirst(text, strMarker, strValue);
    text.replace(QLatin1Char('^'), QLatin1Char('?'));
    return text;
}

int FirstAlphaCharacter(const QString& strText) {
    const QString text = VbTrim(strText);
    for (int i = 0; i < text.size(); ++i)
        if (isAsciiLetter(text[i]))
            return i + 1;
    return 0;
}

bool IsAlpha(const QString& strValue) {
    for (QChar c : strValue)
        if (!isAsciiLetter(c))
            return false;
    return true;
}

} // namespace qs
