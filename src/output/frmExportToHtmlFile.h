#pragma once

#include "CommonDialog.h"
#include "FormBase.h"

#include <memory>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace qs {

class RichTextBox;
class cSourceCode;

// The Convert to HTML dialog: the item's code under an optional comment header, through the rich
// text to HTML converter, into a file.  Failures report under the name "frmExportToHtml".
class frmExportToHtmlFile : public FormBase {
    Q_OBJECT
public:
    frmExportToHtmlFile();

    QGroupBox* frmeComments = nullptr;
    QCheckBox* chkAuthor = nullptr;
    QCheckBox* chkVersion = nullptr;
    QCheckBox* chkCreateDate = nullptr;
    QCheckBox* chkDescription = nullptr;
    QCheckBox* chkRevisionHistory = nullptr;
    QLineEdit* txtCommentSpec = nullptr;
    QGroupBox* frmeOptions = nullptr;
    QCheckBox* chkH = nullptr;
    QCheckBox* chkG = nullptr;
    QCheckBox* chkT = nullptr;
    QCheckBox* chkCR = nullptr;
    QCheckBox* chkI = nullptr;
    QPushButton* cmdOk = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHelp = nullptr;
    RichTextBox* RichTextBoxHTML = nullptr; // hidden: the work area of the conversion
    CommonDialog CommonDialog1;

    void SourceCodeItem(std::shared_ptr<const cSourceCode> item) {
        mobjSourceCode = std::move(item);
    }
    // The text built, the global export text.
    static QString SourceTextHtml();

    void cmdOk_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();

protected:
    void Form_Load() override;
    void Form_Unload(int& cancel) override;

private:
    // Asks for a title until one is given or the user gives up, which clears chkT.  Appends the
    // title option to `options` when one is given.
    void askTitle(QString& options);

    std::shared_ptr<const cSourceCode> mobjSourceCode;
};

} // namespace qs
