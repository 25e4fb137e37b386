#pragma once

#include "FormBase.h"

class QGroupBox;
class QPushButton;
class QRadioButton;

namespace qs {

// The rule for the name of a new database, shared by both ways of making one: a name with a
// point must hold ".mdb" (any case); a name without one is taken and gets ".mdb".
bool IsDatabaseName(const QString& strFileName);
// The name with ".mdb" added unless its last four characters are ".mdb" (any case).
QString WithMdb(const QString& strName);

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
