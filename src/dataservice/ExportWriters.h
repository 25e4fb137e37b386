#pragma once

#include <QPair>
#include <QString>
#include <QVector>

namespace qs {

// Writers of the files a record exports.  Each raises QsError with the given source when the
// file cannot be written, and never leaves a half-written file behind.

// The text with every line end made CR LF, in the Windows-1252 code page ("?" for what the code
// page cannot hold).
void WriteTextExport(const QString& path, const QString& text, const QString& source);

// The text as a PDF: monospaced, wrapped at the page's width, paginated, "Page n of m" at the
// foot of every page.  Needs a GUI application (for the fonts).
void WritePdfExport(const QString& path, const QString& text, const QString& title,
                    const QString& source);

// The lines of the PDF: every line end breaks, tabs stop every four columns, and a line longer
// than columns is wrapped between two characters (grapheme clusters), one character a column.
QStringList WrapPdfLines(const QString& text, int columns);

// One item of an XML export: its id and its fields in order, element name and text, and the
// revision lines, each a list of fields of its own.
struct XmlExportItem {
    using Fields = QVector<QPair<QString, QString>>;
    int id = 0;
    Fields fields;
    QVector<Fields> revisions;
};

// Writes the item as an XML export, UTF-8 with CR LF line ends:
//   <?xml version="1.0" encoding="UTF-8"?>
//   <SourceItems>
//   <SourceItem SourceId = "5">
//     <Description>...</Description> ...
//     <Revisions><Revision>...</Revision></Revisions>   (only with includeHistory)
//   </SourceItem>
//   </SourceItems>
// Each item starts on a line of its own that holds `<SourceItem SourceId = "` and its id; no
// other line can hold that text, since field text is escaped.  A carriage return in a field is
// written as &#13; so that a reader gets CR LF back; characters XML cannot carry become U+FFFD.
// With append, an existing non-empty file must be such an export (well-formed, UTF-8, root
// SourceItems): the item goes in before the closing root tag; any other file raises and is left
// as it was.  Without append, or when the file doesn't exist or is empty, a new file is written.
void WriteXmlExport(const QString& path, const XmlExportItem& item, bool append,
                    bool includeHistory, const QString& source);

} // namespace qs
