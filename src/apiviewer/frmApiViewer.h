#pragma once

#include "FormBase.h"
#include "VbArray.h"

#include <QStringList>
#include <memory>

class QAction;
class QGroupBox;
class QMenuBar;
class QPushButton;
class QRadioButton;

namespace qs {

class CommonDialog;
class ComboBox;
class ListBox;
class RichTextBox;
class TextBox;
class cApiLoader;

// The API viewer: browses a text file of declarations (constants, Declare statements, types),
// collects some of them in the Selected Items pane and copies that pane to the clipboard.  The
// file is read by cApiLoader; the window parses nothing itself.
class frmApiViewer : public FormBase {
    Q_OBJECT
public:
    frmApiViewer();
    ~frmApiViewer() override;

    // ---- Controls, by design name ----
    QMenuBar* menuBar = nullptr;
    ComboBox* cboTypes = nullptr; // "Constants", "Declares", "Types"
    TextBox* txtSearch = nullptr;
    ListBox* lstAvailItems = nullptr;
    QGroupBox* frmeScope = nullptr;
    QRadioButton* optPublic = nullptr;
    QRadioButton* optPrivate = nullptr;
    QPushButton* cmdAdd = nullptr;
    RichTextBox* RTBoxSelItems = nullptr;
    QPushButton* cmdCopy = nullptr;
    QPushButton* cmdRemove = nullptr;
    QPushButton* cmdClear = nullptr;
    std::unique_ptr<CommonDialog> CommonDialog1;

    QAction* mnuFile = nullptr;
    QAction* mnuLoad = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuEdit = nullptr;
    QAction* mnucopy = nullptr;
    QAction* mnuView = nullptr;
    QAction* mnuLineItem = nullptr;
    QAction* mnuFullText = nullptr;
    QAction* mnuLastFile = nullptr;
    QAction* mnuHelp = nullptr;
    QAction* mnuHelpContents = nullptr;
    QAction* mnuHelpSearch = nullptr;
    QAction* mnuHelpOnHelp = nullptr;
    QAction* mnuAbout = nullptr;

    // ---- Handlers ----
    void mnuLoad_Click();
    void mnuLastFile_Click();
    void mnuExit_Click();
    void mnucopy_Click();
    void mnuLineItem_Click();
    void mnuFullText_Click();
    void mnuHelpContents_Click();
    void mnuHelpSearch_Click();
    void mnuAbout_Click();
    void cboTypes_Click();
    void lstAvailItems_Click();
    void txtSearch_KeyUp(int& keyCode, int shift);
    void cmdAdd_Click();
    void cmdCopy_Click();
    void cmdRemove_Click();
    void cmdClear_Click();

    // ---- Form-level state, readable for tests ----
    // "Full" or "Line".
    const QString& ViewMode() const { return mstrViewMode; }
    // The names collected, 0-based; the last element is always a free empty one.
    const QStringList& SelectedNames() const { return marrSelectedNames; }
    int SearchPosition() const { return mintSearchPos; }

protected:
    void Form_Load() override;

private:
    void buildLayout();
    void buildMenus();
    void connectEvents();

    // The load step of mnuLoad (blnFirstRun false) and of a first start with no file known
    // (true): asks for a file and shows its Declares.  Cancel on a first start unloads the form.
    void LoadApiFile(bool blnFirstRun);
    // Reads the file with a new cApiLoader; the name arrays are emptied first, so a file that
    // cannot be read leaves nothing of the one before in the lists.
    void ReadApiFile(const QString& strPath);
    void TakeNameArrays();
    // Takes the arrays, shows the Declares and tells the user when the file held nothing.
    void ShowDeclares(const QString& strPath);
    // A text file with no declaration is no API file: the lists stay empty and the user is told.
    void WarnIfNoDeclarations(const QString& strPath);
    // The names of the list chosen in cboTypes; empty for none.
    const VbArray<QString>& ChosenNames() const;
    // The full text of `strName` in the collection of the type chosen now; raises 5 when the
    // collection holds no such name.
    QString ChosenText(const QString& strName) const;
    void StoreSelectedName(const QString& strName);
    void ResetSelectedNames();
    void EnablePaneButtons(bool blnOn);
    void CheckViewMenus();
    void AddFullText(const QString& strName);
    void AddLineItem(const QString& strName);

    std::unique_ptr<cApiLoader> mobjApiLoader;
    VbArray<QString> marrConstants;
    VbArray<QString> marrDeclares;
    VbArray<QString> marrTypes;
    QString mstrViewMode = QStringLiteral("Full");
    QStringList marrSelectedNames{QString()};
    int mintSearchPos = 0;
};

} // namespace qs
