#include "SearchMatcher.h"

#include "SearchTokenizer.h"
#include "TokenCharacters.h"

#include <QStringDecoder>
#include <cstring>
#include <string>

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

// The bytes of the Kelvin sign and the long s in UTF-8.
const QByteArray kKelvin = QByteArrayLiteral("\xE2\x84\xAA");
const QByteArray kLongS = QByteArrayLiteral("\xC5\xBF");

// Text as SQLite hands it out, a byte order mark at the start kept as a character.
QString textOf(const QByteArray& utf8) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(utf8);
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
    bool leadHasLetterOrDigit = false;
    // Whether the index's tokens hold the piece exactly: its separators short enough to be
    // kept whole, and none of the control characters a token may be cut or marked with.
    bool indexable = text.size() <= kIndexedPieceLength;
    int separatorRun = 0;
    int leadLength = 0;
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u >= 0x80)
            break;
        ++leadLength;
        if (isAsciiLetterOrDigit(c)) {
            leadHasLetterOrDigit = true;
            separatorRun = 0;
        } else {
            indexable = indexable && ++separatorRun <= kSearchSeparatorBytes &&
                        (u >= 0x20 || u == '\t' || u == '\n' || u == '\r');
        }
    }
    if (leadLength == text.size()) {
        piece.asciiExact = text.toLatin1();
        piece.asciiLower = piece.asciiExact.toLower();
        piece.hasK = piece.asciiLower.contains('k');
        piece.hasS = piece.asciiLower.contains('s');
    }
    piece.answeredByIndex =
        indexable && leadLength == text.size() && isAsciiLetterOrDigit(text.at(0));
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

template <class Field>
bool SearchMatcher::rowMatchesWith(const QVector<const Piece*>& pieces, int count,
                                   Field&& field) const {
    for (const Piece* piece : pieces) {
        bool found = false;
        for (int i = 0; i < count && !found; ++i)
            found = pieceMatches(*piece, field(i));
        if (found && !mNeedsAll)
            return true;
        if (!found && mNeedsAll)
            return false;
    }
    return mNeedsAll;
}

bool SearchMatcher::rowMatches(const QVector<const Piece*>& pieces,
                               const QStringList& fields) const {
    return rowMatchesWith(pieces, int(fields.size()),
                          [&fields](int i) -> const QString& { return fields.at(i); });
}

bool SearchMatcher::rowMatches(const QStringList& fields) const {
    if (mPieces.isEmpty())
        return false;
    QVector<const Piece*> all;
    for (const Piece& piece : mPieces)
        all.append(&piece);
    return rowMatches(all, fields);
}

bool SearchMatcher::rowMatchesUtf8(const QVector<const Piece*>& pieces,
                                   const QVector<QByteArray>& fields) const {
    QVector<QString> texts(fields.size());
    QVector<bool> made(fields.size(), false);
    const auto text = [&](int i) -> const QString& {
        if (!made[i]) {
            texts[i] = textOf(fields.at(i));
            made[i] = true;
        }
        return texts.at(i);
    };
    for (const Piece* piece : pieces) {
        bool found = false;
        for (int i = 0; i < fields.size() && !found; ++i) {
            const QByteArray& bytes = fields.at(i);
            const ByteAnswer answer =
                piece->asciiLower.isEmpty() ? ByteAnswer::Unsure : asciiPieceMatches(*piece, bytes);
            found = answer == ByteAnswer::Unsure ? pieceMatches(*piece, text(i))
                                                 : answer == ByteAnswer::Yes;
        }
        if (found && !mNeedsAll)
            return true;
        if (!found && mNeedsAll)
            return false;
    }
    return mNeedsAll;
}

SearchMatcher::ByteAnswer SearchMatcher::asciiPieceMatches(const Piece& piece,
                                                           const QByteArray& field) const {
    // Most texts hold the piece as it was typed: found so at the start of a word, it matches
    // without more ado.
    const std::size_t length = std::size_t(piece.asciiLower.size());
    const auto* exact = static_cast<const char*>(
        memmem(field.constData(), std::size_t(field.size()), piece.asciiExact.constData(), length));
    if (exact &&
        (!piece.needsWordStart ||
         boundaryBeforeUtf8(field, qsizetype(exact - field.constData())) == ByteAnswer::Yes))
        return ByteAnswer::Yes;
    // The field with its ASCII letters in lower case, in a buffer that lives on; whether it
    // holds any byte outside ASCII comes with it.
    thread_local std::string lower;
    const std::size_t size = std::size_t(field.size());
    lower.resize(size);
    const auto* __restrict bytes = reinterpret_cast<const uchar*>(field.constData());
    auto* __restrict out = reinterpret_cast<uchar*>(lower.data());
    uchar high = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const uchar c = bytes[i];
        high |= c;
        out[i] = uchar(c - 'A') < 26 ? uchar(c | 0x20) : c;
    }
    if ((high & 0x80) &&
        ((piece.hasK && field.contains(kKelvin)) || (piece.hasS && field.contains(kLongS))))
        return ByteAnswer::Unsure;
    const char* const start = lower.data();
    std::size_t from = 0;
    while (from + length <= size) {
        const void* hit = memmem(start + from, size - from, piece.asciiLower.constData(), length);
        if (!hit)
            return ByteAnswer::No;
        const std::size_t at = std::size_t(static_cast<const char*>(hit) - start);
        if (!piece.needsWordStart)
            return ByteAnswer::Yes;
        const ByteAnswer boundary = boundaryBeforeUtf8(field, qsizetype(at));
        if (boundary != ByteAnswer::No)
            return boundary;
        from = at + 1;
    }
    return ByteAnswer::No;
}

SearchMatcher::ByteAnswer SearchMatcher::boundaryBeforeUtf8(const QByteArray& field,
                                                            qsizetype index) const {
    const auto* bytes = reinterpret_cast<const uchar*>(field.constData());
    while (index > 0) {
        // The character that ends at index: its lead byte and its code point.
        qsizetype lead = index - 1;
        while (lead > 0 && index - lead < 4 && (bytes[lead] & 0xC0) == 0x80)
            --lead;
        const int length = int(index - lead);
        const uchar first = bytes[lead];
        const int expected = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
        if (first >= 0x80 && (first < 0xC2 || first > 0xF4))
            return ByteAnswer::Unsure;
        if (length != expected)
            return ByteAnswer::Unsure;
        char32_t c = expected == 1 ? first : first & (0x7F >> expected);
        for (int i = 1; i < length; ++i)
            c = (c << 6) | (bytes[lead + i] & 0x3F);
        const char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
        if (c < least[expected] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
            return ByteAnswer::Unsure;
        switch (mTokens.kind(c)) {
        case TokenCharacters::Kind::Separator:
            return ByteAnswer::Yes;
        case TokenCharacters::Kind::Word:
            return ByteAnswer::No;
        case TokenCharacters::Kind::Mark:
            index = lead;
            break;
        }
    }
    return ByteAnswer::Yes;
}

} // namespace qs
