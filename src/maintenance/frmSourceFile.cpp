// The stored-file window: its controls, its load in both modes and its small handlers.

#include "frmSourceFile.h"

#include "ComboBox.h"
#include "DialogParts.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "ImageList.h"
#include "MenuParts.h"
#include "NodeKeys.h"
#include "RevisionList.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "VersionLists.h"
#include "cLibraryService.h"
#include "frmMain.h"
#include "mCommonDialog.h"
#include "mEditCommands.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "quillstone_private.h"

#include <QAction>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs {

using dialogparts::button;
using menuparts::entry;
using menuparts::subMenu;

namespace {

QLabel* label(QWidget* owner, const char* name, const QString& caption) {
    auto* l = new QLabel(caption, owner);
    l->setObjectName(QString::fromLatin1(name));
    return l;
}

} // namespace

frmSourceFile::frmSourceFile() : FormBase(QStringLiteral("frmSourceFile")) {
    buildLayout();
    buildMenus();
    connectEvents();
}

frmSourceFile::~frmSourceFile() = default;

QString frmSourceFile::BrowseFilter() {
    const char* const entries[] = {kFilterAllFiles, kFilterBitmaps, kFilterDll,  kFilterExe,
                                   kFilterHtm,      kFilterHtml,    kFilterIcon, kFilterJpg,
                                   kFilterMsAccess, kFilterOcx,     kFilterPdf,  kFilterRtf,
                                   kFilterText,     kFilterTif,     kFilterWord, kFilterXml};
    QStringList filter;
    for (const char* e : entries)
        filter << QString::fromLatin1(e);
    return filter.join(QLatin1Char(':'));
}

void frmSourceFile::buildLayout() {
    setCaption(QStringLiteral("Add Source File"));
    menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("menuBar"));
    tbToolBar = new Toolbar(QStringLiteral("tbToolBar"), this);
    tbToolBar->setImageList(&ImageList::instance());
    for (const char* key : {"Cut", "Copy", "Paste"}) {
        Button& b = tbToolBar->Buttons.Add(QString::fromLatin1(key), QString::fromLatin1(key));
        b.setTag(QString::fromLatin1(key));
        b.setToolTipText(QString::fromLatin1(key));
    }

    lblSourceType = label(this, "lblSourceType", QString());
    lblCategory = label(this, "lblCategory", QString());
    cboAuthors = new ComboBox(QStringLiteral("cboAuthors"), this);
    lblPersonCap = label(this, "lblPersonCap", QStringLiteral("Author Adding:"));
    txtFileNameSF = new QLineEdit(this);
    txtFileNameSF->setObjectName(QStringLiteral("txtFileNameSF"));
    lblFileName = label(this, "lblFileName", QStringLiteral("File Name"));
    cmdBrowse = button(this, "cmdBrowse", QStringLiteral("..."));
    txtDescriptionSF = new QLineEdit(this);
    txtDescriptionSF->setObjectName(QStringLiteral("txtDescriptionSF"));
    txtDescriptionSF->setMaxLength(50);

    SSTabAboutFile = new SSTab(QStringLiteral("SSTabAboutFile"), this);
    SSTabAboutFile->setTabs(2);
    SSTabAboutFile->setTabCaption(0, QStringLiteral("Notes"));
    SSTabAboutFile->setTabCaption(1, QStringLiteral("Revision"));
    txtNotesSF = new QPlainTextEdit(SSTabAboutFile->Page(0));
    txtNotesSF->setObjectName(QStringLiteral("txtNotesSF"));
    (new QVBoxLayout(SSTabAboutFile->Page(0)))->addWidget(txtNotesSF);
    QWidget* revision = SSTabAboutFile->Page(1);
    cboMajorSF = new ComboBox(QStringLiteral("cboMajorSF"), revision, vbComboDropdown);
    cboMinorSF = new ComboBox(QStringLiteral("cboMinorSF"), revision, vbComboDropdown);
    cboRevSF = new ComboBox(QStringLiteral("cboRevSF"), revision, vbComboDropdown);
    txtRevCommentsSF = new QPlainTextEdit(revision);
    txtRevCommentsSF->setObjectName(QStringLiteral("txtRevCommentsSF"));
    auto* numbers = new QHBoxLayout;
    numbers->addWidget(new QLabel(QStringLiteral("Major:"), revision));
    numbers->addWidget(cboMajorSF);
    numbers->addWidget(new QLabel(QStringLiteral("Minor:"), revision));
    numbers->addWidget(cboMinorSF);
    numbers->addWidget(new QLabel(QStringLiteral("Revision:"), revision));
    numbers->addWidget(cboRevSF);
    auto* revisionLayout = new QVBoxLayout(revision);
    revisionLayout->addLayout(numbers);
    revisionLayout->addWidget(new QLabel(QStringLiteral("Revision Comments:"), revision));
    revisionLayout->addWidget(txtRevCommentsSF);

    CmdAddOrUpdate = button(this, "CmdAddOrUpdate", QStringLiteral("&Add"));
    cmdCancel = button(this, "cmdCancel", QStringLiteral("&Cancel"));

    auto* fields = new QFormLayout;
    fields->addRow(new QLabel(QStringLiteral("Source Type:"), this), lblSourceType);
    fields->addRow(new QLabel(QStringLiteral("Category:"), this), lblCategory);
    fields->addRow(lblPersonCap, cboAuthors);
    auto* path = new QHBoxLayout;
    path->addWidget(txtFileNameSF);
    path->addWidget(cmdBrowse);
    fields->addRow(lblFileName, path);
    fields->addRow(new QLabel(QStringLiteral("Description:"), this), txtDescriptionSF);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CmdAddOrUpdate);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(menuBar);
    layout->addWidget(tbToolBar);
    layout->addLayout(fields);
    layout->addWidget(SSTabAboutFile);
    layout->addLayout(buttons);
}

