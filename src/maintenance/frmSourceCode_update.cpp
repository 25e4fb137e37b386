// frmSourceCode in update mode: the record and its version lists at load, the tested move, and
// the update with its ten tests.

#include "frmSourceCode.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "LineEnds.h"
#include "QsError.h"
#include "RevisionList.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "TreeView.h"
#include "VersionLists.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "mErrorHandling.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace qs {

void frmSourceCode::loadForUpdate() {
    CmdAddOrUpdate->setText(QStringLiteral("Update"));
    lblPersonCap->setText(QStringLiteral("Person Updating:"));
    // The date written never changes.
    lblDateWritten->setVisible(false);
    DTPickerDateWritten->setVisible(false);
    // Only an untested item may move; nothing moves back.
    if (gstrCodeStatus == QLatin1String("UnTested"))
        ckkTested->setVisible(true);
    SSTabAboutCode->setTabEnabled(3, true);

    const auto library = std::make_shared<cLibraryService>();
    mobjLibrary = library;
    host().doEvents();
    mobjSourceCode =
        std::make_unique<cSourceCode>(library->GetSourceCode(static_cast<int>(glngSelectedId)));
    RTBoxAddOrUpdate->setText(mobjSourceCode->Code());
    txtNotesAddOrUpdate->setPlainText(ToLf(mobjSourceCode->Notes()));
    txtExampleAddOrUpdate->setPlainText(ToLf(mobjSourceCode->Example()));
    txtDescriptionAddOrUpdate->setText(mobjSourceCode->Description());

    // The folders of the tested branch of this category and type, in the order returned.
    const VbArray<ItemRow> rows =
        library->GetItems(QStringLiteral("SourceCode"), 0, static_cast<int>(glngCategoryId),
                          static_cast<int>(glngSourceTypeId), 0, 0, 1, 0);
    for (const ItemRow& row : rows) {
        if (!row.IsFolder)
            continue;
        cboSelParFolder->AddItem(row.Description);
        cboSelParFolder->setItemData(cboSelParFolder->NewIndex(), row.Id);
    }
    fillVersionLists();
}

void frmSourceCode::fillVersionLists() {
    // From here on a failure skips its own step only.  The floor is the last entry of the list,
    // not the newest by date; a version that does not split leaves the numbers as they were.
    const cRevisions& revisions = mobjSourceCode->Revisions();
    gstrCurrentVersion =
        revisions.Count() > 0 ? revisions.Item(revisions.Count()).Version() : QString();
    if (!gstrCurrentVersion.isEmpty()) {
        try {
            SplitVersion(gstrCurrentVersion);
        } catch (...) {
        }
    }
    FillVersionLists(*cboMajor, *cboMinor, *cboRev);
}

void frmSourceCode::cboMajor_Click() {
    try {
        if (mblnSkipMajorClick) {
            mblnSkipMajorClick = false;
            return;
        }
        // Another major: minor and revision may start again from 0.
        ResetMinorAndRevision(*cboMinor, *cboRev);
    } catch (...) {
        HandleFailure("frmAddSourceCode:cboMajor_Click;");
    }
}

void frmSourceCode::ckkTested_Click() {
    try {
        const bool on = ckkTested->isChecked();
        lblParent->setVisible(on);
        cboSelParFolder->setVisible(on);
    } catch (...) {
        HandleFailure("frmAddSourceCode:ckkTested_Click;");
    }
}

void frmSourceCode::removeOutline(frmMain& main) {
    // A walk stops at the first child of the item and removes it with its members; the next
    // walk starts from the top, until one finds none.
    TreeView& tree = *main.tvwMain;
    const QString key = tree.SelectedItem().Key();
    for (bool found = true; found;) {
        found = false;
        for (int i = 1; i <= tree.Nodes.Count(); ++i) {
            const Node node = tree.Nodes(i);
            if (node.Key() == QLatin1String("ROOT"))
                continue;
            const Node parent = node.Parent();
            if (parent && parent.Key() == key) {
                tree.Nodes.Remove(i);
                found = true;
                break;
            }
        }
    }
}

