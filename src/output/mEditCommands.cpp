#include "mEditCommands.h"

#include "Host.h"
#include "LineEnds.h"
#include "QsError.h"
#include "RichTextBox.h"
#include "mErrorHandling.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringList>
#include <QTextCursor>

namespace qs {

namespace {

// Cut and Paste pass over these names, Copy over the next list; the two differ on purpose.
const QStringList kCutPasteSkipped = {
    QStringLiteral("tviewmain"),       QStringLiteral("tViewCategories"),
    QStringLiteral("tViewBookMarks"),  QStringLiteral("tViewSearchResults"),
    QStringLiteral("rdoSearchOption"), QStringLiteral("cboCodeType"),
    QStringLiteral("cmdSearch"),       QStringLiteral("lstViewRevisionHistory"),
    QStringLiteral("lstViewAssocFile")};
const QStringList kCopySkipped = {
    QStringLiteral("tvwMain"),         QStringLiteral("tvwCategories"),
    QStringLiteral("tvwBookMarks"),    QStringLiteral("tvwSearchResults"),
    QStringLiteral("rdoSearchOption"), QStringLiteral("cboCodeType"),
    QStringLiteral("cmdSearch"),       QStringLiteral("lstViewRevisionHistory"),
    QStringLiteral("lstViewAssocFile")};
const QString kSelectedItems = QStringLiteral("RTBoxSelItems");

[[noreturn]] void notSupported() {
    throw QsError(438, QString::fromLatin1(kAppSource),
                  QStringLiteral("Object doesn't support this property or method"));
}

// The control that has the focus in the active window: the focused widget, or the named control
// it is part of (a combo box's edit field, a text pane's viewport).
QWidget* activeControl() {
    for (QWidget* w = QApplication::focusWidget(); w; w = w->parentWidget())
        if (!w->objectName().isEmpty() && !w->objectName().startsWith(QLatin1String("qt_")))
            return w;
    throw QsError(91, QString::fromLatin1(kAppSource),
                  QStringLiteral("Object variable or With block variable not set"));
}

QString cursorText(const QTextCursor& cursor) {
    QString text = cursor.selectedText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return ToCrLf(text);
}

QString selText(QWidget* control) {
    if (auto* box = qobject_cast<RichTextBox*>(control))
        return box->SelText();
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        return edit->selectedText();
    if (auto* combo = qobject_cast<QComboBox*>(control))
        return combo->lineEdit() ? combo->lineEdit()->selectedText() : QString();
    if (auto* pane = qobject_cast<QPlainTextEdit*>(control))
        return cursorText(pane->textCursor());
    if (auto* pane = qobject_cast<QTextEdit*>(control))
        return cursorText(pane->textCursor());
    notSupported();
}

void setSelText(QWidget* control, const QString& text) {
    if (auto* box = qobject_cast<RichTextBox*>(control)) {
        box->setSelText(text);
    } else if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        edit->insert(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (combo->lineEdit())
            combo->lineEdit()->insert(text);
    } else if (auto* pane = qobject_cast<QPlainTextEdit*>(control)) {
        pane->textCursor().insertText(ToLf(text));
    } else if (auto* pane = qobject_cast<QTextEdit*>(control)) {
        pane->textCursor().insertText(ToLf(text));
    } else {
        notSupported();
    }
}

} // namespace

void Cut() {
    try {
        QWidget* control = activeControl();
        if (kCutPasteSkipped.contains(control->objectName()))
            return;
        host().clipboardClear();
        host().clipboardSetText(selText(control));
        setSelText(control, QString());
    } catch (...) {
        HandleFailure("frmCopyDialog:Cut;");
    }
}

void Copy() {
    try {
        QWidget* control = activeControl();
        auto* box = qobject_cast<RichTextBox*>(control);
        if (box && box->objectName() == kSelectedItems) {
            box->setSelStart(0);
            box->setSelLength(box->Text().size());
            host().clipboardClear();
            host().clipboardSetText(box->SelText());
            box->setSelStart(0);
            box->setSelLength(0);
            return;
        }
        if (kCopySkipped.contains(control->objectName()))
            return;
        host().clipboardClear();
        host().clipboardSetText(selText(control));
    } catch (...) {
        HandleFailure("frmCopyDialog:Copy;");
    }
}

void Paste() {
    try {
        QWidget* control = activeControl();
        if (kCutPasteSkipped.contains(control->objectName()))
            return;
        setSelText(control, host().clipboardGetText());
    } catch (...) {
        HandleFailure("frmCopyDialog:Paste;");
    }
}

} // namespace qs
