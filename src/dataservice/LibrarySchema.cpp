#include "LibrarySchema.h"

#include "SearchSchema.h"

namespace qs {

namespace {

QStringList version1() {
    QStringList statements{
        QStringLiteral("CREATE TABLE LibraryInfo (Name TEXT PRIMARY KEY, Value TEXT NOT NULL "
                       "DEFAULT '')"),
        QStringLiteral("CREATE TABLE AccessType (Id INTEGER PRIMARY KEY, Code TEXT NOT NULL "
                       "DEFAULT '', Description TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE Category (Id INTEGER PRIMARY KEY AUTOINCREMENT, Code TEXT "
                       "NOT NULL DEFAULT '', Description TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE CodeType (Id INTEGER PRIMARY KEY, Code TEXT NOT NULL "
                       "DEFAULT '', Description TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE FileType (Id INTEGER PRIMARY KEY, Code TEXT NOT NULL "
                       "DEFAULT '', Description TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE CodeStatus (Id INTEGER PRIMARY KEY, Code TEXT NOT NULL "
                       "DEFAULT '', Description TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE Path (Id INTEGER PRIMARY KEY, Code TEXT NOT NULL "
                       "DEFAULT '', Description TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE TABLE Authors (AuthorId INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "FirstName TEXT NOT NULL DEFAULT '', LastName TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE INDEX Authors_Name ON Authors (LastName, FirstName)"),
        QStringLiteral("CREATE TABLE Users (UserKey INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "UserId TEXT NOT NULL UNIQUE, Password TEXT NOT NULL DEFAULT '', "
                       "FirstName TEXT NOT NULL DEFAULT '', LastName TEXT NOT NULL DEFAULT '', "
                       "AccessLevel INTEGER NOT NULL REFERENCES AccessType (Id), "
                       "Question TEXT NOT NULL DEFAULT '', Answer TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE INDEX Users_Name ON Users (LastName, FirstName)"),
        // Small columns first: list calls read them without touching the overflow pages of
        // the long texts.
        QStringLiteral("CREATE TABLE SourceCode (Id INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "ParentId INTEGER NOT NULL DEFAULT 0, "
                       "CategoryId INTEGER NOT NULL REFERENCES Category (Id), "
                       "CodeTypeId INTEGER NOT NULL REFERENCES CodeType (Id), "
                       "Tested INTEGER NOT NULL REFERENCES CodeStatus (Id), "
                       "AuthorId INTEGER REFERENCES Authors (AuthorId), "
                       "IsFolder INTEGER NOT NULL DEFAULT 0, Description TEXT NOT NULL DEFAULT '', "
                       "DateWritten TEXT, DateEntered TEXT, Notes TEXT NOT NULL DEFAULT '', "
                       "Example TEXT NOT NULL DEFAULT '', Code TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE INDEX SourceCode_Filter ON SourceCode (CategoryId, CodeTypeId, "
                       "Tested)"),
        QStringLiteral("CREATE INDEX SourceCode_Type ON SourceCode (CodeTypeId, Tested)"),
        QStringLiteral("CREATE INDEX SourceCode_Author ON SourceCode (AuthorId)"),
        QStringLiteral("CREATE INDEX SourceCode_Parent ON SourceCode (ParentId)"),
        QStringLiteral("CREATE TABLE RevHist_SrcCode (RevId INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "SourceCodeId INTEGER NOT NULL REFERENCES SourceCode (Id) ON DELETE "
                       "CASCADE, Seq INTEGER NOT NULL, "
                       "AuthorId INTEGER REFERENCES Authors (AuthorId) ON DELETE SET NULL, "
                       "Version TEXT NOT NULL DEFAULT '', Comment TEXT NOT NULL DEFAULT '', "
                       "DateRevised TEXT, UNIQUE (SourceCodeId, Seq))"),
        QStringLiteral("CREATE INDEX RevHist_SrcCode_Author ON RevHist_SrcCode (AuthorId)"),
        QStringLiteral("CREATE TABLE SourceFile (Id INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "ParentId INTEGER NOT NULL DEFAULT 0, "
                       "CategoryId INTEGER NOT NULL REFERENCES Category (Id), "
                       "FileTypeId INTEGER NOT NULL REFERENCES FileType (Id), "
                       "AuthorId INTEGER REFERENCES Authors (AuthorId), "
                       "IsFolder INTEGER NOT NULL DEFAULT 0, Description TEXT NOT NULL DEFAULT '', "
                       "DateEntered TEXT, FileName TEXT NOT NULL DEFAULT '', "
                       "FullPath TEXT NOT NULL DEFAULT '', DosName TEXT NOT NULL DEFAULT '', "
                       "FileTypeName TEXT NOT NULL DEFAULT '', Size INTEGER NOT NULL DEFAULT 0, "
                       "DateCreated TEXT, ReadOnly INTEGER NOT NULL DEFAULT 0, "
                       "Hidden INTEGER NOT NULL DEFAULT 0, System INTEGER NOT NULL DEFAULT 0, "
                       "Archive INTEGER NOT NULL DEFAULT 0, Temporary INTEGER NOT NULL DEFAULT 0, "
                       "Compressed INTEGER NOT NULL DEFAULT 0, Notes TEXT NOT NULL DEFAULT '', "
                       "Icon BLOB, VersionInfo TEXT NOT NULL DEFAULT '')"),
        QStringLiteral("CREATE INDEX SourceFile_Filter ON SourceFile (CategoryId, FileTypeId)"),
        QStringLiteral("CREATE INDEX SourceFile_Type ON SourceFile (FileTypeId)"),
        QStringLiteral("CREATE INDEX SourceFile_Author ON SourceFile (AuthorId)"),
        QStringLiteral("CREATE INDEX SourceFile_Parent ON SourceFile (ParentId)"),
        QStringLiteral("CREATE TABLE SourceFileChunk (SourceFileId INTEGER NOT NULL "
                       "REFERENCES SourceFile (Id) ON DELETE CASCADE, Seq INTEGER NOT NULL, "
                       "Data BLOB NOT NULL, PRIMARY KEY (SourceFileId, Seq))"),
        QStringLiteral("CREATE TABLE RevHist_SrcFile (RevId INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "SourceFileId INTEGER NOT NULL REFERENCES SourceFile (Id) ON DELETE "
                       "CASCADE, Seq INTEGER NOT NULL, "
                       "AuthorId INTEGER REFERENCES Authors (AuthorId) ON DELETE SET NULL, "
                       "Version TEXT NOT NULL DEFAULT '', Comment TEXT NOT NULL DEFAULT '', "
                       "DateRevised TEXT, UNIQUE (SourceFileId, Seq))"),
        QStringLiteral("CREATE INDEX RevHist_SrcFile_Author ON RevHist_SrcFile (AuthorId)"),
        QStringLiteral("CREATE TABLE BkMark_SrcCode (BkMarkId INTEGER PRIMARY KEY "
                       "AUTOINCREMENT, UserKey INTEGER NOT NULL REFERENCES Users (UserKey) ON "
                       "DELETE CASCADE, SourceCodeId INTEGER NOT NULL REFERENCES SourceCode "
                       "(Id) ON DELETE CASCADE, UNIQUE (UserKey, SourceCodeId))"),
        QStringLiteral("CREATE INDEX BkMark_SrcCode_Item ON BkMark_SrcCode (SourceCodeId)"),
        QStringLiteral("CREATE TABLE BkMark_SrcFile (BkMarkId INTEGER PRIMARY KEY "
                       "AUTOINCREMENT, UserKey INTEGER NOT NULL REFERENCES Users (UserKey) ON "
                       "DELETE CASCADE, SourceFileId INTEGER NOT NULL REFERENCES SourceFile "
                       "(Id) ON DELETE CASCADE, UNIQUE (UserKey, SourceFileId))"),
        QStringLiteral("CREATE INDEX BkMark_SrcFile_Item ON BkMark_SrcFile (SourceFileId)"),
        // The fixed rows.
        QStringLiteral("INSERT INTO AccessType (Id, Description) VALUES (1, 'Admin'), "
                       "(2, 'Read'), (3, 'Read/Write'), (4, 'Unauthorized')"),
        QStringLiteral("INSERT INTO Category (Id, Description) VALUES (1, 'Visual Basic')"),
        QStringLiteral("INSERT INTO CodeType (Id, Description) VALUES (201, 'Code Snippet'), "
                       "(202, 'Tip'), (203, 'Class Module'), (204, 'General Module')"),
        QStringLiteral("INSERT INTO FileType (Id, Description) VALUES (101, 'Article'), "
                       "(102, 'Component')"),
        QStringLiteral("INSERT INTO CodeStatus (Id, Description) VALUES (1, 'Tested'), "
                       "(2, 'UnTested')"),
    };
    return statements + SearchIndexStatements(QStringLiteral("unicode61 remove_diacritics 0"));
}

} // namespace

const QVector<SchemaMigration>& SchemaMigrations() {
    static const QVector<SchemaMigration> migrations{
        {1, version1()}, {2, SearchSchemaStatements()}, {3, SearchPiecesStatements()}};
    return migrations;
}

int LatestSchemaVersion() {
    return SchemaMigrations().last().version;
}

const QStringList& RequiredTables() {
    static const QStringList tables{
        QStringLiteral("SchemaVersion"),   QStringLiteral("LibraryInfo"),
        QStringLiteral("AccessType"),      QStringLiteral("Category"),
        QStringLiteral("CodeType"),        QStringLiteral("FileType"),
        QStringLiteral("CodeStatus"),      QStringLiteral("Authors"),
        QStringLiteral("Users"),           QStringLiteral("SourceCode"),
        QStringLiteral("RevHist_SrcCode"), QStringLiteral("SourceFile"),
        QStringLiteral("SourceFileChunk"), QStringLiteral("RevHist_SrcFile"),
        QStringLiteral("BkMark_SrcCode"),  QStringLiteral("BkMark_SrcFile"),
        QStringLiteral("SourceCodeSearch")};
    return tables;
}

} // namespace qs
