// The menu bar of the main window and the wiring of its entries to their commands.

#include "frmMain.h"

#include "EventWiring.h"
#include "MenuParts.h"
#include "Toolbar.h"
#include "TreeView.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace qs {

using menuparts::entry;
using menuparts::separator;
using menuparts::subMenu;

void frmMain::buildMenus() {
    QMenuBar* bar = menuBar;

    mnuFile = subMenu(this, bar, "mnuFile", QStringLiteral("&File"));
    mnuImport = subMenu(this, mnuFile->menu(), "mnuImport", QStringLiteral("Import"));
    mnuImportQSDB = entry(mnuImport, "mnuImportQSDB", QStringLiteral("From QS Database"));
    mnuExport = subMenu(this, mnuFile->menu(), "mnuExport", QStringLiteral("Export"));
    mnuRTF = entry(mnuExport, "mnuRTF", QStringLiteral("To RTF"));
    mnuPDF = entry(mnuExport, "mnuPDF", QStringLiteral("To PDF"));
    mnuXml = entry(mnuExport, "mnuXml", QStringLiteral("To XML"));
    mnuHtml = entry(mnuExport, "mnuHtml", QStringLiteral("To HTML"));
    mnuTextFile = entry(mnuExport, "mnuTextFile", QStringLiteral("To Text File"));
    Seperator1 = separator(mnuFile, "Seperator1");
    mnuLoginReturn = entry(mnuFile, "mnuLoginReturn", QStringLiteral("Return to Login Screen"));
    Seperator2 = separator(mnuFile, "Seperator2");
    mnuExit = entry(mnuFile, "mnuExit", QStringLiteral("Exit"));

    mnuEdit = subMenu(this, bar, "mnuEdit", QStringLiteral("&Edit"));
    mnuFind = entry(mnuEdit, "mnuFind", QStringLiteral("Find"));
    mnuCopy = entry(mnuEdit, "mnuCopy", QStringLiteral("Copy"));
    mnuAdvancedCopy = entry(mnuEdit, "mnuAdvancedCopy", QStringLiteral("Advanced Copy"));
    mnuSelectAll = entry(mnuEdit, "mnuSelectAll", QStringLiteral("Select All Code"));
    // The code pane's pop-up hides this pair while it shows the Edit menu.
    seperator3 = separator(mnuEdit, "seperator3");
    mnuBookMark = entry(mnuEdit, "mnuBookMark", QStringLiteral("BookMark"));

    mnuView = subMenu(this, bar, "mnuView", QStringLiteral("&View"));
    mnuApiViewer = entry(mnuView, "mnuApiViewer", QStringLiteral("API Viewer"));
    mnuBookMarkS = entry(mnuView, "mnuBookMarkS", QStringLiteral("Bookmarks"));

    mnuBookMarkSearch = subMenu(this, bar, "mnuBookMarkSearch", QStringLiteral("&Search"));
    mnuBookMarkSch = entry(mnuBookMarkSearch, "mnuBookMarkSch", QStringLiteral("BookMark"));

    mnuAdmin = subMenu(this, bar, "mnuAdmin", QStringLiteral("&Admin"));
    mnuUpdate = subMenu(this, mnuAdmin->menu(), "mnuUpdate", QStringLiteral("Maintenance"));
    mnuAuthor = entry(mnuUpdate, "mnuAuthor", QStringLiteral("Authors"));
    mnuUser = entry(mnuUpdate, "mnuUser", QStringLiteral("Users"));
    mnuModify = subMenu(this, mnuAdmin->menu(), "mnuModify", QStringLiteral("Modify"));
    mnuAddCategory = entry(mnuModify, "mnuAddCategory", QStringLiteral("Add Category"));
    mnuAddFolder = entry(mnuModify, "mnuAddFolder", QStringLiteral("Add Folder"));
    mnuAddSourceCode = entry(mnuModify, "mnuAddSourceCode", QStringLiteral("Add SourceCode"));
    mnuAddSourceFile = entry(mnuModify, "mnuAddSourceFile", QStringLiteral("Add SourceFile"));
    mnuBookMarkA = entry(mnuModify, "mnuBookMarkA", QStringLiteral("BookMark"));
    mnuDelete = entry(mnuModify, "mnuDelete", QStringLiteral("Delete"));
    mnuEditSource = entry(mnuModify, "mnuEditSource", QStringLiteral("Edit"));
    mnuRename = entry(mnuModify, "mnuRename", QStringLiteral("Rename"));

    mnuDatabase = subMenu(this, bar, "mnuDatabase", QStringLiteral("&Database"));
    mnuOpenDatabase = entry(mnuDatabase, "mnuOpenDatabase", QStringLiteral("Open"));
    mnuNewDatabase = entry(mnuDatabase, "mnuNewDatabase", QStringLiteral("Create"));
    mnuBackup = entry(mnuDatabase, "mnuBackup", QStringLiteral("Backup"));
    mnuCompact = entry(mnuDatabase, "mnuCompact", QStringLiteral("Compact"));

    mnuHelp = subMenu(this, bar, "mnuHelp", QStringLiteral("&Help"));
    mnuHelpContents = entry(mnuHelp, "mnuHelpContents", QStringLiteral("Contents..."));
    mnuHelpSearch = entry(mnuHelp, "mnuHelpSearch", QStringLiteral("Search..."));
    mnuHelpOnHelp = entry(mnuHelp, "mnuHelpOnHelp", QStringLiteral("How to Use Help"));
    separator4 = separator(mnuHelp, "separator4");
    mnuAboutApp = entry(mnuHelp, "mnuAboutApp", QStringLiteral("About App"));

    // The bookmark tree's pop-up: a menu of the bar that never shows there.
    mnuBk = subMenu(this, bar, "mnuBk", QStringLiteral("BkMenu"));
    mnuBk->setVisible(false);
    mnuDelBookmark = entry(mnuBk, "mnuDelBookmark", QStringLiteral("Delete BookMark"));
}

