#pragma once

#include "FormBase.h"

class QGroupBox;
class QPushButton;
class QRadioButton;

namespace qs {

// Asks what the Insert key adds to a folder: a folder or an item.  The answer goes to
// gstrInsertChoice ("Add Folder", "Add Source Code", "Add Source File") and gblnInsertCancelled.
class frmInsert : public FormBase {
    Q_OBJECT
public:
    frmInsert();

    QGroupBox* frmeOptions = nullptr;
    QRadioButton* optFolder = nullptr;
    QRadioButton* optSource = nullptr;
    QPushButton* cmdOk = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHelp = nullptr;

    void cmdOk_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();

protected:
    void Form_Load() override;
    ExitCommand exitCommand() override {
        return {"cmdCancel_Click", [this] { cmdCancel_Click(); }};
    }
};

} // namespace qs
