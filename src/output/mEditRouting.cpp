#include "mEditRouting.h"

#include "Host.h"
#include "LineEnds.h"
#include "QsError.h"
#include "RichTextBox.h"
#include "mErrorHandling.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringList>

namespace qs {

namespace {

// Controls whose selection Copy leaves alone.
const QStringList kNotCopied = {
    QStringLiteral("tvwMain"),         QStringLiteral("tvwCategories"),
    QStringLiteral("tvwBookMarks"),    QStringLiteral("tvwSearchResults"),
    QStringLiteral("rdoSearchOption"), QStringLiteral("cboCodeType"),
    QStringLiteral("cmdSearch"),       QStringLiteral("lstViewRevisionHistory"),
    QStringLiteral("lstViewAssocFile")};

QWidget* ActiveControl() {
    if (QWidget* focused = QApplication::focusWidget())
        return focused;
    if (QWidget* window = QApplication::activeWindow())
        return window->focusWidget();
    return nullptr;
}

QString SelTextOf(QWidget* control) {
    if (!control)
        throw QsError(91, QString::fromLatin1(kAppSource),
                      QStringLiteral("Object variable or With block variable not set"));
    if (auto* rich = qobject_cast<RichTextBox*>(control))
        return rich->SelText();
    if (auto* line = qobject_cast<QLineEdit*>(control))
        return line->selectedText();
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control))
        return ToCrLf(plain->textCursor().selectedText().replace(QChar(0x2029), QLatin1Char('\n')));
    throw QsError(438, QString::fromLatin1(kAppSource),
                  QStringLiteral("Object doesn't support this property or method"));
}

} // namespace

void Copy() {
    try {
        QWidget* control = ActiveControl();
        const QString name = control ? control->objectName() : QString();
        if (name == QLatin1String("RTBoxSelItems")) {
            auto* pane = qobject_cast<RichTextBox*>(control);
            if (!pane)
                throw QsError(438, QString::fromLatin1(kAppSource),
                              QStringLiteral("Object doesn't support this property or method"));
            pane->setSelStart(0);
            pane->setSelLength(pane->Text().length());
            host().clipboardClear();
            host().clipboardSetText(pane->SelText());
            pane->setSelStart(0);
            pane->setSelLength(0);
            return;
        }
        if (kNotCopied.contains(name))
            return;
        host().clipboardClear();
        host().clipboardSetText(SelTextOf(control));
    } catch (...) {
        HandleFailure("frmCopyDialog:Copy;");
    }
}

} // namespace qs
