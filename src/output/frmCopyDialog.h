#pragma once

#include "FormBase.h"

#include <memory>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace qs {

class cSourceCode;

// The Advanced Copy dialog: the user picks the lines of a comment header, and OK builds the
// header and the code of the main window's code pane into the export text.  The RTF, text and
// PDF exports show it under their own captions.
class frmCopyDialog : public FormBase {
    Q_OBJECT
public:
    frmCopyDialog();

    QGroupBox* frmeComments = nullptr;
    QCheckBox* chkAuthor = nullptr;
    QCheckBox* chkVersion = nullptr;
    QCheckBox* chkCreateDate = nullptr;
    QCheckBox* chkDescription = nullptr;
    QCheckBox* chkRevisionHistory = nullptr;
    QLineEdit* txtCommentSpec = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHelp = nullptr;

    // The record the header describes.
    void SourceCodeItem(std::shared_ptr<const cSourceCode> item) {
        mobjSourceCode = std::move(item);
    }
    // The text built, the global export text.
    static QString SourceText();

    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();

protected:
    void Form_Load() override;
    // The close box and Escape cancel, as the Cancel button does.
    void closeEvent(QCloseEvent* event) override;

private:
    std::shared_ptr<const cSourceCode> mobjSourceCode;
};

} // namespace qs
