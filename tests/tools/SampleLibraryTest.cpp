#include "SampleLibrary.h"

#include "QsError.h"
#include "cFileInfo.h"
#include "cLibraryService.h"
#include "cSecurityService.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

using namespace qs;
using namespace qs::sample;

namespace {

// One sample for the suite: building it is the slow part.
class SampleLibraryTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = std::make_unique<QTemporaryDir>();
        path = folder->filePath(QStringLiteral("Sample/Quillstone Sample.mdb"));
        QDir().mkpath(folder->filePath(QStringLiteral("Sample")));
        report = SampleLibrary::Build(path, false);
    }
    static void TearDownTestSuite() { folder.reset(); }

    static QList<ItemRow> rows(const QString& table, int typeId) {
        QList<ItemRow> list;
        for (const ItemRow& row : cLibraryService(path).GetItems(table, 0, 0, typeId, 0, 0, 0, 0))
            list << row;
        return list;
    }

    static std::unique_ptr<QTemporaryDir> folder;
    static QString path;
    static SampleReport report;
};

std::unique_ptr<QTemporaryDir> SampleLibraryTest::folder;
QString SampleLibraryTest::path;
SampleReport SampleLibraryTest::report;

// "1.10.2" as a number that orders as versions do.
qint64 versionRank(const QString& version) {
    const QStringList parts = version.split(QLatin1Char('.'));
    if (parts.size() != 3)
        return -1;
    return parts[0].toLongLong() * 1000000 + parts[1].toLongLong() * 1000 + parts[2].toLongLong();
}

} // namespace

TEST_F(SampleLibraryTest, HoldsCategoriesOneOfThemVisualBasic) {
    QStringList names;
    for (const LookupRow& row : cLibraryService(path).GetLookup(QStringLiteral("Category")))
        names << row.Description;
    EXPECT_GE(names.size(), 3);
    EXPECT_EQ(names.size(), report.categories);
    EXPECT_EQ(names.filter(QStringLiteral("Visual Basic"), Qt::CaseInsensitive).size(), 1);
}

// Every code type has items, tested and untested both occur, and folders nest.
TEST_F(SampleLibraryTest, HoldsEveryKindOfItemInNestedFolders) {
    QHash<int, ItemRow> all;
    QSet<int> tested;
    for (int typeId : {201, 202, 203, 204}) {
        SCOPED_TRACE(typeId);
        int items = 0;
        for (const ItemRow& row : rows(QStringLiteral("SourceCode"), typeId)) {
            all.insert(row.Id, row);
            if (!row.IsFolder) {
                ++items;
                tested << row.Tested;
            }
        }
        EXPECT_GE(items, 2);
    }
    EXPECT_EQ(tested, QSet<int>({1, 2}));
    int nested = 0, inFolders = 0;
    for (const ItemRow& row : all) {
        if (row.ParentId == 0)
            continue;
        ASSERT_TRUE(all.contains(row.ParentId));
        EXPECT_TRUE(all.value(row.ParentId).IsFolder);
        nested += row.IsFolder ? 1 : 0;
        inFolders += row.IsFolder ? 0 : 1;
    }
    EXPECT_GE(nested, 2);
    EXPECT_GE(inFolders, 5);
}

// Each item has a history of several revisions, newer versions later, and the modules hold
// every kind of member the outline shows.
TEST_F(SampleLibraryTest, ItemsHaveAVersionHistoryAndModulesHaveEveryKindOfMember) {
    cLibraryService library(path);
    QString modules;
    int items = 0;
    for (int typeId : {201, 202, 203, 204}) {
        for (const ItemRow& row : rows(QStringLiteral("SourceCode"), typeId)) {
            if (row.IsFolder)
                continue;
            ++items;
            SCOPED_TRACE(row.Description.toStdString());
            const cSourceCode item = library.GetSourceCode(row.Id);
            EXPECT_FALSE(item.Code().isEmpty());
            EXPECT_FALSE(item.Code().contains(QRegularExpression(QStringLiteral("[^\r]\n"))));
            ASSERT_GE(item.Revisions().Count(), 2);
            EXPECT_EQ(item.Revisions().Item(1).Version(), QStringLiteral("1.0.0"));
            for (int i = 2; i <= item.Revisions().Count(); ++i) {
                const cRevision& before = item.Revisions().Item(i - 1);
                const cRevision& line = item.Revisions().Item(i);
                EXPECT_GT(versionRank(line.Version()), versionRank(before.Version()));
                EXPECT_GT(line.DateRevised(), before.DateRevised());
                EXPECT_FALSE(line.Comment().isEmpty());
                EXPECT_FALSE(line.AuthorLastName().isEmpty());
            }
            if (typeId >= 203)
                modules += item.Code();
        }
    }
    EXPECT_EQ(items, report.codeItems);
    for (const char* word : {"Const ", "Private Type ", "Public Enum ", "Declare Function",
                             "Property Get", "Function ", "Sub "})
        EXPECT_TRUE(modules.contains(QLatin1String(word))) << word;
}

