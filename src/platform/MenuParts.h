#pragma once

#include <QString>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

// The pieces every window's menus are made of.  A menu and its action both carry the design name,
// so tests and the command wiring find either by it.
namespace qs::menuparts {

// A menu on the bar, or inside another menu.
QAction* subMenu(QWidget* owner, QMenuBar* bar, const char* name, const QString& caption);
QAction* subMenu(QWidget* owner, QMenu* parent, const char* name, const QString& caption);
// An entry, or a separator, at the end of a menu.
QAction* entry(QAction* menu, const char* name, const QString& caption);
QAction* separator(QAction* menu, const char* name);

} // namespace qs::menuparts
