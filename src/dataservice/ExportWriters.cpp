#include "ExportWriters.h"

#include "Cp1252.h"
#include "ServiceErrors.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBoundaryFinder>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cmath>

namespace qs {

namespace {

constexpr int kTabWidth = 4;
const char kRootTag[] = "SourceItems";

QStringList splitLines(const QString& text) {
    QString lf = text;
    lf.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    lf.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return lf.split(QLatin1Char('\n'));
}

void writeWhole(const QString& path, const QByteArray& bytes, const QString& source) {
    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit())
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("Cannot write %1: %2").arg(path, out.errorString()));
}

// --- PDF -----------------------------------------------------------------------------------

// The line as the page shows it, one cell per column: grapheme clusters, so that a wrap never
// falls inside a surrogate pair, between a letter and its accent or within a joined emoji, and
// tabs as blanks up to the next tab stop.
QStringList cells(const QString& line) {
    QStringList out;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
    qsizetype from = 0;
    while (finder.toNextBoundary() != -1) {
        const qsizetype at = finder.position();
        const QString cluster = line.mid(from, at - from);
        from = at;
        if (cluster == QLatin1String("\t")) {
            for (qsizetype n = kTabWidth - out.size() % kTabWidth; n > 0; --n)
                out.append(QStringLiteral(" "));
        } else {
            out.append(cluster);
        }
    }
    return out;
}

} // namespace

QStringList WrapPdfLines(const QString& text, int columns) {
    QStringList out;
    for (const QString& raw : splitLines(text)) {
        const QStringList line = cells(raw);
        if (line.isEmpty())
            out.append(QString());
        for (qsizetype at = 0; at < line.size(); at += columns)
            out.append(line.mid(at, columns).join(QString()));
    }
    return out;
}

namespace {

// --- XML -----------------------------------------------------------------------------------

bool xmlChar(char32_t c) {
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

QString xmlSafe(const QString& text) {
    QString out;
    out.reserve(text.size());
    for (const uint c : text.toUcs4())
        out.append(xmlChar(c) ? QString::fromUcs4(reinterpret_cast<const char32_t*>(&c), 1)
                              : QString(QChar(0xFFFD)));
    return out;
}

// One element with escaped text; a CR is written as a character reference so that it survives
// the line-end normalisation of XML readers.
QByteArray element(const QString& name, const QString& value) {
    QByteArray bytes;
    QXmlStreamWriter w(&bytes);
    w.writeStartElement(name);
    const QStringList parts = xmlSafe(value).split(QLatin1Char('\r'));
    for (int i = 0; i < parts.size(); ++i) {
        if (i > 0)
            w.writeEntityReference(QStringLiteral("#13"));
        if (!parts[i].isEmpty())
            w.writeCharacters(parts[i]);
    }
    w.writeEndElement();
    return bytes;
}

QByteArray itemXml(const XmlExportItem& item, bool includeHistory) {
    QByteArray out = "<SourceItem SourceId = \"" + QByteArray::number(item.id) + "\">\r\n";
    for (const auto& field : item.fields)
        out += "  " + element(field.first, field.second) + "\r\n";
    if (includeHistory) {
        out += "  <Revisions>\r\n";
        for (const auto& revision : item.revisions) {
            out += "    <Revision>\r\n";
            for (const auto& field : revision)
                out += "      " + element(field.first, field.second) + "\r\n";
            out += "    </Revision>\r\n";
        }
        out += "  </Revisions>\r\n";
    }
    out += "</SourceItem>\r\n";
    return out;
}

// True when the bytes are a whole, well-formed export of this kind.
bool isExport(const QByteArray& bytes) {
    QXmlStreamReader reader(bytes);
    bool rootSeen = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartDocument()) {
            const QString encoding = reader.documentEncoding().toString();
            if (!encoding.isEmpty() &&
                encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) != 0)
                return false;
        }
        if (reader.isStartElement() && !rootSeen) {
            if (reader.name() != QLatin1String(kRootTag))
                return false;
            rootSeen = true;
        }
    }
    return rootSeen && !reader.hasError();
}

} // namespace

void WriteTextExport(const QString& path, const QString& text, const QString& source) {
    writeWhole(path, ToCp1252(splitLines(text).join(QStringLiteral("\r\n"))), source);
}

void WritePdfExport(const QString& path, const QString& text, const QString& title,
                    const QString& source) {
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        RaiseServiceError(kErrStorage, source, QStringLiteral("PDF needs the fonts of a GUI."));
    // Drawn into a file beside the target, renamed at the end.
    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly))
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("Cannot write %1: %2").arg(path, out.errorString()));
    {
        QPdfWriter writer(&out);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(18, 15, 15, 15), QPageLayout::Millimeter);
        writer.setResolution(300);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Quillstone"));

        QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        font.setStyleHint(QFont::Monospace);
        font.setFixedPitch(true);
        font.setPointSizeF(9);
        QPainter painter;
        if (!painter.begin(&writer))
            RaiseServiceError(kErrStorage, source, QStringLiteral("Cannot write %1").arg(path));
        painter.setFont(font);
        const QFontMetricsF fm(painter.font(), &writer);
        const double lineHeight = fm.lineSpacing();
        const double width = writer.width();
        const double height = writer.height();
        const int columns =
            qMax(20, int(std::floor(width / fm.horizontalAdvance(QLatin1Char('M')))));
        const int perPage = qMax(5, int(std::floor(height / lineHeight)) - 2);
        const QStringList lines = WrapPdfLines(text, columns);
        const int pages = qMax(1, int((lines.size() + perPage - 1) / perPage));
        for (int page = 0; page < pages; ++page) {
            if (page > 0)
                writer.newPage();
            for (int i = 0; i < perPage; ++i) {
                const int n = page * perPage + i;
                if (n >= lines.size())
                    break;
                painter.drawText(QPointF(0, i * lineHeight + fm.ascent()), lines[n]);
            }
            const QString footer = QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages);
            painter.drawText(
                QPointF((width - fm.horizontalAdvance(footer)) / 2, height - fm.descent()), footer);
        }
        painter.end();
    }
    if (!out.commit())
        RaiseServiceError(kErrStorage, source,
                          QStringLiteral("Cannot write %1: %2").arg(path, out.errorString()));
}

void WriteXmlExport(const QString& path, const XmlExportItem& item, bool append,
                    bool includeHistory, const QString& source) {
    const QByteArray itemBytes = itemXml(item, includeHistory);
    const QFileInfo fi(path);
    if (append && fi.exists() && fi.size() > 0) {
        QFile in(path);
        if (!in.open(QIODevice::ReadOnly))
            RaiseServiceError(kErrStorage, source,
                              QStringLiteral("Cannot read %1: %2").arg(path, in.errorString()));
        const QByteArray existing = in.readAll();
        in.close();
        const QByteArray closing = QByteArray("</") + kRootTag;
        const qsizetype at = existing.lastIndexOf(closing);
        if (!isExport(existing) || at < 0)
            RaiseServiceError(
                kErrStorage, source,
                QStringLiteral("The file is not an XML export of source items: %1").arg(path));
        // The new item starts on a line of its own.
        QByteArray head = existing.left(at);
        if (!head.endsWith('\n'))
            head += "\r\n";
        writeWhole(path, head + itemBytes + existing.mid(at), source);
        return;
    }
    QByteArray doc = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<";
    doc += kRootTag;
    doc += ">\r\n" + itemBytes + "</" + kRootTag + ">\r\n";
    writeWhole(path, doc, source);
}

} // namespace qs
