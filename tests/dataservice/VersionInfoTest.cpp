#include "DataServiceFixture.h"
#include "PeImageBuilder.h"
#include "PeVersionParser.h"
#include "QsError.h"
#include "TestHome.h"
#include "cFileVersionInfo.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <vector>

using namespace qs;
using qs::test::PeImageBuilder;
using qs::test::PeImageSpec;

namespace {

const QVector<QPair<QString, QString>> kStrings = {
    {"CompanyName", "Tarnwick Tools"},
    {"FileDescription", "Snippet indexer"},
    {"FileVersion", "2.3.4.5"},
    {"InternalName", "snipidx"},
    {"LegalCopyright", QString::fromUtf8("Copyright \xc2\xa9 2003 Tarnwick")},
    {"LegalTrademarks", "None"},
    {"OriginalFilename", "snipidx.exe"},
    {"ProductName", "Snippet Suite"},
    {"ProductVersion", "2.3"},
    {"Comments", QString::fromUtf8("Gr\xc3\xbc\xc3\x9f"
                                   "e")},
};

PeVersionBlock parse(const QByteArray& bytes) {
    // An exact-size copy, so a read past the end is a read past the allocation.
    std::vector<uchar> copy(bytes.begin(), bytes.end());
    return PeVersionParser::Parse(copy.data(), copy.size());
}

// A copy of the image with the bytes written from the offset on.
QByteArray poked(QByteArray image, int at, std::initializer_list<int> bytes) {
    for (const int b : bytes)
        image[at++] = char(b);
    return image;
}

cFileVersionInfo infoOf(const QByteArray& bytes) {
    return cFileVersionInfo::FromBlock(parse(bytes));
}

} // namespace

TEST(VersionInfo, StringsOfTheBlockFillTheEntriesZeroToFourteen) {
    const cFileVersionInfo info = infoOf(PeImageBuilder::WithStrings(kStrings));
    ASSERT_TRUE(info.HasVersionInfo());
    EXPECT_EQ(info.FileDescription(), "Snippet indexer");
    EXPECT_EQ(info.FileVersion(), "2.3.4.5");
    EXPECT_EQ(info.LegalCopyright(), QString::fromUtf8("Copyright \xc2\xa9 2003 Tarnwick"));
    EXPECT_EQ(info.EntryValue(0), "Tarnwick Tools");
    EXPECT_EQ(info.EntryValue(3), "2.3.4.5");
    EXPECT_EQ(info.EntryValue(4), "2.3.0.0");
    EXPECT_EQ(info.EntryValue(5), "snipidx");
    EXPECT_EQ(info.EntryValue(6), "040904B0");
    EXPECT_EQ(info.EntryValue(7), "English (United States)");
    EXPECT_EQ(info.EntryValue(10), "snipidx.exe");
    EXPECT_EQ(info.EntryValue(11), "Snippet Suite");
    EXPECT_EQ(info.EntryValue(12), "2.3");
    EXPECT_EQ(info.EntryValue(13), QString::fromUtf8("Gr\xc3\xbc\xc3\x9f"
                                                     "e"));
    EXPECT_EQ(info.EntryValue(14), "Application");
    EXPECT_EQ(info.EntryName(14), "File Type");
    // Outside 0 to 14: subscript out of range.
    EXPECT_EQ(qs::test::Raised([&] { info.EntryValue(15); }).number(), 9);
    EXPECT_THROW(info.EntryName(-1), QsError);
}

TEST(VersionInfo, BinaryVersionsStandInWhenTheStringsLackThem) {
    PeImageSpec spec;
    spec.tables.append({"040904B0", {{"CompanyName", "Tarnwick"}}});
    spec.fileType = 2;
    const cFileVersionInfo info = infoOf(PeImageBuilder::Build(spec));
    EXPECT_EQ(info.FileVersion(), "2.3.4.5");
    EXPECT_EQ(info.EntryValue(12), "2.3.0.0");
    EXPECT_EQ(info.EntryValue(14), "Dynamic Link Library");
    // Without VarFileInfo the language comes from the table's key.
    EXPECT_EQ(info.EntryValue(7), "English (United States)");
}

TEST(VersionInfo, SixtyFourBitImageIsReadAlike) {
    PeImageSpec spec;
    spec.pe32Plus = true;
    spec.tables.append({"040704B0", kStrings});
    const cFileVersionInfo info = infoOf(PeImageBuilder::Build(spec));
    ASSERT_TRUE(info.HasVersionInfo());
    EXPECT_EQ(info.FileDescription(), "Snippet indexer");
    EXPECT_EQ(info.EntryValue(7), "German (Germany)");
}

TEST(VersionInfo, TranslationPicksItsOwnStringTable) {
    PeImageSpec spec;
    spec.tables.append({"040904B0", {{"FileDescription", "English text"}}});
    spec.tables.append({"040C04B0", {{"FileDescription", "Texte anglais"}}});
    spec.translations = {0x04B0040C};
    const cFileVersionInfo info = infoOf(PeImageBuilder::Build(spec));
    EXPECT_EQ(info.FileDescription(), "Texte anglais");
    EXPECT_EQ(info.EntryValue(7), "French (France)");
}

TEST(VersionInfo, BlockWithoutStringsStillCounts) {
    PeImageSpec spec;
    const cFileVersionInfo info = infoOf(PeImageBuilder::Build(spec));
    EXPECT_TRUE(info.HasVersionInfo());
    EXPECT_EQ(info.FileVersion(), "2.3.4.5");
    EXPECT_EQ(info.LegalCopyright(), "");
}

