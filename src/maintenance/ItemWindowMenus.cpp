#include "ItemWindowMenus.h"

#include "MenuParts.h"
#include "Toolbar.h"
#include "mEditCommands.h"

#include <QMenu>
#include <QMenuBar>

namespace qs {

using menuparts::entry;
using menuparts::subMenu;

ItemWindowMenus BuildItemWindowMenus(QWidget* owner, bool withImport) {
    ItemWindowMenus m;
    m.menuBar = new QMenuBar(owner);
    m.menuBar->setObjectName(QStringLiteral("menuBar"));
    m.mnuFile = subMenu(owner, m.menuBar, "mnuFile", QStringLiteral("&File"));
    m.mnuExit = entry(m.mnuFile, "mnuExit", QStringLiteral("Exit"));
    m.mnuEdit = subMenu(owner, m.menuBar, "mnuEdit", QStringLiteral("&Edit"));
    m.mnuCut = entry(m.mnuEdit, "mnuCut", QStringLiteral("Cut"));
    m.mnuCopy = entry(m.mnuEdit, "mnuCopy", QStringLiteral("Copy"));
    m.mnuPaste = entry(m.mnuEdit, "mnuPaste", QStringLiteral("Paste"));
    if (withImport) {
        m.Seperator1 = m.mnuEdit->menu()->addSeparator();
        m.Seperator1->setObjectName(QStringLiteral("Seperator1"));
        m.mnuAsciiFile = entry(m.mnuEdit, "mnuAsciiFile", QStringLiteral("Import Ascii File"));
        m.Seperator1->setVisible(false);
        m.mnuAsciiFile->setVisible(false);
    }
    m.mnuHelp = subMenu(owner, m.menuBar, "mnuHelp", QStringLiteral("&Help"));
    m.mnuHelpContents = entry(m.mnuHelp, "mnuHelpContents", QStringLiteral("Contents..."));
    m.mnuHelpSearch = entry(m.mnuHelp, "mnuHelpSearch", QStringLiteral("Search..."));
    m.mnuHelpOnHelp = entry(m.mnuHelp, "mnuHelpOnHelp", QStringLiteral("How to Use Help"));

    m.tbToolBar = new Toolbar(QStringLiteral("tbToolBar"), owner);
    for (const char* word : {"Cut", "Copy", "Paste"}) {
        const QString text = QString::fromLatin1(word);
        m.tbToolBar->Buttons.Add(text, text).setTag(text);
        m.tbToolBar->Buttons(text).setToolTipText(text);
    }
    return m;
}

void RunEditCommand(const QString& tag) {
    if (tag == QLatin1String("Cut"))
        Cut();
    else if (tag == QLatin1String("Copy"))
        Copy();
    else if (tag == QLatin1String("Paste"))
        Paste();
}

} // namespace qs
