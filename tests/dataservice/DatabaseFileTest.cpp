// CreateDatabase, BackupDatabase, CompactDatabase, and nothing lost when two connections or two
// processes share a file.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"
#include "SqliteStore.h"
#include "cSecurityService.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <atomic>
#include <csignal>
#include <functional>
#include <poll.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace qs;
using namespace qs::test;

namespace {

// Saves one item with `revisions` lines, all in one Save.
int saveItem(const QString& path, const QString& name, int revisions) {
    cSourceCode item(path);
    item.BeginEdit(0);
    item.CategoryId(1);
    item.CodeTypeId(201);
    item.Tested(1);
    item.Description(name);
    item.Code(QString(2000, QLatin1Char('x')) + name);
    for (int i = 0; i < revisions; ++i)
        item.Revisions().Add(0).Version(QStringLiteral("1.0.%1").arg(i));
    return item.Save();
}

// True when the file is sound and every item holds exactly `revisions` lines.
void expectConsistent(const QString& path, int revisions) {
    RawDb raw(path);
    EXPECT_EQ(raw.value(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
    EXPECT_EQ(raw.value(QStringLiteral("SELECT COUNT(*) FROM SourceCode s WHERE (SELECT COUNT(*) "
                                       "FROM RevHist_SrcCode r WHERE r.SourceCodeId = s.Id) != %1")
                            .arg(revisions))
                  .toInt(),
              0);
    EXPECT_TRUE(raw.exec(QStringLiteral(
        "INSERT INTO SourceCodeSearch (SourceCodeSearch, rank) VALUES ('integrity-check', 1)")));
}

// Waits up to 30 s for one byte on fd.
bool readByte(int fd) {
    pollfd p{fd, POLLIN, 0};
    if (poll(&p, 1, 30000) != 1)
        return false;
    char c = 0;
    return read(fd, &c, 1) == 1;
}

// What a child writes to its pipe to say it got somewhere.
void tell(int fd) {
    const char c = 'c';
    if (write(fd, &c, 1) != 1)
        _exit(2);
}

// Tells and then waits to be killed.
[[noreturn]] void tellAndHang(int fd) {
    tell(fd);
    for (;;)
        pause();
}

// Forks a child that runs body with the write end of a pipe; once `bytes` bytes came from it and
// `delayUs` more passed, kills it. Returns how many bytes came.
int killChildAfter(const std::function<void(int)>& body, int bytes, useconds_t delayUs) {
    int fds[2];
    if (pipe(fds) != 0)
        return 0;
    const pid_t child = fork();
    if (child == 0) {
        close(fds[0]);
        try {
            body(fds[1]);
        } catch (...) {
        }
        _exit(3);
    }
    close(fds[1]);
    int got = 0;
    while (child > 0 && got < bytes && readByte(fds[0]))
        ++got;
    usleep(delayUs);
    if (child > 0)
        kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    close(fds[0]);
    EXPECT_TRUE(WIFSIGNALED(status));
    return got;
}

} // namespace

using CreateDatabase = DataServiceTest;

TEST_F(CreateDatabase, MakesMissingFoldersAndAnEmptyLibrary) {
    const QString path = home->file(QStringLiteral("a/b/c/New.mdb"));
    cLibraryService(dbPath).CreateDatabase(path, QStringLiteral("/x/Quillstone.ini"));
    EXPECT_TRUE(QFileInfo(path).isFile());
    EXPECT_FALSE(QFileInfo::exists(path + QStringLiteral(".building")));
    EXPECT_EQ(cSecurityService(path).GetUsers().UBound(), 0);
    EXPECT_EQ(cLibraryService(path).GetLookup(QStringLiteral("CodeType")).UBound(), 4);
    RawDb raw(path);
    EXPECT_EQ(raw.value(QStringLiteral("SELECT Value FROM LibraryInfo WHERE Name = "
                                       "'SettingsFile'"))
                  .toString(),
              QStringLiteral("/x/Quillstone.ini"));
    EXPECT_EQ(raw.value(QStringLiteral("PRAGMA journal_mode")).toString(), QStringLiteral("wal"));
    // A page holds a text item of a few KB whole: a search reads one page for each.
    EXPECT_EQ(raw.value(QStringLiteral("PRAGMA page_size")).toInt(), 8192);
}

TEST_F(CreateDatabase, RefusesAnExistingFileAndLeavesIt) {
    addCode(QStringLiteral("Precious"));
    const QByteArray before = FileHash(dbPath);
    const QsError e = Raised([&] { cLibraryService(dbPath).CreateDatabase(dbPath, QString()); });
    EXPECT_EQ(e.number(), kErrStorage);
    EXPECT_EQ(e.source(), QStringLiteral("cLibraryService:CreateDatabase;"));
    EXPECT_EQ(FileHash(dbPath), before);
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), 1);
}

