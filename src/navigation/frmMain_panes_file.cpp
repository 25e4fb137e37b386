// The tabs of a stored file (article or component): its facts, icon, version block and
// revision list.

#include "frmMain.h"

#include "ColumnHeader.h"
#include "Globals.h"
#include "Host.h"
#include "ListBox.h"
#include "ListView.h"
#include "RevisionList.h"
#include "SSTab.h"
#include "ServiceErrors.h"
#include "cFileInfo.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"
#include "mListView.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPlainTextEdit>

namespace qs {

namespace {

const QString kNotAvailable = QStringLiteral("Information not available.");

// The version entries the list shows; 3, 4 and 6 are raw forms of others.
bool ListsEntry(int entry) {
    return entry != 3 && entry != 4 && entry != 6;
}

} // namespace

void frmMain::SourceFileInfoArtOrComp(long lngId) {
    try {
        const auto library = NewLibrary();
        mobjSourceFile.reset();
        try {
            mobjSourceFile =
                std::make_shared<cSourceFile>(library->GetSourceFile(static_cast<int>(lngId)));
        } catch (const QsError& error) {
            // Another user deleted it meanwhile: the tabs stay empty.
            if (error.number() != kErrRecordNotFound)
                throw;
        }
        SSTabSourceFile->setTab(0);
        if (!mobjSourceFile) {
            ClearControlsSourceFileTab();
            return;
        }
        const cSourceFile& record = *mobjSourceFile;
        const cFileInfo file = record.File();
        mstrFileFullPath = file.FullPath();
        mstrFileName = file.FileName();
        txtFilename->setText(file.FileName());
        txtType->setText(file.FileTypeName());
        txtSize->setText(cFileInfo::FormatSize(file.Size()));
        txtAuthorName->setText(record.AuthorLastName() + QStringLiteral(", ") +
                               record.AuthorFirstName());
        txtDosName->setText(file.DosName());
        txtCreated->setText(cFileInfo::FormatDate(file.DateCreated()));
        txtDateFileEntered->setText(cFileInfo::FormatDate(record.DateEntered()));
        txtFileNotes->setPlainText(record.Notes());

        const bool attributes[] = {file.ReadOnly(), file.Archive(), file.Compressed(),
                                   file.Hidden(),   file.System(),  file.Temporary()};
        for (int i = 0; i < 6; ++i)
            chkAttr[i]->setChecked(attributes[i]);

        picIcon->clear();
        SetPicIcon();
        picIcon->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        picIcon->setPixmap(QPixmap::fromImage(file.IconHandle()));

        const cFileVersionInfo& version = file.VersionInfo();
        if (version.HasVersionInfo()) {
            txtFileVer->setText(version.FileVersion());
            txtDescription->setText(version.FileDescription());
            txtCopyright->setText(version.LegalCopyright());
            lboxVerInfo->Clear();
            for (int n = 0; n < cFileVersionInfo::kEntryCount; ++n) {
                if (!ListsEntry(n) || version.EntryValue(n).isEmpty())
                    continue;
                lboxVerInfo->AddItem(version.EntryName(n));
                lboxVerInfo->setItemData(lboxVerInfo->NewIndex(), n);
            }
            if (lboxVerInfo->ListCount() > 0) {
                lboxVerInfo->setListIndex(0);
                lboxVerInfo_Click();
            }
        } else {
            for (QLineEdit* box : {txtFileVer, txtDescription, txtCopyright})
                box->setText(kNotAvailable);
            txtVerInfo->setPlainText(kNotAvailable);
            lboxVerInfo->Clear();
            lboxVerInfo->AddItem(kNotAvailable);
            lboxVerInfo->setItemData(lboxVerInfo->NewIndex(), 0);
        }

        // The file tabs have no version box of their own: the newest version goes to the
        // globals the update dialog reads, and stands at the top of the list.
        const QString newest = FillRevisionList(*lstSrcFileRevHist, record.Revisions());
        if (!newest.isEmpty() && newest != QLatin1String("0")) {
            SplitVersion(newest);
            mblnSkipColumnToggle = true;
            lstSrcFileRevHist_ColumnClick(lstSrcFileRevHist->ColumnHeaders(2));
            mblnSkipColumnToggle = false;
            mintSelectFirstRow = 1;
            lstSrcFileRevHist_Click();
            mintSelectFirstRow = 0;
        }
    } catch (...) {
        HandleFailure("frmMain:SourceFileInfoArtOrComp;");
    }
}

void frmMain::LoadVerInfoCbo() {
    try {
        for (const char* entry :
             {"Company Name", "Description", "Internal Name", "Language", "Legal Copyright",
              "Legal Trademarks", "Original Filename", "Product Name", "Product Version"})
            lboxVerInfo->AddItem(QString::fromLatin1(entry));
    } catch (...) {
        HandleFailure("frmMain:LoadVerInfoCbo;");
    }
}

void frmMain::lboxVerInfo_Click() {
    try {
        if (!mobjSourceFile || lboxVerInfo->ListIndex() < 0)
            return;
        const cFileInfo file = mobjSourceFile->File();
        if (file.VersionInfo().HasVersionInfo())
            txtVerInfo->setPlainText(
                file.VersionInfo().EntryValue(lboxVerInfo->ItemData(lboxVerInfo->ListIndex())));
    } catch (...) {
        HandleFailure("frmMain:lboxVerInfo_Click;");
    }
}

void frmMain::SetPicIcon() {
    try {
        // 32 pixels each way: the size of a file type's icon.
        picIcon->setFixedSize(32, 32);
    } catch (...) {
        HandleFailure("frmMain:SetPicIcon;");
    }
}

void frmMain::lstSrcFileRevHist_Click() {
    try {
        if (lstSrcFileRevHist->ListItems.Count() == 0)
            return;
        host().setMousePointer(vbDefault);
        if (mintSelectFirstRow == 1)
            lstSrcFileRevHist->setSelectedItem(lstSrcFileRevHist->ListItems(1));
        const ListItem selected = lstSrcFileRevHist->SelectedItem();
        if (!mobjSourceFile || selected.isNothing())
            return;
        const QString version = selected.SubItems(1);
        for (const cRevision& revision : mobjSourceFile->Revisions()) {
            if (revision.Version() == version) {
                txtSFRevHistAuthor->setText(revision.AuthorFirstName() + QLatin1Char(' ') +
                                            revision.AuthorLastName());
                txtRevCommentsSF->setPlainText(revision.Comment());
                break;
            }
        }
    } catch (...) {
        HandleFailure("frmMain:lstSrcFileRevHist_Click;");
    }
}

void frmMain::lstSrcFileRevHist_ColumnClick(ColumnHeader& header) {
    try {
        host().setMousePointer(vbHourglass);
        if (!mblnSkipColumnToggle) {
            lvwSort(*lstSrcFileRevHist, header.Index(),
                    lstSrcFileRevHist->SortOrder() == lvwAscending);
            lvwAutoSizeLastColumn(*lstSrcFileRevHist);
        } else {
            lvwSort(*lstSrcFileRevHist, header.Index(), true);
            mblnSkipColumnToggle = false;
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:lstSrcFileRevHist_ColumnClick;");
    }
}

} // namespace qs
