#pragma once

#include <QTextEdit>
#include <functional>

namespace qs {

// SaveFile formats.
enum RichTextFormatKind : int { rtfRTF = 0, rtfText = 1 };

// A rich text pane over QTextEdit.  Text crosses it with CR LF line ends; positions (SelStart,
// SelLength) count in that text, so a line end counts two.  Colours are blue-green-red values.
class RichTextBox : public QTextEdit {
    Q_OBJECT
public:
    explicit RichTextBox(const QString& name, QWidget* parent = nullptr);
    // The event members go before the base widget, which may still signal while it dies.
    ~RichTextBox() override { blockSignals(true); }

    QString Name() const { return objectName(); }

    // The plain text with CR LF line ends.  Setting it takes any line end (LF alone too) and
    // drops all formatting.
    QString Text() const;
    void setText(const QString& text);
    // The rich text, in the layout of the platform's rich text box: font table line, colour
    // table line, "\deflang1033\pard\plain\f3\fs17 " line, "\par " lines, closing "\par }".
    // Setting text that does not start with "{\rtf" keeps it as plain text.
    QString TextRTF() const;
    void setTextRTF(const QString& rtf);

    int SelStart() const;
    void setSelStart(int start); // also sets SelLength to 0
    int SelLength() const;
    void setSelLength(int length);
    QString SelText() const;
    void setSelText(const QString& text);
    // Colour and bold of the selection (of its first character), or of the typing position.
    long SelColor() const;
    void setSelColor(long color);
    bool SelBold() const;
    void setSelBold(bool bold);

    // Writes the text to `path`: rtfText as plain text in the ANSI code page, otherwise the rich
    // text.  An empty path or a file that cannot be written raises 75 "Path/File access error".
    void SaveFile(const QString& path, int format = rtfRTF) const;

    // A locked box takes no typing; the logic can still set its text.
    bool Locked() const { return isReadOnly(); }
    void setLocked(bool locked) { setReadOnly(locked); }
    void SetFocus() { setFocus(Qt::OtherFocusReason); }
    QFont Font() const { return font(); }

    std::function<void()> Change;
    std::function<void(int& keyCode, int shift)> KeyDown;
    std::function<void(int button, int shift, int x, int y)> MouseDown;
    std::function<void()> GotFocus;

    static constexpr long kErrPathFileAccess = 75;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int toInner(int outer) const;
    int toOuter(int inner) const;
};

} // namespace qs
