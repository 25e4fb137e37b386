// Saving an author: the field check, the question about a name that exists, and the save.

#include "frmAuthor.h"

#include "ComboBox.h"
#include "Host.h"
#include "QsError.h"
#include "cAuthor.h"
#include "mErrorHandling.h"

#include <QLineEdit>
#include <QPointer>

namespace qs {

bool frmAuthor::ValidateAuthorFields() {
    try {
        QString strMissing;
        QString strMessage;
        if (txtAuthorId->text().isEmpty())
            strMissing += QStringLiteral("AuthorId\r\n");
        if (txtAuthorFName->text().isEmpty())
            strMissing += QStringLiteral(" First Name\r\n");
        if (txtAuthorLName->text().isEmpty())
            strMissing += QStringLiteral(" Last Name\r\n");
        // The message is made only once it is known not to be empty, so the window never
        // refuses an author for a missing field: an author may be saved with no name at all.
        if (!strMessage.isEmpty()) {
            strMessage =
                QStringLiteral("The following field(s) are required for update: \r\n\r\n") +
                strMissing;
            host().msgBox(strMessage, vbCritical, QString());
            return false;
        }
        return true;
    } catch (...) {
        HandleFailure("frmAuthor:ValidateAuthorFields;");
    }
    return false;
}

void frmAuthor::cmdAuthorUpdate_Click() {
    try {
        host().setMousePointer(vbHourglass);
        if (mintMode == ModeView) {
            host().setMousePointer(vbDefault);
            return;
        }
        if (!ValidateAuthorFields())
            return;
        if (mintMode == ModeAdd)
            mobjAuthor = std::make_shared<cAuthor>();
        else if (!mobjAuthor)
            throw QsError(91, QString::fromLatin1(kAppSource),
                          QStringLiteral("Object variable or With block variable not set"));

        // The old name joins the kept first name with itself, so a name always counts as
        // changed and an edit finds the author's own entry.
        const QString oldName = mstrFirstName + QLatin1Char(' ') + mstrFirstName;
        const QString newName = txtAuthorFName->text() + QLatin1Char(' ') + txtAuthorLName->text();
        if (oldName != newName && cboAuthors->ListCount() > 0) {
            for (int i = 0; i < cboAuthors->ListCount(); ++i) {
                if (newName.toUpper() != cboAuthors->List(i).toUpper())
                    continue;
                const QString question =
                    mintMode == ModeEdit
                        ? QStringLiteral("Are you sure that you want to change the current author "
                                         "name?")
                        : QStringLiteral("Are you sure that you want to add this new author to "
                                         "the database?");
                const int answer = host().msgBox(
                    QStringLiteral("This author already exists in the database. This might "
                                   "cause confusion.\r\n") +
                        question,
                    vbYesNo, QStringLiteral("Author First & Last Name?"));
                if (answer == vbNo) {
                    txtAuthorFName->setFocus();
                    host().setMousePointer(vbDefault);
                    return;
                }
                break;
            }
        }

        mobjAuthor->BeginEdit(0);
        mobjAuthor->FirstName(txtAuthorFName->text());
        mobjAuthor->LastName(txtAuthorLName->text());
        mobjAuthor->Save();

        mstrFirstName.clear();
        mstrLastName.clear();
        const QPointer<frmAuthor> self(this);
        PopulateAuthorCbo();
        if (!StillLoaded(self))
            return;
        cboAuthors->setText(newName);
        SetAuthorMode(ModeView);
        cboAuthors_Click();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmAuthor:cmdAuthorUpdate_Click;");
    }
}

} // namespace qs
