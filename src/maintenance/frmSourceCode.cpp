// frmSourceCode: its load in both modes and the small handlers of its controls.

#include "frmSourceCode.h"

#include "ComboBox.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "quillstone_private.h"

#include <QAction>
#include <QDateTimeEdit>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>

namespace qs {

frmSourceCode::frmSourceCode() : FormBase(QStringLiteral("frmSourceCode")) {
    buildLayout();
    connectEvents();
}

frmSourceCode::~frmSourceCode() {
    // Qt takes the box down after this part of the window; its focus change must reach no
    // handler then.
    RTBoxAddOrUpdate->removeEventFilter(this);
    RTBoxAddOrUpdate->GotFocus = nullptr;
}

void frmSourceCode::setCaptions(const QString& key, bool update) {
    struct Wording {
        const char* word;
        const char* add;
        const char* update;
        const char* tab;
    };
    // Each test runs; a later match overwrites an earlier one.
    const Wording kWordings[] = {
        {"Class", "Adding Class Module", "Updating Class Module", "Class Mod Text"},
        {"Module", "Adding General Module", "Updating General Module", "General Mod Text"},
        {"Code", "Adding Source Code", "Updating Source Code", "Code Text"},
        {"Tip", "Adding Tip", "Updating Tip", "Tip Text"},
    };
    for (const Wording& w : kWordings) {
        if (!key.contains(QLatin1String(w.word), Qt::CaseInsensitive))
            continue;
        setCaption(QString::fromLatin1(update ? w.update : w.add));
        SSTabAboutCode->setTabCaption(0, QString::fromLatin1(w.tab));
    }
}

void frmSourceCode::Form_Load() {
    try {
        CenterOnScreen();
        frmMain* main = Forms::find<frmMain>();
        const Node selected = main ? main->tvwMain->SelectedItem() : Node();
        const QString key = selected ? selected.Key() : QString();
        glngSelectedId = NodeKeys::IdOf(key);
        glngParentId = glngSelectedId;
        host().setMousePointer(vbHourglass);
        mblnSkipMajorClick = true;
        DTPickerDateWritten->setDateTime(QDateTime::currentDateTime());
        NewLibrary();
        FillComboBox(QStringLiteral("Authors"), cboAuthors);
        lblSourceType->setText(gstrSourceType);
        lblCategory->setText(gstrCategory);
        lblCodeStatus->setText(gstrCodeStatus);
        if (gstrMode != QLatin1String("Update")) {
            SSTabAboutCode->setTabEnabled(3, false);
            setCaptions(key, false);
        } else {
            setCaptions(key, true);
            loadForUpdate();
        }
        for (int i = 0; i < cboAuthors->ListCount(); ++i)
            if (cboAuthors->List(i) == gstrUserName)
                cboAuthors->setListIndex(i);
        host().setMousePointer(vbDefault);
        host().doEvents();
    } catch (...) {
        HandleFailure("frmAddSourceCode:Form_Load;");
    }
}

void frmSourceCode::cmdCancel_Click() {
    try {
        Unload();
    } catch (...) {
        HandleFailure("frmAddSourceCode:cmdCancel_Click;");
    }
}

void frmSourceCode::mnuExit_Click() {
    try {
        Unload();
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuExit_Click;");
    }
}

void frmSourceCode::SSTabAboutCode_Click() {
    // A field that can't take the focus is no failure.
    try {
        QWidget* const first[] = {RTBoxAddOrUpdate, txtNotesAddOrUpdate, txtExampleAddOrUpdate,
                                  cboMajor};
        const int tab = SSTabAboutCode->Tab();
        if (tab >= 0 && tab < 4)
            first[tab]->setFocus(Qt::OtherFocusReason);
    } catch (...) {
    }
}

void frmSourceCode::RTBoxAddOrUpdate_GotFocus() {
    try {
        Seperator1->setVisible(true);
        mnuAsciiFile->setVisible(true);
    } catch (...) {
        HandleFailure("frmAddSourceCode:RTBoxAddOrUpdate_GotFocus;");
    }
}

void frmSourceCode::RTBoxAddOrUpdate_LostFocus() {
    try {
        Seperator1->setVisible(false);
        mnuAsciiFile->setVisible(false);
    } catch (...) {
        HandleFailure("frmAddSourceCode:RTBoxAddOrUpdate_LostFocus;");
    }
}

void frmSourceCode::RTBoxAddOrUpdate_MouseDown(int Button, int Shift, int x, int y) {
    (void)Shift;
    (void)x;
    (void)y;
    try {
        if (Button != Qt::RightButton)
            return;
        host().popupMenu(*mnuEdit->menu());
        host().doEvents();
    } catch (...) {
        HandleFailure("frmAddSourceCode:RTBoxAddOrUpdate_MouseDown;");
    }
}

bool frmSourceCode::eventFilter(QObject* watched, QEvent* event) {
    if (watched == RTBoxAddOrUpdate && event->type() == QEvent::FocusOut)
        RunHandler(this, "RTBoxAddOrUpdate_LostFocus", [this] { RTBoxAddOrUpdate_LostFocus(); });
    return FormBase::eventFilter(watched, event);
}

void frmSourceCode::tbToolBar_ButtonClick(Button& button) {
    try {
        RunEditCommand(button.Tag());
    } catch (...) {
        HandleFailure("frmAddSourceCode:tbToolBar_ButtonClick;");
    }
}

void frmSourceCode::mnuCut_Click() {
    try {
        RunEditCommand(QStringLiteral("Cut"));
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuCut_Click;");
    }
}

void frmSourceCode::mnuCopy_Click() {
    try {
        RunEditCommand(QStringLiteral("Copy"));
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuCopy_Click;");
    }
}

void frmSourceCode::mnuPaste_Click() {
    try {
        RunEditCommand(QStringLiteral("Paste"));
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuPaste_Click;");
    }
}

void frmSourceCode::mnuHelpContents_Click() {
    try {
        ShowHelpContents();
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuHelpContents_Click;");
    }
}

void frmSourceCode::mnuHelpSearch_Click() {
    try {
        ShowHelpSearch();
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuHelpSearch_Click;");
    }
}

void frmSourceCode::mnuHelpOnHelp_Click() {
    try {
        // As in the main window: the contents page is where the help explains itself.
        ShowHelpContents();
    } catch (...) {
        HandleFailure("frmAddSourceCode:mnuHelpOnHelp_Click;");
    }
}

} // namespace qs
