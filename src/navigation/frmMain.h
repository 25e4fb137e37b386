#pragma once

#include "CommonDialog.h"
#include "FormBase.h"
#include "ItemRow.h"
#include "LookupRow.h"
#include "MemberList.h"
#include "Node.h"
#include "VbArray.h"

#include <memory>

class QAction;
class QCheckBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QMenuBar;
class QMimeData;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace qs {

class Button;
class ColumnHeader;
class ComboBox;
class ListBox;
class ListView;
class Node;
class RichTextBox;
class SSTab;
class StatusBar;
class Timer;
class Toolbar;
class TreeView;
class cSourceCode;
class cSourceFile;
struct FileExportKind;

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
    void mnuNewDatabase_Click();
    void mnuBackup_Click();
    void mnuCompact_Click();
    void mnuHelpContents_Click();
    void mnuHelpSearch_Click();
    void mnuAboutApp_Click();
    void mnuHelpOnHelp_Click();
    void tbToolBar_ButtonClick(Button& button);
    // True when a tool-bar button of this tag reaches a command.
    static bool ToolBarRoutes(const QString& tag);
    // The tool bar's own commands: Back (false) and Forward (true) on the tree that had the
    // focus last; the delete with its root check; the add that tells where categories go.
    void stepInTree(bool forward);
    void DeleteNodeCommand();
    void AddItemCommand();

    // ---- Item maintenance: the text item window, to add under a folder or edit an item ----
    void mnuAddSourceCode_Click();
    void mnuEditSource_Click();

    // ---- Keys of the window: F1 opens the help of the control that has the focus ----
    void Form_KeyDown(int& KeyCode, int Shift);
    void txtNotes_KeyDown(int& KeyCode, int Shift);

    // ---- Category tree ----
    void FillTreeViewCategory();
    void SettingCategory();
    void tvwCategories_NodeClick(Node node);
    void tvwCategories_MouseDown(int Button, int Shift, int x, int y);
    void tvwCategories_MouseUp(int Button, int Shift, int x, int y);
    void tvwCategories_KeyUp(int& KeyCode, int Shift);
    void tvwCategories_GotFocus();
    void tvwCategories_Expand(Node node);
    void tvwCategories_Collapse(Node node);
    void tvwCategories_BeforeLabelEdit(bool& Cancel);
    void tvwCategories_AfterLabelEdit(bool& Cancel, const QString& NewString);

    // ---- Item tree ----
    void FillTreeViewMain(long lngTypeId, long lngCategoryId, const QString& strTable);
    void tvwMain_NodeClick(Node node);
    void tvwMain_MouseDown(int Button, int Shift, int x, int y);
    void tvwMain_MouseUp(int Button, int Shift, int x, int y);
    void tvwMain_KeyUp(int& KeyCode, int Shift);
    void tvwMain_Expand(Node node);
    void tvwMain_Collapse(Node node);
    void tvwMain_BeforeLabelEdit(bool& Cancel);
    void tvwMain_AfterLabelEdit(bool& Cancel, const QString& NewString);
    void tvwMain_GotFocus();
    void tvwMain_LostFocus();

    // ---- Item panes: the clear helpers and the whole-window lock ----
    void ClearOriginalControls();
    void ClearRevisionControls();
    void ClearControlsSourceFileTab();
    void ClearAllControls();
    void EnableControls(bool on);

    // ---- Item panes: loading the selected item ----
    // The code tabs for the item of tvwMain, tvwBookMarks or tvwSearchResults.
    void GetCodeSnippet(long lngId);
    void GetCodeSnippetBk(long lngId);
    void GetCodeSnippetSrch(long lngId);
    // True when a load should unfold the module of `node` into its outline: no outline click is
    // loading it, the category is a Visual Basic one, the node has no children yet, and it stands
    // for a class or module (tvwMain reads its key, the other two trees its image).
    static bool ShouldParseModule(const Node& node, bool blnMainTree, bool blnChildClick,
                                  bool blnVisualBasicCategory);
    // The source file tabs for a stored file.
    void SourceFileInfoArtOrComp(long lngId);
    void LoadVerInfoCbo();
    void lboxVerInfo_Click();
    void SetPicIcon();
    // The two columns of a revision list.
    void lvwRevHistSetup(ListView* list);
    void lvwRevisionHistory_Click();
    void lvwRevisionHistory_ColumnClick(ColumnHeader& header);
    void lstSrcFileRevHist_Click();
    void lstSrcFileRevHist_ColumnClick(ColumnHeader& header);
    // Rights while the focus leaves the trees.
    void SSTabAboutCode_Click();
    void SSTabAboutCode_GotFocus();
    void SSTabNavigate_Click();
    void SSTabNavigate_GotFocus();
    void RichTextBoxCode_GotFocus();
    void RichTextBoxCode_MouseDown(int button, int shift, int x, int y);
    // Shows the sub-menu of `menu` at the pointer and returns when it closes.
    void PopupMenu(QAction* menu);

