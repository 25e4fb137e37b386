#include "Utf16Text.h"

namespace qs {

namespace {

// The index of the first lone surrogate, or -1.
qsizetype firstLoneSurrogate(const QString& text, qsizetype from) {
    const qsizetype n = text.size();
    for (qsizetype i = from; i < n; ++i) {
        const QChar c = text.at(i);
        if (!c.isSurrogate())
            continue;
        if (c.isHighSurrogate() && i + 1 < n && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        return i;
    }
    return -1;
}

} // namespace

bool IsWellFormedUtf16(const QString& text) {
    return firstLoneSurrogate(text, 0) < 0;
}

QString WellFormedUtf16(const QString& text) {
    qsizetype at = firstLoneSurrogate(text, 0);
    if (at < 0)
        return text;
    QString out = text;
    while (at >= 0) {
        out[at] = QChar(QChar::ReplacementCharacter);
        at = firstLoneSurrogate(out, at + 1);
    }
    return out;
}

} // namespace qs
