#include "quillstone_private.h"

#include "AppPaths.h"
#include "CloseLibraryFiles.h"
#include "ComboBox.h"
#include "FormBase.h"
#include "Globals.h"
#include "Host.h"
#include "QsError.h"
#include "QtHost.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "frmDatabase.h"
#include "frmLogin.h"
#include "frmMain.h"
#include "frmUser.h"
#include "mConstants.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <optional>

namespace qs {

namespace {

QString regString(const char* key, const char* value, const QString& defaultValue) {
    return GetRegSetting(QString::fromLatin1(key), QString::fromLatin1(value), defaultValue)
        .toString();
}

// The walk over a combo's entries of the login's restoring step.
void SelectSavedEntry(ComboBox* cbo, const QString& strSaved) {
    if (!cbo)
        return;
    // The walk does not stop at a match: the last equal entry stands.
    for (int i = 0; i < cbo->ListCount(); ++i) {
        const QString entry = cbo->List(i);
        if (!entry.isEmpty() && entry == strSaved)
            cbo->setListIndex(i);
    }
}

void SelectSavedSearchOption(frmMain& main, const QString& strCriteria) {
    int option = -1;
    if (strCriteria == QLatin1String(REG_SEARCH_EXACT_PHRASE))
        option = 0;
    else if (strCriteria == QLatin1String(REG_SEARCH_ALL_WORDS))
        option = 1;
    else if (strCriteria == QLatin1String(REG_SEARCH_ANY_WORD))
        option = 2;
    if (option >= 0 && main.rdoSearchOption[option])
        main.rdoSearchOption[option]->setChecked(true);
}

// The first field through a number format of digit placeholders: "0" pads with
// zeros, "#" shows a digit only where there is one ("000" makes 7 into "007").
// A text that is no number, or a format of other characters, is shown as it
// stands.
QString FormatField(const QString& strValue, const QString& strFormat) {
    bool isNumber = false;
    const long long number = strValue.trimmed().toLongLong(&isNumber);
    if (!isNumber || strFormat.isEmpty())
        return strValue;
    int zeros = 0;
    for (QChar c : strFormat) {
        if (c == QLatin1Char('0'))
            ++zeros;
        else if (c != QLatin1Char('#'))
            return strValue;
    }
    QString digits = QString::number(number < 0 ? -number : number);
    if (digits.size() < zeros)
        digits.prepend(QString(zeros - digits.size(), QLatin1Char('0')));
    return number < 0 ? QLatin1Char('-') + digits : digits;
}

} // namespace

// Selects on frmMain the search choices of the last run.
void RestoreSearchSettings(frmMain& main) {
    const QString lastCat = regString(REG_KEY_SEARCHSETTINGS, REG_VAL_LASTCAT, QString());
    const QString lastCodeType =
        regString(REG_KEY_SEARCHSETTINGS, REG_VAL_SEARCH_LASTCODETYPE, QString());
    const QString lastModeType = regString(REG_KEY_SEARCHSETTINGS, REG_VAL_LASTMODETYPE, QString());
    const QString lastCriteria = regString(REG_KEY_SEARCHSETTINGS, REG_VAL_LASTSEARCHCRITERIA,
                                           QString::fromLatin1(REG_DEF_LASTSEARCHCRITERIA));
    SelectSavedEntry(main.cboCategory, lastCat);
    SelectSavedEntry(main.cboCodeType, lastCodeType);
    SelectSavedEntry(main.cboTestedOrUntested, lastModeType);
    SelectSavedSearchOption(main, lastCriteria);
}

QString SettingsFilePath() {
    QString folder = regString(REG_KEY_DATAFILES, REG_VAL_DATAFILES_FILEPATH,
                               FormatPath(AppPath()) + QLatin1String(REG_DEF_DATAFILES_FOLDER));
    folder = FormatPath(folder);
    const QString name = regString(REG_KEY_DATAFILES, REG_VAL_DATAFILES_FILENAME,
                                   QString::fromLatin1(REG_DEF_DATAFILES_FILENAME));
    return folder + name;
}

void WriteInstallDefaults() {
    // A read with a default writes the default when the value is missing, and only then.
    GetRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                  QString::fromLatin1(REG_VAL_HELPFILES_FILEPATH),
                  FormatPath(AppPath()) + QLatin1String(REG_DEF_HELPFILES_FOLDER));
}

void CloseLibrary() {
    gobjLibrary.reset();
    CloseLibraryFiles();
}

void Main() {
    try {
        QtHost::setBeforeEnd(CloseLibrary);
        WriteInstallDefaults();

        if (host().previousInstance()) {
            host().msgBox(
                QStringLiteral("There is an instance of this application already running."),
                vbInformation | vbOKOnly, QString());
            host().endProcess();
            return;
        }

        NewLibrary();
        gstrSettingsFile = SettingsFilePath();

        if (!UsersExist()) {
            Forms::get<frmUser>().Show(vbModal);
            // Only a first user made lets the program go on; otherwise no window is
            // left.
            if (!(gblnFirstUser && !gblnFirstUserCancelled))
                return;
        }

        const QPointer<frmLogin> login(&Forms::get<frmLogin>());
        if (gblnFirstUser) {
            login->txtUserId->setText(gstrFirstUserId);
            login->txtPassword->setText(gstrFirstUserPassword);
        }
        login->Show(vbModeless);
        host().doEvents();

        // The login has not been answered yet, so this stays False and Main ends
        // here; the login's own handler restores the search choices.  A login answered
        // during the yield has gone already.
        if (StillLoaded(login) && login->ValidUser())
            RestoreSearchSettings(Forms::get<frmMain>());
    } catch (...) {
        HandleFailure("quillstone_private;Main;", FailureTail::ClearError);
    }
}

