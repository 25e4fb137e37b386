#include "LineEnds.h"

namespace qs {

QString ToLf(const QString& text) {
    if (!text.contains(QLatin1Char('\r')))
        return text;
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\r')) {
            out += QLatin1Char('\n');
            if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
        } else {
            out += c;
        }
    }
    return out;
}

QString ToCrLf(const QString& text) {
    const QString lf = ToLf(text);
    QString out;
    out.reserve(lf.size() + lf.count(QLatin1Char('\n')));
    for (const QChar c : lf) {
        if (c == QLatin1Char('\n'))
            out += QLatin1String("\r\n");
        else
            out += c;
    }
    return out;
}

} // namespace qs
