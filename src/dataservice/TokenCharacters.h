#pragma once

#include <QHash>
#include <QString>

namespace qs {

// Which characters the search index's tokenizer keeps inside a word.  ASCII letters and digits
// are word characters and every other ASCII character separates words; for any other character
// the answer is learnt from SQLite itself, through a small in-memory table made with the same
// tokenizer arguments, and remembered for the life of the process.  So the scan of the search
// and the index never disagree on where a word starts, whatever the Unicode tables of Qt and
// SQLite say.  Combining marks are the subtle case: the tokenizer lets a mark run on a word
// that has begun but never begins one with it.
class TokenCharacters {
public:
    // The one instance for these tokenizer arguments (as in the index's CREATE statement,
    // e.g. "unicode61 remove_diacritics 0").  Raises kErrStorage with source when SQLite
    // cannot make the probe table.
    static TokenCharacters& forTokenizer(const QString& tokenize, const QString& source);

    // The arguments of the tokenizer of the FTS5 table whose CREATE statement this is; the
    // FTS5 default "unicode61" when it names none.  The piece tokenizer of the search index
    // gives the arguments of the unicode61 it splits words with.
    static QString tokenizerOf(const QString& createStatement);

    enum class Kind {
        Separator, // between words
        Word,      // begins or continues a word
        Mark       // continues a word that has begun, else separates
    };
    Kind kind(char32_t c);
    // True when no word of the tokenizer runs on across this position of the text from the
    // left: the position begins the text, follows a separator, or follows marks that follow a
    // separator or the beginning.
    bool boundaryBefore(const QString& text, int index);

    TokenCharacters(const TokenCharacters&) = delete;
    TokenCharacters& operator=(const TokenCharacters&) = delete;

private:
    TokenCharacters(const QString& tokenize, const QString& connectionName);
    void open(const QString& source);
    Kind probe(char32_t c);

    QString mTokenize;
    QString mConnectionName;
    QString mSource;
    QHash<char32_t, Kind> mKnown;
};

} // namespace qs