using Backup = DataServiceTest;

TEST_F(Backup, GoesIntoABackupFolderBesideTheDatabaseUnderATimedName) {
    addCode(QStringLiteral("Saved"));
    cLibraryService library(dbPath);
    const QString first = library.BackupDatabase(dbPath);
    const QString second = library.BackupDatabase(dbPath);
    const QFileInfo info(first);
    EXPECT_EQ(info.absolutePath(), QFileInfo(dbPath).absolutePath() + QStringLiteral("/Backup"));
    EXPECT_TRUE(info.fileName().startsWith(QStringLiteral("Quillstone ")));
    EXPECT_TRUE(info.fileName().endsWith(QStringLiteral(".mdb")));
    EXPECT_NE(first, second);
    EXPECT_TRUE(QFileInfo::exists(second));
    // A backup is a library of its own.
    EXPECT_EQ(cLibraryService(first)
                  .GetItems(QStringLiteral("SourceCode"), 0, 0, 0, 0, 0, 0, 0)(1)
                  .Description,
              QStringLiteral("Saved"));
}

TEST_F(Backup, MissingDatabaseRaisesAndWritesNoBackup) {
    const QString path = home->file(QStringLiteral("none/Gone.mdb"));
    EXPECT_EQ(Raised([&] { cLibraryService(dbPath).BackupDatabase(path); }).number(),
              kErrDatabaseNotFound);
    EXPECT_FALSE(QFileInfo::exists(home->file(QStringLiteral("none/Backup"))));
}

TEST_F(Backup, TakenWhileAnotherConnectionWritesIsConsistent) {
    constexpr int kRevisions = 3;
    saveItem(dbPath, QStringLiteral("seed"), kRevisions);
    std::atomic<bool> stop{false};
    std::atomic<int> written{0};
    std::thread writer([&] {
        try {
            for (int i = 0; !stop; ++i) {
                saveItem(dbPath, QStringLiteral("item %1").arg(i), kRevisions);
                ++written;
            }
        } catch (const QsError& e) {
            ADD_FAILURE() << e.what();
        }
    });
    QStringList backups;
    cLibraryService library(dbPath);
    while (backups.size() < 4) {
        while (written < (backups.size() + 1) * 5)
            std::this_thread::yield();
        backups << library.BackupDatabase(dbPath);
    }
    stop = true;
    writer.join();

    int previous = 0;
    for (const QString& backup : backups) {
        expectConsistent(backup, kRevisions);
        const int items =
            RawDb(backup).value(QStringLiteral("SELECT COUNT(*) FROM SourceCode")).toInt();
        EXPECT_GE(items, previous);
        previous = items;
        EXPECT_EQ(cLibraryService(backup).GetLookup(QStringLiteral("CodeStatus")).UBound(), 2);
    }
    EXPECT_GT(previous, 1);
}

using Compact = DataServiceTest;

