// The API viewer's load, the API file it shows, the lists and the search as you type.

#include "frmApiViewer.h"

#include "AppPaths.h"
#include "ComboBox.h"
#include "CommonDialog.h"
#include "Host.h"
#include "ListBox.h"
#include "QsError.h"
#include "RichTextBox.h"
#include "TextBox.h"
#include "cApiLoader.h"
#include "mCommonDialog.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mPathHelpers.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QDir>
#include <QGroupBox>
#include <QPushButton>

namespace qs {

namespace {

QString ApiSetting(const char* value, const char* fallback) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_APISETTING), QString::fromLatin1(value),
                         QString::fromLatin1(fallback))
        .toString();
}

void SaveApiSetting(const char* value, const QString& text) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_APISETTING), QString::fromLatin1(value), text);
}

} // namespace

frmApiViewer::frmApiViewer() : FormBase(QStringLiteral("frmApiViewer")) {
    setCaption(QStringLiteral("API Viewer"));
    buildLayout();
    buildMenus();
    connectEvents();
}

frmApiViewer::~frmApiViewer() = default;

void frmApiViewer::Form_Load() {
    try {
        host().setMousePointer(vbHourglass);
        CenterOnScreen();
        mobjApiLoader = std::make_unique<cApiLoader>();
        const QString path = ApiSetting(REG_VAL_API_PATH, REG_DEF_API_PATH);
        const QString fileName = ApiSetting(REG_VAL_API_PATHFILENAME, REG_DEF_API_PATHFILENAME);
        if (!path.isEmpty()) {
            // A file that cannot be read is reported, and the window opens with empty lists.
            try {
                const QString file = FormatPath(path) + fileName;
                ReadApiFile(file);
                ShowDeclares(file);
            } catch (...) {
                HandleFailure("frmApiViewer:Form_Load;");
            }
        } else {
            LoadApiFile(true);
            if (!IsLoaded()) { // cancelled on a first start
                host().setMousePointer(vbDefault);
                return;
            }
        }
        ResetSelectedNames();
        const QString lastClicked = ApiSetting(REG_VAL_API_LASTCLICKED, REG_DEF_API_LASTCLICKED);
        mstrViewMode =
            lastClicked == QLatin1String("Full") ? QStringLiteral("Full") : QStringLiteral("Line");
        CheckViewMenus();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmApiViewer:Form_Load;");
    }
}

void frmApiViewer::LoadApiFile(bool blnFirstRun) {
    try {
        txtSearch->setText(QString());
        lstAvailItems->Clear();
        RTBoxSelItems->setText(QString());
        frmeScope->setEnabled(false);

        const QString path = ApiSetting(REG_VAL_API_PATH, REG_DEF_API_PATH);
        const QString fileName = ApiSetting(REG_VAL_API_PATHFILENAME, REG_DEF_API_PATHFILENAME);
        // The sample file ships in the program's Datafiles folder.
        const QString folder =
            path.isEmpty() ? FormatPath(AppPath()) + QString::fromLatin1(REG_DEF_DATAFILES_FOLDER)
                           : path;
        const QString chosen = GetFileName(
            *CommonDialog1, QStringLiteral("API Files|*.txt"),
            QStringLiteral("Select An API Text file"),
            path.isEmpty() ? QString::fromLatin1(REG_DEF_API_PATHFILENAME) : fileName, folder);
        if (chosen.isEmpty()) {
            if (blnFirstRun)
                Unload();
            return;
        }

        host().setMousePointer(vbHourglass);
        const QString chosenFolder = ExtractFilePath(chosen, false);
        const QString chosenName = StripFileName(chosen);
        ReadApiFile(chosen);
        SaveApiSetting(REG_VAL_API_PATH, chosenFolder);
        SaveApiSetting(REG_VAL_API_PATHFILENAME, chosenName);
        if (ApiSetting(REG_VAL_API_LASTPATH, REG_DEF_API_LASTPATH).isEmpty()) {
            SaveApiSetting(REG_VAL_API_LASTPATH, path);
            SaveApiSetting(REG_VAL_API_LASTPATHFILENAME, fileName);
        }
        ShowDeclares(chosen);
    } catch (...) {
        HandleFailure("frmApiViewer:LoadApiFile;");
    }
}

void frmApiViewer::ReadApiFile(const QString& strPath) {
    marrConstants.clear();
    marrDeclares.clear();
    marrTypes.clear();
    mobjApiLoader = std::make_unique<cApiLoader>();
    mobjApiLoader->LoadFile(strPath);
}

void frmApiViewer::TakeNameArrays() {
    marrConstants = mobjApiLoader->ConstantNames();
    marrDeclares = mobjApiLoader->DeclareNames();
    marrTypes = mobjApiLoader->TypeNames();
}

void frmApiViewer::ShowDeclares(const QString& strPath) {
    TakeNameArrays();
    // Choosing the entry raises the combo's Click, which fills the list.
    cboTypes->setText(QStringLiteral("Declares"));
    WarnIfNoDeclarations(strPath);
}

void frmApiViewer::WarnIfNoDeclarations(const QString& strPath) {
    if (!marrConstants.isEmpty() || !marrDeclares.isEmpty() || !marrTypes.isEmpty())
        return;
    host().msgBox(QStringLiteral("The file ") + QDir::toNativeSeparators(strPath) +
                      QStringLiteral(" holds no API declarations: no constants, no Declare "
                                     "statements and no types were found in it."),
                  vbInformation, QStringLiteral("API Viewer"));
}