void frmMain::connectMenus() {
    struct Route {
        QAction* action;
        const char* handler;
        void (frmMain::*member)();
    };
    // mnuImportQSDB has no command behind it.
    const Route routes[] = {
        {mnuLoginReturn, "mnuLoginReturn_Click", &frmMain::mnuLoginReturn_Click},
        {mnuExit, "mnuExit_Click", &frmMain::mnuExit_Click},
        {mnuFind, "mnuFind_Click", &frmMain::mnuFind_Click},
        {mnuBookMark, "mnuBookMark_Click", &frmMain::mnuBookMark_Click},
        {mnuBookMarkS, "mnuBookmarks_Click", &frmMain::mnuBookmarks_Click},
        {mnuBookMarkSch, "mnuBookMarkSch_Click", &frmMain::mnuBookMarkSch_Click},
        {mnuBookMarkA, "mnuBookMarkA_Click", &frmMain::mnuBookMarkA_Click},
        {mnuDelBookmark, "mnuDelBookmark_Click", &frmMain::mnuDelBookmark_Click},
        {mnuApiViewer, "mnuApiViewer_Click", &frmMain::mnuApiViewer_Click},
        {mnuUser, "mnuUser_Click", &frmMain::mnuUser_Click},
        {mnuAuthor, "mnuAuthor_Click", &frmMain::mnuAuthor_Click},
        {mnuOpenDatabase, "mnuOpenDatabase_Click", &frmMain::mnuOpenDatabase_Click},
        {mnuNewDatabase, "mnuNewDatabase_Click", &frmMain::mnuNewDatabase_Click},
        {mnuBackup, "mnuBackup_Click", &frmMain::mnuBackup_Click},
        {mnuCompact, "mnuCompact_Click", &frmMain::mnuCompact_Click},
        {mnuHelpContents, "mnuHelpContents_Click", &frmMain::mnuHelpContents_Click},
        {mnuHelpSearch, "mnuHelpSearch_Click", &frmMain::mnuHelpSearch_Click},
        {mnuHelpOnHelp, "mnuHelpOnHelp_Click", &frmMain::mnuHelpOnHelp_Click},
        {mnuAboutApp, "mnuAboutApp_Click", &frmMain::mnuAboutApp_Click},
    };
    for (const Route& r : routes)
        Wire(this, r.action, &QAction::triggered, r.handler,
             [this, member = r.member] { (this->*member)(); });
    Wire(this, tbToolBar->ButtonClick, "tbToolBar_ButtonClick",
         [this](Button& button) { tbToolBar_ButtonClick(button); });
    connectOutput();
    connectMaintenance();
    connectSourceCode();
}

