#pragma once

#include <QString>
#include <QStringList>

namespace qs::bench {

// A library of made-up but code-like items, the same for the same count and seed.
//
// Items are spread evenly over ten type nodes (category, code type, tested state), so one node
// holds a tenth of them: 10,000 of 100,000.  Each node has nested folders (top folders with
// subfolders and sub-subfolders) and seven items in ten sit in one of them.  An item carries
// two to four procedures of Visual Basic-like code (a few KB), notes, an example and one to
// three revision lines.  About one item in ten mentions kCommonWord; exactly three mention
// kRareWord, one of them
// in the first node.
class SyntheticLibrary {
public:
    static constexpr const char* kCommonWord = "Recordset";
    static constexpr const char* kRareWord = "Zanzibarquux";
    static constexpr int kRareCount = 3;

    struct Node {
        int categoryId;
        int codeTypeId;
        int tested;
    };
    static const Node& node(int index);
    static constexpr int kNodeCount = 10;

    // Makes a new library file at path with that many items (folders not counted); an
    // existing file there is replaced.  Writes go straight through the storage class in large
    // transactions.
    static void build(const QString& path, int items, quint32 seed = 20240501);
};

} // namespace qs::bench
