#include "MenuParts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace qs::menuparts {

namespace {

QMenu* namedMenu(QWidget* owner, const char* name, const QString& caption) {
    auto* menu = new QMenu(caption, owner);
    menu->setObjectName(QString::fromLatin1(name));
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    return menu;
}

QAction* named(QAction* action, const char* name) {
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

} // namespace

QAction* subMenu(QWidget* owner, QMenuBar* bar, const char* name, const QString& caption) {
    return bar->addMenu(namedMenu(owner, name, caption));
}

QAction* subMenu(QWidget* owner, QMenu* parent, const char* name, const QString& caption) {
    return parent->addMenu(namedMenu(owner, name, caption));
}

QAction* entry(QAction* menu, const char* name, const QString& caption) {
    return named(menu->menu()->addAction(caption), name);
}

QAction* separator(QAction* menu, const char* name) {
    return named(menu->menu()->addSeparator(), name);
}

} // namespace qs::menuparts