bool UsersExist() {
    bool result = true;
    try {
        VbArray<UserRow> users;
        {
            cSecurityService security;
            users = security.GetUsers(0, 0, false, QString());
        }
        if (users.LBound() == 0) {
            host().msgBox(QStringLiteral("There are no users in the database. You must \r\n"
                                         "create a user account before continuing."),
                          vbOKOnly, QString());
            gblnFirstUser = true;
            return false;
        }
        return true;
    } catch (const QsError& e) {
        if (e.description().contains(QLatin1String(DATABASE_NOT_FOUND_TEXT), Qt::CaseInsensitive)) {
            try {
                host().msgBox(e.description(), vbOKOnly, QString());
                Forms::get<frmDatabase>().Show(vbModal);
            } catch (...) {
                HandleFailure("quillstone_private;UsersExist;", FailureTail::KeepPointer);
            }
            return true;
        }
        HandleFailure("quillstone_private;UsersExist;", FailureTail::KeepPointer);
    } catch (...) {
        HandleFailure("quillstone_private;UsersExist;", FailureTail::KeepPointer);
    }
    return result;
}

void UnloadAllForms(const QString& strExcept) {
    try {
        const QList<FormBase*> forms = Forms::all();
        for (FormBase* form : forms) {
            if (form->Name() != strExcept)
                form->Unload();
        }
    } catch (...) {
        HandleFailure("quillstone_private;UnloadAllForms;");
    }
}

void FillComboBox(const QString& strTable, ComboBox* cboCombo, bool blnShowField1,
                  bool blnShowField2, bool blnShowField3, const QString& strFormat,
                  bool blnSetItemData, bool blnClearFirst, const QVariant& varCriteria) {
    try {
        if (blnClearFirst)
            cboCombo->Clear();
        // The yield may run an event that unloads the combo's form and releases gobjLibrary;
        // the fill then uses its own hold, and leaves if the form went.
        const QPointer<ComboBox> combo(cboCombo);
        const QPointer<FormBase> form(qobject_cast<FormBase*>(cboCombo->window()));
        const bool onForm = form;
        const auto library = NewLibrary();
        host().doEvents();
        if (!combo || (onForm && !StillLoaded(form)))
            return;

        if (strTable == QLatin1String("Authors")) {
            const auto rows = library->GetAuthors(false);
            for (const auto& row : rows) {
                cboCombo->AddItem(row.FirstName + QLatin1Char(' ') + row.LastName);
                if (blnSetItemData)
                    cboCombo->setItemData(cboCombo->NewIndex(), row.AuthorId);
            }
            return;
        }
        if (strTable == QLatin1String("Users")) {
            const auto rows = library->GetUsers(false);
            for (const auto& row : rows)
                cboCombo->AddItem(row.FirstName + QLatin1Char(' ') + row.LastName +
                                  QLatin1String("  (") + row.UserId + QLatin1Char(')'));
            return;
        }

        const auto rows = library->GetLookup(strTable, varCriteria, true, blnSetItemData);
        const bool accessType = strTable == QLatin1String("AccessType");
        for (const auto& row : rows) {
            QString text;
            auto join = [&text](const QString& part) {
                if (part.isEmpty())
                    return;
                if (!text.isEmpty())
                    text += QLatin1String(" - ");
                text += part;
            };
            if (blnShowField1)
                join(strFormat.isEmpty() ? row.Id : FormatField(row.Id, strFormat));
            if (blnShowField2)
                join(row.Code);
            if (blnShowField3 && !(accessType && row.Description == QLatin1String("Unauthorized")))
                join(row.Description);
            if (text.isEmpty())
                continue;
            cboCombo->AddItem(text);
            if (blnSetItemData)
                cboCombo->setItemData(cboCombo->NewIndex(), row.Id.toLong());
        }
    } catch (...) {
        HandleFailure("quillstone_private;FillComboBox;");
    }
}

bool DoesBookMarkExist(const QString& strTable, const QString& strUserId,
                       const QString& strItemId) {
    (void)strUserId;
    try {
        const long itemId = strItemId.toLong();
        std::shared_ptr<cLibraryService> library = gobjLibrary;
        if (!library)
            library = NewLibrary();
        // A list not fetched yet has no bounds, like an array never filled.
        std::optional<VbArray<ItemRow>> codeRows;
        std::optional<VbArray<ItemRow>> fileRows;
        const auto upperBound = [](const std::optional<VbArray<ItemRow>>& rows) {
            if (!rows)
                throw QsError(9, QString::fromLatin1(kAppSource),
                              QStringLiteral("Subscript out of range"));
            return rows->UBound();
        };
        if (strTable == QLatin1String("BkMark_SrcCode")) {
            codeRows = library->GetBookmarks(strTable, gstrUserId, true);
            for (int i = 1; i <= upperBound(codeRows); ++i)
                if ((*codeRows)(i).Id == itemId)
                    return true;
            return false;
        }
        // Stored files: the loop stands before the fetch and runs to the code list's bound.
        for (int i = 1; i <= upperBound(codeRows); ++i)
            if ((*fileRows)(i).Id == itemId)
                return true;
        fileRows = library->GetBookmarks(strTable, gstrUserId, true);
        return false;
    } catch (...) {
        HandleFailure("quillstone_private;DoesBookMarkExist;");
    }
    return false;
}

} // namespace qs
