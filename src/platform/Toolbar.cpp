#include "Toolbar.h"

#include "ImageList.h"

#include <QAction>
#include <QToolButton>

namespace qs {

Toolbar::Toolbar(const QString& name, QWidget* parent) : QToolBar(parent), Buttons(this) {
    setObjectName(name);
    setMovable(false);
    setFloatable(false);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setFlat(false);
}

void Toolbar::setImageList(ImageList* list) {
    mImageList = list;
    for (const auto& b : Buttons)
        if (!mImageList || b->Image().isEmpty() || mImageList->Exists(b->Image()))
            applyImage(*b);
}

void Toolbar::applyImage(Button& button) {
    if (!mImageList || button.Image().isEmpty()) {
        button.action()->setIcon(QIcon());
        return;
    }
    button.action()->setIcon(mImageList->ListImages(button.Image()));
}

void Toolbar::setFlat(bool flat) {
    mFlat = flat;
    for (QToolButton* b : findChildren<QToolButton*>())
        b->setAutoRaise(flat);
    update();
}

bool Toolbar::PerformClick(const QString& key) {
    Button& b = Buttons(key);
    if (b.Style() == tbrSeparator || !b.Enabled() || !b.Visible())
        return false;
    b.action()->trigger();
    return true;
}

} // namespace qs
