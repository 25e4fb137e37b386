#pragma once

#include <QPair>
#include <QString>
#include <QVector>

#include <cstddef>
#include <cstdint>

namespace qs {

// What the version resource of a PE file (an .exe, .dll, .ocx ...) holds.
struct PeVersionBlock {
    bool found = false;    // a VS_VERSION_INFO block was read
    bool hasFixed = false; // it carries the binary VS_FIXEDFILEINFO
    quint32 fileVersionMS = 0;
    quint32 fileVersionLS = 0;
    quint32 productVersionMS = 0;
    quint32 productVersionLS = 0;
    quint32 fileType = 0;
    // Key of the string table read, language and code page in hex, as "040904B0".
    QString tableKey;
    // The strings of that table in file order: key, value.
    QVector<QPair<QString, QString>> strings;
    // VarFileInfo\Translation: language in the low word, code page in the high word.
    QVector<quint32> translations;

    // The value of a string, empty when the table has none of that key (case ignored).
    QString value(const QString& key) const;
};

// Reads the version resource of a PE image from its bytes.  The input is untrusted: every offset
// and length is checked against the buffer, every loop is bounded, and a damaged file gives a
// block with found == false (or with what could be read) rather than an error.
class PeVersionParser {
public:
    static PeVersionBlock Parse(const uchar* data, std::size_t size);
    // Maps the file rather than reading it, so a large file costs no heap; a file that is not
    // a PE image (or cannot be opened) gives found == false.
    static PeVersionBlock ParseFile(const QString& path);
};

} // namespace qs