    // ---- Output: the exports, the clipboard and printing ----
    void mnuHtml_Click();
    void mnuXml_Click();
    void mnuRTF_Click();
    void mnuTextFile_Click();
    void mnuPDF_Click();
    void mnuCopy_Click();
    void mnuSelectAll_Click();
    void AdvancedCopy();
    void subPrint();
    CommonDialog CommonDialog1; // the printer dialog of subPrint

    // ---- Module outline: the members of a class or module as child nodes of its item ----
    // The outline under the selected node of tvwMain, tvwBookMarks or tvwSearchResults.
    void ParseModule(const QString& strCode, long lngId);
    void ParseModuleBk(const QString& strCode, long lngId);
    void ParseModuleSrch(const QString& strCode, long lngId);
    // The member lists of that item into the form's arrays, with no node made.
    void GetArrays(long lngId);

    // ---- Bookmarks ----
    void FillTreeViewBookmarks(const QString& strUserId);
    void AddBookmark();
    void mnuBookMark_Click();
    void mnuBookMarkA_Click();
    void mnuDelBookmark_Click();
    void tvwBookMarks_NodeClick(Node node);
    void tvwBookMarks_GotFocus();
    void tvwBookMarks_KeyUp(int& KeyCode, int Shift);
    void tvwBookMarks_MouseDown(int Button, int Shift, int x, int y);

    // ---- Search: the library search of the search tab, and the text search of the code pane
    void cboCategory_Click();
    void cboCodeType_Click();
    void cboTestedOrUntested_Click();
    void rdoSearchOption_Click(int Index);
    void txtSearchString_GotFocus();
    void txtSearchString_KeyPress(int& KeyAscii);
    void cmdSearch_Click();
    void FillTreeViewSearchResults();
    void tvwSearchResults_NodeClick(Node node);
    void tvwSearchResults_GotFocus();
    void tvwSearchResults_LostFocus();
    void tvwSearchResults_MouseDown(int Button, int Shift, int x, int y);
    void mnuBookMarkSch_Click();
    void mnuFind_Click();
    void SearchForText();
    void FindAndColor(long lngColor, const QString& strWord, bool blnNextOnly);
    void RichTextBoxCode_KeyDown(int& KeyCode, int Shift);

    // ---- Item maintenance: stored files, folders, categories and renames ----
    void mnuAddSourceFile_Click();
    void mnuAddFolder_Click();
    void mnuAddCategory_Click();
    void mnuRename_Click();
    void cmdOpenFile_Click();
    void cmdSaveFile_Click();
    // Shows frmSourceFile modally in "Add" or "Update" mode for the selected node of tvwMain,
    // with this window disabled meanwhile, and gives the focus back to the tree.  The Edit
    // command calls it with "Update" for a stored file.
    void ShowSourceFile(const QString& strMode);
    // The Insert key on a folder of tvwMain: frmInsert, then the command chosen.
    void InsertIntoFolder(const QString& strKey);

    // ---- Item maintenance: deleting the selected node, and moving items in tvwMain by drag
    // and drop ----
    void mnuDelete_Click();
    void tvwMain_MouseMove(int Button, int Shift, int x, int y);
    void tvwMain_OLEStartDrag(QMimeData& Data, int& AllowedEffects);
    void tvwMain_OLEDragOver(const QMimeData& Data, int& Effect, int Button, int Shift, int x,
                             int y, int State);
    void tvwMain_OLEDragDrop(const QMimeData& Data, int& Effect, int Button, int Shift, int x,
                             int y);
    void tvwMain_OLECompleteDrag(int Effect);
    void tmrDrag_Timer();
    QString mstrDragType;   // "Article", "Component", "Code", "Tip", "Class" or "Module"
    int mintDragScroll = 0; // -1 up, 1 down, 0 none, by the pointer's place in the tree
    long mlngDragTicks = 0; // ticks of tmrDrag over the same drop target

    // ---- Administration ----
    void mnuAuthor_Click();

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
    std::shared_ptr<cSourceCode> mobjSourceCode; // the last code item loaded; null for none
    std::shared_ptr<cSourceFile> mobjSourceFile; // the last stored file loaded; null for none
    QString mstrFileFullPath;                    // of the last stored file loaded
    QString mstrFileName;
    bool mblnSkipColumnToggle = false;    // True for one forced sort of a revision list
    int mintSelectFirstRow = 0;           // 1 for one forced click on a revision list
    bool mblnAboutCodeTabClicked = false; // SSTabAboutCode_Click has had its first run
    bool mblnNavigateTabClicked = false;  // SSTabNavigate_Click has had its first run

