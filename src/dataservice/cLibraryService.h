#pragma once

#include "AuthorRow.h"
#include "ItemRow.h"
#include "LookupRow.h"
#include "UserRow.h"
#include "VbArray.h"
#include "cAuthor.h"
#include "cSourceCode.h"
#include "cSourceFile.h"

#include <QString>
#include <QVariant>
#include <memory>
#include <optional>

class QSqlQuery;

namespace qs {

class SqliteStore;

// The one entrance to the catalogue.  A new object takes the database file the settings name
// at the moment it is made (ConfiguredDatabasePath); an object keeps that file for its life,
// whatever the settings say later.  The file is opened at the first call that needs it, with
// its own connection, and a missing or foreign file raises then:
//   kErrDatabaseNotFound  "The Quillstone Database does not exist in the specified path."
//   kErrDatabaseCorrupt   "The database is missing or corrupt."  (never modified)
// Every operation raises a QsError whose source is "cLibraryService:<operation>;"; a failed
// operation leaves the database as it was.  Lists are VbArray: rows from 1, empty = bounds 0/0.
// Records handed out stay usable after this object is gone.
class cLibraryService {
public:
    cLibraryService();
    // An object on that file, whatever the settings say.
    explicit cLibraryService(const QString& databasePath);
    ~cLibraryService();
    cLibraryService(const cLibraryService&) = delete;
    cLibraryService& operator=(const cLibraryService&) = delete;

    const QString& DatabasePath() const { return mDatabasePath; }

    // The record with its revisions; an unknown id raises kErrRecordNotFound.
    cSourceCode GetSourceCode(int lngId);
    // The record with its catalogue fields, file facts and revisions (not the bytes); an
    // unknown id raises kErrRecordNotFound.
    cSourceFile GetSourceFile(int lngId);
    // The rows of "AccessType", "Category", "CodeType", "FileType", "CodeStatus" or "Path" in
    // the order of their ids; another name raises kErrMissingParameters.  varCriteria and the
    // two flags are accepted for the callers' sake and change nothing.
    VbArray<LookupRow> GetLookup(const QString& strTable, const QVariant& varCriteria = QVariant(),
                                 bool blnFirst = true, bool blnSecond = false);
    // The items and folders of "SourceCode" or "SourceFile" that match every filter; 0 filters
    // nothing.  lngCodeTypeId filters CodeTypeId (SourceCode) or FileTypeId (SourceFile);
    // intStatus 1 tested, 2 untested, 0 both (stored files have no such state: the status filter
    // passes them all).  A parent in the result always comes before its children, whatever
    // order the rows were written in; otherwise rows keep the order of their ids.  The
    // arguments marked 0 are kept for the callers' sake.
    VbArray<ItemRow> GetItems(const QString& strTable, int reserved1, int lngCategoryId,
                              int lngCodeTypeId, int lngAuthorId, int reserved2, int intStatus,
                              int reserved3);
    // The author, or nothing (no error) when there is no such id.
    std::optional<cAuthor> GetAuthor(int lngId);
    // Inserts a category and returns its id.  Names need not be unique.
    int AddCategory(const QString& strName);
    void AddCategory(const QString& strName, int& lngId) { lngId = AddCategory(strName); }
    // Removes a category.  "Visual Basic" (id 1) and a category that still holds items or
    // folders are refused with kErrRecordInUse; an unknown id does nothing.
    void DeleteCategory(int lngId);
    // Renames a category; an unknown id raises kErrRecordNotFound.
    void UpdateCategory(int lngId, const QString& strName);
    // Bookmarks item lngItemId of "BkMark_SrcCode" or "BkMark_SrcFile" for the user.  A second
    // bookmark of the same item for the same user does nothing, so a list never holds an item
    // twice.  An unknown user or item raises kErrMissingParameters.  The flag changes nothing.
    void AddBookmark(const QString& strTable, int lngItemId, const QString& strUserId,
                     bool blnFlag = true);
    // Removes the user's bookmark of the item; the item stays.  No such bookmark: nothing.
    void DeleteBookmark(const QString& strTable, const QString& strUserId, int lngItemId);
    // The user's bookmarked items of that table, as item rows, in the order they were added.
    // Bookmarks go with their item when it is deleted and with their user.
    VbArray<ItemRow> GetBookmarks(const QString& strTable, const QString& strUserId,
                                  bool blnFlag = true);
    // Every user, ordered by last name, first name, id.  The flag changes nothing.
    VbArray<UserRow> GetUsers(bool blnFlag = false);
    // Every author, ordered by last name, first name, id.  The flag changes nothing.
    VbArray<AuthorRow> GetAuthors(bool blnFlag = false);
    // Items whose fields hold strText at the start of a word, case-insensitively: text items'
    // description, code, notes and example, stored files' description and notes (these only
    // when the type filter is 0, 101 or 102).  intMatchMode 0 the exact phrase (trimmed),
    // 1 any of its blank-separated words, 2 all of them, in any fields; a word that begins with
    // punctuation matches anywhere, and "%", "_" and "\" are plain characters.  Filtered by
    // category, status (1, 2; 0 both; stored files pass every status) and type (0 any).
    // Folder rows whose own fields match come back with IsFolder set.  Rows in id order, text
    // items first.  No hits, or no words, gives an empty list.  Answers are the same as a plain
    // scan of the rows would give, for any text.  Defined in cLibraryService_search.cpp.
    VbArray<ItemRow> Search(int intMatchMode, const QString& strText, int lngCategoryId,
                            int intStatus, int lngCodeTypeId, int reserved1 = 0, int reserved2 = 0);
    // Makes a new, empty library at the path with the fixed rows: access types 1 "Admin",
    // 2 "Read", 3 "Read/Write", 4 "Unauthorized"; category 1 "Visual Basic"; code types 201 to
    // 204; file types 101, 102; code status 1 "Tested", 2 "UnTested".  Missing folders are made.
    // An existing file at the path is refused (kErrStorage) and left alone.  strSettingsFile is
    // recorded in the library (LibraryInfo "SettingsFile") and not otherwise used.
    void CreateDatabase(const QString& strDatabasePath, const QString& strSettingsFile);
    // Copies the library at the path to a consistent backup, also while other connections
    // write, and returns the backup's path: a folder "Backup" beside the database, the file
    // named after the database with the time of the backup, e.g.
    // "Backup/Quillstone 2024-05-01 142530.mdb" (" (2)", " (3)" ... when that name is taken).
    // The backup is a library of its own that opens like any other.
    QString BackupDatabase(const QString& strDatabasePath);
    // Compacts the library at the path in place; every row stays.  The compacted copy replaces
    // the file only once it is whole on disc, so a crash at any moment leaves the whole old or
    // the whole new library.  The library must not be open elsewhere (another service object
    // or program): that is refused with kErrStorage and changes nothing.  This object's own
    // connection is closed first and opens again at its next call.
    void CompactDatabase(const QString& strDatabasePath);

private:
    // The connection of this object, opened at first use.
    SqliteStore& store(const QString& source);
    // An item row from the columns ParentId, Id, CategoryId, TypeId, Tested, Description,
    // IsFolder, in that order.
    static ItemRow itemRowFrom(const QSqlQuery& query);
    static void orderParentsFirst(VbArray<ItemRow>& rows);

    QString mDatabasePath;
    std::unique_ptr<SqliteStore> mStore;
};

} // namespace qs
