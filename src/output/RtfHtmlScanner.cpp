#include "RtfHtmlScanner.h"

#include "RtfTables.h"

namespace qs {

namespace {

constexpr QStringView kNbsp = u"&nbsp;";

} // namespace

QString RtfHtmlScanner::Convert(const QString& rtf, const QString& options) {
    RtfHtmlScanner scanner(rtf, options);
    return scanner.run();
}

RtfHtmlScanner::RtfHtmlScanner(const QString& text, const QString& options)
    : rtf(text), options(options), sectionEnds(rtf, u"\r\n\\par"), braces(rtf, u"}") {
    if (options.contains(QLatin1String("+CR")))
        lineBreak = QStringLiteral("\r\n");
    keepHtml = options.contains(QLatin1String("+I"));
    colourTable = ReadColourTable(text);
    fontTable = ReadFontTable(text);
    fontSameAsFirst.assign(fontTable.size(), -1);
}

QString RtfHtmlScanner::run() {
    html.clear();
    lineEndTag.clear();
    qsizetype found = rtf.find(1, u"\r\n\\deflang");
    if (!found)
        found = rtf.find(1, u"}\\deflang");
    if (found) {
        // With the second form this is the "d" of the word, which then reads as text.
        sectionStart = found + 2;
        sectionEnd = sectionEnds.find(sectionStart);
        if (!sectionEnd)
            sectionEnd = rtf.find(sectionStart, u"\\par");
        if (sectionEnd)
            scanSections();
    }
    return lastStage();
}

void RtfHtmlScanner::scanSections() {
    for (;;) {
        for (p = sectionStart; p <= sectionEnd;)
            scanCharacter();
        sectionStart = sectionEnd + 2;
        sectionEnd = sectionEnds.find(sectionEnd + 1);
        html += previousLineEndTag;
        html += sectionStartTag;
        html += lineStartTag;
        html += currentLine;
        // Taken before the default is filled in, so the first two sections may join.
        previousLineEndTag = lineEndTag;
        if (lineEndTag.isEmpty())
            lineEndTag = QStringLiteral("<BR>") + lineBreak;
        if (!sectionEnd)
            return;
        sectionStartTag.clear();
        currentLine.resize(0);
        nbspChecked = 0;
        nbspBroken = false;
    }
}

void RtfHtmlScanner::scanCharacter() {
    const int c = rtf.at(p);
    switch (c) {
    case '{':
        ++p;
        return;
    case '}':
        flushClosingTags(currentLine);
        ++p;
        return;
    case '\n':
    case '\r':
        ++p;
        return;
    case '\\':
        controlWord();
        break;
    case '<':
        if (keepHtml) {
            setPending(QChar(c));
        } else {
            currentLine += QLatin1String("&lt;");
            pendingText = {};
        }
        emitPending = true;
        break;
    case '>':
        currentLine += keepHtml ? QLatin1String(">") : QLatin1String("&gt;");
        pendingText = {};
        emitPending = true;
        break;
    case '&':
        currentLine += QLatin1String("&amp;");
        pendingText = {};
        emitPending = true;
        break;
    case '"':
        currentLine += QLatin1String("&quot;");
        pendingText = {};
        emitPending = true;
        break;
    case ' ':
        appendBlank();
        pendingText = {};
        emitPending = true;
        break;
    default:
        if (c < 0)
            pendingText = {};
        else
            setPending(QChar(c));
        emitPending = true;
        break;
    }
    if (emitPending)
        emitStep();
}

// Blanks that start a line keep their width; others may collapse in a browser.
void RtfHtmlScanner::appendBlank() {
    while (!nbspBroken && nbspChecked + kNbsp.size() <= currentLine.size()) {
        if (QStringView(currentLine).sliced(nbspChecked, kNbsp.size()) == kNbsp)
            nbspChecked += kNbsp.size();
        else
            nbspBroken = true;
    }
    if (!nbspBroken && nbspChecked == currentLine.size())
        currentLine += kNbsp;
    else
        currentLine += QLatin1Char(' ');
}

void RtfHtmlScanner::emitStep() {
    if (fontSet() && fontChanged) {
        if (!alignment.isEmpty()) {
            inTable = true;
            // The table itself stays on the left; the row carries the alignment.
            currentLine += QLatin1String("<TABLE ALIGN=\"left\" CELLSPACING=0 CELLPADDING=0 "
                                         "WIDTH=\"100%\"><TR ALIGN=\"");
            currentLine += alignment == QLatin1String("right") ? QLatin1String("right")
                                                               : QLatin1String("center");
            currentLine += QLatin1String("\"><TD>");
            alignment.clear();
        }
        currentLine += QLatin1String("<FONT");
        if (!fontFace.isEmpty()) {
            currentLine += QLatin1String(" FACE=\"");
            currentLine += fontFace;
            currentLine += QLatin1Char('"');
        }
        if (!fontColour.isEmpty()) {
            currentLine += QLatin1String(" COLOR=\"");
            currentLine += fontColour;
            currentLine += QLatin1Char('"');
        }
        if (!fontSizeSet.isEmpty()) {
            currentLine += QLatin1String(" SIZE = \"");
            currentLine += QString::number(fontSize);
            currentLine += QLatin1Char('"');
        }
        currentLine += QLatin1Char('>');
    }
    currentLine += pendingText;
    ++p;
    fontChanged = false;
    emitPending = false;
}

void RtfHtmlScanner::plainSteps() {
    if (fontSet()) {
        if (!fontChanged)
            currentLine += QLatin1String("</FONT>");
        fontColour.clear();
        fontFace = {};
    }
    if (inTable) {
        currentLine += QLatin1String("</TD></TR></TABLE><BR>");
        currentLine += lineBreak;
        inTable = false;
    }
    flushClosingTags(currentLine);
}

void RtfHtmlScanner::openTag(QLatin1String tag, Closing closing) {
    currentLine += tag;
    closingTags.push_back(closing);
}

void RtfHtmlScanner::flushClosingTags(QString& into) {
    static const QLatin1String kClose[] = {QLatin1String("</B>"), QLatin1String("</I>"),
                                           QLatin1String("</STRIKE>"), QLatin1String("</U>")};
    for (auto it = closingTags.rbegin(); it != closingTags.rend(); ++it)
        into += kClose[*it];
    closingTags.clear();
}

void RtfHtmlScanner::setPending(QChar c) {
    pendingChar = c;
    pendingText = QStringView(&pendingChar, 1);
}

void RtfHtmlScanner::setPending(QStringView text) {
    pendingText = text;
}

QString RtfHtmlScanner::lastStage() {
    flushClosingTags(html);
    // An open alignment table stays open.
    if (fontSet())
        html += QLatin1String("</FONT>");
    const QString generator = options.contains(QLatin1String("+G"))
                                  ? QStringLiteral("<META NAME=\"GENERATOR\" CONTENT=\"RTF2HTML\">")
                                  : QString();
    QString title;
    if (options.contains(QLatin1String("+T"))) {
        // Without a pair of back-quotes there is nothing between them.
        const qsizetype open = options.indexOf(QLatin1Char('`'));
        const qsizetype close = open < 0 ? -1 : options.indexOf(QLatin1Char('`'), open + 1);
        if (close >= 0)
            title = options.mid(open + 1, close - open - 1);
    }
    if (!options.contains(QLatin1String("+H")))
        return html;
    const QLatin1String crLf("\r\n");
    return QLatin1String("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2//EN\">") + crLf +
           QLatin1String("<HTML>") + crLf + QLatin1String("<HEAD>") + crLf +
           QLatin1String("<TITLE>") + title + QLatin1String("</TITLE>") + crLf + generator + crLf +
           QLatin1String("</HEAD>") + crLf + QLatin1String("<BODY>") + crLf + html +
           QLatin1String("</BODY>") + crLf + QLatin1String("</HTML>");
}

} // namespace qs
