#pragma once

#include <QString>

class QAction;
class QMenuBar;
class QWidget;

namespace qs {

class Toolbar;

// The menu bar and tool bar that the item maintenance windows share: "&File" with "Exit",
// "&Edit" with Cut, Copy and Paste (and, for the code window, the hidden import entry behind
// Seperator1), "&Help" with its three entries, and a tool bar whose buttons carry the tags
// "Cut", "Copy" and "Paste".  Every entry carries its design name.
struct ItemWindowMenus {
    QMenuBar* menuBar = nullptr;
    Toolbar* tbToolBar = nullptr;
    QAction* mnuFile = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuEdit = nullptr;
    QAction* mnuCut = nullptr;
    QAction* mnuCopy = nullptr;
    QAction* mnuPaste = nullptr;
    QAction* Seperator1 = nullptr;   // null without the import entry
    QAction* mnuAsciiFile = nullptr; // "Import Ascii File", hidden until the code box has focus
    QAction* mnuHelp = nullptr;
    QAction* mnuHelpContents = nullptr;
    QAction* mnuHelpSearch = nullptr;
    QAction* mnuHelpOnHelp = nullptr;
};

// Builds both bars as children of `owner`; the caller puts them in its layout.
ItemWindowMenus BuildItemWindowMenus(QWidget* owner, bool withImport);

// The shared edit command of a tool-bar tag: "Cut", "Copy" or "Paste"; any other tag does
// nothing.
void RunEditCommand(const QString& tag);

} // namespace qs