void frmSourceCode::UpdateSourceCode() {
    try {
        setEnabled(false);
        const QString updating = QStringLiteral("Update Source Code?");
        const QString described = QStringLiteral("Description?");
        if (cboAuthors->Text().isEmpty())
            return refuse(updating,
                          QStringLiteral("Please select the ''Person'' that is updating the "
                                         "source code."),
                          -1, cboAuthors);
        if (RTBoxAddOrUpdate->Text().isEmpty())
            return refuse(updating, QStringLiteral("There is no ''Code'' in the window to update."),
                          0, nullptr);
        if (txtDescriptionAddOrUpdate->text().isEmpty())
            return refuse(described,
                          QStringLiteral("Please enter a ''Description'' before updating source "
                                         "code."),
                          -1, txtDescriptionAddOrUpdate);
        // Yes to the major question ends the update here and leaves the window as it is,
        // disabled: the answers are the other way round from the question, and that is the
        // settled behaviour.
        const NewVersionFields fields{SSTabAboutCode, 3,        txtRevComsAddOrUpdate,
                                      cboMajor,       cboMinor, cboRev};
        const VersionCheck check =
            CheckNewVersion(fields, [this](const QString& title, const QString& text,
                                           QWidget* focus) { refuse(title, text, 3, focus); });
        if (check != VersionCheck::Passed)
            return;
        const bool toTested = ckkTested->isChecked();
        if (toTested && cboSelParFolder->Text().isEmpty())
            return refuse(described,
                          QStringLiteral("Please select a ''Tested Parent ID'' before updating."),
                          -1, cboSelParFolder);

        // A copy takes the changes, so that a refused Save leaves the loaded record as it was.
        cSourceCode record = *mobjSourceCode;
        record.BeginEdit(0);
        record.Code(RTBoxAddOrUpdate->Text());
        record.Description(txtDescriptionAddOrUpdate->text());
        record.Example(ToCrLf(txtExampleAddOrUpdate->toPlainText()));
        record.Notes(ToCrLf(txtNotesAddOrUpdate->toPlainText()));
        if (toTested) {
            record.Tested(1);
            record.ParentId(cboSelParFolder->ItemData(cboSelParFolder->ListIndex()));
        }
        // The updater goes on the revision; the item keeps its first writer.
        cRevision& rev = record.Revisions().Add(0);
        rev.AuthorId(cboAuthors->ItemData(cboAuthors->ListIndex()));
        rev.Version(NewVersionText(fields));
        rev.Comment(ToCrLf(txtRevComsAddOrUpdate->toPlainText()));
        rev.DateRevised(QDateTime::currentDateTime());
        record.Save();
        mobjSourceCode.reset();

        gblnCodeView = false;
        gstrClickButton = QStringLiteral("Left");
        if (frmMain* main = Forms::find<frmMain>()) {
            TreeView& tree = *main->tvwMain;
            Node selected = tree.SelectedItem();
            if (toTested) {
                // The item has left the untested view; the tested branch shows it when filled.
                tree.Nodes.Remove(selected);
                if (const Node next = tree.SelectedItem())
                    main->tvwMain_NodeClick(next);
            } else {
                selected.setText(txtDescriptionAddOrUpdate->text());
                const QString type = lblSourceType->text();
                if (type == QLatin1String("Class Module") ||
                    type == QLatin1String("General Module"))
                    removeOutline(*main);
                // The replayed click builds the outline again from the new text.
                main->tvwMain_NodeClick(selected);
            }
        }
        host().setMousePointer(vbDefault);
        setEnabled(true);
        Unload();
    } catch (...) {
        HandleFailure("frmAddSourceCode:UpdateSourceCode;");
        // The window comes back, so that it can be put right or cancelled.
        setEnabled(true);
    }
}

} // namespace qs
