#include "Globals.h"

#include "cLibraryService.h"
#include "cUser.h"

namespace qs {

std::shared_ptr<cUser> gobjCurrentUser;
QString gstrUserId;
QString gstrFirstName;
QString gstrLastName;
QString gstrUserName;
short gintAccessLevel = 0;
QString gstrAccessType;

std::shared_ptr<cLibraryService> gobjLibrary;

std::shared_ptr<cLibraryService> NewLibrary() {
    gobjLibrary = std::make_shared<cLibraryService>();
    return gobjLibrary;
}
bool gblnFirstUser = false;
bool gblnFirstUserCancelled = false;
bool gblnSwitchingDatabase = false;
QString gstrPriorDbPath;
QString gstrPriorDbFile;
short gintLoginAttempts = 0;
QString gstrFirstUserId;
QString gstrFirstUserPassword;
QString gstrSettingsFile;

long glngSelectedId = 0;
long glngParentId = 0;
QString gstrCategory;
long glngCategoryId = 0;
QString gstrSourceType;
long glngSourceTypeId = 0;
QString gstrCodeStatus;
long gintCodeStatusId = 0;
QString gstrClickButton;
bool gblnCodeView = false;

QString gstrMode;
QString gstrCurrentVersion;
short gintMajor = 0;
short gintMinor = 0;
short gintRevision = 0;
QString gstrFolderType;
long glngFolderAuthorId = 0;
QString gstrFolderName;
bool gblnFolderAccepted = false;
QString gstrInsertChoice;
bool gblnInsertCancelled = false;

QString gstrExportText;
bool gblnExportCancelled = false;

void ResetGlobals() {
    gobjCurrentUser.reset();
    gstrUserId.clear();
    gstrFirstName.clear();
    gstrLastName.clear();
    gstrUserName.clear();
    gintAccessLevel = 0;
    gstrAccessType.clear();

    gobjLibrary.reset();
    gblnFirstUser = false;
    gblnFirstUserCancelled = false;
    gblnSwitchingDatabase = false;
    gstrPriorDbPath.clear();
    gstrPriorDbFile.clear();
    gintLoginAttempts = 0;
    gstrFirstUserId.clear();
    gstrFirstUserPassword.clear();
    gstrSettingsFile.clear();

    glngSelectedId = 0;
    glngParentId = 0;
    gstrCategory.clear();
    glngCategoryId = 0;
    gstrSourceType.clear();
    glngSourceTypeId = 0;
    gstrCodeStatus.clear();
    gintCodeStatusId = 0;
    gstrClickButton.clear();
    gblnCodeView = false;

    gstrMode.clear();
    gstrCurrentVersion.clear();
    gintMajor = 0;
    gintMinor = 0;
    gintRevision = 0;
    gstrFolderType.clear();
    glngFolderAuthorId = 0;
    gstrFolderName.clear();
    gblnFolderAccepted = false;
    gstrInsertChoice.clear();
    gblnInsertCancelled = false;

    gstrExportText.clear();
    gblnExportCancelled = false;
}

} // namespace qs
