#pragma once

#include "FormBase.h"

class QGroupBox;
class QPushButton;
class QRadioButton;

namespace qs {

// The dialog of a missing database: find an existing one or create a new one.
class frmDatabase : public FormBase {
    Q_OBJECT
public:
    frmDatabase();
    ~frmDatabase() override;

    // Controls, by design name.
    QGroupBox* frmeDatabase = nullptr; // "Database Is Missing"
    QRadioButton* optNew = nullptr;
    QRadioButton* optSearch = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHelp = nullptr;

    void cmdOK_Click();
    // The handler of cmdCancel.
    void cmdExit_Click();
    void cmdHelp_Click();
    void FindDatabase();
    void SelectDataBase();
    void NewDatabase();

    // The folder of the database chosen or created here.
    QString DatabaseFolder() const { return mstrDatabasePath; }

protected:
    void Form_Load() override;
    ExitCommand exitCommand() override {
        return {"cmdExit_Click", [this] { cmdExit_Click(); }};
    }

private:
    void buildLayout();

    QString mstrDatabasePath;
};

} // namespace qs
