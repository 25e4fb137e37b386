// Finding the database through the settings, and refusing files that are not libraries.
#include "AppPaths.h"
#include "DataServiceFixture.h"
#include "DatabaseLocation.h"
#include "LibrarySchema.h"
#include "SearchSchema.h"
#include "SearchTokenizer.h"
#include "ServiceErrors.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cSourceCode.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QDir>
#include <QFile>

using namespace qs;
using namespace qs::test;

namespace {

void pointSettingsAt(const QString& folder, const QString& file) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH), folder);
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file);
}

} // namespace

using Opening = DataServiceTest;

TEST_F(Opening, DefaultPathIsDatabaseFolderUnderAppPath) {
    EXPECT_EQ(dbPath, QDir(AppPath()).filePath(QStringLiteral("Database/Quillstone.mdb")));
    EXPECT_TRUE(QFile::exists(dbPath));
    EXPECT_EQ(cSecurityService().GetUsers().LBound(), 0);
}

TEST_F(Opening, AbsolutePathIsTakenAsItStands) {
    const QString folder = home->file(QStringLiteral("elsewhere"));
    pointSettingsAt(folder, QStringLiteral("Other.mdb"));
    EXPECT_EQ(ConfiguredDatabasePath(), QDir(folder).filePath(QStringLiteral("Other.mdb")));
}

TEST_F(Opening, MissingFileRaisesTheExactText) {
    pointSettingsAt(home->file(QStringLiteral("nowhere")), QStringLiteral("Gone.mdb"));
    cSecurityService security;
    const QsError e = Raised([&] { security.GetUsers(); });
    EXPECT_EQ(e.number(), kErrDatabaseNotFound);
    EXPECT_EQ(e.description(),
              QStringLiteral("The Quillstone Database does not exist in the specified path."));
    EXPECT_EQ(e.source(), QStringLiteral("cSecurityService:GetUsers;"));
    EXPECT_FALSE(QFile::exists(home->file(QStringLiteral("nowhere/Gone.mdb"))));
}

TEST_F(Opening, NewObjectReadsTheSettingsAfreshAndAnOldOneKeepsItsFile) {
    cLibraryService before;
    const int firstCategory = before.AddCategory(QStringLiteral("In the first"));

    const QString second = home->file(QStringLiteral("second/Second.mdb"));
    before.CreateDatabase(second, QString());
    pointSettingsAt(home->file(QStringLiteral("second")), QStringLiteral("Second.mdb"));

    cLibraryService after;
    EXPECT_EQ(after.DatabasePath(), second);
    after.AddCategory(QStringLiteral("In the second"));
    EXPECT_EQ(before.GetLookup(QStringLiteral("Category")).UBound(), 2);
    EXPECT_EQ(before.GetLookup(QStringLiteral("Category"))(2).Id, QString::number(firstCategory));
    const auto secondRows = after.GetLookup(QStringLiteral("Category"));
    ASSERT_EQ(secondRows.UBound(), 2);
    EXPECT_EQ(secondRows(2).Description, QStringLiteral("In the second"));
}

TEST_F(Opening, NewRecordBelongsToTheDatabaseNamedWhenItWasMade) {
    cAuthor author; // made while the settings name the first file
    const QString second = home->file(QStringLiteral("second/Second.mdb"));
    cLibraryService(dbPath).CreateDatabase(second, QString());
    pointSettingsAt(home->file(QStringLiteral("second")), QStringLiteral("Second.mdb"));
    author.BeginEdit(0);
    author.FirstName(QStringLiteral("Ada"));
    author.Save();
    EXPECT_EQ(cLibraryService(dbPath).GetAuthors().UBound(), 1);
    EXPECT_EQ(cLibraryService(second).GetAuthors().UBound(), 0);
}

class ForeignFile : public DataServiceTest {
protected:
    // Opens the file through both services and expects the corrupt-database error each time,
    // with the file's bytes unchanged.
    void expectRefusedAndUntouched(const QString& path) {
        const QByteArray before = FileHash(path);
        const QsError e1 = Raised([&] { cSecurityService(path).GetUsers(); });
        const QsError e2 =
            Raised([&] { cLibraryService(path).GetItems("SourceCode", 0, 0, 0, 0, 0, 0, 0); });
        const QsError e3 = Raised([&] { cLibraryService(path).CompactDatabase(path); });
        for (const QsError& e : {e1, e2, e3}) {
            EXPECT_EQ(e.number(), kErrDatabaseCorrupt);
            EXPECT_EQ(e.description(), QStringLiteral("The database is missing or corrupt."));
        }
        EXPECT_EQ(FileHash(path), before);
    }
};

