#pragma once

// Keys, value names and defaults of the machine-wide key store, and the mode words the
// maintenance forms exchange.  Every key hangs under HKEY_LOCAL_MACHINE.
namespace qs {

inline constexpr const char REG_KEY_ROOT[] = "SOFTWARE\\Tarnwick\\Quillstone System";

// Database: the folder and file name of the current database.
inline constexpr const char REG_KEY_DATABASE[] = "SOFTWARE\\Tarnwick\\Quillstone System\\Database";
inline constexpr const char REG_VAL_DATABASE_PATH[] = "Path";
inline constexpr const char REG_DEF_DATABASE_PATH[] = "Database";
inline constexpr const char REG_VAL_DATABASE_FILENAME[] = "FileName";
inline constexpr const char REG_DEF_DATABASE_FILENAME[] = "Quillstone.mdb";

// Datafiles: the folder and name of the settings file.  The folder's default is
// FormatPath(AppPath()) & REG_DEF_DATAFILES_FOLDER.
inline constexpr const char REG_KEY_DATAFILES[] =
    "SOFTWARE\\Tarnwick\\Quillstone System\\Datafiles";
inline constexpr const char REG_VAL_DATAFILES_FILEPATH[] = "FilePath";
inline constexpr const char REG_DEF_DATAFILES_FOLDER[] = "Datafiles";
inline constexpr const char REG_VAL_DATAFILES_FILENAME[] = "FileName";
inline constexpr const char REG_DEF_DATAFILES_FILENAME[] = "Quillstone.ini";

// HelpFiles: the folder and name of the help file.  The folder's default is
// FormatPath(AppPath()) & REG_DEF_HELPFILES_FOLDER.
inline constexpr const char REG_KEY_HELPFILES[] =
    "SOFTWARE\\Tarnwick\\Quillstone System\\HelpFiles";
inline constexpr const char REG_VAL_HELPFILES_FILEPATH[] = "FilePath";
inline constexpr const char REG_DEF_HELPFILES_FOLDER[] = "HelpFiles";
inline constexpr const char REG_VAL_HELPFILES_FILENAME[] = "FileName";
inline constexpr const char REG_DEF_HELPFILES_FILENAME[] = "Quillstone.hlp";

// TviewSettings: the keys of the last category and code-type nodes.
inline constexpr const char REG_KEY_TVIEWSETTINGS[] =
    "SOFTWARE\\Tarnwick\\Quillstone System\\TviewSettings";
inline constexpr const char REG_VAL_LASTNODECATEGORY[] = "LastNodeCategory";
inline constexpr const char REG_DEF_LASTNODECATEGORY[] = "ROOT";
inline constexpr const char REG_VAL_TVIEW_LASTCODETYPE[] = "LastCodeType";
inline constexpr const char REG_DEF_TVIEW_LASTCODETYPE[] = "ROOT";

// ToolBarSettings: whether the bookmark view is on.  The default is a boolean, which the writer
// never stores, so the value stays absent and the default keeps being returned.
inline constexpr const char REG_KEY_TOOLBARSETTINGS[] =
    "SOFTWARE\\Tarnwick\\Quillstone System\\ToolBarSettings";
inline constexpr const char REG_VAL_VIEWBOOKMARKS[] = "ViewBookMarks";
inline constexpr bool REG_DEF_VIEWBOOKMARKS = true;

// SearchSettings: the last search choices.
inline constexpr const char REG_KEY_SEARCHSETTINGS[] =
    "SOFTWARE\\Tarnwick\\Quillstone System\\SearchSettings";
inline constexpr const char REG_VAL_LASTCAT[] = "LastCat";
inline constexpr const char REG_DEF_LASTCAT[] = "";
inline constexpr const char REG_VAL_SEARCH_LASTCODETYPE[] = "LastCodeType";
inline constexpr const char REG_DEF_SEARCH_LASTCODETYPE[] = "";
inline constexpr const char REG_VAL_LASTMODETYPE[] = "LastModeType";
inline constexpr const char REG_DEF_LASTMODETYPE[] = "";
inline constexpr const char REG_VAL_LASTSEARCHCRITERIA[] = "LastSearchCriteria";
inline constexpr const char REG_DEF_LASTSEARCHCRITERIA[] = "Exact Phrase";
inline constexpr const char REG_SEARCH_EXACT_PHRASE[] = "Exact Phrase";
inline constexpr const char REG_SEARCH_ALL_WORDS[] = "All Words";
inline constexpr const char REG_SEARCH_ANY_WORD[] = "Any Word";

// ApiSetting: the API file last opened and the one before it, and the viewing choice.
inline constexpr const char REG_KEY_APISETTING[] =
    "SOFTWARE\\Tarnwick\\Quillstone System\\ApiSetting";
inline constexpr const char REG_VAL_API_PATH[] = "Path";
inline constexpr const char REG_DEF_API_PATH[] = "";
inline constexpr const char REG_VAL_API_PATHFILENAME[] = "PathFileName";
inline constexpr const char REG_DEF_API_PATHFILENAME[] = "Win32api.txt";
inline constexpr const char REG_VAL_API_LASTPATH[] = "LastPath";
inline constexpr const char REG_DEF_API_LASTPATH[] = "";
inline constexpr const char REG_VAL_API_LASTPATHFILENAME[] = "LastPathFileName";
inline constexpr const char REG_DEF_API_LASTPATHFILENAME[] = "Win32api.txt";
inline constexpr const char REG_VAL_API_LASTCLICKED[] = "LastClicked";
inline constexpr const char REG_DEF_API_LASTCLICKED[] = "Full";

// Kept for the layout; nothing reads or writes them.
inline constexpr const char REG_KEY_PROGRAM[] = "\\QUILLSTONE";
inline constexpr const char REG_DEF_PROGRAM_FILE[] = "Quillstone.exe";
inline constexpr const char REG_KEY_REPORTFILES[] = "\\Report Files";
inline constexpr const char REG_DEF_REPORTS_FOLDER[] = "Reports";
inline constexpr const char REG_KEY_ERRORLOG[] = "\\ErrorLog";
inline constexpr const char REG_DEF_ERRORLOG_FOLDER[] = "ErrorLog";
inline constexpr const char REG_DEF_ERRORLOG_FILE[] = "Quillstone.log";
inline constexpr const char REG_KEY_CBOSETTINGS[] = "\\CboSettings";
inline constexpr const char REG_VAL_LASTCBOCATCLICKED[] = "LastCboCatClicked";
inline constexpr const char REG_VAL_LASTCBOCODEFILECLICKED[] = "LastCboCodeFileClicked";

// The settings file's section in ordinary use.
inline constexpr const char INI_SECTION_APPSETTINGS[] = "AppSettings";
inline constexpr const char INI_KEY_USERID[] = "UserId";
inline constexpr const char INI_KEY_REMEMBERPASS[] = "RememberPass";

// Mode words of the maintenance forms.
inline constexpr const char MODE_ADD[] = "Add";
inline constexpr const char MODE_UPDATE[] = "Update";
inline constexpr const char MODE_DELETE[] = "Delete";
inline constexpr const char MODE_RENAME[] = "Rename";

} // namespace qs
