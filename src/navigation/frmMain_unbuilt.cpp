// Members of the main window whose subsystems are not built yet.  Each does nothing until its
// subsystem defines it in its own file; the definition here is then removed.

#include "frmMain.h"

namespace qs {

// Item details.
void frmMain::lvwRevHistSetup(ListView* list) {
    (void)list;
}
void frmMain::ClearAllControls() {}
void frmMain::ClearControlsSourceFileTab() {}

// Category tree.
void frmMain::SettingCategory(TreeView* tree) {
    (void)tree;
}
void frmMain::FillTreeViewCategory() {}

// Bookmarks.
void frmMain::FillTreeViewBookmarks(const QString& strUserId) {
    (void)strUserId;
}
void frmMain::mnuBookMark_Click() {}
void frmMain::mnuBookmarks_Click() {}
void frmMain::mnuBookMarkA_Click() {}
void frmMain::mnuDelBookmark_Click() {}

// Search.
void frmMain::mnuFind_Click() {}
void frmMain::mnuBookMarkSch_Click() {}

// Output.
void frmMain::mnuRTF_Click() {}
void frmMain::mnuPDF_Click() {}
void frmMain::mnuXml_Click() {}
void frmMain::mnuHtml_Click() {}
void frmMain::mnuTextFile_Click() {}
void frmMain::mnuCopy_Click() {}
void frmMain::mnuAdvancedCopy_Click() {}
void frmMain::mnuSelectAll_Click() {}

// API viewer.
void frmMain::mnuApiViewer_Click() {}

// Item maintenance.
void frmMain::mnuAddCategory_Click() {}
void frmMain::mnuAddFolder_Click() {}
void frmMain::mnuAddSourceCode_Click() {}
void frmMain::mnuAddSourceFile_Click() {}
void frmMain::mnuDelete_Click() {}
void frmMain::mnuEditSource_Click() {}
void frmMain::mnuRename_Click() {}

// Administration.
void frmMain::mnuAuthor_Click() {}
void frmMain::mnuNewDatabase_Click() {}
void frmMain::mnuBackup_Click() {}
void frmMain::mnuCompact_Click() {}

// Help and about box.
void frmMain::mnuHelpContents_Click() {}
void frmMain::mnuHelpSearch_Click() {}
void frmMain::mnuHelpOnHelp_Click() {}
void frmMain::mnuAboutApp_Click() {}

} // namespace qs