TEST_F(ForeignFile, EmptyFileAndGarbageAreRefusedAndKeepTheirSize) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray(4096, '\x5a')}) {
        SCOPED_TRACE(bytes.isEmpty() ? "empty file" : "garbage");
        const QString path = WriteFile(home->file(QStringLiteral("foreign.mdb")), bytes);
        expectRefusedAndUntouched(path);
        EXPECT_EQ(QFileInfo(path).size(), bytes.size());
    }
}

TEST_F(ForeignFile, AnotherSqliteSchemaIsRefused) {
    const QString path = home->file(QStringLiteral("other.mdb"));
    {
        RawDb raw(path);
        ASSERT_TRUE(raw.exec(QStringLiteral("CREATE TABLE Users (UserId TEXT)")));
    }
    expectRefusedAndUntouched(path);
}

TEST_F(ForeignFile, NewerSchemaVersionIsRefused) {
    {
        RawDb raw(dbPath);
        ASSERT_TRUE(raw.exec(
            QStringLiteral("INSERT INTO SchemaVersion (Version, AppliedOn) VALUES (99, 'x')")));
        ASSERT_TRUE(raw.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")));
    }
    expectRefusedAndUntouched(dbPath);
}

TEST_F(ForeignFile, NewerVersionInTheHeaderIsRefusedWithoutOpeningIt) {
    {
        RawDb raw(dbPath);
        ASSERT_TRUE(raw.exec(QStringLiteral("PRAGMA user_version = 99")));
        ASSERT_TRUE(raw.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")));
        ASSERT_TRUE(raw.exec(QStringLiteral("PRAGMA journal_mode = DELETE")));
    }
    expectRefusedAndUntouched(dbPath);
    EXPECT_FALSE(QFileInfo::exists(dbPath + QStringLiteral("-wal")));
}

TEST_F(ForeignFile, DirectoryInPlaceOfTheFileIsRefused) {
    const QString path = home->file(QStringLiteral("folder.mdb"));
    QDir().mkpath(path);
    const QsError e = Raised([&] { cSecurityService(path).GetUsers(); });
    EXPECT_EQ(e.number(), kErrDatabaseCorrupt);
}

TEST_F(Opening, LibraryOfTheFirstVersionIsBroughtUpToDateAndKeepsItsRows) {
    const int id = addCode(QStringLiteral("Kept through the upgrade"));
    {
        cSourceCode item = cLibraryService(dbPath).GetSourceCode(id);
        item.BeginEdit(0);
        item.Code(QStringLiteral("Set rs = New ADODB.Recordset"));
        item.Save();
        // Take the file back to how the first version of the schema left it.
        RawDb raw(dbPath);
        QStringList statements{QStringLiteral("DROP INDEX SourceCode_Rows"),
                               QStringLiteral("DROP INDEX SourceCode_Node")};
        for (const QString& trigger :
             {QStringLiteral("SourceCode_SearchInsert"), QStringLiteral("SourceCode_SearchDelete"),
              QStringLiteral("SourceCode_SearchUpdate")})
            statements << QStringLiteral("DROP TRIGGER %1").arg(trigger);
        statements << QStringLiteral("DROP TABLE SourceCodeSearch");
        statements += SearchIndexStatements(QStringLiteral("unicode61 remove_diacritics 0"));
        statements << QStringLiteral("INSERT INTO SourceCodeSearch (SourceCodeSearch) VALUES "
                                     "('rebuild')")
                   << QStringLiteral("DELETE FROM SchemaVersion WHERE Version > 1")
                   << QStringLiteral("PRAGMA user_version = 1");
        for (const QString& statement : statements)
            ASSERT_TRUE(raw.exec(statement)) << statement.toStdString();
    }
    EXPECT_EQ(cLibraryService(dbPath).GetSourceCode(id).Description(),
              QStringLiteral("Kept through the upgrade"));
    RawDb raw(dbPath);
    EXPECT_EQ(raw.value(QStringLiteral("SELECT MAX(Version) FROM SchemaVersion")).toInt(),
              LatestSchemaVersion());
    EXPECT_EQ(raw.value(QStringLiteral("PRAGMA user_version")).toInt(), LatestSchemaVersion());
    EXPECT_EQ(raw.value(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE name IN "
                                       "('SourceCode_Rows', 'SourceCode_Node')"))
                  .toInt(),
              2);
    // The search index is made again with the piece tokenizer, from the rows already there.
    EXPECT_TRUE(raw.value(QStringLiteral("SELECT sql FROM sqlite_master WHERE name = "
                                         "'SourceCodeSearch'"))
                    .toString()
                    .contains(QLatin1String(kSearchTokenizer)));
    const VbArray<ItemRow> hits =
        cLibraryService(dbPath).Search(0, QStringLiteral("New ADODB.Recordset"), 0, 0, 0, 0, 0);
    ASSERT_EQ(hits.UBound(), 1);
    EXPECT_EQ(hits(1).Id, id);
}
