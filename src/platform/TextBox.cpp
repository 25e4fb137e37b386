#include "TextBox.h"

#include "VbInput.h"

#include <QKeyEvent>

namespace qs {

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
}

void TextBox::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    // A held key repeats its presses; the key is let go once.
    if (event->isAutoRepeat() || !KeyUp)
        return;
    int code = VbKeyCode(event->key());
    KeyUp(code, VbShift(event->modifiers()));
}

} // namespace qs
