// The tool bar of the main window: its buttons by key, with tag, tool tip and image.

#include "frmMain.h"

#include "Host.h"
#include "ImageList.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "mEditCommands.h"
#include "mErrorHandling.h"

#include <QHash>

namespace qs {

namespace {

struct ToolButton {
    const char* key;
    const char* tag;
    const char* toolTip;
    const char* image;
};

// In order.  "ReName Item" carries another Tag than its Key, and "Back" the tool tip of the
// other direction; both are as the design has them.
const ToolButton kButtons[] = {
    {"Open DataBase", "Open DataBase", "Open DataBase", "OpenDataBase"},
    {"Add Category", "Add Category", "Add Category", "Category"},
    {"Add Folder", "Add Folder", "Add Folder", "Folder"},
    {"Add SourceCode", "Add SourceCode", "Add SourceCode", "SourceCode"},
    {"Add SourceFile", "Add SourceFile", "Add SourceFile", "SourceFile"},
    {"Seperator2", "Seperator2", nullptr, nullptr},
    {"DeleteNode", "DeleteNode", "Delete Selected Node", "Delete"},
    {"BookMark", "BookMark", "BookMark Item", "BookMark"},
    {"Edit", "Edit", "Edit Source", "Edit"},
    {"ReName Item", "ReName", "Rename Node", "ReName2"},
    {"Find", "Find", "Find Item", "Find"},
    {"BookMarks", "BookMarks", "View BookMarks", "BookMarks"},
    {"Back", "Back", "Next Item", "Back"},
    {"Forward", "Forward", "Forward Item", "Forward"},
    {"Copy", "Copy", "Copy", "Copy"},
    {"AdvCopy", "AdvCopy", "Advanced Copy", "AdvCopy"},
    {"Print", "Print", "Print", "Print"},
};

// The command behind each tag.  A tag missing here reaches nothing yet.
using Command = void (*)(frmMain&);
const QHash<QString, Command>& toolBarCommands() {
    static const QHash<QString, Command> commands = {
        {QStringLiteral("Add Item"), [](frmMain& f) { f.AddItemCommand(); }},
        {QStringLiteral("AdvCopy"), [](frmMain& f) { f.AdvancedCopy(); }},
        {QStringLiteral("Add SourceCode"), [](frmMain& f) { f.mnuAddSourceCode_Click(); }},
        {QStringLiteral("Back"), [](frmMain& f) { f.stepInTree(false); }},
        {QStringLiteral("BookMark"), [](frmMain& f) { f.AddBookmark(); }},
        {QStringLiteral("BookMarks"), [](frmMain& f) { f.SSTabNavigate->setTab(1); }},
        {QStringLiteral("Copy"), [](frmMain&) { Copy(); }},
        {QStringLiteral("DeleteNode"), [](frmMain& f) { f.DeleteNodeCommand(); }},
        {QStringLiteral("Edit"), [](frmMain& f) { f.mnuEditSource_Click(); }},
        {QStringLiteral("Find"), [](frmMain& f) { f.SearchForText(); }},
        {QStringLiteral("Forward"), [](frmMain& f) { f.stepInTree(true); }},
        {QStringLiteral("Open DataBase"),
         [](frmMain& f) {
             f.SSTabNavigate->setTab(0);
             f.SelectDataBase();
         }},
        {QStringLiteral("Print"), [](frmMain& f) { f.subPrint(); }},
        // Item maintenance.
        {QStringLiteral("Add Category"), [](frmMain& f) { f.mnuAddCategory_Click(); }},
        {QStringLiteral("Add Folder"), [](frmMain& f) { f.mnuAddFolder_Click(); }},
        {QStringLiteral("Add SourceFile"), [](frmMain& f) { f.mnuAddSourceFile_Click(); }},
        {QStringLiteral("ReName"),
         [](frmMain& f) {
             f.tvwMain_NodeClick(f.tvwMain->SelectedItem());
             f.mnuRename_Click();
         }},
    };
    return commands;
}

} // namespace

bool frmMain::ToolBarRoutes(const QString& tag) {
    return toolBarCommands().contains(tag);
}

void frmMain::tbToolBar_ButtonClick(Button& button) {
    try {
        host().setMousePointer(vbHourglass);
        const Command command = toolBarCommands().value(button.Tag());
        if (command)
            command(*this);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:tbToolBar_ButtonClick;");
    }
}

void frmMain::buildToolBar() {
    tbToolBar->setImageList(&ImageList::instance());
    for (const ToolButton& b : kButtons) {
        const QString key = QString::fromLatin1(b.key);
        if (!b.image) {
            Button& separator = tbToolBar->Buttons.Add(key, QString(), tbrSeparator);
            separator.setTag(QString::fromLatin1(b.tag));
            continue;
        }
        Button& button =
            tbToolBar->Buttons.Add(key, QString(), tbrDefault, QString::fromLatin1(b.image));
        button.setTag(QString::fromLatin1(b.tag));
        button.setToolTipText(QString::fromLatin1(b.toolTip));
    }
    // Editing is off until an item is chosen in the tree.
    tbToolBar->Buttons(QStringLiteral("Edit")).setEnabled(false);
}

} // namespace qs