void frmSourceFile::buildMenus() {
    mnuFile = subMenu(this, menuBar, "mnuFile", QStringLiteral("&File"));
    mnuExit = entry(mnuFile, "mnuExit", QStringLiteral("Exit"));
    mnuEdit = subMenu(this, menuBar, "mnuEdit", QStringLiteral("&Edit"));
    mnuCut = entry(mnuEdit, "mnuCut", QStringLiteral("Cut"));
    mnuCopy = entry(mnuEdit, "mnuCopy", QStringLiteral("Copy"));
    mnuPaste = entry(mnuEdit, "mnuPaste", QStringLiteral("Paste"));
    mnuHelp = subMenu(this, menuBar, "mnuHelp", QStringLiteral("&Help"));
    mnuHelpContents = entry(mnuHelp, "mnuHelpContents", QStringLiteral("Contents..."));
    mnuHelpSearch = entry(mnuHelp, "mnuHelpSearch", QStringLiteral("Search..."));
    mnuHelpOnHelp = entry(mnuHelp, "mnuHelpOnHelp", QStringLiteral("How to Use Help"));
}

void frmSourceFile::connectEvents() {
    Wire(this, cmdBrowse, &QPushButton::clicked, "cmdBrowse_Click", [this] { cmdBrowse_Click(); });
    Wire(this, CmdAddOrUpdate, &QPushButton::clicked, "CmdAddOrUpdate_Click",
         [this] { CmdAddOrUpdate_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, mnuExit, &QAction::triggered, "mnuExit_Click", [this] { cmdCancel_Click(); });
    Wire(this, cboMajorSF, &QComboBox::activated, "cboMajorSFSC_Click",
         [this] { cboMajorSFSC_Click(); });
    Wire(this, SSTabAboutFile->Click, "SSTabAboutFile_Click",
         [this](int) { SSTabAboutFile_Click(); });
    Wire(this, mnuCut, &QAction::triggered, "mnuCut_Click", [] { Cut(); });
    Wire(this, mnuCopy, &QAction::triggered, "mnuCopy_Click", [] { Copy(); });
    Wire(this, mnuPaste, &QAction::triggered, "mnuPaste_Click", [] { Paste(); });
    Wire(this, tbToolBar->ButtonClick, "tbToolBar_ButtonClick", [](Button& b) {
        if (b.Tag() == QLatin1String("Cut"))
            Cut();
        else if (b.Tag() == QLatin1String("Copy"))
            Copy();
        else if (b.Tag() == QLatin1String("Paste"))
            Paste();
    });
    Wire(this, mnuHelpContents, &QAction::triggered, "mnuHelpContents_Click",
         [] { ShowHelpContents(); });
    Wire(this, mnuHelpSearch, &QAction::triggered, "mnuHelpSearch_Click", [] { ShowHelpSearch(); });
    Wire(this, mnuHelpOnHelp, &QAction::triggered, "mnuHelpOnHelp_Click",
         [] { ShowHelpContents(); });
}

void frmSourceFile::Form_Load() {
    try {
        CenterOnScreen();
        const frmMain& main = Forms::get<frmMain>();
        const long id = NodeKeys::IdOf(main.tvwMain->SelectedItem().Key());
        glngSelectedId = id;
        glngParentId = id;
        host().setMousePointer(vbHourglass);
        mblnSkipMajorClick = true;
        NewLibrary();
        FillComboBox(QStringLiteral("Authors"), cboAuthors);
        lblSourceType->setText(gstrSourceType);
        lblCategory->setText(gstrCategory);
        if (gstrMode != QLatin1String("Update"))
            SSTabAboutFile->setTabEnabled(1, false);
        else
            loadForUpdate();
        for (int i = 0; i < cboAuthors->ListCount(); ++i)
            if (cboAuthors->List(i) == gstrUserName)
                cboAuthors->setText(gstrUserName);
        mstrOriginalFileName = txtFileNameSF->text();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmAddSourceFile:Form_Load;");
    }
}

void frmSourceFile::loadForUpdate() {
    setCaption(QStringLiteral("Updating Source File"));
    CmdAddOrUpdate->setText(QStringLiteral("Update"));
    lblPersonCap->setText(QStringLiteral("Person Updating:"));
    lblFileName->setText(QStringLiteral("New File Name:"));
    SSTabAboutFile->setTabEnabled(1, true);
    mobjLibrary = std::make_shared<cLibraryService>();
    const auto library = mobjLibrary;
    host().doEvents();
    mobjSourceFile =
        std::make_unique<cSourceFile>(library->GetSourceFile(static_cast<int>(glngSelectedId)));
    txtNotesSF->setPlainText(mobjSourceFile->Notes());
    txtDescriptionSF->setText(mobjSourceFile->Description());
    // From here on a failure leaves the lists as far as they got.
    try {
        const cRevisions& revisions = mobjSourceFile->Revisions();
        gstrCurrentVersion =
            revisions.Count() > 0 ? revisions.Item(revisions.Count()).Version() : QString();
        if (!gstrCurrentVersion.isEmpty())
            SplitVersion(gstrCurrentVersion);
    } catch (const QsError&) {
    }
    FillVersionLists(*cboMajorSF, *cboMinorSF, *cboRevSF);
}

void frmSourceFile::cmdBrowse_Click() {
    try {
        FileNameDialog dialog;
        dialog.filter = BrowseFilter();
        txtFileNameSF->setText(VBGetOpenFileName(dialog) ? dialog.fileName : QString());
    } catch (...) {
        HandleFailure("frmAddSourceFile:cmdBrowse_Click;");
    }
}

void frmSourceFile::cboMajorSFSC_Click() {
    try {
        if (mblnSkipMajorClick) {
            mblnSkipMajorClick = false;
            return;
        }
        ResetMinorAndRevision(*cboMinorSF, *cboRevSF);
    } catch (...) {
        HandleFailure("frmAddSourceFile:cboMajorSFSC_Click;");
    }
}

void frmSourceFile::SSTabAboutFile_Click() {
    // A field that cannot take the focus is no failure.
    if (SSTabAboutFile->Tab() == 0)
        txtNotesSF->setFocus();
    else
        cboMajorSF->setFocus();
}

void frmSourceFile::CmdAddOrUpdate_Click() {
    try {
        host().setMousePointer(vbHourglass);
        if (CmdAddOrUpdate->text() == QLatin1String("&Add"))
            addSourceFile();
        else
            UpdateSourceFile();
    } catch (...) {
        HandleFailure("frmAddSourceFile:CmdAddOrUpdate_Click;");
    }
}

void frmSourceFile::cmdCancel_Click() {
    try {
        Unload();
    } catch (...) {
        HandleFailure("frmAddSourceFile:cmdCancel_Click;");
    }
}

void frmSourceFile::Form_Unload(int& cancel) {
    (void)cancel;
    gobjLibrary.reset();
}

} // namespace qs