TEST(VersionInfo, FilesWithoutABlockSaySo) {
    PeImageSpec noVersion;
    noVersion.withVersion = false;
    noVersion.tables.append({"040904B0", kStrings});
    EXPECT_FALSE(infoOf(PeImageBuilder::Build(noVersion)).HasVersionInfo());
    EXPECT_FALSE(infoOf("MZ").HasVersionInfo());
    EXPECT_FALSE(infoOf("plain text, not an executable\r\n").HasVersionInfo());
    EXPECT_FALSE(infoOf(QByteArray()).HasVersionInfo());
    for (int i = 0; i < cFileVersionInfo::kEntryCount; ++i)
        EXPECT_EQ(cFileVersionInfo().EntryValue(i), "");
}

TEST(VersionInfo, ReadFromAFileOnDisc) {
    qs::test::TestHome home;
    const QString exe =
        qs::test::WriteFile(home.file("tool.exe"), PeImageBuilder::WithStrings(kStrings));
    EXPECT_EQ(cFileVersionInfo::FromFile(exe).FileVersion(), "2.3.4.5");
    EXPECT_FALSE(cFileVersionInfo::FromFile(home.file("missing.exe")).HasVersionInfo());
}

TEST(VersionInfo, StorageFormGivesTheSameBlockBack) {
    const cFileVersionInfo info = infoOf(PeImageBuilder::WithStrings(kStrings));
    const cFileVersionInfo back = cFileVersionInfo::FromJson(info.ToJson());
    EXPECT_TRUE(back == info);
    EXPECT_EQ(back.EntryValue(13), info.EntryValue(13));
    EXPECT_EQ(cFileVersionInfo().ToJson(), "");
    EXPECT_FALSE(cFileVersionInfo::FromJson(QString()).HasVersionInfo());
    EXPECT_FALSE(cFileVersionInfo::FromJson("garbage").HasVersionInfo());
    EXPECT_FALSE(cFileVersionInfo::FromJson(info.ToJson().left(20)).HasVersionInfo());
    // A block whose values are all empty still has version information.
    const cFileVersionInfo empty = infoOf(PeImageBuilder::Build([] {
        PeImageSpec spec;
        spec.withFixed = false;
        return spec;
    }()));
    ASSERT_TRUE(empty.HasVersionInfo());
    EXPECT_TRUE(cFileVersionInfo::FromJson(empty.ToJson()).HasVersionInfo());
}

// Damaged and hostile images: the parser returns, reads nothing outside the buffer (the
// sanitizer build checks that), and never loops for ever.
TEST(PeVersionParserRobustness, EveryTruncationReturns) {
    const QByteArray good = PeImageBuilder::WithStrings(kStrings);
    int found = 0;
    for (int n = 0; n <= good.size(); ++n)
        found += parse(good.left(n)).found ? 1 : 0;
    EXPECT_TRUE(parse(good).found);
    // Only lengths that still hold the root node of the block can find it.
    EXPECT_LT(found, good.size() - PeImageBuilder::kVersionOffset + 1);
}

TEST(PeVersionParserRobustness, ThousandsOfMutationsReturn) {
    const QByteArray good = PeImageBuilder::WithStrings(kStrings);
    QRandomGenerator rng(20240601);
    int stillFound = 0;
    for (int round = 0; round < 4000; ++round) {
        QByteArray bad = good;
        const int edits = 1 + int(rng.bounded(8));
        for (int e = 0; e < edits; ++e) {
            const int at = int(rng.bounded(bad.size()));
            switch (rng.bounded(4)) {
            case 0:
                bad[at] = char(rng.bounded(256));
                break;
            case 1:
                bad[at] = char(0xFF);
                break;
            case 2:
                bad[at] = 0;
                break;
            default:
                bad.truncate(at);
                break;
            }
            if (bad.isEmpty())
                break;
        }
        const PeVersionBlock block = parse(bad);
        stillFound += block.found ? 1 : 0;
        for (const auto& s : block.strings)
            EXPECT_LE(s.second.size(), bad.size());
    }
    // Most single-byte damage lands in padding or text, so many images still read.
    EXPECT_GT(stillFound, 0);
}

TEST(PeVersionParserRobustness, DirectoryPointingBackAtItselfEnds) {
    const int r = PeImageBuilder::kResourceOffset;
    // Name and language levels both point at the root directory.
    const QByteArray bad =
        poked(poked(poked(PeImageBuilder::WithStrings(kStrings), r + 0x18 + 0x14, {0}),
                    r + 0x30 + 0x14, {0}),
              r + 0x30 + 0x17, {0x80});
    EXPECT_FALSE(parse(bad).found);
}

TEST(PeVersionParserRobustness, HugeCountsAndLengthsAreBounded) {
    const QByteArray good = PeImageBuilder::WithStrings(kStrings);
    const int r = PeImageBuilder::kResourceOffset;
    // A root directory claiming 4 billion entries; a version root longer than the file.
    EXPECT_NO_FATAL_FAILURE(parse(poked(good, r + 0x0C, {0xFF, 0xFF, 0xFF, 0xFF})));
    EXPECT_TRUE(parse(poked(good, PeImageBuilder::kVersionOffset, {0xFF, 0xFF})).found);

    // First child of the root (StringFileInfo) claims a length of 0: the walk stops there.
    const PeVersionBlock block = parse(poked(good, PeImageBuilder::kVersionOffset + 92, {0, 0}));
    EXPECT_TRUE(block.found);
    EXPECT_TRUE(block.strings.isEmpty());

    // A section count far past the end; a PE header offset far outside the file.
    const int coff = PeImageBuilder::kPeOffset + 4;
    EXPECT_TRUE(parse(poked(good, coff + 2, {0xFF, 0xFF})).found);
    EXPECT_FALSE(parse(poked(poked(good, 0x3C, {0xF0}), 0x3F, {0x7F})).found);
}
