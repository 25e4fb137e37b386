#pragma once

#include "QsError.h"

#include <QString>

namespace qs {

// Errors the data service raises.  Numbers follow the object-error convention of the original
// components (vbObjectError + 512 + n); every error carries the class and operation as its
// source, e.g. "cLibraryService:GetItems;".
inline constexpr long vbObjectError = -2147221504L;

// "The Quillstone Database does not exist in the specified path."  The file named by the
// settings (or passed to an operation) is not there.
inline constexpr long kErrDatabaseNotFound = vbObjectError + 513;
// "The database is missing or corrupt."  The file exists but is not a library of this program:
// empty, garbage, another SQLite schema, or a schema newer than this program knows.  Such a file
// is never written to.
inline constexpr long kErrDatabaseCorrupt = vbObjectError + 514;
// "Object is read-only."  Save without BeginEdit, or a change to a stored revision line.
inline constexpr long kErrReadOnly = vbObjectError + 515;
// "Access Not Authorized \""  The acting user may not change that user record.
inline constexpr long kErrNotAuthorized = vbObjectError + 516;
// "Required paramaters are missing from the function call."  An id, a table name or a required
// field is missing or out of range.
inline constexpr long kErrMissingParameters = vbObjectError + 517;
// "The record does not exist in the database."  GetSourceCode or GetSourceFile of an unknown id,
// UpdateCategory of an unknown category, SaveToDisk of a stored file that is gone, and a Save
// (item, author or user) whose row is gone (another user deleted it meanwhile).  A caller that
// shows its own message for a missing record tests for this number.
inline constexpr long kErrRecordNotFound = vbObjectError + 518;
// "The record is still in use: ..."  A category with items, an author credited with items, a
// folder with children, or the category "Visual Basic", which cannot be deleted.
inline constexpr long kErrRecordInUse = vbObjectError + 519;
// "The UserId already exists in the database."  A new user or a rename onto a taken id.
inline constexpr long kErrDuplicateUser = vbObjectError + 520;
// The storage engine refused (disk full, locked past the busy timeout, ...): the description is
// the engine's own text.  The operation left the database as it was.
inline constexpr long kErrStorage = vbObjectError + 521;
// "The parent folder is not valid: ..."  A Save whose ParentId names no folder of the same table
// and category, or a folder inside the item's own subtree (a folder moved under itself).  The
// description's tail says which; nothing is written.
inline constexpr long kErrInvalidParent = vbObjectError + 522;

inline constexpr const char kTextDatabaseNotFound[] =
    "The Quillstone Database does not exist in the specified path.";
inline constexpr const char kTextDatabaseCorrupt[] = "The database is missing or corrupt.";
inline constexpr const char kTextReadOnly[] = "Object is read-only.";
inline constexpr const char kTextNotAuthorized[] = "Access Not Authorized \"";
inline constexpr const char kTextMissingParameters[] =
    "Required paramaters are missing from the function call.";
inline constexpr const char kTextRecordNotFound[] = "The record does not exist in the database.";
inline constexpr const char kTextRecordInUse[] = "The record is still in use: ";
inline constexpr const char kTextDuplicateUser[] = "The UserId already exists in the database.";
inline constexpr const char kTextInvalidParent[] = "The parent folder is not valid: ";

// Raises the error of that number with its fixed text (kErrStorage, kErrRecordInUse and
// kErrInvalidParent take the detail as their description's tail).
[[noreturn]] void RaiseServiceError(long number, const QString& source,
                                    const QString& detail = QString());

} // namespace qs