void frmApiViewer::mnuLoad_Click() {
    try {
        LoadApiFile(false);
    } catch (...) {
        HandleFailure("frmApiViewer:mnuLoad_Click;");
    }
}

void frmApiViewer::mnuLastFile_Click() {
    try {
        const QString path = ApiSetting(REG_VAL_API_PATH, REG_DEF_API_PATH);
        const QString fileName = ApiSetting(REG_VAL_API_PATHFILENAME, REG_DEF_API_PATHFILENAME);
        const QString lastPath = ApiSetting(REG_VAL_API_LASTPATH, REG_DEF_API_LASTPATH);
        const QString lastName =
            ApiSetting(REG_VAL_API_LASTPATHFILENAME, REG_DEF_API_LASTPATHFILENAME);
        SaveApiSetting(REG_VAL_API_LASTPATH, path);
        SaveApiSetting(REG_VAL_API_LASTPATHFILENAME, fileName);
        SaveApiSetting(REG_VAL_API_PATH, lastPath);
        SaveApiSetting(REG_VAL_API_PATHFILENAME, lastName);
        const QString file = FormatPath(lastPath) + lastName;
        ReadApiFile(file);
        TakeNameArrays();
        cboTypes_Click();
        WarnIfNoDeclarations(file);
    } catch (...) {
        HandleFailure("frmApiViewer:mnuLastFile_Click;");
    }
}

const VbArray<QString>& frmApiViewer::ChosenNames() const {
    static const VbArray<QString> kNone;
    const QString type = cboTypes->Text();
    if (type == QLatin1String("Constants"))
        return marrConstants;
    if (type == QLatin1String("Declares"))
        return marrDeclares;
    if (type == QLatin1String("Types"))
        return marrTypes;
    return kNone;
}

QString frmApiViewer::ChosenText(const QString& strName) const {
    const QString type = cboTypes->Text();
    const QMap<QString, QString>* items = nullptr;
    if (type == QLatin1String("Constants"))
        items = &mobjApiLoader->Constants();
    else if (type == QLatin1String("Declares"))
        items = &mobjApiLoader->Declares();
    else if (type == QLatin1String("Types"))
        items = &mobjApiLoader->Types();
    const auto found = items ? items->constFind(strName) : QMap<QString, QString>::const_iterator();
    if (!items || found == items->constEnd())
        throw QsError(5, QString::fromLatin1(kAppSource),
                      QStringLiteral("Invalid procedure call or argument"));
    return *found;
}

void frmApiViewer::cboTypes_Click() {
    try {
        host().setMousePointer(vbHourglass);
        lstAvailItems->setUpdatesEnabled(false);
        lstAvailItems->Clear();
        const VbArray<QString>& names = ChosenNames();
        for (int i = 1; i <= names.UBound(); ++i)
            lstAvailItems->AddItem(names(i));
        lstAvailItems->setUpdatesEnabled(true);
        host().setMousePointer(vbDefault);
    } catch (...) {
        lstAvailItems->setUpdatesEnabled(true);
        HandleFailure("frmApiViewer:cboTypes_Click;");
    }
}

void frmApiViewer::lstAvailItems_Click() {
    try {
        frmeScope->setEnabled(true);
        cmdAdd->setEnabled(true);
    } catch (...) {
        HandleFailure("frmApiViewer:lstAvailItems_Click;");
    }
}

void frmApiViewer::txtSearch_KeyUp(int& keyCode, int shift) {
    (void)keyCode;
    (void)shift;
    try {
        const int count = lstAvailItems->ListCount();
        if (count == 0)
            return;
        const QString search = txtSearch->Text();
        const int n = search.size();
        // The list shows the chosen array from its first name on; the walk reads the array,
        // which is much quicker than asking the list for each entry.
        const VbArray<QString>& names = ChosenNames();
        const bool mirrored = names.UBound() == count;
        for (mintSearchPos = 0; mintSearchPos < count; ++mintSearchPos) {
            const QString entry =
                mirrored ? names.rows().at(mintSearchPos) : lstAvailItems->List(mintSearchPos);
            if (entry.size() < n)
                continue;
            // Upper-cased character by character, both sides, as the comparison is meant.
            int i = 0;
            while (i < n && entry.at(i).toUpper() == search.at(i).toUpper())
                ++i;
            if (i == n) {
                lstAvailItems->setListIndex(mintSearchPos);
                return;
            }
        }
    } catch (...) {
        HandleFailure("frmApiViewer:txtSearch_KeyUp;");
    }
}

void frmApiViewer::mnuExit_Click() {
    try {
        Unload();
    } catch (...) {
        HandleFailure("frmApiViewer:mnuExit_Click;");
    }
}

void frmApiViewer::mnuHelpContents_Click() {
    try {
        ShowHelpContents();
    } catch (...) {
        HandleFailure("frmApiViewer:mnuHelpContents_Click;");
    }
}

void frmApiViewer::mnuHelpSearch_Click() {
    try {
        ShowHelpSearch();
    } catch (...) {
        HandleFailure("frmApiViewer:mnuHelpSearch_Click;");
    }
}

void frmApiViewer::mnuAbout_Click() {
    try {
        host().msgBox(QStringLiteral("This ''API Viewer'' is used to view Windows Declares, "
                                     "Constants, and Types. \r\n"
                                     "It allows you to search the API files and copy them to the "
                                     "windows clipboard\r\n"
                                     "so that you can paste them into your project."),
                      vbInformation, QStringLiteral("API Viewer"));
    } catch (...) {
        HandleFailure("frmApiViewer:mnuAbout_Click;");
    }
}

} // namespace qs
