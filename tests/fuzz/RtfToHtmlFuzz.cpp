// libFuzzer entry point for the rich text to HTML converter: any text and any options must come
// back without a crash, a hang or a read outside the text.  The only failure the converter may
// raise is a font number beyond the font table.
//
// Input: the first byte picks the options (one bit per marker), the rest is the rich text as
// Latin-1.  Each input is converted as it stands and once more as the line of a rich text box
// behind a real header, so that random bytes also reach the scanner of the lines.  The mutator
// splices control words into the text besides libFuzzer's own byte changes.
#include "QsError.h"
#include "RtfHtmlScanner.h"

#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

const char* const kHeader = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
                            "{\\f1\\fmodern Courier New;}{\\f2\\fswiss Arial;}}\r\n"
                            "{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;}\r\n"
                            "\\deflang1033\\pard\\plain\\f2\\fs17 ";

const char* const kWords[] = {
    "\\b ",
    "\\b\\i ",
    "\\b0 ",
    "\\i ",
    "\\ul ",
    "\\ul\\",
    "\\ulnone ",
    "\\strike ",
    "\\strike\\",
    "\\plain ",
    "\\plain\\",
    "\\pard\\plain ",
    "\\pard ",
    "\\par ",
    "\r\n\\par ",
    "\\pnlvlblt\\",
    "\\pntext\\",
    "{\\pntxtb\\'b7}",
    "\\qc ",
    "\\qc\\",
    "\\qr ",
    "\\qr\\",
    "\\cf1 ",
    "\\cf0\\",
    "\\cf99999 ",
    "\\f1 ",
    "\\f2\\",
    "\\f7 ",
    "\\fs20 ",
    "\\fs25\\",
    "\\fs9999 ",
    "\\tab ",
    "\\emdash ",
    "\\bullet ",
    "\\lquote ",
    "\\rquote ",
    "\\ldblquote ",
    "\\rdblquote ",
    "\\'e4",
    "\\'E9",
    "\\'85",
    "\\'zz",
    "\\~",
    "\\{",
    "\\}",
    "\\\\",
    "\\\r\n",
    "{",
    "}",
    " ",
    "    ",
    "<",
    ">",
    "&",
    "\"",
    "\\deflang",
    "}\\deflang",
    "\\colortbl",
    "\\red",
    "\\fonttbl",
};

QString optionsOf(std::uint8_t bits) {
    QString options;
    if (bits & 1)
        options += QStringLiteral("+H");
    if (bits & 2)
        options += QStringLiteral("+G");
    if (bits & 4)
        options += QStringLiteral("+T=`Title+CR`");
    if (bits & 8)
        options += QStringLiteral("+CR");
    if (bits & 16)
        options += QStringLiteral("+I");
    if (bits & 32)
        options += QStringLiteral("+T=`");
    return options;
}

// Converts; a font beyond the table is the one failure allowed, and gives no text.
bool convert(const QString& rtf, const QString& options, QString& html) {
    try {
        html = qs::RtfHtmlScanner::Convert(rtf, options);
        return true;
    } catch (const qs::QsError& e) {
        if (e.number() != 9)
            std::abort();
        return false;
    }
}

void check(const QString& rtf, const QString& options) {
    QString html;
    if (!convert(rtf, options, html) || options.contains(QLatin1String("+H")))
        return;
    // A page holds exactly the fragment the same options give without "+H".
    QString page;
    if (!convert(rtf, options + QStringLiteral("+H"), page) ||
        !page.endsWith(html + QStringLiteral("</BODY>\r\n</HTML>")))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const QString options = optionsOf(data[0]);
    const QString text =
        QString::fromLatin1(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1));
    check(text, options);
    check(QLatin1String(kHeader) + text + QStringLiteral("\r\n\\par }\r\n"), options);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
    std::srand(seed);
    if (size < 2 || std::rand() % 3 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const char* word = kWords[std::size_t(std::rand()) % (sizeof kWords / sizeof *kWords)];
    const std::size_t length = std::strlen(word);
    if (size + length > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    // Somewhere behind the options byte.
    const std::size_t at = 1 + std::size_t(std::rand()) % size;
    std::memmove(data + at + length, data + at, size - at);
    std::memcpy(data + at, word, length);
    return size + length;
}
