#include "RtfHtmlScanner.h"

#include "RtfTables.h"

namespace qs {

namespace {

constexpr std::u16string_view kNbsp = u"&nbsp;";
constexpr std::u16string_view kSectionEnd = u"\r\n\\par";

} // namespace

QString RtfHtmlScanner::Convert(const QString& rtf, const QString& options) {
    RtfHtmlScanner scanner(rtf, options);
    return scanner.run();
}

RtfHtmlScanner::RtfHtmlScanner(const QString& text, const QString& options)
    : rtf(text), options(options), braces(rtf, u"}") {
    if (options.contains(QLatin1String("+CR")))
        lineBreak = QStringLiteral("\r\n");
    keepHtml = options.contains(QLatin1String("+I"));
    colourTable = ReadColourTable(text);
    fontTable = ReadFontTable(text);
    fontSameAsFirst.assign(fontTable.size(), -1);
}

QString RtfHtmlScanner::run() {
    html.clear();
    // Room for what a line of code usually turns into, so the text is seldom moved.
    html.reserve(rtf.size() + rtf.size() / 2);
    lineEndTag.clear();
    qsizetype found = rtf.find(1, u"\r\n\\deflang");
    if (!found)
        found = rtf.find(1, u"}\\deflang");
    if (found) {
        // With the second form this is the "d" of the word, which then reads as text.
        sectionStart = found + 2;
        sectionEnd = findSectionEnd(sectionStart);
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
        sectionEnd = findSectionEnd(sectionEnd + 1);
        html += previousLineEndTag;
        html += sectionStartTag;
        html += lineStartTag;
        html += QStringView(currentLine.data(), qsizetype(currentLine.size()));
        // Taken before the default is filled in, so the first two sections may join.
        previousLineEndTag = lineEndTag;
        if (lineEndTag.isEmpty())
            lineEndTag = QStringLiteral("<BR>") + lineBreak;
        if (!sectionEnd)
            return;
        sectionStartTag.clear();
        currentLine.clear();
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
            put(currentLine, u"&lt;");
            pendingText = {};
        }
        emitPending = true;
        break;
    case '>':
        put(currentLine, keepHtml ? QStringView(u">") : QStringView(u"&gt;"));
        pendingText = {};
        emitPending = true;
        break;
    case '&':
        put(currentLine, u"&amp;");
        pendingText = {};
        emitPending = true;
        break;
    case '"':
        put(currentLine, u"&quot;");
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
    while (!nbspBroken && std::size_t(nbspChecked) + kNbsp.size() <= currentLine.size()) {
        if (std::u16string_view(currentLine).substr(std::size_t(nbspChecked), kNbsp.size()) ==
            kNbsp)
            nbspChecked += kNbsp.size();
        else
            nbspBroken = true;
    }
    if (!nbspBroken && std::size_t(nbspChecked) == currentLine.size())
        currentLine += kNbsp;
    else
        currentLine += u' ';
}

void RtfHtmlScanner::emitStep() {
    if (fontSet() && fontChanged) {
        if (!alignment.isEmpty()) {
            inTable = true;
            // The table itself stays on the left; the row carries the alignment.
            currentLine += u"<TABLE ALIGN=\"left\" CELLSPACING=0 CELLPADDING=0 "
                           u"WIDTH=\"100%\"><TR ALIGN=\"";
            currentLine += alignment == QLatin1String("right") ? u"right" : u"center";
            currentLine += u"\"><TD>";
            alignment.clear();
        }
        currentLine += u"<FONT";
        if (!fontFace.isEmpty()) {
            currentLine += u" FACE=\"";
            put(currentLine, fontFace);
            currentLine += u'"';
        }
        if (!fontColour.isEmpty()) {
            currentLine += u" COLOR=\"";
            put(currentLine, fontColour);
            currentLine += u'"';
        }
        if (!fontSizeSet.isEmpty()) {
            currentLine += u" SIZE = \"";
            // Always 1 to 8.
            currentLine += char16_t(u'0' + fontSize);
            currentLine += u'"';
        }
        currentLine += u'>';
    }
    if (pendingText.size() == 1)
        currentLine += pendingText.front().unicode();
    else
        put(currentLine, pendingText);
    ++p;
    fontChanged = false;
    emitPending = false;
}

void RtfHtmlScanner::plainSteps() {
    if (fontSet()) {
        if (!fontChanged)
            currentLine += u"</FONT>";
        fontColour.clear();
        fontFace = {};
    }
    if (inTable) {
        currentLine += u"</TD></TR></TABLE><BR>";
        put(currentLine, lineBreak);
        inTable = false;
    }
    flushClosingTags(currentLine);
}

void RtfHtmlScanner::openTag(QStringView tag, Closing closing) {
    put(currentLine, tag);
    closingTags.push_back(closing);
}

void RtfHtmlScanner::flushClosingTags(Buffer& into) {
    static constexpr std::u16string_view kClose[] = {u"</B>", u"</I>", u"</STRIKE>", u"</U>"};
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

qsizetype RtfHtmlScanner::findSectionEnd(qsizetype from) const {
    if (from < 1 || from > rtf.size())
        return 0;
    const std::u16string_view text(reinterpret_cast<const char16_t*>(rtf.text().utf16()),
                                   std::size_t(rtf.size()));
    const std::size_t at = text.find(kSectionEnd, std::size_t(from - 1));
    return at == std::u16string_view::npos ? 0 : qsizetype(at) + 1;
}

QString RtfHtmlScanner::lastStage() {
    currentLine.clear();
    flushClosingTags(currentLine);
    html += QStringView(currentLine.data(), qsizetype(currentLine.size()));
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
