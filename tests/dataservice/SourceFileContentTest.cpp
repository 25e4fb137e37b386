#include "DataServiceFixture.h"
#include "PeImageBuilder.h"
#include "ServiceErrors.h"
#include "cFileInfo.h"

#include <QFile>
#include <QRandomGenerator>

#include <fstream>
#include <string>

using namespace qs;
using namespace qs::test;

namespace {

// Bytes of every value in a deterministic order, written in pieces so the test itself holds
// no large buffer.
QString writeBytes(const QString& path, qint64 size, quint32 seed) {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        ADD_FAILURE() << "cannot write " << path.toStdString();
    QRandomGenerator rng(seed);
    QVector<quint32> piece(16 * 1024);
    for (qint64 done = 0; done < size;) {
        rng.fillRange(piece.data(), piece.size());
        if (done == 0) {
            for (int i = 0; i < 256; ++i)
                reinterpret_cast<uchar*>(piece.data())[i] = uchar(i);
        }
        const qint64 n = qMin<qint64>(piece.size() * 4, size - done);
        f.write(reinterpret_cast<const char*>(piece.constData()), n);
        done += n;
    }
    return path;
}

// Peak resident memory of this process in KiB, read from the kernel.
qint64 statusKb(const char* field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind(field, 0) == 0)
            return std::stoll(line.substr(std::string(field).size()));
    }
    return -1;
}

class SourceFileContent : public DataServiceTest {
protected:
    int store(const QString& path, const QString& description = QStringLiteral("Stored")) {
        cSourceFile item(dbPath);
        item.LoadFile(path, 0, 1, 102);
        item.BeginEdit(0);
        item.Description(description);
        return item.Save();
    }
    qint64 chunkRows(int id) {
        RawDb raw(dbPath);
        return raw
            .value(QStringLiteral("SELECT COUNT(*) FROM SourceFileChunk WHERE "
                                  "SourceFileId = %1")
                       .arg(id))
            .toLongLong();
    }
};

} // namespace

// Bytes of every value, in chunks of 1 MiB; no chunk for an empty file.
TEST_F(SourceFileContent, StoredBytesComeBackIdenticalUnderTheirOwnName) {
    const struct {
        QString name;
        qint64 size;
        int chunks;
    } cases[] = {
        {"component.ocx", 2 * 1024 * 1024 + 4321, 3},
        {"empty file", 0, 0},
        {QString::fromUtf8("\xc3\xbc ber sicht.bin"), 999, 1},
    };
    quint32 seed = 0;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name.toStdString());
        const QString in = writeBytes(home->file(c.name), c.size, ++seed);
        const int id = store(in);
        EXPECT_EQ(chunkRows(id), c.chunks);
        const cSourceFile back = cLibraryService(dbPath).GetSourceFile(id);
        EXPECT_EQ(back.File().FileName(), c.name);
        const QString out = home->file(QString::fromUtf8("zur\xc3\xbc"
                                                         "ck ") +
                                       c.name);
        back.SaveToDisk(out);
        EXPECT_EQ(QFileInfo(out).size(), c.size);
        EXPECT_EQ(FileHash(out), FileHash(in));
    }
}

TEST_F(SourceFileContent, FactsAreReadBackWithTheRecord) {
    const QString exe = WriteFile(
        home->file("Setup Helper.exe"),
        PeImageBuilder::WithStrings({{"FileVersion", "3.2.1"}, {"CompanyName", "Tarnwick"}}));
    const cFileInfo captured = cFileInfo::Capture(exe);
    const int id = store(exe, QStringLiteral("Setup helper"));
    const cSourceFile back = cLibraryService(dbPath).GetSourceFile(id);
    const cFileInfo info = back.File();
    EXPECT_EQ(back.FileTypeName(), "exe");
    EXPECT_EQ(info.FileName(), "Setup Helper.exe");
    EXPECT_EQ(info.FullPath(), exe);
    EXPECT_EQ(info.DosName(), "SETUPH~1.EXE");
    EXPECT_EQ(info.FileTypeName(), captured.FileTypeName());
    EXPECT_EQ(info.Size(), captured.Size());
    EXPECT_EQ(info.DateCreated().toSecsSinceEpoch(), captured.DateCreated().toSecsSinceEpoch());
    EXPECT_EQ(info.IconPng(), captured.IconPng());
    ASSERT_TRUE(info.VersionInfo().HasVersionInfo());
    EXPECT_EQ(info.VersionInfo().FileVersion(), "3.2.1");
    EXPECT_EQ(info.VersionInfo().EntryValue(0), "Tarnwick");
    EXPECT_TRUE(info.VersionInfo() == captured.VersionInfo());
    EXPECT_EQ(cSourceFile::FormatSize(info.Size()), cFileInfo::FormatSize(info.Size()));
}

