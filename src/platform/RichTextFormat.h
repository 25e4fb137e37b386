#pragma once

#include <QString>

class QTextDocument;

namespace qs {

// The rich text layout of the platform's rich text box, written from and read into a
// QTextDocument.  Runs keep their colour (\cfN) and bold (\b); text is escaped (\\, \{, \},
// \tab, \'hh for the ANSI code page, \uN beyond it).

// The document as rich text, CR LF between lines.
QString WriteBoxRtf(const QTextDocument& document);
// Replaces the document's content by what `rtf` holds: the colour table, \cf, \b, \b0, \plain,
// \par, \line, \tab, escapes and \u; other control words and the destinations (font table,
// style sheet, info, \* groups) are passed over.  The paragraph mark the writer closes with is
// not a line of its own.
void ReadBoxRtf(const QString& rtf, QTextDocument& document);

} // namespace qs
