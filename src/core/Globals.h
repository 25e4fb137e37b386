#pragma once

#include <QString>
#include <memory>

namespace qs {

class cLibraryService;
class cUser;

// ---- Login: filled by a good login, read everywhere ----
extern std::shared_ptr<cUser> gobjCurrentUser; // the logged-in user's record, kept for frmUser
extern QString gstrUserId;
extern QString gstrFirstName;
extern QString gstrLastName;
extern QString gstrUserName; // first name, one blank, last name
extern short gintAccessLevel;
extern QString gstrAccessType; // "Admin", "User" or "Unauthorized"

// ---- Start-up ----
// The one service object; replaced by a fresh one before most batches of calls, since a new
// object reads the database path afresh.  A handler that yields (DoEvents) holds its own copy
// across the yield, since an event run meanwhile may replace or release the global:
//     const auto library = NewLibrary();
//     host().doEvents();
//     library->GetLookup(...);
extern std::shared_ptr<cLibraryService> gobjLibrary;
// Replaces gobjLibrary with a new service object and returns a hold on it.
std::shared_ptr<cLibraryService> NewLibrary();
extern bool gblnFirstUser;          // the database holds no user yet; lasts for the process
extern bool gblnFirstUserCancelled; // the first-user form was left with no user made
extern bool gblnSwitchingDatabase;  // a login to another database from the main window
extern QString gstrPriorDbPath;     // Database\Path before a database dialog opened
extern QString gstrPriorDbFile;     // Database\FileName before a database dialog opened
extern short gintLoginAttempts;     // presses of cmdOk since a database was last chosen
extern QString gstrFirstUserId;
extern QString gstrFirstUserPassword;
// The settings file ("Quillstone.ini") as worked out by Main.
extern QString gstrSettingsFile;

// ---- Selection: written by the tree handlers, read by every command ----
extern long glngSelectedId;
extern long glngParentId;
extern QString gstrCategory;
extern long glngCategoryId;
extern QString gstrSourceType;
extern long glngSourceTypeId;
extern QString gstrCodeStatus; // "Tested" or "UnTested"
extern long gintCodeStatusId;  // 1 tested, 2 untested
extern QString gstrClickButton;
extern bool gblnCodeView;

// ---- Dialogs ----
extern QString gstrMode; // "Add" or "Update"
extern QString gstrCurrentVersion;
extern short gintMajor;
extern short gintMinor;
extern short gintRevision;
extern QString gstrFolderType;
extern long glngFolderAuthorId;
extern QString gstrFolderName;
extern bool gblnFolderAccepted;
extern QString gstrInsertChoice;
extern bool gblnInsertCancelled;

// ---- Output ----
// The header-and-code text that frmCopyDialog and frmExportToHtmlFile build (their SourceText),
// and the flag frmCopyDialog's Cancel raises; each file export lowers it at its end.
extern QString gstrExportText;
extern bool gblnExportCancelled;

// Puts every global above back to its value at process start (tests call it between cases).
void ResetGlobals();

} // namespace qs
