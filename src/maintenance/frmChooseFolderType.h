#pragma once

#include "FormBase.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace qs {

class ComboBox;

// Asks for a new folder's name, kind and author; the answer goes to gstrFolderType,
// gstrFolderName, glngFolderAuthorId and gblnFolderAccepted.  Failures report under the name
// "frmChoseFolderType".
class frmChooseFolderType : public FormBase {
    Q_OBJECT
public:
    frmChooseFolderType();

    QGroupBox* frmeOptions = nullptr;
    QRadioButton* optCodeFolder = nullptr;
    QRadioButton* optTipFolder = nullptr;
    QRadioButton* optClassFolder = nullptr;
    QRadioButton* optModFolder = nullptr;
    QLabel* lblFolderType = nullptr;
    QLabel* lblFolderTypeName = nullptr;
    QLineEdit* txtFolderName = nullptr;
    QLabel* lblPersonCap = nullptr;
    ComboBox* cboAuthors = nullptr;
    QPushButton* cmdOk = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHelp = nullptr;

    // The kind is given: no option is offered, and the label names it ("Article Folder").
    void PresetFileFolder(const QString& strTypeName);
    // The option of that folder type ("Code", "Tip", "Class", "Module") is set and all four are
    // hidden; `blnFrameCaption` also turns the frame caption to "Folder Type".
    void PresetOption(const QString& strFolderType, bool blnFrameCaption);

    void cmdOk_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();
    void txtFolderName_KeyPress(int& KeyAscii);

protected:
    void Form_Load() override;
    ExitCommand exitCommand() override {
        return {"cmdCancel_Click", [this] { cmdCancel_Click(); }};
    }

private:
    QRadioButton* option(const QString& strFolderType) const;
};

} // namespace qs
