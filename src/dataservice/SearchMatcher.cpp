#include "SearchMatcher.h"

#include "TokenCharacters.h"

namespace qs {

namespace {

bool isAsciiLetterOrDigit(QChar c) {
    const ushort u = c.unicode();
    return (u >= '0' && u <= '9') || (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z');
}

char32_t codePointAt(const QString& text, int index) {
    const QChar c = text.at(index);
    if (c.isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(c, text.at(index + 1));
    return c.unicode();
}

} // namespace

SearchMatcher::SearchMatcher(int matchMode, const QString& text, TokenCharacters& tokens)
    : mTokens(tokens), mNeedsAll(matchMode == 2) {
    QStringList words;
    if (matchMode == 0) {
        const QString phrase = text.trimmed();
        if (!phrase.isEmpty())
            words << phrase;
    } else {
        // White space of every kind separates words, not only the blank.
        QString current;
        for (const QChar c : text) {
            if (!c.isSpace()) {
                current += c;
            } else if (!current.isEmpty()) {
                words << current;
                current.clear();
            }
        }
        if (!current.isEmpty())
            words << current;
    }
    for (const QString& word : words)
        mPieces.append(makePiece(word, tokens));
}

SearchMatcher::Piece SearchMatcher::makePiece(const QString& text, TokenCharacters& tokens) {
    Piece piece;
    piece.text = text;
    piece.needsWordStart = tokens.kind(codePointAt(text, 0)) == TokenCharacters::Kind::Word;
    bool allLettersOrDigits = true;
    bool leadHasLetterOrDigit = false;
    int leadLength = 0;
    for (const QChar c : text) {
        if (c.unicode() >= 0x80)
            break;
        ++leadLength;
        if (isAsciiLetterOrDigit(c))
            leadHasLetterOrDigit = true;
        else
            allLettersOrDigits = false;
    }
    allLettersOrDigits = allLettersOrDigits && leadLength == text.size();
    piece.answeredByIndex = allLettersOrDigits;
    if (leadHasLetterOrDigit)
        piece.indexQuery = ftsString(text.left(leadLength)) + QLatin1Char('*');
    return piece;
}

QString SearchMatcher::ftsString(const QString& text) {
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

bool SearchMatcher::pieceMatches(const Piece& piece, const QString& field) const {
    int from = 0;
    for (;;) {
        const int at = field.indexOf(piece.text, from, Qt::CaseInsensitive);
        if (at < 0)
            return false;
        if (!piece.needsWordStart || mTokens.boundaryBefore(field, at))
            return true;
        from = at + 1;
    }
}

bool SearchMatcher::rowMatches(const QVector<const Piece*>& pieces,
                               const QStringList& fields) const {
    for (const Piece* piece : pieces) {
        bool found = false;
        for (const QString& field : fields) {
            if (pieceMatches(*piece, field)) {
                found = true;
                break;
            }
        }
        if (found && !mNeedsAll)
            return true;
        if (!found && mNeedsAll)
            return false;
    }
    return mNeedsAll;
}

bool SearchMatcher::rowMatches(const QStringList& fields) const {
    if (mPieces.isEmpty())
        return false;
    QVector<const Piece*> all;
    for (const Piece& piece : mPieces)
        all.append(&piece);
    return rowMatches(all, fields);
}

} // namespace qs
