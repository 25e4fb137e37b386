#pragma once

#include "FormBase.h"

#include <QStringList>

class QLabel;
class QPushButton;

namespace qs {

// The about box: the program's version and a way to the system information tool.
class frmAbout : public FormBase {
    Q_OBJECT
public:
    frmAbout();

    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdSysInfo = nullptr;

    void cmdOK_Click();
    void cmdSysInfo_Click();

    // The system information tools looked for on the search path, in order.
    static QStringList SysInfoTools();
    // The first of them that is installed; empty when none is.
    static QString FindSysInfoTool();

protected:
    void Form_Load() override;
    ExitCommand exitCommand() override {
        return {"cmdOK_Click", [this] { cmdOK_Click(); }};
    }
};

} // namespace qs