TEST_F(Compact, KeepsEveryRowAndGivesBackSpace) {
    addUser(QStringLiteral("ann"));
    cLibraryService library(dbPath);
    QList<int> ids;
    for (int i = 0; i < 60; ++i)
        ids << saveItem(dbPath, QStringLiteral("item %1").arg(i), 2);
    for (int i = 0; i < 60; i += 2) {
        cSourceCode item = library.GetSourceCode(ids[i]);
        DeleteRecord(item);
    }
    library.AddBookmark(QStringLiteral("BkMark_SrcCode"), ids[1], QStringLiteral("ann"));
    const QStringList tables{"SourceCode", "RevHist_SrcCode", "BkMark_SrcCode",
                             "Users",      "Category",        "AccessType"};
    QList<int> before;
    for (const QString& table : tables)
        before << rows(table);
    {
        RawDb raw(dbPath);
        raw.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    }
    const qint64 sizeBefore = QFileInfo(dbPath).size();

    library.CompactDatabase(dbPath);

    for (int i = 0; i < tables.size(); ++i)
        EXPECT_EQ(rows(tables[i]), before[i]) << tables[i].toStdString();
    EXPECT_LT(QFileInfo(dbPath).size(), sizeBefore);
    expectConsistent(dbPath, 2);
    EXPECT_EQ(library.GetSourceCode(ids[59]).Revisions().Count(), 2);
}

TEST_F(Compact, IsRefusedWhileTheLibraryIsOpenElsewhereAndChangesNothing) {
    addCode(QStringLiteral("Kept"));
    cLibraryService other(dbPath);
    EXPECT_EQ(other.GetLookup(QStringLiteral("Category")).UBound(), 1);

    const QsError e = Raised([&] { cLibraryService(dbPath).CompactDatabase(dbPath); });
    EXPECT_EQ(e.number(), kErrStorage);
    EXPECT_EQ(e.source(), QStringLiteral("cLibraryService:CompactDatabase;"));
    EXPECT_TRUE(e.description().contains(QStringLiteral("open in another"))) << e.what();
    EXPECT_FALSE(QFileInfo::exists(dbPath + QStringLiteral(".compacting")));
    // The other connection goes on reading and writing the same file.
    other.AddCategory(QStringLiteral("After"));
    EXPECT_EQ(rows(QStringLiteral("Category")), 2);
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), 1);
}

// A child compacts the library and is killed; the library must open whole, every item there.
class CompactKilled : public DataServiceTest {
protected:
    static constexpr int kItems = 60;

    void SetUp() override {
        DataServiceTest::SetUp();
        for (int i = 0; i < kItems + 20; ++i)
            saveItem(dbPath, QStringLiteral("item %1").arg(i), 2);
        cLibraryService library(dbPath);
        for (const ItemRow& row :
             library.GetItems(QStringLiteral("SourceCode"), 0, 0, 0, 0, 0, 0, 0)) {
            if (row.Id > kItems) {
                cSourceCode item = library.GetSourceCode(row.Id);
                DeleteRecord(item);
            }
        }
    }

    void expectWholeLibrary() {
        expectConsistent(dbPath, 2);
        const auto items =
            cLibraryService(dbPath).GetItems(QStringLiteral("SourceCode"), 0, 0, 0, 0, 0, 0, 0);
        EXPECT_EQ(items.UBound(), kItems);
    }
};

TEST_F(CompactKilled, WithTheCopyWholeButNotYetInPlaceLeavesTheOldLibrary) {
    ASSERT_EQ(killChildAfter(
                  [this](int fd) {
                      SqliteStore::setBeforeReplaceHook([fd] { tellAndHang(fd); });
                      cLibraryService(dbPath).CompactDatabase(dbPath);
                  },
                  1, 0),
              1);
    EXPECT_TRUE(QFileInfo::exists(dbPath + QStringLiteral(".compacting")));
    expectWholeLibrary();
    // The next compaction clears what the killed one left.
    cLibraryService(dbPath).CompactDatabase(dbPath);
    EXPECT_FALSE(QFileInfo::exists(dbPath + QStringLiteral(".compacting")));
    expectWholeLibrary();
}

