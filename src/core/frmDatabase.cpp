#include "frmDatabase.h"

#include "AppPaths.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "cLibraryService.h"
#include "frmLogin.h"
#include "frmUser.h"
#include "mConstants.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qs {

bool IsDatabaseName(const QString& strFileName) {
    return !strFileName.contains(QLatin1Char('.')) ||
           strFileName.contains(QLatin1String(".mdb"), Qt::CaseInsensitive);
}

QString WithMdb(const QString& strName) {
    return strName.right(4).compare(QLatin1String(".mdb"), Qt::CaseInsensitive) == 0
               ? strName
               : strName + QLatin1String(".mdb");
}

namespace {

void SaveDatabaseSetting(const char* value, const QString& text) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE), QString::fromLatin1(value), text);
}

// Shows frmLogin for the database just chosen or made, after this dialog has
// gone.
void ShowLoginForChosenDatabase(frmDatabase& dialog) {
    // Loading the login first keeps a window in the collection while the dialog
    // unloads.
    frmLogin& login = Forms::get<frmLogin>();
    dialog.Unload();
    login.Show(vbModeless);
    login.setCaption(QStringLiteral("Login To Database You Selected"));
}

} // namespace

frmDatabase::frmDatabase() : FormBase(QStringLiteral("frmDatabase")) {
    setCaption(QStringLiteral("Database"));
    buildLayout();
}

frmDatabase::~frmDatabase() = default;

void frmDatabase::buildLayout() {
    frmeDatabase = new QGroupBox(QStringLiteral("Database Is Missing"), this);
    frmeDatabase->setObjectName(QStringLiteral("frmeDatabase"));
    optNew = new QRadioButton(QStringLiteral("Create New Database"), frmeDatabase);
    optNew->setObjectName(QStringLiteral("optNew"));
    optSearch = new QRadioButton(QStringLiteral("Search For Database"), frmeDatabase);
    optSearch->setObjectName(QStringLiteral("optSearch"));
    optNew->setChecked(true);
    auto* frameLayout = new QVBoxLayout(frmeDatabase);
    frameLayout->addWidget(optNew);
    frameLayout->addWidget(optSearch);

    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdHelp = new QPushButton(QStringLiteral("Help"), this);
    cmdHelp->setObjectName(QStringLiteral("cmdHelp"));
    for (QPushButton* button : {cmdOK, cmdCancel, cmdHelp})
        button->setAutoDefault(false);
    // Return carries out the chosen option.
    cmdOK->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdHelp);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmeDatabase);
    layout->addLayout(buttons);

    Wire(this, cmdOK, &QPushButton::clicked, "cmdOK_Click", [this] { cmdOK_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdExit_Click", [this] { cmdExit_Click(); });
    Wire(this, cmdHelp, &QPushButton::clicked, "cmdHelp_Click", [this] { cmdHelp_Click(); });
}

void frmDatabase::Form_Load() {
    try {
        adjustSize();
        CenterOnScreen();
    } catch (...) {
        HandleFailure("frmDatabase:Form_Load;");
    }
}

void frmDatabase::cmdOK_Click() {
    try {
        host().setMousePointer(vbHourglass);
        if (optSearch->isChecked())
            FindDatabase();
        else
            NewDatabase();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmDatabase:cmdOK_Click;");
    }
}

void frmDatabase::FindDatabase() {
    try {
        host().setMousePointer(vbHourglass);
        SelectDataBase();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmDatabase:FindDatabase;");
    }
}

void frmDatabase::SelectDataBase() {
    try {
        gstrPriorDbPath = GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                                        QString::fromLatin1(REG_VAL_DATABASE_PATH),
                                        QString::fromLatin1(REG_DEF_DATABASE_PATH))
                              .toString();
        gstrPriorDbFile = GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                                        QString::fromLatin1(REG_VAL_DATABASE_FILENAME),
                                        QString::fromLatin1(REG_DEF_DATABASE_FILENAME))
                              .toString();

        FileDialogRequest request;
        request.title = QStringLiteral("Select a Tarnwick Database.");
        request.filter = QString::fromLatin1(FILTER_MDB);
        request.mustExist = true;
        const QString chosen = host().fileDialog(request);
        if (chosen.isEmpty()) {
            host().setMousePointer(vbDefault);
            return;
        }

        const QFileInfo file(chosen);
        mstrDatabasePath = file.absolutePath();
        SaveDatabaseSetting(REG_VAL_DATABASE_PATH, mstrDatabasePath);
        SaveDatabaseSetting(REG_VAL_DATABASE_FILENAME, file.fileName());
        gintLoginAttempts = 0;
        ShowLoginForChosenDatabase(*this);
    } catch (...) {
        HandleFailure("frmDatabase:SelectDataBase;");
    }
}

