// frmSourceCode: the button that adds or updates, and the add with its node in the item tree.

#include "frmSourceCode.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "LineEnds.h"
#include "NodeKeys.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "TreeView.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "mErrorHandling.h"

#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace qs {

void frmSourceCode::CmdAddOrUpdate_Click() {
    try {
        host().setMousePointer(vbHourglass);
        // The caption is the mode here.
        if (CmdAddOrUpdate->text() == QLatin1String("&Add"))
            addSourceCode();
        else
            UpdateSourceCode();
    } catch (...) {
        HandleFailure("frmAddSourceCode:CmdAddOrUpdate_Click;");
    }
}

void frmSourceCode::refuse(const QString& title, const QString& message, int tab, QWidget* focus) {
    host().msgBox(message, vbInformation, title);
    setEnabled(true);
    if (tab >= 0)
        SSTabAboutCode->setTab(tab);
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
    host().setMousePointer(vbDefault);
}

Node frmSourceCode::insertNode(frmMain& main, int id) {
    const bool tested = lblCodeStatus->text() == QLatin1String("Tested");
    const struct {
        const char* word;
        int typeId;
    } kTypes[] = {{"Code", NodeKeys::kCodeSnippet},
                  {"Tip", NodeKeys::kTip},
                  {"Class Module", NodeKeys::kClassModule},
                  {"General Module", NodeKeys::kGeneralModule}};
    TreeView& tree = *main.tvwMain;
    Node added;
    for (const auto& t : kTypes) {
        if (!lblSourceType->text().contains(QLatin1String(t.word), Qt::CaseInsensitive))
            continue;
        ItemRow row;
        row.Id = id;
        row.ParentId = static_cast<int>(glngParentId);
        row.TypeId = t.typeId;
        row.Tested = tested ? 1 : 2;
        added = tree.Nodes.Add(tree.SelectedItem(), tvwChild, NodeKeys::ItemKey(row),
                               txtDescriptionAddOrUpdate->text(),
                               NodeKeys::ItemImage(t.typeId, tested, false));
        added.setTag(NodeKeys::AddedItemTag(row));
        added.setSelected(true);
        added.EnsureVisible();
    }
    return added;
}

void frmSourceCode::addSourceCode() {
    try {
        setEnabled(false);
        const QString person = QStringLiteral("Add Source Code?");
        if (cboAuthors->Text().isEmpty())
            return refuse(person,
                          QStringLiteral("Please select the ''Person'' that wrote the code before "
                                         "adding source code."),
                          -1, cboAuthors);
        if (RTBoxAddOrUpdate->Text().isEmpty())
            return refuse(person, QStringLiteral("There is no ''Code'' in the window to add."), 0,
                          nullptr);
        if (txtDescriptionAddOrUpdate->text().isEmpty())
            return refuse(QStringLiteral("Description?"),
                          QStringLiteral("Please enter a ''Description'' before adding source "
                                         "code."),
                          -1, txtDescriptionAddOrUpdate);
        if (RTBoxAddOrUpdate->Text().size() < 2)
            RTBoxAddOrUpdate->setText(RTBoxAddOrUpdate->Text() + QStringLiteral("\r\n"));

        const int authorId = cboAuthors->ItemData(cboAuthors->ListIndex());
        cSourceCode record;
        record.BeginEdit(0);
        record.AuthorId(authorId);
        record.CategoryId(static_cast<int>(glngCategoryId));
        record.Tested(static_cast<int>(gintCodeStatusId));
        record.Code(RTBoxAddOrUpdate->Text());
        record.CodeTypeId(static_cast<int>(glngSourceTypeId));
        record.DateWritten(DTPickerDateWritten->dateTime());
        record.Description(txtDescriptionAddOrUpdate->text());
        record.DateEntered(QDateTime::currentDateTime());
        record.Example(ToCrLf(txtExampleAddOrUpdate->toPlainText()));
        record.ParentId(static_cast<int>(glngParentId));
        record.Notes(ToCrLf(txtNotesAddOrUpdate->toPlainText()));
        cRevision& rev = record.Revisions().Add(0);
        rev.AuthorId(authorId);
        // The first revision carries the date written, so a back-dated item starts back-dated.
        rev.DateRevised(DTPickerDateWritten->dateTime());
        rev.Version(QStringLiteral("1.0.0"));
        rev.Comment(QStringLiteral("Source Code Added"));
        int id = 0;
        record.Save(id);

        // The tree is patched by hand, never reloaded.
        if (frmMain* main = Forms::find<frmMain>()) {
            const Node added = insertNode(*main, id);
            if (added) {
                gblnCodeView = false;
                gstrClickButton = QStringLiteral("Left");
                main->tvwMain_NodeClick(added);
            }
        }
        setEnabled(true);
        host().setMousePointer(vbDefault);
        Unload();
    } catch (...) {
        HandleFailure("frmAddSourceCode:addSourceCode;");
        // The window comes back, so that it can be put right or cancelled.
        setEnabled(true);
    }
}

} // namespace qs
