// The helpers that empty the item panes, and the whole-window lock.

#include "frmMain.h"

#include "Host.h"
#include "ListBox.h"
#include "ListView.h"
#include "RichTextBox.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "mErrorHandling.h"
#include "mTreeview.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace qs {

void frmMain::ClearRevisionControls() {
    try {
        txtChangesSC->clear();
        txtRevisionAuthorSC->clear();
        lvwRevisionHistory->Clear();
    } catch (...) {
        HandleFailure("frmMain:ClearRevisionControls;");
    }
}

void frmMain::ClearOriginalControls() {
    try {
        RichTextBoxCode->setText(QString());
        for (QLineEdit* box : {txtVersionNo, txtSourceAuthor, txtDateWritten, txtDateEntered})
            box->clear();
        txtNotes->clear();
        txtExample->clear();
        lvwRevisionHistory->Clear();
    } catch (...) {
        HandleFailure("frmMain:ClearOriginalControls;");
    }
}

void frmMain::clearSourceFileFields(bool withVerInfo) {
    picIcon->clear();
    for (QLineEdit* box :
         {txtFilename, txtType, txtSize, txtAuthorName, txtDosName, txtCreated, txtDateFileEntered,
          txtFileVer, txtDescription, txtCopyright, txtSFRevHistAuthor})
        box->clear();
    txtFileNotes->clear();
    txtRevCommentsSF->clear();
    if (withVerInfo)
        txtVerInfo->clear();
    lboxVerInfo->Clear();
    lstSrcFileRevHist->Clear();
    for (QCheckBox* box : chkAttr)
        box->setChecked(false);
}

void frmMain::ClearControlsSourceFileTab() {
    try {
        clearSourceFileFields(true);
    } catch (...) {
        HandleFailure("frmMain:ClearControlsSourceFileTab;");
    }
}

void frmMain::ClearAllControls() {
    try {
        for (TreeView* tree : {tvwCategories, tvwMain, tvwBookMarks, tvwSearchResults})
            tvwClear(*tree);
        RichTextBoxCode->setText(QString());
        mblnFindHit = false;
        txtSearchString->clear();
        txtChangesSC->clear();
        txtRevisionAuthorSC->clear();
        for (QLineEdit* box : {txtVersionNo, txtSourceAuthor, txtDateWritten, txtDateEntered})
            box->clear();
        txtNotes->clear();
        txtExample->clear();
        lvwRevisionHistory->Clear();
        clearSourceFileFields(false);
    } catch (...) {
        HandleFailure("frmMain:ClearAllControls;");
    }
}

void frmMain::EnableControls(bool on) {
    try {
        host().setMousePointer(vbHourglass);
        for (int i = 1; i <= tbToolBar->Buttons.Count(); ++i)
            tbToolBar->Buttons(i).setEnabled(on);
        tbToolBar->setEnabled(on);
        tvwMain->setEnabled(on);
        mnuEdit->setEnabled(on);
        mnuView->setEnabled(on);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:EnableControls;");
    }
}

} // namespace qs
