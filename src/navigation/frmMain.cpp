// The main window's load, start-up and shutdown, and the commands that leave it.

#include "frmMain.h"

#include "ClipboardFormats.h"
#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "ImageList.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmAbout.h"
#include "frmLogin.h"
#include "frmUser.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mPathHelpers.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "mToolBar.h"
#include "mTreeview.h"
#include "quillstone_private.h"

#include <QAction>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>

namespace qs {

namespace {

// The tool bar buttons that change the library, hidden from anyone but an administrator.
const char* const kAdminButtons[] = {"Add Category",   "Add Folder", "Add SourceCode",
                                     "Add SourceFile", "DeleteNode", "Seperator2",
                                     "ReName Item"};

} // namespace

frmMain::frmMain() : FormBase(QStringLiteral("frmMain")) {
    setCaption(QStringLiteral("Ovrin Quillstone"));
    buildLayout();
    buildMenus();
    buildToolBar();
    connectMenus();
    connectTrees();
    connectPanes();
    connectBookmarks();
    connectSearch();
    connectDeleteAndDrag();
}

frmMain::~frmMain() {
    // The controls outlive this part of the window while Qt tears them down; a focus change
    // then must not reach the handlers of a window that is going.
    for (TreeView* tree : {tvwCategories, tvwMain, tvwMainCopy, tvwBookMarks, tvwSearchResults}) {
        tree->GotFocus = nullptr;
        tree->LostFocus = nullptr;
    }
    RichTextBoxCode->GotFocus = nullptr;
}

void frmMain::Form_Load() {
    try {
        host().setMousePointer(vbHourglass);
        CenterOnScreen();
        mintDragFormat = RegisterClipboardFormat(QStringLiteral("Tarnwick"));
        tvwCategories->setImageList(&ImageList::instance());
        gblnCodeView = true;
        mstrFirstCategoryClick = QStringLiteral("Yes");
        mstrFirstMainClick = QStringLiteral("Yes");
        // StartUp yields; an event run meanwhile may close this window.
        const QPointer<frmMain> self(this);
        StartUp();
        if (!StillLoaded(self)) {
            host().setMousePointer(vbDefault);
            return;
        }
        SettingCategory();
        InitControls();
        CenterOnScreen();
        if (gstrAccessType != QLatin1String("Admin"))
            ApplyAccessLevel();
        if (!tvwCategories->SelectedItem().isNothing()) {
            const QString text = tvwCategories->SelectedItem().Text();
            const bool file =
                text == QLatin1String("Article") || text == QLatin1String("Component");
            SSTabSourceFile->setVisible(file);
            SSTabAboutCode->setVisible(!file);
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:Form_Load;");
    }
}

void frmMain::ApplyAccessLevel() {
    mnuAdmin->setVisible(false);
    mnuBackup->setVisible(false);
    mnuCompact->setVisible(false);
    mnuNewDatabase->setVisible(false);
    // A hidden button is off as well, so the tree keys that test a button stay shut too.
    for (const char* key : kAdminButtons) {
        Button& button = tbToolBar->Buttons(QString::fromLatin1(key));
        button.setVisible(false);
        button.setEnabled(false);
    }
}

void frmMain::StartUp() {
    try {
        NewLibrary();
        mblnViewBookMarks =
            GetRegSetting(QString::fromLatin1(REG_KEY_TOOLBARSETTINGS),
                          QString::fromLatin1(REG_VAL_VIEWBOOKMARKS), REG_DEF_VIEWBOOKMARKS)
                .toBool();
        mstrLastNodeCategory = GetRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS),
                                             QString::fromLatin1(REG_VAL_LASTNODECATEGORY),
                                             QString::fromLatin1(REG_DEF_LASTNODECATEGORY))
                                   .toString();
        mstrLastCodeType = GetRegSetting(QString::fromLatin1(REG_KEY_TVIEWSETTINGS),
                                         QString::fromLatin1(REG_VAL_TVIEW_LASTCODETYPE),
                                         QString::fromLatin1(REG_DEF_TVIEW_LASTCODETYPE))
                               .toString();
        mstrLastCodeTypeMain = mstrLastCodeType;
        cboTestedOrUntested->AddItem(QStringLiteral("Tested"));
        cboTestedOrUntested->AddItem(QStringLiteral("Untested"));
        // Each fill yields; the window may be closed meanwhile, and then StartUp leaves.
        const QPointer<frmMain> self(this);
        FillComboBox(QStringLiteral("FileType"), cboCodeType, false, false, true, QString(), true,
                     true);
        if (!StillLoaded(self))
            return;
        FillComboBox(QStringLiteral("CodeType"), cboCodeType, false, false, true, QString(), true,
                     false);
        if (!StillLoaded(self))
            return;
        FillComboBox(QStringLiteral("Category"), cboCategory, false, false, true, QString(), true,
                     true);
        if (!StillLoaded(self))
            return;
        FillTreeViewBookmarks(gstrUserId);
        FillTreeViewCategory();
    } catch (...) {
        HandleFailure("frmMain:StartUp;");
    }
}

