// The code tabs of the selected item: loading it from each tree, its revision list, and the tab
// and code pane handlers.  The stored-file tabs are in frmMain_panes_file.cpp.

#include "frmMain.h"

#include "ColumnHeader.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "ListBox.h"
#include "ListView.h"
#include "Node.h"
#include "RevisionList.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "ServiceErrors.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"
#include "mListView.h"

#include <QAction>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>

namespace qs {

namespace {

// The buttons a tab or the code pane turns off for an administrator: the focus has left the
// tree, so nothing selected there is a target any more.
const char* const kTreeButtons[] = {
    "Add Category", "Add Folder", "Add SourceCode", "Add SourceFile", "DeleteNode",
    "ReName Item",  "Edit"};

// A date as it converts to text: the short date, and the time when it has one.
QString DateString(const QDateTime& value) {
    if (!value.isValid())
        return QString();
    const QLocale locale;
    QString text = locale.toString(value.date(), QLocale::ShortFormat);
    if (value.time() != QTime(0, 0))
        text += QLatin1Char(' ') + locale.toString(value.time(), QLocale::LongFormat);
    return text;
}

// The record of that id, or null when another user has deleted it meanwhile: a plain missing
// record leaves the panes empty and is no failure.
template <class Record, class Fetch> std::shared_ptr<Record> FetchUnlessGone(const Fetch& fetch) {
    try {
        return std::make_shared<Record>(fetch());
    } catch (const QsError& error) {
        if (error.number() != kErrRecordNotFound)
            throw;
        return nullptr;
    }
}

} // namespace

// The columns of the two revision lists, then the events of the panes.
void frmMain::connectPanes() {
    lvwRevHistSetup(lvwRevisionHistory);
    lvwRevHistSetup(lstSrcFileRevHist);
    Wire(this, lvwRevisionHistory->Click, "lvwRevisionHistory_Click",
         [this] { lvwRevisionHistory_Click(); });
    Wire(this, lvwRevisionHistory->ColumnClick, "lvwRevisionHistory_ColumnClick",
         [this](ColumnHeader& header) { lvwRevisionHistory_ColumnClick(header); });
    Wire(this, lstSrcFileRevHist->Click, "lstSrcFileRevHist_Click",
         [this] { lstSrcFileRevHist_Click(); });
    Wire(this, lstSrcFileRevHist->ColumnClick, "lstSrcFileRevHist_ColumnClick",
         [this](ColumnHeader& header) { lstSrcFileRevHist_ColumnClick(header); });
    Wire(this, lboxVerInfo->Click, "lboxVerInfo_Click", [this] { lboxVerInfo_Click(); });
    Wire(this, SSTabAboutCode->Click, "SSTabAboutCode_Click",
         [this](int) { SSTabAboutCode_Click(); });
    Wire(this, SSTabAboutCode->GotFocus, "SSTabAboutCode_GotFocus",
         [this] { SSTabAboutCode_GotFocus(); });
    Wire(this, SSTabNavigate->Click, "SSTabNavigate_Click", [this](int) { SSTabNavigate_Click(); });
    Wire(this, SSTabNavigate->GotFocus, "SSTabNavigate_GotFocus",
         [this] { SSTabNavigate_GotFocus(); });
    Wire(this, RichTextBoxCode->GotFocus, "RichTextBoxCode_GotFocus",
         [this] { RichTextBoxCode_GotFocus(); });
    Wire(this, RichTextBoxCode->MouseDown, "RichTextBoxCode_MouseDown",
         [this](int button, int shift, int x, int y) {
             RichTextBoxCode_MouseDown(button, shift, x, y);
         });
}

void frmMain::lvwRevHistSetup(ListView* list) {
    try {
        list->ColumnHeaders.Add(QStringLiteral("COLHEADER_REVISIONDATE"),
                                QStringLiteral("Revision Date"));
        list->ColumnHeaders.Add(QStringLiteral("COLHEADER_REVISIONNUMBER"),
                                QStringLiteral("Revision Number"));
        list->setView(lvwReport);
        list->setHideSelection(false);
        lvwAutoSizeLastColumn(*list);
    } catch (...) {
        HandleFailure("frmMain:lvwRevHistSetup;");
    }
}

bool frmMain::ShouldParseModule(const Node& node, bool blnMainTree, bool blnChildClick,
                                bool blnVisualBasicCategory) {
    if (blnChildClick || !blnVisualBasicCategory || node.isNothing() || node.Children() > 0)
        return false;
    if (blnMainTree)
        return node.Key().contains(QLatin1String("Class"), Qt::CaseInsensitive) ||
               node.Key().contains(QLatin1String("Module"), Qt::CaseInsensitive);
    return node.Image() == QLatin1String("Class3") || node.Image() == QLatin1String("Module");
}

// ---- The three loaders, one per tree: each reports its failures under its own name ----

void frmMain::loadCodeSnippet(long lngId, TreeView& tree, bool blnMainTree,
                              void (frmMain::*parse)(const QString&, long)) {
    const auto library = NewLibrary();
    mobjSourceCode.reset();
    mobjSourceCode = FetchUnlessGone<cSourceCode>(
        [&] { return library->GetSourceCode(static_cast<int>(lngId)); });
    RichTextBoxCode->setTextRTF(QString());
    txtNotes->clear();
    txtExample->clear();
    mblnFindHit = false;
    RichTextBoxCode->setText(QString());
    if (!mobjSourceCode) {
        ClearOriginalControls();
        ClearRevisionControls();
        return;
    }
    // The record stays held across the yield of the outline.
    const std::shared_ptr<cSourceCode> held = mobjSourceCode;
    const cSourceCode& record = *held;
    RichTextBoxCode->setTextRTF(record.Code());
    txtVersionNo->setText(QStringLiteral("1.0.0"));
    txtSourceAuthor->setText(record.AuthorFirstName() + QLatin1Char(' ') + record.AuthorLastName());
    txtDateWritten->setText(DateString(record.DateWritten()));
    txtDateEntered->setText(DateString(record.DateEntered()));
    txtExample->setPlainText(record.Example());
    txtNotes->setPlainText(record.Notes());
    if (ShouldParseModule(tree.SelectedItem(), blnMainTree, mblnChildClick,
                          mblnVisualBasicCategory))
        (this->*parse)(record.Code(), lngId);
    const QString newest = FillRevisionList(*lvwRevisionHistory, record.Revisions());
    if (!newest.isEmpty() && newest != QLatin1String("0")) {
        txtVersionNo->setText(newest);
        SplitVersion(newest);
        mblnSkipColumnToggle = true;
        lvwRevisionHistory_ColumnClick(lvwRevisionHistory->ColumnHeaders(2));
        mblnSkipColumnToggle = false;
        mintSelectFirstRow = 1;
        lvwRevisionHistory_Click();
        mintSelectFirstRow = 0;
    }
}

void frmMain::GetCodeSnippet(long lngId) {
    try {
        loadCodeSnippet(lngId, *tvwMain, true, &frmMain::ParseModule);
    } catch (...) {
        HandleFailure("frmMain:GetCodeSnippet;");
    }
}

void frmMain::GetCodeSnippetBk(long lngId) {
    try {
        loadCodeSnippet(lngId, *tvwBookMarks, false, &frmMain::ParseModuleBk);
    } catch (...) {
        HandleFailure("frmMain:GetCodeSnippetBk;");
    }
}

void frmMain::GetCodeSnippetSrch(long lngId) {
    try {
        loadCodeSnippet(lngId, *tvwSearchResults, false, &frmMain::ParseModuleSrch);
    } catch (...) {
        HandleFailure("frmMain:GetCodeSnippetSrch;");
    }
}

// ---- The code item's revision list ----

void frmMain::lvwRevisionHistory_Click() {
    try {
        if (lvwRevisionHistory->ListItems.Count() == 0)
            return;
        host().setMousePointer(vbDefault);
        if (mintSelectFirstRow == 1)
            lvwRevisionHistory->setSelectedItem(lvwRevisionHistory->ListItems(1));
        const ListItem selected = lvwRevisionHistory->SelectedItem();
        if (!mobjSourceCode || selected.isNothing())
            return;
        const QString version = selected.SubItems(1);
        for (const cRevision& revision : mobjSourceCode->Revisions()) {
            if (revision.Version() == version) {
                txtRevisionAuthorSC->setText(revision.AuthorFirstName() + QLatin1Char(' ') +
                                             revision.AuthorLastName());
                txtChangesSC->setPlainText(revision.Comment());
                break;
            }
        }
        txtSourceAuthor->setText(mobjSourceCode->AuthorFirstName() + QLatin1Char(' ') +
                                 mobjSourceCode->AuthorLastName());
        txtDateWritten->setText(DateString(mobjSourceCode->DateWritten()));
        txtDateEntered->setText(DateString(mobjSourceCode->DateEntered()));
    } catch (...) {
        HandleFailure("frmMain:lvwRevisionHistory_Click;");
    }
}

void frmMain::lvwRevisionHistory_ColumnClick(ColumnHeader& header) {
    try {
        if (!mblnSkipColumnToggle) {
            lvwSort(*lvwRevisionHistory, header.Index(),
                    lvwRevisionHistory->SortOrder() == lvwAscending);
            lvwAutoSizeLastColumn(*lvwRevisionHistory);
        } else {
            lvwSort(*lvwRevisionHistory, header.Index(), true);
            mblnSkipColumnToggle = false;
        }
    } catch (...) {
        HandleFailure("frmMain:lvwRevisionHistory_ColumnClick;");
    }
}

// ---- Tabs and the code pane: the focus has left the trees ----

void frmMain::DisableModifyCommands() {
    mnuModify->setEnabled(false);
    if (mnuAdmin->isVisible())
        for (const char* key : kTreeButtons)
            tbToolBar->Buttons(QString::fromLatin1(key)).setEnabled(false);
}

void frmMain::SSTabAboutCode_Click() {
    try {
        host().setMousePointer(vbHourglass);
        tbToolBar->Buttons(QStringLiteral("BookMark")).setEnabled(false);
        // The first run is the one of start-up, before any tree has given rights.
        if (mblnAboutCodeTabClicked)
            DisableModifyCommands();
        mblnAboutCodeTabClicked = true;
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:SSTabAboutCode_Click;");
    }
}

void frmMain::SSTabAboutCode_GotFocus() {
    try {
        host().setMousePointer(vbHourglass);
        tbToolBar->Buttons(QStringLiteral("BookMark")).setEnabled(false);
        DisableModifyCommands();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:SSTabAboutCode_GotFocus;");
    }
}

void frmMain::SSTabNavigate_Click() {
    try {
        host().setMousePointer(vbHourglass);
        tbToolBar->Buttons(QStringLiteral("BookMark")).setEnabled(false);
        if (mblnNavigateTabClicked)
            DisableModifyCommands();
        mblnNavigateTabClicked = true;
        host().setMousePointer(vbDefault);
        if (SSTabNavigate->Tab() == 2)
            txtSearchString->setFocus(Qt::OtherFocusReason);
    } catch (...) {
        HandleFailure("frmMain:SSTabNavigate_Click;");
    }
}

void frmMain::SSTabNavigate_GotFocus() {
    try {
        host().setMousePointer(vbHourglass);
        tbToolBar->Buttons(QStringLiteral("BookMark")).setEnabled(false);
        DisableModifyCommands();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:SSTabNavigate_GotFocus;");
    }
}

void frmMain::RichTextBoxCode_GotFocus() {
    try {
        mnuModify->setEnabled(false);
    } catch (...) {
        HandleFailure("frmMain:RichTextBoxCode_GotFocus;", FailureTail::KeepPointer);
    }
}

void frmMain::RichTextBoxCode_MouseDown(int button, int shift, int x, int y) {
    (void)shift;
    (void)x;
    (void)y;
    try {
        if (button != 2 || RichTextBoxCode->Text().isEmpty())
            return;
        seperator3->setVisible(false);
        mnuBookMark->setVisible(false);
        PopupMenu(mnuEdit);
        seperator3->setVisible(true);
        mnuBookMark->setVisible(true);
    } catch (...) {
        HandleFailure("frmMain:RichTextBoxCode_MouseDown;");
    }
}

void frmMain::PopupMenu(QAction* menu) {
    host().popupMenu(*menu->menu());
}

} // namespace qs
