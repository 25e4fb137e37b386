#pragma once

#include "RtfText.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <string>
#include <vector>

namespace qs {

// The scanner behind RTF2HTML: one pass over the flat rich text as the rich text box writes it,
// section by section from one "\par" line to the next, with the formatting held in a handful of
// strings instead of a group stack.  Its quirks are the output format and are kept as they are.
//
// Convert raises QsError 9 "Subscript out of range" for a \f number beyond the font table; it
// has no other failure of its own.
class RtfHtmlScanner {
public:
    static QString Convert(const QString& rtf, const QString& options);

private:
    RtfHtmlScanner(const QString& rtf, const QString& options);

    QString run();
    void scanSections();
    void scanCharacter();
    void appendBlank();
    void emitStep();
    void controlWord();
    // The rows of \f and \fs, and of the words that start with "p"; each gives its advance.
    qsizetype fontWord();
    qsizetype paragraphWord();
    bool sameAsFirstFont(qsizetype n);
    void hexadecimalStep();
    void plainSteps();
    // Moves p to the next blank or backslash; the advance that lands on what follows.
    qsizetype toBlankOrBackslash();
    QString lastStage();

    enum Closing { CloseB, CloseI, CloseStrike, CloseU };
    void openTag(QStringView tag, Closing closing);
    // The output grows a character at a time, so it is built in a plain buffer.
    using Buffer = std::u16string;
    static void put(Buffer& into, QStringView text) {
        into.append(reinterpret_cast<const char16_t*>(text.utf16()), std::size_t(text.size()));
    }
    void flushClosingTags(Buffer& into);
    // The "\r\n\par" at or behind `from`, 0 if there is none.
    qsizetype findSectionEnd(qsizetype from) const;
    void setPending(QChar c);
    void setPending(QStringView text);
    bool fontSet() const { return !fontFace.isEmpty() || !fontColour.isEmpty(); }

    RtfText rtf;
    const QString& options;
    QString lineBreak;
    bool keepHtml = false;
    QStringList colourTable;
    QList<QStringView> fontTable;
    // Whether each font entry equals entry 0, worked out when a \f word first asks.
    std::vector<signed char> fontSameAsFirst;

    QString html;
    Buffer currentLine;
    // Innermost last; written innermost first.
    std::vector<Closing> closingTags;
    QStringView fontFace;
    QString fontColour;
    QStringView fontSizeSet;
    qint16 fontSize = 0;
    bool fontChanged = false;
    QString alignment;
    bool inTable = false;
    QString sectionStartTag;
    QString lineStartTag;
    QString lineEndTag;
    QString previousLineEndTag;
    QString paragraphEndTag;
    QChar pendingChar;
    QStringView pendingText;
    // `emit` of the design; the word itself is taken by Qt.
    bool emitPending = false;
    bool skip = false;

    qsizetype p = 0;
    qsizetype sectionStart = 0;
    qsizetype sectionEnd = 0;
    RtfFinder braces;
    // How far currentLine is known to be nothing but "&nbsp;", and whether something else stood
    // there: the line only grows, so a blank never reads it from the start again.
    qsizetype nbspChecked = 0;
    bool nbspBroken = false;
};

} // namespace qs