void frmMain::InitControls() {
    try {
        tbrMakeFlat(*tbToolBar);
        tvwTrackSelected(*tvwMain, true);
        tvwSetIndentation(*tvwMain, 50);
        tvwSetIndentation(*tvwCategories, 50);
        tvwSetIndentation(*tvwBookMarks, 50);
        tvwSetIndentation(*tvwSearchResults, 50);
    } catch (...) {
        HandleFailure("frmMain:InitControls;");
    }
}

void frmMain::Form_Activate() {
    try {
        if (SSTabNavigate->Tab() == 2 && txtSearchString->isVisible())
            txtSearchString->setFocus();
    } catch (...) {
        HandleFailure("frmMain:Form_Activate;");
    }
}

void frmMain::Form_Unload(int& cancel) {
    (void)cancel;
    try {
        gobjLibrary.reset();
    } catch (...) {
        HandleFailure("frmMain:Form_Unload;");
    }
}

void frmMain::mnuLoginReturn_Click() {
    try {
        UnloadAllForms(QString());
        host().doEvents();
        Forms::get<frmLogin>().Show(vbModeless);
    } catch (...) {
        HandleFailure("frmMain:mnuLoginReturn_Click;");
    }
}

void frmMain::mnuExit_Click() {
    try {
        host().endProcess();
    } catch (...) {
        HandleFailure("frmMain:mnuExit_Click;");
    }
}

void frmMain::mnuUser_Click() {
    try {
        showInsteadOfMain(Forms::get<frmUser>());
    } catch (...) {
        HandleFailure("frmMain:mnuUser_Click;");
    }
}

void frmMain::showInsteadOfMain(FormBase& form) {
    host().setMousePointer(vbHourglass);
    Hide();
    const QPointer<frmMain> self(this);
    form.Show(vbModal);
    if (!StillLoaded(self)) {
        host().setMousePointer(vbDefault);
        return;
    }
    Show(vbModeless);
    // The tree that had the focus is drawn afresh.
    if (mstrActiveTree == QLatin1String("Main"))
        tvwMain->viewport()->update();
    else if (mstrActiveTree == QLatin1String("Cats"))
        tvwCategories->viewport()->update();
    host().setMousePointer(vbDefault);
}

void frmMain::mnuBookmarks_Click() {
    try {
        host().setMousePointer(vbHourglass);
        SSTabNavigate->setTab(1);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuBookmarks_Click;");
    }
}

void frmMain::mnuHelpContents_Click() {
    try {
        ShowHelpContents();
    } catch (...) {
        HandleFailure("frmMain:mnuHelpContents_Click;");
    }
}

void frmMain::mnuHelpSearch_Click() {
    try {
        ShowHelpSearch();
    } catch (...) {
        HandleFailure("frmMain:mnuHelpSearch_Click;");
    }
}

void frmMain::mnuAboutApp_Click() {
    const QPointer<frmMain> self(this);
    try {
        setEnabled(false);
        Forms::get<frmAbout>().Show(vbModal);
        if (self)
            setEnabled(true);
    } catch (...) {
        if (self)
            setEnabled(true);
        HandleFailure("frmMain:mnuAboutApp_Click;");
    }
}

void frmMain::SelectDataBase() {
    try {
        host().setMousePointer(vbHourglass);
        Hide();
        const QString key = QString::fromLatin1(REG_KEY_DATABASE);
        gstrPriorDbPath = GetRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_PATH),
                                        QString::fromLatin1(REG_DEF_DATABASE_PATH))
                              .toString();
        gstrPriorDbFile = GetRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_FILENAME),
                                        QString::fromLatin1(REG_DEF_DATABASE_FILENAME))
                              .toString();
        FileDialogRequest request;
        request.title = QStringLiteral("Select a Tarnwick Database.");
        request.filter = QStringLiteral("MsAccess Files (*.mdb)|*.mdb");
        request.mustExist = true;
        const QString chosen = host().fileDialog(request);
        if (chosen.isEmpty()) {
            Show(vbModeless);
            host().setMousePointer(vbDefault);
            return;
        }
        mstrDatabaseFolder = ExtractFilePath(chosen, false);
        SaveRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_PATH), mstrDatabaseFolder);
        SaveRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_FILENAME), StripFileName(chosen));
        gintLoginAttempts = 0;
        gblnSwitchingDatabase = true;
        frmLogin& login = Forms::get<frmLogin>();
        login.cmdExit->setText(QStringLiteral("Cancel"));
        login.Show(vbModeless);
        login.setCaption(QStringLiteral("Login To Database You Selected"));
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:SelectDataBase;");
    }
}

} // namespace qs
