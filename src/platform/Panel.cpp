#include "Panel.h"

#include <QLabel>

namespace qs {

QString Panel::Text() const {
    return mLabel->text();
}
void Panel::setText(const QString& text) {
    mLabel->setText(text);
}
int Panel::Width() const {
    return mLabel->width();
}
void Panel::setWidth(int width) {
    mLabel->setMinimumWidth(width);
}

} // namespace qs