void frmMain::connectTrees() {
    TreeView* const cats = tvwCategories;
    Wire(this, cats->NodeClick, "tvwCategories_NodeClick",
         [this](Node node) { tvwCategories_NodeClick(node); });
    Wire(this, cats->MouseDown, "tvwCategories_MouseDown",
         [this](int button, int shift, int x, int y) {
             tvwCategories_MouseDown(button, shift, x, y);
         });
    Wire(this, cats->MouseUp, "tvwCategories_MouseUp", [this](int button, int shift, int x, int y) {
        tvwCategories_MouseUp(button, shift, x, y);
    });
    Wire(this, cats->KeyUp, "tvwCategories_KeyUp",
         [this](int& code, int shift) { tvwCategories_KeyUp(code, shift); });
    Wire(this, cats->GotFocus, "tvwCategories_GotFocus", [this] { tvwCategories_GotFocus(); });
    Wire(this, cats->Expand, "tvwCategories_Expand",
         [this](Node node) { tvwCategories_Expand(node); });
    Wire(this, cats->Collapse, "tvwCategories_Collapse",
         [this](Node node) { tvwCategories_Collapse(node); });
    Wire(this, cats->BeforeLabelEdit, "tvwCategories_BeforeLabelEdit",
         [this](bool& cancel) { tvwCategories_BeforeLabelEdit(cancel); });
    Wire(this, cats->AfterLabelEdit, "tvwCategories_AfterLabelEdit",
         [this](bool& cancel, const QString& text) { tvwCategories_AfterLabelEdit(cancel, text); });

    TreeView* const items = tvwMain;
    Wire(this, items->NodeClick, "tvwMain_NodeClick",
         [this](Node node) { tvwMain_NodeClick(node); });
    Wire(this, items->MouseDown, "tvwMain_MouseDown",
         [this](int button, int shift, int x, int y) { tvwMain_MouseDown(button, shift, x, y); });
    Wire(this, items->MouseUp, "tvwMain_MouseUp",
         [this](int button, int shift, int x, int y) { tvwMain_MouseUp(button, shift, x, y); });
    Wire(this, items->KeyUp, "tvwMain_KeyUp",
         [this](int& code, int shift) { tvwMain_KeyUp(code, shift); });
    Wire(this, items->Expand, "tvwMain_Expand", [this](Node node) { tvwMain_Expand(node); });
    Wire(this, items->Collapse, "tvwMain_Collapse", [this](Node node) { tvwMain_Collapse(node); });
    Wire(this, items->BeforeLabelEdit, "tvwMain_BeforeLabelEdit",
         [this](bool& cancel) { tvwMain_BeforeLabelEdit(cancel); });
    Wire(this, items->AfterLabelEdit, "tvwMain_AfterLabelEdit",
         [this](bool& cancel, const QString& text) { tvwMain_AfterLabelEdit(cancel, text); });
    Wire(this, items->GotFocus, "tvwMain_GotFocus", [this] { tvwMain_GotFocus(); });
    Wire(this, items->LostFocus, "tvwMain_LostFocus", [this] { tvwMain_LostFocus(); });

    // txtNotes answers F1 itself, whether or not the key would reach the window.
    txtNotes->installEventFilter(this);
}

} // namespace qs
