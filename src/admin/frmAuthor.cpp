// Author maintenance: the list of authors, the three modes, save, cancel, delete and leaving.

#include "frmAuthor.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mStrings.h"
#include "quillstone_private.h"

#include <QLineEdit>
#include <QPushButton>

namespace qs {

namespace {

const char kNotInDatabase[] = "The AuthorId: ? is not not in the database.";
constexpr long kHelpAuthors = 1520;

} // namespace

frmAuthor::frmAuthor() : FormBase(QStringLiteral("frmAuthor")) {
    setCaption(QStringLiteral("Author Maintenance"));
    buildLayout();
    connectEvents();
}

frmAuthor::~frmAuthor() = default;

void frmAuthor::Form_Load() {
    try {
        host().setMousePointer(vbHourglass);
        CenterOnScreen();
        NewLibrary();
        // The fill yields; the window may be closed meanwhile, and then the load stops.
        const QPointer<frmAuthor> self(this);
        PopulateAuthorCbo(true);
        if (!StillLoaded(self))
            return;
        SetAuthorMode(ModeView);
        for (int i = 0; i < cboAuthors->ListCount(); ++i) {
            if (cboAuthors->List(i) == gstrUserName)
                cboAuthors->setText(gstrUserName);
        }
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmAuthor:Form_Load;");
    }
}

void frmAuthor::Form_Unload(int& cancel) {
    (void)cancel;
    mobjAuthor.reset();
}

void frmAuthor::PopulateAuthorCbo(bool blnSelectFirst) {
    try {
        const QPointer<frmAuthor> self(this);
        FillComboBox(QStringLiteral("Authors"), cboAuthors);
        if (!StillLoaded(self))
            return;
        if (blnSelectFirst && cboAuthors->ListCount() > 0)
            cboAuthors->setText(cboAuthors->List(0));
    } catch (...) {
        HandleFailure("frmAuthor:PopulateAuthorCbo;");
    }
}

void frmAuthor::SetAuthorMode(short intMode) {
    try {
        mintMode = intMode;
        const bool view = intMode == ModeView;
        cboAuthors->setEnabled(view);
        txtAuthorId->setReadOnly(!view);
        txtAuthorFName->setReadOnly(view);
        txtAuthorLName->setReadOnly(view);
        for (QPushButton* cmd : {cmdAuthorAdd, cmdAuthorEdit, cmdAuthorDelete})
            cmd->setEnabled(view);
        cmdAuthorUpdate->setEnabled(!view);
        cmdAuthorCancel->setEnabled(!view);
    } catch (...) {
        HandleFailure("frmAuthor:SetAuthorMode;");
    }
}

void frmAuthor::ClearAuthorFields() {
    try {
        // The choice of no entry raises a click that must not load anything.
        mblnIgnoreClick = true;
        cboAuthors->setListIndex(-1);
        for (QLineEdit* box : {txtAuthorId, txtAuthorFName, txtAuthorLName})
            box->clear();
    } catch (...) {
        HandleFailure("frmAuthor:ClearAuthorFields;");
    }
}

void frmAuthor::FillAuthorFields() {
    try {
        if (!mobjAuthor)
            return;
        txtAuthorId->setText(QString::number(mobjAuthor->AuthorId()));
        txtAuthorFName->setText(mobjAuthor->FirstName());
        txtAuthorLName->setText(mobjAuthor->LastName());
    } catch (...) {
        HandleFailure("frmAuthor:FillAuthorFields;");
    }
}

void frmAuthor::cboAuthors_Click() {
    try {
        if (mblnIgnoreClick) {
            mblnIgnoreClick = false;
            return;
        }
        if (cboAuthors->ListIndex() < 0)
            return;
        host().setMousePointer(vbHourglass);
        const auto library = NewLibrary();
        const std::optional<cAuthor> author =
            library->GetAuthor(cboAuthors->ItemData(cboAuthors->ListIndex()));
        if (!author) {
            host().msgBox(QStringLiteral("Author Id was not found."), vbExclamation,
                          QStringLiteral("AuthorId"));
            host().setMousePointer(vbDefault);
            return;
        }
        mobjAuthor = std::make_shared<cAuthor>(*author);
        FillAuthorFields();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmAuthor:cboAuthors_Click;");
    }
}

void frmAuthor::cmdAuthorAdd_Click() {
    try {
        ClearAuthorFields();
        mstrFirstName = txtAuthorFName->text();
        mstrLastName = txtAuthorLName->text();
        SetAuthorMode(ModeAdd);
    } catch (...) {
        HandleFailure("frmAuthor:cmdAuthorAdd_Click;");
    }
}

void frmAuthor::cmdAuthorEdit_Click() {
    try {
        mstrFirstName = txtAuthorFName->text();
        mstrLastName = txtAuthorLName->text();
        SetAuthorMode(ModeEdit);
    } catch (...) {
        HandleFailure("frmAuthor:cmdAuthorEdit_Click;");
    }
}

void frmAuthor::cmdAuthorCancel_Click() {
    try {
        if (mintMode == ModeAdd) {
            const QPointer<frmAuthor> self(this);
            PopulateAuthorCbo(true);
            if (!StillLoaded(self))
                return;
        } else if (mintMode == ModeEdit) {
            FillAuthorFields();
        }
        SetAuthorMode(ModeView);
    } catch (...) {
        HandleFailure("frmAuthor:cmdAuthorCancel_Click;");
    }
}

bool frmAuthor::ValidAuthor(long lngId) {
    try {
        return NewLibrary()->GetAuthor(static_cast<int>(lngId)).has_value();
    } catch (...) {
        HandleFailure("frmAuthor:ValidAuthor;");
    }
    return false;
}

void frmAuthor::LookupAuthor(long lngId) {
    try {
        const std::optional<cAuthor> author = NewLibrary()->GetAuthor(static_cast<int>(lngId));
        if (!author) {
            host().msgBox(ValidateSSN(QString::fromLatin1(kNotInDatabase), QString::number(lngId)),
                          vbInformation, QStringLiteral("AuthorId Not Found"));
            return;
        }
        mobjAuthor = std::make_shared<cAuthor>(*author);
        FillAuthorFields();
    } catch (...) {
        HandleFailure("frmAuthor:LookupAuthor;");
    }
}

void frmAuthor::DeleteAuthor(long lngId) {
    try {
        std::optional<cAuthor> author = NewLibrary()->GetAuthor(static_cast<int>(lngId));
        if (!author)
            return;
        author->BeginEdit(0);
        author->Deleted(true);
        author->Save();
    } catch (...) {
        HandleFailure("frmAuthor:DeleteAuthor;");
    }
}

void frmAuthor::cmdAuthorDelete_Click() {
    try {
        const QString text = txtAuthorId->text();
        if (text.isEmpty()) {
            host().msgBox(QStringLiteral("Please enter either an AuthorId."), vbInformation,
                          QStringLiteral("AuthorId"));
            return;
        }
        const long id = text.trimmed().toLong();
        if (!ValidAuthor(id)) {
            host().msgBox(ValidateSSN(QString::fromLatin1(kNotInDatabase), text), vbInformation,
                          QStringLiteral("AuthorId Not Found"));
            return;
        }
        const int answer = host().msgBox(
            ValidateSSN(QStringLiteral("Are you sure you want to delete the AuthorId: ??."), text),
            vbYesNo | vbExclamation, QStringLiteral("Delete Author?"));
        if (answer == vbNo)
            return;
        const auto library = NewLibrary();
        host().doEvents();
        const int author = static_cast<int>(id);
        const bool credited =
            library->GetItems(QStringLiteral("SourceCode"), 0, 0, 0, author, 0, 0, 0).UBound() >
                0 ||
            library->GetItems(QStringLiteral("SourceFile"), 0, 0, 0, author, 0, 0, 0).UBound() > 0;
        if (credited) {
            host().msgBox(QStringLiteral("To remove this author from the database you must first "
                                         "remove all source items associated with their name."),
                          vbInformation, QStringLiteral("Remove Author"));
            return;
        }
        DeleteAuthor(id);
        PopulateAuthorCbo();
    } catch (...) {
        HandleFailure("frmAuthor:cmdAuthorDelete_Click;");
    }
}

void frmAuthor::cmdHelp_Click() {
    try {
        ShowHelpTopic(kHelpAuthors);
    } catch (...) {
        HandleFailure("frmAuthor:cmdHelp_Click;");
    }
}

void frmAuthor::cmdExit_Click() {
    try {
        if (UsersExist()) {
            Unload();
            return;
        }
        const int answer = host().msgBox(
            QStringLiteral("Exiting without entering an employee will cause \r\nthe program to "
                           "exit completely.\r\n\r\nDo you wish to continue?"),
            vbYesNo | vbQuestion, QString());
        if (answer == vbYes)
            UnloadAllForms(QString());
    } catch (...) {
        HandleFailure("frmAuthor:cmdExit_Click;");
    }
}

void frmAuthor::txtAuthorFName_GotFocus() {
    txtAuthorFName->selectAll();
}

void frmAuthor::txtAuthorLName_GotFocus() {
    txtAuthorLName->selectAll();
}

} // namespace qs
