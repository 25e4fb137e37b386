#pragma once

#include "FormBase.h"
#include "ItemWindowMenus.h"

#include <memory>

class QAction;
class QCheckBox;
class QDateTimeEdit;
class QEvent;
class QLabel;
class QLineEdit;
class QMenuBar;
class QPlainTextEdit;
class QPushButton;

namespace qs {

class Button;
class ComboBox;
class Node;
class RichTextBox;
class SSTab;
class Toolbar;
class cLibraryService;
class cSourceCode;
class frmMain;

// The window that adds a text item (code snippet, tip, class module, general module) under the
// selected folder of the item tree, or updates the selected one; gstrMode chooses at load, the
// caption of CmdAddOrUpdate at the click.  Failures report under "frmAddSourceCode".
class frmSourceCode : public FormBase {
    Q_OBJECT
public:
    frmSourceCode();
    ~frmSourceCode() override;

    // ---- Controls, by design name ----
    QMenuBar* menuBar = nullptr;
    Toolbar* tbToolBar = nullptr;
    QLabel* lblSourceType = nullptr;
    QLabel* lblCategory = nullptr;
    QLabel* lblCodeStatus = nullptr;
    QLabel* lblPersonCap = nullptr;
    ComboBox* cboAuthors = nullptr;
    QLabel* lblDateWritten = nullptr;
    QDateTimeEdit* DTPickerDateWritten = nullptr;
    QLineEdit* txtDescriptionAddOrUpdate = nullptr; // at most 50 characters
    SSTab* SSTabAboutCode = nullptr;                // "Code Text", "Notes", "Example", "Revision"
    RichTextBox* RTBoxAddOrUpdate = nullptr;
    QPlainTextEdit* txtNotesAddOrUpdate = nullptr;
    QPlainTextEdit* txtExampleAddOrUpdate = nullptr;
    ComboBox* cboMajor = nullptr; // editable: any text may be typed
    ComboBox* cboMinor = nullptr;
    ComboBox* cboRev = nullptr;
    QPlainTextEdit* txtRevComsAddOrUpdate = nullptr;
    QCheckBox* ckkTested = nullptr;
    QLabel* lblParent = nullptr;
    ComboBox* cboSelParFolder = nullptr;
    QPushButton* CmdAddOrUpdate = nullptr;
    QPushButton* cmdCancel = nullptr;

    QAction* mnuFile = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuEdit = nullptr;
    QAction* mnuCut = nullptr;
    QAction* mnuCopy = nullptr;
    QAction* mnuPaste = nullptr;
    QAction* Seperator1 = nullptr;
    QAction* mnuAsciiFile = nullptr;
    QAction* mnuHelp = nullptr;
    QAction* mnuHelpContents = nullptr;
    QAction* mnuHelpSearch = nullptr;
    QAction* mnuHelpOnHelp = nullptr;

    // ---- Commands ----
    void CmdAddOrUpdate_Click();
    void addSourceCode();
    void UpdateSourceCode();
    void cmdCancel_Click();
    void mnuExit_Click();
    void mnuAsciiFile_Click();
    void cboMajor_Click();
    void ckkTested_Click();
    void SSTabAboutCode_Click();
    void RTBoxAddOrUpdate_GotFocus();
    void RTBoxAddOrUpdate_LostFocus();
    void RTBoxAddOrUpdate_MouseDown(int Button, int Shift, int x, int y);
    void tbToolBar_ButtonClick(Button& button);
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuHelpContents_Click();
    void mnuHelpSearch_Click();
    void mnuHelpOnHelp_Click();

    // The filter of the import dialog for a source type as lblSourceType shows it.
    static QString ImportFilter(const QString& strSourceType);

    bool mblnSkipMajorClick = false; // True from the load until cboMajor's first click

protected:
    void Form_Load() override;
    ExitCommand exitCommand() override {
        return {"cmdCancel_Click", [this] { cmdCancel_Click(); }};
    }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void connectEvents();
    // The captions of the window and of tab 0 for the selected key of the item tree.
    void setCaptions(const QString& key, bool update);
    // The update half of the load: the record, the folder list and the version lists.
    void loadForUpdate();
    void fillVersionLists();
    // A validation failure: the message, the window back, then `then` puts the focus.
    void refuse(const QString& title, const QString& message, int tab, QWidget* focus);
    // The node the add made under the selected folder, by the insertion table; Nothing when the
    // type matches no row.
    Node insertNode(frmMain& main, int id);
    // Removes the outline under the selected node of the item tree.
    static void removeOutline(frmMain& main);

    std::shared_ptr<cLibraryService> mobjLibrary;
    std::unique_ptr<cSourceCode> mobjSourceCode;
};

} // namespace qs
