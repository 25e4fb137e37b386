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
// The index.  A piece of ASCII letters and digits only is answered by the index alone: the
// FTS5 prefix query "piece"* finds exactly the rows the rule finds (the only characters outside
// ASCII that Qt compares equal to ASCII letters, the Kelvin sign and the long s, the tokenizer
// folds to the same letters).  Any other piece is narrowed by the leading ASCII part of it, as
// a phrase whose last word is a prefix, and each candidate is confirmed by the rule; a piece
// with no ASCII letter or digit before its first other character cannot be narrowed, and the
// rows are scanned.  The narrowing never loses a row the rule finds: within ASCII the index and
// the rule split words alike.
class SearchMatcher {
public:
    struct Piece {
        QString text;
        bool answeredByIndex = false; // the index query is the rule
        QString indexQuery;           // FTS5 expression; empty when the index cannot narrow
        bool needsWordStart = false;  // begins with a word character
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

    // An FTS5 string that SQLite reads back as exactly this text.
    static QString ftsString(const QString& text);

private:
    static Piece makePiece(const QString& text, TokenCharacters& tokens);

    TokenCharacters& mTokens;
    QVector<Piece> mPieces;
    bool mNeedsAll = false;
};

} // namespace qs
