#pragma once

#include <QString>

namespace qs::bench {

// A made-up Visual Basic module of a given size, laid out as real modules are: a header of
// Attribute and Option lines, comments above headers, blank lines between members, continued
// declarations and constants, types, enums, property pairs, functions and subs.  With Windows
// line ends and the counts the parser's answer is checked against.
struct SyntheticModule {
    QString text;
    qint64 lines = 0;       // lines of the text
    qint64 members = 0;     // members the parser should find
    qint64 memberLines = 0; // lines that belong to a member

    // Grows the module block by block until it holds at least `minChars` characters.
    static SyntheticModule build(qsizetype minChars);
};

} // namespace qs::bench
