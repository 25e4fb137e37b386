// The stored-file window's two writes: a new stored file, and a new file and version for the
// selected one.  Nothing is written before every test has passed.

#include "frmSourceFile.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "SSTab.h"
#include "TreeView.h"
#include "VersionLists.h"
#include "cSourceFile.h"
#include "frmMain.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"

#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace qs {

void frmSourceFile::refuse(const QString& title, const QString& text, QWidget* focus) {
    host().msgBox(text, vbInformation, title);
    setEnabled(true);
    if (focus)
        focus->setFocus();
    host().setMousePointer(vbDefault);
}

bool frmSourceFile::fileFieldsPass() {
    const QString path = txtFileNameSF->text();
    const QString pathTitle = QStringLiteral("File path/Name?");
    // The first message has lost a word, and says adding in both modes.
    if (cboAuthors->Text().isEmpty()) {
        refuse(QStringLiteral("User?"),
               QStringLiteral("Please select the  adding the source file."), cboAuthors);
        return false;
    }
    if (path.isEmpty()) {
        refuse(pathTitle, QStringLiteral("Please select or enter file path and name."),
               txtFileNameSF);
        return false;
    }
    if (!FileExists(path)) {
        refuse(pathTitle, QStringLiteral("The file you are trying to add does not exist."),
               txtFileNameSF);
        return false;
    }
    if (txtDescriptionSF->text().isEmpty()) {
        refuse(pathTitle, QStringLiteral("Please enter a description."), txtDescriptionSF);
        return false;
    }
    return true;
}

int frmSourceFile::selectedAuthorId() const {
    return cboAuthors->ItemData(cboAuthors->ListIndex());
}

void frmSourceFile::closeDown() {
    host().setMousePointer(vbDefault);
    setEnabled(true);
    Unload();
}

void frmSourceFile::addSourceFile() {
    try {
        host().setMousePointer(vbHourglass);
        setEnabled(false);
        if (!fileFieldsPass())
            return;
        const int authorId = selectedAuthorId();
        cSourceFile record;
        // A file gone since the test above raises here, before anything is written.
        record.LoadFile(txtFileNameSF->text(), authorId, static_cast<int>(glngCategoryId),
                        static_cast<int>(glngSourceTypeId));
        record.BeginEdit(0);
        record.Description(txtDescriptionSF->text());
        record.Notes(txtNotesSF->toPlainText());
        record.ParentId(static_cast<int>(glngParentId));
        cRevisions& revisions = record.Revisions();
        revisions.Add(0);
        cRevision& first = revisions.Item(revisions.Count());
        first.AuthorId(authorId);
        first.DateRevised(QDateTime::currentDateTime());
        first.Version(QStringLiteral("1.0.0"));
        first.Comment(QStringLiteral("Source File Added"));
        const int id = record.Save();

        frmMain& main = Forms::get<frmMain>();
        TreeView& tree = *main.tvwMain;
        ItemRow row;
        row.Id = id;
        row.ParentId = static_cast<int>(glngParentId);
        row.TypeId = lblSourceType->text() == QLatin1String("Article") ? NodeKeys::kArticle
                                                                       : NodeKeys::kComponent;
        row.Description = txtDescriptionSF->text();
        Node node = tree.Nodes.Add(tree.SelectedItem(), tvwChild, NodeKeys::ItemKey(row),
                                   row.Description, NodeKeys::ItemImage(row.TypeId, false, false));
        node.setTag(NodeKeys::ItemTag(row));
        tree.setSelectedItem(node);
        node.EnsureVisible();
        gblnCodeView = false;
        gstrClickButton = QStringLiteral("Left");
        main.tvwMain_NodeClick(node);
        closeDown();
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmAddSourceFile:addSourceFile;");
    }
}

void frmSourceFile::UpdateSourceFile() {
    try {
        host().setMousePointer(vbHourglass);
        setEnabled(false);
        if (!fileFieldsPass())
            return;
        const NewVersionFields version{SSTabAboutFile, 1,          txtRevCommentsSF,
                                       cboMajorSF,     cboMinorSF, cboRevSF};
        const VersionCheck check =
            CheckNewVersion(version, [this](const QString& title, const QString& text,
                                            QWidget* focus) { refuse(title, text, focus); });
        // Yes to the major question leaves the window as it is, disabled.
        if (check != VersionCheck::Passed)
            return;

        cSourceFile& record = *mobjSourceFile;
        record.BeginEdit(0);
        record.Description(txtDescriptionSF->text());
        record.Notes(txtNotesSF->toPlainText());
        // The path starts empty, so every update brings in the file chosen.
        if (txtFileNameSF->text() != mstrOriginalFileName) {
            record.UpdateFile(txtFileNameSF->text());
            record.ReplaceFile(true);
        }
        cRevision& line = record.Revisions().Add(0);
        line.AuthorId(selectedAuthorId());
        line.Version(NewVersionText(version));
        line.Comment(txtRevCommentsSF->toPlainText());
        line.DateRevised(QDateTime::currentDateTime());
        record.Save();
        mobjSourceFile.reset();

        gblnCodeView = false;
        gstrClickButton = QStringLiteral("Left");
        frmMain& main = Forms::get<frmMain>();
        Node selected = main.tvwMain->SelectedItem();
        selected.setText(txtDescriptionSF->text());
        main.tvwMain_NodeClick(selected);
        closeDown();
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmAddSourceFile:UpdateSourceFile;");
    }
}

} // namespace qs