    // The lookups behind the category tree, 1-based, and the key of each category in the order
    // of marrCategories.
    VbArray<LookupRow> marrCategories;
    VbArray<LookupRow> marrCodeTypes;
    VbArray<LookupRow> marrFileTypes;
    VbArray<QString> marrCategoryKeys;
    VbArray<ItemRow> marrItems;           // the rows of the last FillTreeViewMain
    bool mblnVisualBasicCategory = false; // the selected category's name holds "Visual Basic"
    QString mstrCategoryButton;           // "Right" while the right button is down on the tree
    QString mstrTreeAction;               // "Expand" or "Collapse", the category tree's last
    Node mnodMouseDown;                   // the node under the pointer at the last press
    bool mblnChildClick = false;          // a click on an outline node loads its module
    bool mblnTreeFocusToggle = false;     // flipped each time tvwMain loses the focus
    QString mstrBookmarkSource;           // "Search" while tvwSearchResults has the focus
    QString mstrFindText;                 // the word of the last text search
    QString mstrSearchCodeType;           // cboCodeType at the last search
    long mlngSearchItemId = 0;            // the search hit clicked last

    // The member lists of the module parsed last, with the parser's bounds.
    MemberList marrConstants;
    MemberList marrModuleVars;
    MemberList marrTypes;
    MemberList marrEnums;
    MemberList marrAPIDeclares;
    MemberList marrProperties;
    MemberList marrFunctions;
    MemberList marrSubs;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(int& cancel) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void buildSourceFileTabs(QWidget* owner);
    void buildMenus();
    void buildToolBar();
    void connectMenus();
    void connectTrees();
    void fitToScreen();
    void connectPanes();
    void connectBookmarks();
    void connectSearch();
    // The delete and author commands and the drag events of tvwMain.
    void connectDeleteAndDrag();
    // The code item into the panes, the outline under the selected node of `tree` by `parse`.
    void loadCodeSnippet(long lngId, TreeView& tree, bool blnMainTree,
                         void (frmMain::*parse)(const QString&, long));
    void deleteSelectedItem();
    void deleteSelectedCategory();
    // True when the drag data carries a node key in the format of mintDragFormat.
    bool hasDragFormat(const QMimeData& data) const;
    // The focus and keys of txtSearchString; true when the key is used up.
    bool searchBoxEvent(QEvent* event);
    // The tab rights shared by the tab and code pane handlers.
    void DisableModifyCommands();
    void clearSourceFileFields(bool withVerInfo);
    // Hides this window while `form` runs modally, then shows it again with the tree that had
    // the focus drawn afresh.
    void showInsteadOfMain(FormBase& form);
    // Hides the commands that change anything from a user who is not an administrator.
    void ApplyAccessLevel();
    void connectOutput();
    // The add, rename, open and save commands of stored files, folders and categories.
    void connectMaintenance();
    void connectSourceCode();
    // After a maintenance window: the window enabled, the focus back on tvwMain with its node
    // selected again, the pointer back.
    void afterItemWindow();
    // The RTF, text and PDF exports: the copy dialog under the export's caption, then the file.
    void exportThroughCopyDialog(const FileExportKind& kind);

    // Helpers of the trees and the routing.
    void setButton(const char* key, bool on);
    bool buttonOn(const char* key) const;
    // Shows the empty twin of tvwMain (true) or tvwMain itself (false).
    void showTreeCopy(bool copy);
    // The tabs of a stored file or of a text item, by the category tree's type node.
    void showItemTabs(bool sourceFile);
    bool categoryShowsFiles(bool byTextToo) const;
    // Status text and the Visual Basic flag of a category-tree node.
    void categoryStatus(const Node& node);
    // The first description of the rows equal to `text`, empty when none.
    static QString lookupMatch(const VbArray<LookupRow>& rows, const QString& text);
    void saveCategoryPlace(const QString& lastNode, const QString& lastCodeType);
    void categoryNodeFolderImage(Node node, bool expanded);
    // The second pass of the item tree's fill: every node under the parent its tag names.
    void reparentItems();
    // The rights of the item tree's node; `mouseDown` for the variant of a press.
    void setItemRights(const Node& node, bool mouseDown);
    void restoreAfterItemClick(const Node& node, const QString& panelText);
    // The stored-file tabs for the file of that id, its revision list laid out afresh.
    void loadSourceFilePanes(long lngId);
    void setSelectionType(const QString& key, bool codeOnly);
    // The outline of `code` under the selected node of `tree`; only tvwMain strips "Global ".
    void buildOutline(TreeView& tree, const QString& code, long lngId, bool stripGlobal);
    // A click on a group or member node: the module's panes by `loader`, then the group's or
    // the member's text in the code pane.
    void OutlineNodeClick(const Node& node, void (frmMain::*loader)(long));
    // The path line of a search hit, from the combo boxes as they stand.
    void ShowSearchPath(const QString& key, const QString& text);
};

} // namespace qs