TEST_F(SourceFileContent, UpdateFileReplacesBytesAndFacts) {
    const QString first = writeBytes(home->file("first.dat"), 3 * 1024 * 1024, 4);
    const int id = store(first);
    const QString second = writeBytes(home->file("second.txt"), 10, 5);
    cSourceFile item = cLibraryService(dbPath).GetSourceFile(id);
    item.BeginEdit(0);
    item.UpdateFile(second);
    item.ReplaceFile(true);
    item.Save();
    EXPECT_EQ(chunkRows(id), 1);
    const cSourceFile back = cLibraryService(dbPath).GetSourceFile(id);
    EXPECT_EQ(back.File().FileName(), "second.txt");
    EXPECT_EQ(back.File().Size(), 10);
    back.SaveToDisk(home->file("out.txt"));
    EXPECT_EQ(FileHash(home->file("out.txt")), FileHash(second));
}

TEST_F(SourceFileContent, SaveWithoutANewFileKeepsTheStoredBytes) {
    const QString in = writeBytes(home->file("keep.bin"), 5000, 6);
    const int id = store(in);
    cSourceFile item = cLibraryService(dbPath).GetSourceFile(id);
    item.BeginEdit(0);
    item.Notes(QStringLiteral("only the notes"));
    item.Save();
    EXPECT_EQ(chunkRows(id), 1);
    cLibraryService(dbPath).GetSourceFile(id).SaveToDisk(home->file("kept.bin"));
    EXPECT_EQ(FileHash(home->file("kept.bin")), FileHash(in));
}

TEST_F(SourceFileContent, MissingFileRaisesFileNotFoundFromLoadFile) {
    cSourceFile item(dbPath);
    const QsError e = Raised([&] { item.LoadFile(home->file("gone.txt"), 0, 1, 101); });
    EXPECT_EQ(e.number(), 53);
    EXPECT_EQ(e.source(), "cSourceFile:LoadFile;");
    const QsError u = Raised([&] { item.UpdateFile(home->path()); });
    EXPECT_EQ(u.number(), 53);
    EXPECT_EQ(u.source(), "cSourceFile:UpdateFile;");
}

TEST_F(SourceFileContent, FileChangedBeforeSaveWritesNothing) {
    const QString path = writeBytes(home->file("moving.bin"), 4096, 7);
    cSourceFile item(dbPath);
    item.LoadFile(path, 0, 1, 101);
    item.BeginEdit(0);
    item.Description(QStringLiteral("Moving"));
    writeBytes(path, 100, 8);
    const QsError e = Raised([&] { item.Save(); });
    EXPECT_EQ(e.number(), kErrStorage);
    RawDb raw(dbPath);
    EXPECT_EQ(raw.value(QStringLiteral("SELECT COUNT(*) FROM SourceFile WHERE Description = "
                                       "'Moving'"))
                  .toInt(),
              0);
    EXPECT_EQ(raw.value(QStringLiteral("SELECT COUNT(*) FROM SourceFileChunk")).toInt(), 0);
}

TEST_F(SourceFileContent, SaveToDiskNeedsAStoredRecordAndLeavesNoHalfFile) {
    cSourceFile unsaved(dbPath);
    unsaved.LoadFile(writeBytes(home->file("a.bin"), 10, 9), 0, 1, 101);
    EXPECT_EQ(Raised([&] { unsaved.SaveToDisk(home->file("b.bin")); }).number(),
              kErrMissingParameters);
    EXPECT_FALSE(QFileInfo::exists(home->file("b.bin")));

    const int id = store(home->file("a.bin"));
    RawDb(dbPath).exec(QStringLiteral("DELETE FROM SourceFileChunk"));
    const QString target = writeBytes(home->file("target.bin"), 33, 10);
    const QByteArray before = FileHash(target);
    EXPECT_EQ(
        Raised([&] { cLibraryService(dbPath).GetSourceFile(id).SaveToDisk(target); }).number(),
        kErrStorage);
    EXPECT_EQ(FileHash(target), before);
}

// A large file goes in and out in chunks: the peak memory of the whole trip stays far below the
// file's size.
TEST_F(SourceFileContent, LargeFileNeverSitsInMemoryWhole) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the address sanitizer keeps freed memory in quarantine, so the peak says "
                    "nothing about the chunks";
#endif
    constexpr qint64 kSize = 48LL * 1024 * 1024;
    const QString in = writeBytes(home->file("large.bin"), kSize, 11);
    {
        std::ofstream reset("/proc/self/clear_refs");
        reset << "5";
        if (!reset.good())
            GTEST_SKIP() << "the kernel does not let the peak be reset";
    }
    const qint64 rssBefore = statusKb("VmRSS:");
    const int id = store(in);
    cLibraryService(dbPath).GetSourceFile(id).SaveToDisk(home->file("large out.bin"));
    const qint64 peak = statusKb("VmHWM:");
    ASSERT_GT(rssBefore, 0);
    EXPECT_LT((peak - rssBefore) * 1024, kSize / 2)
        << "peak grew by " << (peak - rssBefore) << " KiB";
    EXPECT_EQ(QFileInfo(home->file("large out.bin")).size(), kSize);
    EXPECT_EQ(FileHash(home->file("large out.bin")), FileHash(in));
}
