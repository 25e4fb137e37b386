#pragma once

#include "FormBase.h"

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QMenuBar;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace qs {

class Button;
class ComboBox;
class ListBox;
class ListView;
class RichTextBox;
class SSTab;
class StatusBar;
class Timer;
class Toolbar;
class TreeView;

// The main window: category tree, item tree, bookmarks and search on the left, the panes of the
// selected item on the right, the menu bar and the tool bar.  Its members are defined in the
// folder of the subsystem that owns them.
class frmMain : public FormBase {
    Q_OBJECT
public:
    frmMain();
    ~frmMain() override;

    // ---- Controls, by design name ----
    QMenuBar* menuBar = nullptr;
    Toolbar* tbToolBar = nullptr;
    StatusBar* sbStatusBar = nullptr;
    Timer* tmrDrag = nullptr;

    // Left side: the category tree above, the navigation tabs below.
    QLabel* lblCategories = nullptr;
    TreeView* tvwCategories = nullptr;
    SSTab* SSTabNavigate = nullptr; // "Main" (0), "BookMarks" (1), "Search/Results" (2)
    TreeView* tvwMain = nullptr;
    TreeView* tvwMainCopy = nullptr; // empty twin shown while tvwMain refills
    TreeView* tvwBookMarks = nullptr;
    TreeView* tvwSearchResults = nullptr;
    ComboBox* cboCategory = nullptr;
    ComboBox* cboCodeType = nullptr;
    ComboBox* cboTestedOrUntested = nullptr;
    QLineEdit* txtSearchString = nullptr;
    QRadioButton* rdoSearchOption[3] = {}; // "Exact Phrase", "All Words", "Any Word"
    QPushButton* cmdSearch = nullptr;

    // Right side: the description line, the path line and the two pane sets.
    QLabel* lblCodeSnipDescr = nullptr;
    QLineEdit* txtCodePath = nullptr;
    QLineEdit* txtCodePath2 = nullptr;

    SSTab* SSTabAboutCode = nullptr; // "Code", "Description", "Example"
    RichTextBox* RichTextBoxCode = nullptr;
    RichTextBox* RichTextBoxVis = nullptr;
    RichTextBox* RichTextBoxHold = nullptr;
    QPlainTextEdit* txtNotes = nullptr;
    QLineEdit* txtVersionNo = nullptr;
    QLineEdit* txtSourceAuthor = nullptr;
    QLineEdit* txtDateWritten = nullptr;
    QLineEdit* txtDateEntered = nullptr;
    ListView* lvwRevisionHistory = nullptr;
    QLineEdit* txtRevisionAuthorSC = nullptr;
    QPlainTextEdit* txtChangesSC = nullptr;
    QPlainTextEdit* txtExample = nullptr;

    SSTab* SSTabSourceFile = nullptr; // "General Information", "Version Information"
    QLabel* picIcon = nullptr;
    QLineEdit* txtFilename = nullptr;
    QLineEdit* txtType = nullptr;
    QLineEdit* txtSize = nullptr;
    QLineEdit* txtAuthorName = nullptr;
    QLineEdit* txtDosName = nullptr;
    QLineEdit* txtCreated = nullptr;
    QLineEdit* txtDateFileEntered = nullptr;
    QLineEdit* txtFileVer = nullptr;
    QLineEdit* txtDescription = nullptr;
    QLineEdit* txtCopyright = nullptr;
    QPlainTextEdit* txtFileNotes = nullptr;
    QCheckBox* chkAttr[6] = {}; // Read-only, Archive, Compressed, Hidden, System, Temporary
    QPushButton* cmdOpenFile = nullptr;
    QPushButton* cmdSaveFile = nullptr;
    ListBox* lboxVerInfo = nullptr;
    QPlainTextEdit* txtVerInfo = nullptr;
    ListView* lstSrcFileRevHist = nullptr;
    QLineEdit* txtSFRevHistAuthor = nullptr;
    QPlainTextEdit* txtRevCommentsSF = nullptr;

    // ---- Menu bar: every entry is an action named by its design name; a sub-menu is the
    // action's menu() (a QMenu of the same name).  `mnuBk` is a pop-up only. ----
    QAction* mnuFile = nullptr;
    QAction* mnuImport = nullptr;
    QAction* mnuImportQSDB = nullptr;
    QAction* mnuExport = nullptr;
    QAction* mnuRTF = nullptr;
    QAction* mnuPDF = nullptr;
    QAction* mnuXml = nullptr;
    QAction* mnuHtml = nullptr;
    QAction* mnuTextFile = nullptr;
    QAction* Seperator1 = nullptr;
    QAction* mnuLoginReturn = nullptr;
    QAction* Seperator2 = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuEdit = nullptr;
    QAction* mnuFind = nullptr;
    QAction* mnuCopy = nullptr;
    QAction* mnuAdvancedCopy = nullptr;
    QAction* mnuSelectAll = nullptr;
    QAction* seperator3 = nullptr;
    QAction* mnuBookMark = nullptr;
    QAction* mnuView = nullptr;
    QAction* mnuApiViewer = nullptr;
    QAction* mnuBookMarkS = nullptr;
    QAction* mnuBookMarkSearch = nullptr;
    QAction* mnuBookMarkSch = nullptr;
    QAction* mnuAdmin = nullptr;
    QAction* mnuUpdate = nullptr;
    QAction* mnuAuthor = nullptr;
    QAction* mnuUser = nullptr;
    QAction* mnuModify = nullptr;
    QAction* mnuAddCategory = nullptr;
    QAction* mnuAddFolder = nullptr;
    QAction* mnuAddSourceCode = nullptr;
    QAction* mnuAddSourceFile = nullptr;
    QAction* mnuBookMarkA = nullptr;
    QAction* mnuDelete = nullptr;
    QAction* mnuEditSource = nullptr;
    QAction* mnuRename = nullptr;
    QAction* mnuDatabase = nullptr;
    QAction* mnuOpenDatabase = nullptr;
    QAction* mnuNewDatabase = nullptr;
    QAction* mnuBackup = nullptr;
    QAction* mnuCompact = nullptr;
    QAction* mnuHelp = nullptr;
    QAction* mnuHelpContents = nullptr;
    QAction* mnuHelpSearch = nullptr;
    QAction* mnuHelpOnHelp = nullptr;
    QAction* separator4 = nullptr;
    QAction* mnuAboutApp = nullptr;
    QAction* mnuBk = nullptr;
    QAction* mnuDelBookmark = nullptr;

    // ---- Start-up and shutdown ----
    void StartUp();
    void InitControls();
    void SelectDataBase();

    // ---- Commands.  A menu entry or tool-bar button whose command is not built yet reaches
    // no handler; the routing test lists those. ----
    void mnuLoginReturn_Click();
    void mnuExit_Click();
    void mnuBookmarks_Click();
    void mnuApiViewer_Click();
    void mnuUser_Click();
    void mnuOpenDatabase_Click();
    void mnuHelpContents_Click();
    void mnuHelpSearch_Click();
    void mnuAboutApp_Click();
    void tbToolBar_ButtonClick(Button& button);
    // True when a tool-bar button of this tag reaches a command.
    static bool ToolBarRoutes(const QString& tag);

    // ---- Item panes: the clear helpers and the whole-window lock ----
    void ClearOriginalControls();
    void ClearRevisionControls();
    void ClearControlsSourceFileTab();
    void ClearAllControls();
    void EnableControls(bool on);

    // ---- Window members ----
    int mintDragFormat = 0;         // clipboard format "Tarnwick" of the node drag
    QString mstrActiveTree;         // "Cats", "Main" or "BookMarks"
    bool mblnViewBookMarks = true;  // ToolBarSettings\ViewBookMarks
    QString mstrLastNodeCategory;   // TviewSettings\LastNodeCategory
    QString mstrLastCodeType;       // TviewSettings\LastCodeType
    QString mstrLastCodeTypeMain;   // the same value again, gating the file-type search
    QString mstrFirstCategoryClick; // "Yes" until the category tree's first click
    QString mstrFirstMainClick;     // "Yes" until the item tree's first click
    bool mblnFilling = false;
    bool mblnFindHit = false;   // a text search has hit something in RichTextBoxCode
    QString mstrDatabaseFolder; // folder of the database last chosen or made here

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(int& cancel) override;

private:
    void buildLayout();
    void buildSourceFileTabs(QWidget* owner);
    void buildMenus();
    void buildToolBar();
    void connectMenus();
    void clearSourceFileFields(bool withVerInfo);
    // Hides the commands that change anything from a user who is not an administrator.
    void ApplyAccessLevel();
};

} // namespace qs
