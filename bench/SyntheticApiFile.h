#pragma once

#include <QString>

namespace qs::bench {

// A made-up API declaration file laid out as the real ones are: a comment header, sections of
// constants, Declare statements (some continued over lines, some with an alias) and types, with
// comment and blank lines between.  Every name is unique, case ignored.
struct SyntheticApiFile {
    int constants = 0;
    int declares = 0;
    int types = 0;
    qint64 bytes = 0;

    int entries() const { return constants + declares + types; }

    // Writes the file; the counts say how many of each kind it holds.
    static SyntheticApiFile write(const QString& path, int constants, int declares, int types);
};

} // namespace qs::bench
