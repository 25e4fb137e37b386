#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace qs {

class TokenCharacters;

// The rule of the library search, and how the full-text index narrows it.
//
// What is looked for.  Mode 0 (exact phrase): the search text with its leading and trailing
// white space removed, as one piece.  Modes 1 (any word) and 2 (all words): the pieces of the
// text between white space; empty pieces are dropped.  No piece at all (an empty or blank
// text) finds nothing.
//
// When a piece matches a field.  The piece occurs in the field, compared case-insensitively
// (Qt::CaseInsensitive, character by character), at the start of a word: either the piece
// begins with a character that is not a word character, or no word runs on into the
// occurrence from the left.  Words are those of the index's tokenizer (TokenCharacters): "reg"
// finds "Registry" and "(reg", never "GetReg"; "%" and "_" are ordinary characters and find
// themselves anywhere.
//
// When a row matches.  Mode 0 and 1: some piece matches some field.  Mode 2: every piece
// matches some field (not necessarily the same one).
//
// The index.  Its tokens are words joined to the separators after them (SearchTokenizer.h).  A
// piece of ASCII characters alone that begins with a letter or digit, whose runs of other
// characters are at most kSearchSeparatorBytes long and hold no control character but tab,
// line feed and carriage return, is answered by the index alone: the FTS5 prefix phrase
// "piece"* finds exactly the rows the rule finds (the only characters outside ASCII that Qt
// compares equal to ASCII letters, the Kelvin sign and the long s, the tokenizer folds to the
// same letters, and no character outside ASCII equals an ASCII separator).  Any other piece is
// narrowed by the leading ASCII part of it, as the same phrase, and each candidate is
// confirmed by the rule; a piece with no ASCII letter or digit before its first character
// outside ASCII cannot be narrowed, and the rows are scanned.  The narrowing never loses a row
// the rule finds: within ASCII the index and the rule split words alike.
class SearchMatcher {
public:
    struct Piece {
        QString text;
        bool answeredByIndex = false; // the index query is the rule
        QString indexQuery;           // FTS5 expression; empty when the index cannot narrow
        bool needsWordStart = false;  // begins with a word character
        // For a piece of ASCII characters alone: its bytes with the letters in lower case, and
        // whether it holds a "k" or an "s", which Qt also finds as the Kelvin sign and the
        // long s.
        QByteArray asciiLower;
        QByteArray asciiExact; // its bytes as typed
        bool hasK = false;
        bool hasS = false;
    };

    SearchMatcher(int matchMode, const QString& text, TokenCharacters& tokens);

    bool isEmpty() const { return mPieces.isEmpty(); }
    bool needsAll() const { return mNeedsAll; }
    const QVector<Piece>& pieces() const { return mPieces; }

    // The rule for one piece and one field.
    bool pieceMatches(const Piece& piece, const QString& field) const;
    // The rule for a row with these fields over the given pieces: in mode 2 every one of them
    // (none: true), else any of them (none: false).
    bool rowMatches(const QVector<const Piece*>& pieces, const QStringList& fields) const;
    // The rule over all pieces.
    bool rowMatches(const QStringList& fields) const;
    // The same rule for fields read as the UTF-8 bytes they are stored in (well-formed, as the
    // store writes them).  An ASCII piece is looked for in the bytes themselves: an ASCII byte
    // is the same character in the text, no byte of a longer sequence is ASCII, and only the
    // Kelvin sign and the long s fold onto ASCII letters, so a field holding one of those that
    // the piece could meet is made text, as is every field another piece looks at.
    bool rowMatchesUtf8(const QVector<const Piece*>& pieces,
                        const QVector<QByteArray>& fields) const;

    // An FTS5 string that SQLite reads back as exactly this text.
    static QString ftsString(const QString& text);

private:
    // The rule over `count` fields that `field(i)` hands out.
    template <class Field>
    bool rowMatchesWith(const QVector<const Piece*>& pieces, int count, Field&& field) const;
    static Piece makePiece(const QString& text, TokenCharacters& tokens);
    enum class ByteAnswer { No, Yes, Unsure };
    // The rule for an ASCII piece in UTF-8 bytes; Unsure where the bytes before an occurrence
    // are no well-formed character.
    ByteAnswer asciiPieceMatches(const Piece& piece, const QByteArray& field) const;
    ByteAnswer boundaryBeforeUtf8(const QByteArray& field, qsizetype index) const;

    // Longer pieces are confirmed: a token is cut at 32 KB, and none that long is typed.
    static constexpr int kIndexedPieceLength = 1000;

    TokenCharacters& mTokens;
    QVector<Piece> mPieces;
    bool mNeedsAll = false;
};

} // namespace qs
