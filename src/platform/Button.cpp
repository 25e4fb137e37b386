#include "Button.h"

#include "Toolbar.h"

#include <QAction>

namespace qs {

Button::Button(Toolbar* bar, QAction* action, int index, const QString& key, int style)
    : mBar(bar), mAction(action), mIndex(index), mKey(key), mStyle(style) {}

QString Button::Caption() const {
    return mStyle == tbrSeparator ? QString() : mAction->text();
}
void Button::setCaption(const QString& caption) {
    mAction->setText(caption);
}
void Button::setToolTipText(const QString& text) {
    mToolTip = text;
    mAction->setToolTip(text);
}

void Button::setImage(const QString& imageKey) {
    const QString old = mImage;
    mImage = imageKey;
    try {
        mBar->applyImage(*this);
    } catch (...) {
        mImage = old;
        throw;
    }
}

bool Button::Enabled() const {
    return mAction->isEnabled();
}
void Button::setEnabled(bool enabled) {
    mAction->setEnabled(enabled);
}
bool Button::Visible() const {
    return mAction->isVisible();
}
void Button::setVisible(bool visible) {
    mAction->setVisible(visible);
}

} // namespace qs
