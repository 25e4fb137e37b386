#include "VbStrings.h"

namespace qs {

QString VbTrim(const QString& text) {
    int first = 0;
    int last = text.size();
    while (first < last && text.at(first) == QLatin1Char(' '))
        ++first;
    while (last > first && text.at(last - 1) == QLatin1Char(' '))
        --last;
    return text.mid(first, last - first);
}

} // namespace qs