void frmDatabase::NewDatabase() {
    try {
        host().setMousePointer(vbHourglass);
        FileDialogRequest request;
        request.title = QStringLiteral("Please select path and enter new database name.");
        request.filter = QString::fromLatin1(FILTER_MDB);
        request.forSave = true;
        const QString chosen = host().fileDialog(request);
        if (chosen.isEmpty()) {
            host().setMousePointer(vbDefault);
            return;
        }

        const QFileInfo file(chosen);
        if (!IsDatabaseName(file.fileName())) {
            host().msgBox(QStringLiteral("You can only enter an access database (.mdb)."),
                          vbInformation, QStringLiteral("Database?"));
            host().setMousePointer(vbDefault);
            return;
        }

        // The registry names the new file before it is made.
        mstrDatabasePath = file.absolutePath();
        SaveDatabaseSetting(REG_VAL_DATABASE_PATH, mstrDatabasePath);
        SaveDatabaseSetting(REG_VAL_DATABASE_FILENAME, WithMdb(file.fileName()));

        // The service is held across the yield; the dialog leaves if it went meanwhile.
        const QPointer<frmDatabase> self(this);
        const auto library = NewLibrary();
        host().doEvents();
        if (!StillLoaded(self)) {
            host().setMousePointer(vbDefault);
            return;
        }

        const QString databasePath = WithMdb(chosen);
        // Here the settings file is the one in the program's own folder, whatever
        // the key says.
        const QString settingsFile = FormatPath(AppPath()) + QStringLiteral("DataFiles") +
                                     kPathSeparator + QStringLiteral("Quillstone.ini");

        if (!FileExists(databasePath)) {
            library->CreateDatabase(databasePath, settingsFile);
            host().msgBox(QStringLiteral("Please add the first user"), vbInformation, QString());
            gblnFirstUser = true;
            const QPointer<frmUser> user(&Forms::get<frmUser>());
            if (!StillLoaded(user) || !StillLoaded(self)) {
                host().setMousePointer(vbDefault);
                return;
            }
            user->cmdUserAdd_Click();
            user->Show(vbModal);
            if (!StillLoaded(self)) {
                host().setMousePointer(vbDefault);
                return;
            }
            if (!gblnFirstUserCancelled) {
                host().setMousePointer(vbDefault);
                ShowLoginForChosenDatabase(*this);
            } else {
                host().endProcess();
            }
        } else {
            host().msgBox(QStringLiteral("You can only enter an access database that "
                                         "does not already exist"),
                          vbInformation, QStringLiteral("Database?"));
            host().setMousePointer(vbDefault);
        }
    } catch (...) {
        HandleFailure("frmDatabase:NewDatabase;");
    }
}

void frmDatabase::cmdExit_Click() {
    try {
        const int answer =
            host().msgBox(QStringLiteral("Exiting without finding or creating a new database \r\n"
                                         "will cause the program to exit completely.\r\n\r\n"
                                         "Do you wish to continue?"),
                          vbYesNo | vbQuestion, QString());
        if (answer == vbYes) {
            UnloadAllForms(QString());
            host().doEvents();
            host().endProcess();
        }
    } catch (...) {
        HandleFailure("frmDatabase:cmdExit_Click;");
    }
}

void frmDatabase::cmdHelp_Click() {
    try {
        ShowHelpTopic(1550);
    } catch (...) {
        HandleFailure("frmDatabase:cmdHelp_Click;");
    }
}

} // namespace qs
