// The main window's commands on the database as a whole: open another, create, back up, compact.

#include "frmMain.h"

#include "DatabaseLocation.h"
#include "Globals.h"
#include "Host.h"
#include "QsError.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmDatabase.h"
#include "frmUser.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mPathHelpers.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QPushButton>

namespace qs {

namespace {

void SaveDatabaseSetting(const char* value, const QString& text) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE), QString::fromLatin1(value), text);
}

} // namespace

void frmMain::mnuOpenDatabase_Click() {
    try {
        host().setMousePointer(vbHourglass);
        SelectDataBase();
        SSTabNavigate->setTab(0);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuOpenDatabase_Click;");
    }
}

void frmMain::mnuNewDatabase_Click() {
    try {
        host().setMousePointer(vbHourglass);
        FileDialogRequest request;
        request.title = QStringLiteral("Please select path and enter new database name.");
        request.filter = QStringLiteral("MsAccess Files (*.mdb)|*.mdb");
        request.forSave = true;
        const QString chosen = host().fileDialog(request);
        if (chosen.isEmpty()) {
            host().setMousePointer(vbDefault);
            return;
        }
        const QString fileName = StripFileName(chosen);
        if (!IsDatabaseName(fileName)) {
            host().msgBox(QStringLiteral("You can only enter an access database (.mdb)."),
                          vbInformation, QStringLiteral("Database?"));
            host().setMousePointer(vbDefault);
            return;
        }
        const QString databasePath = WithMdb(chosen);
        if (FileExists(databasePath)) {
            host().msgBox(QStringLiteral("You can only enter an access database that does not "
                                         "already exist"),
                          vbInformation, QStringLiteral("Database?"));
            host().setMousePointer(vbDefault);
            return;
        }

        // The database is made before the settings name it, so a failure leaves them alone.
        const QString settingsFile = SettingsFilePath();
        const std::shared_ptr<cLibraryService> library = gobjLibrary ? gobjLibrary : NewLibrary();
        library->CreateDatabase(databasePath, settingsFile);
        ClearAllControls();
        ClearControlsSourceFileTab();
        mstrDatabaseFolder = ExtractFilePath(chosen, false);
        SaveDatabaseSetting(REG_VAL_DATABASE_PATH, mstrDatabaseFolder);
        SaveDatabaseSetting(REG_VAL_DATABASE_FILENAME, WithMdb(fileName));
        tbToolBar->Buttons(QStringLiteral("Add Category")).setEnabled(false);

        host().msgBox(QStringLiteral("Please add the first user"), vbInformation, QString());
        gblnFirstUser = true;
        frmUser& user = Forms::get<frmUser>();
        user.cmdUserAdd_Click();
        user.Show(vbModal);
        if (gblnFirstUserCancelled) {
            host().endProcess();
            return;
        }
        StartUp();
        try {
            tvwCategories_NodeClick(tvwCategories->SelectedItem());
        } catch (const QsError&) {
            // Ignored: the new library is open whatever the category tree makes of it.
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuNewDatabase_Click;");
    }
}

void frmMain::mnuBackup_Click() {
    try {
        host().setMousePointer(vbHourglass);
        // The file the settings name, a relative folder under the program's own, as the
        // service reads it.
        const QString path = ConfiguredDatabasePath();
        const auto library = NewLibrary();
        host().doEvents();
        library->BackupDatabase(path);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuBackup_Click;");
    }
}

void frmMain::mnuCompact_Click() {
    try {
        host().setMousePointer(vbHourglass);
        const QString path = ConfiguredDatabasePath();
        const auto library = NewLibrary();
        host().doEvents();
        library->CompactDatabase(path);
        host().msgBox(QStringLiteral("Your database was successfully compacted."), vbInformation,
                      QStringLiteral("Compacted Database"));
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuCompact_Click;");
    }
}

} // namespace qs
