#pragma once

#include <QStringList>

namespace qs {

// The search index: SourceCodeSearch, an FTS5 table over SourceCode (Description, Code, Notes,
// Example) that keeps no copy of the text, with the triggers that keep it in step.  Version 1
// made it with the tokenizer "unicode61 remove_diacritics 0".
QStringList SearchIndexStatements(const QString& tokenize);

// Schema version 2: covering indexes for the list calls at library scale.
//
// SourceCode rows are a few KB each, so every row read for a list costs a page of its own.
// Two covering indexes keep the item-row columns dense:
//   SourceCode_Rows  by Id: Search reads the item rows of its hits from it (10,000 hits: about
//                    6 ms instead of 30 ms at 100,000 items).
//   SourceCode_Node  by category, code type, tested state: GetItems of one type node reads
//                    its rows from it without touching the table (about 2 ms instead of 30).
// Together they add a few MB at 100,000 items.
QStringList SearchSchemaStatements();

// Schema version 3: the search index made again with the tokenizer of SearchTokenizer.h, whose
// tokens keep the punctuation between words, so a phrase such as "New ADODB.Recordset" is
// answered by the index instead of by reading each row that holds its words.  The index is
// about as large as before; rebuilding it reads every row once.
QStringList SearchPiecesStatements();

// The name of the covering index Search reads item rows from when the file has it.
inline constexpr const char kSearchRowIndex[] = "SourceCode_Rows";
// The covering index of one type node, which a search within a category walks, testing each row
// against the index's answer, instead of looking up every row the index answers.
inline constexpr const char kSearchNodeIndex[] = "SourceCode_Node";

} // namespace qs
