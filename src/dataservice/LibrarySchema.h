#pragma once

#include <QStringList>
#include <QVector>

namespace qs {

// The library's schema, version by version.  A new version is a new entry at the end of the
// list with the statements that bring the previous version up to it; a file records every
// version applied in the table SchemaVersion(Version, AppliedOn).
//
// Version 1, the tables (ids are INTEGER PRIMARY KEY; 0 in a ParentId means the top level):
//   SchemaVersion, LibraryInfo(Name, Value)     bookkeeping ("Application", "Created",
//                                               "SettingsFile" as passed to CreateDatabase)
//   AccessType, Category, CodeType, FileType, CodeStatus, Path
//                                               lookups: Id, Code, Description
//   Authors(AuthorId, FirstName, LastName)
//   Users(UserKey, UserId unique, Password, FirstName, LastName, AccessLevel -> AccessType,
//         Question, Answer)                     bookmarks refer to UserKey, so renaming a
//                                               UserId is one update
//   SourceCode(Id, ParentId, CategoryId, CodeTypeId, Tested, AuthorId, IsFolder, Description,
//              DateWritten, DateEntered, Notes, Example, Code)
//   RevHist_SrcCode(RevId, SourceCodeId, Seq, AuthorId, Version, Comment, DateRevised)
//   SourceFile(Id, ParentId, CategoryId, FileTypeId, AuthorId, IsFolder, Description,
//              DateEntered, Notes, FileName, FullPath, DosName, FileTypeName, Size,
//              DateCreated, ReadOnly, Hidden, System, Archive, Temporary, Compressed,
//              Icon (PNG bytes), VersionInfo (JSON text, layout owned by cFileVersionInfo))
//   SourceFileChunk(SourceFileId, Seq, Data)    the stored bytes in order of Seq
//   RevHist_SrcFile(RevId, SourceFileId, Seq, AuthorId, Version, Comment, DateRevised)
//   BkMark_SrcCode(BkMarkId, UserKey, SourceCodeId), BkMark_SrcFile(BkMarkId, UserKey,
//                  SourceFileId)                one row per user and item
//   SourceCodeSearch                            FTS5 over SourceCode (Description, Code, Notes,
//                                               Example), external content, rowid = Id,
//                                               tokenizer "unicode61 remove_diacritics 0",
//                                               kept in step by triggers on SourceCode
// Version 2 adds covering indexes, version 3 makes the search index again with the piece
// tokenizer (SearchSchema.h).
// Revisions, chunks and bookmarks go with their item (ON DELETE CASCADE); bookmarks go with
// their user.  An item, category or lookup row that is referred to cannot be deleted.  A
// revision's author may go: the line stays with empty names.
struct SchemaMigration {
    int version;
    QStringList statements;
};

const QVector<SchemaMigration>& SchemaMigrations();
int LatestSchemaVersion();
// Tables every library of the latest version holds; opening checks they are there.
const QStringList& RequiredTables();

} // namespace qs
