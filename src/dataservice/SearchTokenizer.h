#pragma once

#include <QString>

struct sqlite3;
class QSqlDatabase;

namespace qs {

// The tokenizer of the search index: the words of unicode61 (with the arguments it is given),
// each joined to the characters that follow it up to the next word.
//
// A token is the folded word, the byte 0x01 (never part of a word), then the separator after
// it as stored, so "Set rs = New ADODB.Recordset" gives "set\1 ", "rs\1 = ", "new\1 ",
// "adodb\1." and "recordset\1".  A phrase of such tokens therefore holds the punctuation and
// white space between its words, and the index answers "New ADODB.Recordset" without reading
// a row.  A separator is kept whole up to kSearchSeparatorBytes bytes and up to a NUL; a longer
// one is cut there and marked with a further 0x01, so it never equals a separator that short.
// Text before the first word gives no token.
//
// A query is tokenized alike, except that the last word of a prefix query ("..."*) with
// nothing after it is the word alone: "recordset"* finds "recordset\1" and "recordsets\1,".
//
// The index depends on these tokens, so a change to them is a new tokenizer name and a schema
// version that rebuilds the index.
inline constexpr const char kSearchTokenizer[] = "qs_pieces";
inline constexpr int kSearchSeparatorBytes = 64;

// Makes the tokenizer known to the connection; every connection that writes SourceCode or
// searches it needs it.  False when the engine has no full-text search.
bool InstallSearchTokenizer(sqlite3* db);
bool InstallSearchTokenizer(const QSqlDatabase& db);

} // namespace qs
