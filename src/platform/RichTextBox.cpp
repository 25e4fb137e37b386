#include "RichTextBox.h"

#include "Cp1252.h"
#include "LineEnds.h"
#include "OleColor.h"
#include "QsError.h"
#include "RichTextFormat.h"
#include "VbInput.h"

#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace qs {

RichTextBox::RichTextBox(const QString& name, QWidget* parent) : QTextEdit(parent) {
    setObjectName(name);
    setAcceptRichText(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (Change)
            Change();
    });
}

QString RichTextBox::Text() const {
    // The raw text keeps non-breaking spaces, which the plain-text view turns into blanks.
    QString text = document()->toRawText();
    text.replace(QChar(0x2029), QLatin1Char('\n'));
    text.replace(QChar(0x2028), QLatin1Char('\n'));
    text.remove(QChar(0xFFFC));
    return ToCrLf(text);
}

void RichTextBox::setText(const QString& text) {
    setPlainText(ToLf(text));
    moveCursor(QTextCursor::Start);
}

QString RichTextBox::TextRTF() const {
    return WriteBoxRtf(*document());
}

void RichTextBox::setTextRTF(const QString& rtf) {
    if (!rtf.startsWith(QLatin1String("{\\rtf"))) {
        setText(rtf);
        return;
    }
    ReadBoxRtf(rtf, *document());
    moveCursor(QTextCursor::Start);
}

// Positions: the outer count sees CR LF (two) where the document has one block separator.
int RichTextBox::toInner(int outer) const {
    if (outer <= 0)
        return 0;
    int outerStart = 0;
    for (QTextBlock b = document()->begin(); b.isValid(); b = b.next()) {
        const int length = b.length() - 1;
        if (outer <= outerStart + length)
            return b.position() + (outer - outerStart);
        const int next = outerStart + length + 2;
        if (outer < next)
            return b.next().isValid() ? b.position() + length + 1 : b.position() + length;
        outerStart = next;
    }
    return document()->characterCount() - 1;
}

int RichTextBox::toOuter(int inner) const {
    return inner + document()->findBlock(inner).blockNumber();
}

int RichTextBox::SelStart() const {
    return toOuter(textCursor().selectionStart());
}

void RichTextBox::setSelStart(int start) {
    QTextCursor c = textCursor();
    c.setPosition(toInner(start));
    setTextCursor(c);
}

int RichTextBox::SelLength() const {
    const QTextCursor c = textCursor();
    return toOuter(c.selectionEnd()) - toOuter(c.selectionStart());
}

void RichTextBox::setSelLength(int length) {
    const int start = SelStart();
    QTextCursor c = textCursor();
    c.setPosition(toInner(start));
    c.setPosition(toInner(start + qMax(0, length)), QTextCursor::KeepAnchor);
    setTextCursor(c);
}

QString RichTextBox::SelText() const {
    QString text = textCursor().selectedText();
    text.replace(QChar(0x2029), QLatin1Char('\n'));
    text.replace(QChar(0x2028), QLatin1Char('\n'));
    return ToCrLf(text);
}

void RichTextBox::setSelText(const QString& text) {
    QTextCursor c = textCursor();
    c.insertText(ToLf(text));
    setTextCursor(c);
}

namespace {
// The format of the selection's first character, or the typing format without a selection.
QTextCharFormat selectionFormat(const QTextEdit& box) {
    const QTextCursor c = box.textCursor();
    if (!c.hasSelection())
        return c.charFormat();
    QTextCursor first(box.document());
    first.setPosition(c.selectionStart());
    first.setPosition(c.selectionStart() + 1, QTextCursor::KeepAnchor);
    return first.charFormat();
}
} // namespace

long RichTextBox::SelColor() const {
    const QBrush brush = selectionFormat(*this).foreground();
    return brush.style() == Qt::NoBrush ? vbBlack : QColorToOleColor(brush.color());
}

void RichTextBox::setSelColor(long color) {
    QTextCharFormat f;
    f.setForeground(OleColorToQColor(color));
    QTextCursor c = textCursor();
    c.mergeCharFormat(f);
    setTextCursor(c);
}

bool RichTextBox::SelBold() const {
    return selectionFormat(*this).fontWeight() >= QFont::DemiBold;
}

void RichTextBox::setSelBold(bool bold) {
    QTextCharFormat f;
    f.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    QTextCursor c = textCursor();
    c.mergeCharFormat(f);
    setTextCursor(c);
}

void RichTextBox::SaveFile(const QString& path, int format) const {
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw QsError(kErrPathFileAccess, QString::fromLatin1(kAppSource),
                      QStringLiteral("Path/File access error"));
    const QByteArray bytes = format == rtfText ? ToCp1252(Text()) : TextRTF().toLatin1();
    if (file.write(bytes) != bytes.size())
        throw QsError(kErrPathFileAccess, QString::fromLatin1(kAppSource),
                      QStringLiteral("Path/File access error"));
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
    if (KeyDown) {
        int code = VbKeyCode(event->key());
        KeyDown(code, VbShift(event->modifiers()));
        if (code == 0) {
            event->accept();
            return;
        }
    }
    QTextEdit::keyPressEvent(event);
}

void RichTextBox::mousePressEvent(QMouseEvent* event) {
    QTextEdit::mousePressEvent(event);
    const QPoint pos = event->position().toPoint();
    if (MouseDown)
        MouseDown(VbButton(event->button()), VbShift(event->modifiers()), pos.x(), pos.y());
}

void RichTextBox::focusInEvent(QFocusEvent* event) {
    QTextEdit::focusInEvent(event);
    if (GotFocus)
        GotFocus();
}

} // namespace qs