TEST_F(CompactKilled, AtAnyMomentOfACompactionLeavesAWholeLibrary) {
    QElapsedTimer timer;
    timer.start();
    cLibraryService(dbPath).CompactDatabase(dbPath);
    const qint64 durationUs = qMax<qint64>(timer.nsecsElapsed() / 1000, 1000);
    // The child compacts again and again; it is killed at a fraction of one compaction after
    // the end of its first.
    for (int step = 0; step <= 6; ++step) {
        SCOPED_TRACE(step);
        ASSERT_EQ(killChildAfter(
                      [this](int fd) {
                          for (;;) {
                              cLibraryService(dbPath).CompactDatabase(dbPath);
                              tell(fd);
                          }
                      },
                      1, static_cast<useconds_t>(durationUs * step / 6)),
                  1);
        expectWholeLibrary();
    }
}

using SharedFile = DataServiceTest;

TEST_F(SharedFile, TwoServiceObjectsSeeEachOthersSaves) {
    cLibraryService one(dbPath);
    cLibraryService two(dbPath);
    EXPECT_EQ(one.GetLookup(QStringLiteral("Category")).UBound(), 1);
    EXPECT_EQ(two.GetLookup(QStringLiteral("Category")).UBound(), 1);

    const int category = one.AddCategory(QStringLiteral("From one"));
    EXPECT_EQ(two.GetLookup(QStringLiteral("Category")).UBound(), 2);

    cSourceCode item = newCode(202);
    item.CategoryId(category);
    item.Description(QStringLiteral("From a record"));
    const int id = item.Save();
    EXPECT_EQ(one.GetSourceCode(id).Description(), QStringLiteral("From a record"));

    cSourceCode changed = two.GetSourceCode(id);
    changed.BeginEdit(0);
    changed.Notes(QStringLiteral("Changed through two"));
    changed.Save();
    EXPECT_EQ(one.GetSourceCode(id).Notes(), QStringLiteral("Changed through two"));
    EXPECT_EQ(one.GetItems(QStringLiteral("SourceCode"), 0, category, 0, 0, 0, 0, 0).UBound(), 1);
}

TEST_F(SharedFile, ProcessKilledBeforeItsCommitLeavesTheLastCommittedState) {
    saveItem(dbPath, QStringLiteral("committed"), 4);
    // Everything of the save is written; the commit never comes.
    ASSERT_EQ(killChildAfter(
                  [this](int fd) {
                      SqliteStore::setBeforeCommitHook([fd] { tellAndHang(fd); });
                      saveItem(dbPath, QStringLiteral("killed"), 50);
                  },
                  1, 0),
              1);
    expectConsistent(dbPath, 4);
    const auto items =
        cLibraryService(dbPath).GetItems(QStringLiteral("SourceCode"), 0, 0, 0, 0, 0, 0, 0);
    ASSERT_EQ(items.UBound(), 1);
    EXPECT_EQ(items(1).Description, QStringLiteral("committed"));
    // The file takes the next save at once: the dead writer holds no lock.
    saveItem(dbPath, QStringLiteral("after"), 4);
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), 2);
}

TEST_F(SharedFile, ProcessKilledAtAnyMomentOfASaveLoopLosesNoCommittedSave) {
    constexpr int kRevisions = 5;
    const int committed = killChildAfter(
        [this](int fd) {
            for (int i = 0;; ++i) {
                saveItem(dbPath, QStringLiteral("item %1").arg(i), kRevisions);
                tell(fd);
            }
        },
        15, static_cast<useconds_t>(1000 + (QDateTime::currentMSecsSinceEpoch() % 7) * 700));
    ASSERT_EQ(committed, 15);
    expectConsistent(dbPath, kRevisions);
    EXPECT_GE(rows(QStringLiteral("SourceCode")), committed);
}
