#pragma once

#include <QString>
#include <QVariant>

namespace qs {

class ComboBox;
class frmMain;

// The start procedure: refuses a second instance, creates the service object, works out the
// settings file, makes sure a database and a user exist, and shows frmLogin.  Returns once the
// login window is up; everything after that happens in event handlers.
void Main();

// What an installer writes before the first start: HelpFiles\FilePath, the per-user HelpFiles
// folder that the shipped help pages are copied to.  A value already there, even an empty one,
// is kept.  Main calls it first.
void WriteInstallDefaults();

// The way out of the program: releases gobjLibrary and closes every connection to a library
// file, so that the file alone holds every commit.  End runs it (Main hands it to the real host)
// and the program runs it when its last window has gone.
void CloseLibrary();

// True when the database holds at least one user, and also after the database-missing dialog has
// run.  False (after telling the user) when the database holds none; gblnFirstUser is then set.
bool UsersExist();

// Unloads every loaded form whose name differs from strExcept; "" unloads them all.
void UnloadAllForms(const QString& strExcept = QString());

// The settings file: FormatPath(Datafiles\FilePath) & Datafiles\FileName, each read with its
// default.  The file need not exist.
QString SettingsFilePath();

// Selects on frmMain the search choices saved under SearchSettings: the entries of cboCategory,
// cboCodeType and cboTestedOrUntested equal to the saved texts (the last equal entry wins) and
// the search option named by LastSearchCriteria.
void RestoreSearchSettings(frmMain& main);

// Fills a combo box from a table of the library: "Authors" and "Users" from their lists, every
// other table ("Category", "CodeType", "FileType", "AccessType", "CodeStatus") from its lookup
// rows, whose id, code and description are shown as showField1..3 ask, joined by " - ".
// Replaces gobjLibrary with a fresh service object first.
void FillComboBox(const QString& strTable, ComboBox* cboCombo, bool blnShowField1 = false,
                  bool blnShowField2 = false, bool blnShowField3 = true,
                  const QString& strFormat = QString(), bool blnSetItemData = true,
                  bool blnClearFirst = true, const QVariant& varCriteria = QVariant());

// True when the logged-in user's bookmark list of that table ("BkMark_SrcCode" or
// "BkMark_SrcFile") holds the item; strUserId is not what is read.  For stored files the order
// of the steps stands as it is: the code list's bound is read before any list is fetched, so
// the check fails, reports the failure and answers False.  A file bookmark is never found here.
bool DoesBookMarkExist(const QString& strTable, const QString& strUserId, const QString& strItemId);

} // namespace qs
