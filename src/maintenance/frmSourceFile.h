#pragma once

#include "FormBase.h"

#include <memory>

class QAction;
class QLabel;
class QLineEdit;
class QMenuBar;
class QPlainTextEdit;
class QPushButton;

namespace qs {

class ComboBox;
class SSTab;
class Toolbar;
class cLibraryService;
class cSourceFile;

// Adds a stored file (article or component) under the selected folder of the main window's item
// tree, or brings in a new file for the selected one, by gstrMode.  Failures report under the
// name "frmAddSourceFile".
class frmSourceFile : public FormBase {
    Q_OBJECT
public:
    frmSourceFile();
    ~frmSourceFile() override;

    // ---- Controls, by design name ----
    QMenuBar* menuBar = nullptr;
    Toolbar* tbToolBar = nullptr; // "Cut", "Copy", "Paste"
    QLabel* lblSourceType = nullptr;
    QLabel* lblCategory = nullptr;
    QLabel* lblPersonCap = nullptr;
    ComboBox* cboAuthors = nullptr;
    QLabel* lblFileName = nullptr;
    QLineEdit* txtFileNameSF = nullptr;
    QPushButton* cmdBrowse = nullptr;
    QLineEdit* txtDescriptionSF = nullptr;
    SSTab* SSTabAboutFile = nullptr; // 0 notes, 1 the new version
    QPlainTextEdit* txtNotesSF = nullptr;
    ComboBox* cboMajorSF = nullptr;
    ComboBox* cboMinorSF = nullptr;
    ComboBox* cboRevSF = nullptr;
    QPlainTextEdit* txtRevCommentsSF = nullptr;
    QPushButton* CmdAddOrUpdate = nullptr;
    QPushButton* cmdCancel = nullptr;

    QAction* mnuFile = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuEdit = nullptr;
    QAction* mnuCut = nullptr;
    QAction* mnuCopy = nullptr;
    QAction* mnuPaste = nullptr;
    QAction* mnuHelp = nullptr;
    QAction* mnuHelpContents = nullptr;
    QAction* mnuHelpSearch = nullptr;
    QAction* mnuHelpOnHelp = nullptr;

    void cmdBrowse_Click();
    void cboMajorSFSC_Click();
    void SSTabAboutFile_Click();
    void CmdAddOrUpdate_Click();
    void addSourceFile();
    void UpdateSourceFile();
    void cmdCancel_Click();

    // The filter list of the browse dialog, entries joined by ":".
    static QString BrowseFilter();

protected:
    void Form_Load() override;
    void Form_Unload(int& cancel) override;
    ExitCommand exitCommand() override {
        return {"cmdCancel_Click", [this] { cmdCancel_Click(); }};
    }

private:
    void buildLayout();
    void buildMenus();
    void connectEvents();
    void loadForUpdate();
    // Tests 1 to 4 of both modes; false when one failed (its message shown, the focus moved).
    bool fileFieldsPass();
    // The message of a failed test: information icon, the window enabled, the pointer back.
    void refuse(const QString& title, const QString& text, QWidget* focus);
    int selectedAuthorId() const;
    // Enables the window and unloads it after a write.
    void closeDown();

    std::shared_ptr<cLibraryService> mobjLibrary;
    std::unique_ptr<cSourceFile> mobjSourceFile;
    QString mstrOriginalFileName; // txtFileNameSF at the end of the load
    bool mblnSkipMajorClick = false;
};

} // namespace qs