TEST_F(SampleLibraryTest, StoresAnArticleAndAComponentWithAVersionBlock) {
    cLibraryService library(path);
    const QDir files(folder->filePath(QStringLiteral("Sample/Sample Files")));
    const QList<ItemRow> articles = rows(QStringLiteral("SourceFile"), 101);
    const QList<ItemRow> components = rows(QStringLiteral("SourceFile"), 102);
    ASSERT_EQ(components.size(), 1);
    // The article sits in a folder.
    ASSERT_EQ(articles.size(), 2);
    EXPECT_TRUE(articles[0].IsFolder);
    EXPECT_EQ(articles[1].ParentId, articles[0].Id);

    const cSourceFile article = library.GetSourceFile(articles[1].Id);
    const QString written = folder->filePath(QStringLiteral("article-out.html"));
    article.SaveToDisk(written);
    QFile out(written), in(files.filePath(article.File().FileName()));
    ASSERT_TRUE(out.open(QIODevice::ReadOnly));
    ASSERT_TRUE(in.open(QIODevice::ReadOnly));
    EXPECT_EQ(out.readAll(), in.readAll());
    EXPECT_GE(article.Revisions().Count(), 2);

    const cSourceFile component = library.GetSourceFile(components[0].Id);
    const cFileVersionInfo version = component.File().VersionInfo();
    ASSERT_TRUE(version.HasVersionInfo());
    EXPECT_EQ(version.FileVersion(), QStringLiteral("1.2.0.14"));
    EXPECT_EQ(version.FileDescription(),
              QStringLiteral("Stopwatch component for the sample library"));
    EXPECT_EQ(component.File().FileName(), QStringLiteral("QSWatch.dll"));
}

TEST_F(SampleLibraryTest, TheAdministratorLogsInAndIsAnAuthor) {
    const cUser admin = cSecurityService(path).GetUser(report.userId, report.password, QString());
    EXPECT_EQ(admin.UserId(), QStringLiteral("admin"));
    EXPECT_EQ(admin.AccessLevel(), 1);
    QStringList authors;
    for (const AuthorRow& row : cLibraryService(path).GetAuthors())
        authors << row.FirstName + QLatin1Char(' ') + row.LastName;
    EXPECT_TRUE(authors.contains(admin.FirstName() + QLatin1Char(' ') + admin.LastName()));
    EXPECT_GE(authors.size(), 2);
}

// The tool prints how to log in, and leaves a library that is there already alone unless told
// to replace it.
TEST(SampleTool, PrintsTheLoginAndReplacesAnExistingLibraryOnlyWhenTold) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("My Sample.mdb"));
    const auto run = [&](const QStringList& args, QString* output = nullptr) {
        QProcess tool;
        tool.start(QStringLiteral(QS_SAMPLE_TOOL), args);
        EXPECT_TRUE(tool.waitForFinished(120000));
        if (output)
            *output =
                QString::fromLocal8Bit(tool.readAllStandardOutput() + tool.readAllStandardError());
        return tool.exitCode();
    };
    QString output;
    ASSERT_EQ(run({path}, &output), 0) << output.toStdString();
    EXPECT_TRUE(output.contains(QStringLiteral("User id: admin"))) << output.toStdString();
    EXPECT_TRUE(output.contains(QStringLiteral("Password: quillstone"))) << output.toStdString();
    const QDateTime made = QFileInfo(path).lastModified();

    EXPECT_EQ(run({path}, &output), 1);
    EXPECT_TRUE(output.contains(QStringLiteral("already exists"))) << output.toStdString();
    EXPECT_EQ(QFileInfo(path).lastModified(), made);
    EXPECT_EQ(run({QStringLiteral("--replace"), path}), 0);
    EXPECT_EQ(cSecurityService(path).GetUser("admin", "quillstone", QString()).AccessLevel(), 1);
}
