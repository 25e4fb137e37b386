#include "DataServiceFixture.h"
#include "QsError.h"
#include "TestHome.h"
#include "cFileInfo.h"

#include <QFile>
#include <QMimeDatabase>

#include <gtest/gtest.h>

using namespace qs;

namespace {

class FileInfo : public ::testing::Test {
protected:
    QString write(const QString& name, const QByteArray& bytes) {
        return qs::test::WriteFile(home.file(name), bytes);
    }
    qs::test::TestHome home;
};

} // namespace

// Names that fit stay as they are in capitals; long or lossy ones keep six characters and a
// tilde; characters a short name cannot hold become underscores.
TEST(DosName, FollowsTheEightDotThreeRules) {
    const std::pair<const char*, const char*> cases[] = {
        {"readme.txt", "README.TXT"},
        {"Makefile", "MAKEFILE"},
        {"A1$~.C", "A1$~.C"},
        {"My Document.docx", "MYDOCU~1.DOC"},
        {"LongFileNameWithoutExt", "LONGFI~1"},
        {"archive.tar.gz", "ARCHIV~1.GZ"},
        {"page.html", "PAGE~1.HTM"},
        // A blank alone makes the name lossy, even when what is left would fit.
        {"a b.txt", "AB~1.TXT"},
        {".bashrc", "BASHRC~1"},
        {"a+b=c.txt", "A_B_C~1.TXT"},
        {"\xc3\x9c"
         "berblick.pdf",
         "_BERBL~1.PDF"},
        {"[x];y,z.t+t", "_X__Y_~1.T_T"},
    };
    for (const auto& [name, dos] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(cFileInfo::MakeDosName(QString::fromUtf8(name)), dos);
    }
}

TEST_F(FileInfo, CaptureKeepsNamePathSizeAndDatesOfOddNamesWhole) {
    const struct {
        QString name;
        int size;
        const char* dos;
    } cases[] = {
        {"Release Notes 2.txt", 1536, "RELEAS~1.TXT"},
        {QString::fromUtf8("r\xc3\xa9sum\xc3\xa9 f\xc3\xbcr Stra\xc3\x9f"
                           "e.rtf"),
         7, "R_SUM_~1.RTF"},
        {"NOTES", 1, "NOTES"},
        {"  spaced  out  ", 0, "SPACED~1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name.toStdString());
        const QDateTime before = QDateTime::currentDateTime().addSecs(-5);
        const QString path = write(c.name, QByteArray(c.size, 'x'));
        const cFileInfo info = cFileInfo::Capture(path);
        EXPECT_EQ(info.FileName(), c.name);
        EXPECT_EQ(info.FullPath(), path);
        EXPECT_EQ(info.DosName(), c.dos);
        EXPECT_EQ(info.Size(), c.size);
        EXPECT_EQ(info.FileTypeName(), cFileInfo::TypeNameOf(c.name));
        ASSERT_TRUE(info.DateCreated().isValid());
        EXPECT_GE(info.DateCreated(), before);
        EXPECT_LE(info.DateCreated(), QDateTime::currentDateTime().addSecs(5));
        EXPECT_FALSE(info.VersionInfo().HasVersionInfo());
    }
}

TEST_F(FileInfo, TypeNameComesFromTheMimeDatabaseOrTheExtension) {
    EXPECT_EQ(cFileInfo::TypeNameOf("x.qzq"), "QZQ File");
    EXPECT_EQ(cFileInfo::TypeNameOf("x"), "File");
    EXPECT_EQ(cFileInfo::TypeNameOf("NOTES"), "File");
    const QMimeType text = QMimeDatabase().mimeTypeForName("text/plain");
    if (text.isValid() && !text.comment().isEmpty()) {
        EXPECT_EQ(cFileInfo::TypeNameOf("Read Me.TXT"), text.comment());
    }
}

TEST_F(FileInfo, AttributesFollowPermissionsAndDotNames) {
    const QString locked = write("locked.dat", "1");
    QFile::setPermissions(locked, QFileDevice::ReadOwner | QFileDevice::ReadGroup);
    const cFileInfo ro = cFileInfo::Capture(locked);
    EXPECT_TRUE(ro.ReadOnly());
    EXPECT_FALSE(ro.Hidden());
    const cFileInfo hidden = cFileInfo::Capture(write(".profile", "2"));
    EXPECT_FALSE(hidden.ReadOnly());
    EXPECT_TRUE(hidden.Hidden());
    // No counterpart of these Windows attributes exists here.
    EXPECT_FALSE(hidden.System());
    EXPECT_FALSE(hidden.Archive());
    EXPECT_FALSE(hidden.Temporary());
}

TEST_F(FileInfo, MissingFileOrFolderRaisesFileNotFound) {
    const QsError e = qs::test::Raised([&] { cFileInfo::Capture(home.file("nothing here.txt")); });
    EXPECT_EQ(e.number(), 53);
    EXPECT_TRUE(e.description().contains("nothing here.txt"));
    EXPECT_THROW(cFileInfo::Capture(home.path()), QsError);
    EXPECT_THROW(cFileInfo::Capture(QString()), QsError);
}

TEST_F(FileInfo, IconIsAStoredImageOfTheType) {
    const cFileInfo pdf = cFileInfo::Capture(write("a.pdf", "%PDF"));
    const cFileInfo pdf2 = cFileInfo::Capture(write("b.PDF", "%PDF"));
    const cFileInfo zip = cFileInfo::Capture(write("c.zip", "PK"));
    ASSERT_TRUE(pdf.IconPng().startsWith("\x89PNG"));
    const QImage icon = pdf.IconHandle();
    ASSERT_EQ(icon.size(), QSize(32, 32));
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(16, 4)), 255);
    EXPECT_EQ(pdf.IconHandle(), pdf2.IconHandle());
    EXPECT_NE(pdf.IconHandle(), zip.IconHandle());
    EXPECT_TRUE(cFileInfo().IconHandle().isNull());
}

TEST_F(FileInfo, SizeTextShowsUnitsAndExactBytes) {
    EXPECT_EQ(cFileInfo::FormatSize(0), "0 bytes");
    EXPECT_EQ(cFileInfo::FormatSize(1023), "1,023 bytes");
    EXPECT_EQ(cFileInfo::FormatSize(1536), "1.50 KB (1,536 bytes)");
    EXPECT_EQ(cFileInfo::FormatSize(15 * 1024 + 1000), "15.9 KB (16,360 bytes)");
    EXPECT_EQ(cFileInfo::FormatSize(209715200), "200 MB (209,715,200 bytes)");
    EXPECT_EQ(cFileInfo::FormatSize(3LL * 1024 * 1024 * 1024), "3.00 GB (3,221,225,472 bytes)");
}

TEST_F(FileInfo, DateTextSpellsDayAndMonth) {
    const QDateTime morning(QDate(2024, 3, 4), QTime(10, 15, 0));
    EXPECT_EQ(cFileInfo::FormatDate(morning), "Monday, March 04, 2024, 10:15:00 AM");
    EXPECT_EQ(cFileInfo::FormatDate(QDateTime(QDate(2001, 12, 31), QTime(23, 5, 9))),
              "Monday, December 31, 2001, 11:05:09 PM");
    EXPECT_EQ(cFileInfo::FormatDate(QDateTime()), "");
}
