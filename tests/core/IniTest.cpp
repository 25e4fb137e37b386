#include "HostFixture.h"
#include "mINIReadWrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace qs;

namespace {

class Ini : public test::HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        mFile = home->file(QStringLiteral("Quillstone.ini"));
    }

    void writeFile(const QByteArray& bytes, const QString& path = QString()) const {
        const QString target = path.isEmpty() ? mFile : path;
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile file(target);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    QByteArray fileBytes() const {
        QFile file(mFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString mFile;
};

} // namespace

// Every read goes through one lookup: the file, the entry asked for and what comes back.
TEST_F(Ini, ReadsFindTheEntryOfItsOwnSection) {
    const struct {
        const char* file;
        const char* section;
        const char* key;
        const char* value;
    } rows[] = {
        {"[AppSettings]\r\n  UserId  =   jsmith   \r\n", "AppSettings", "UserId", "jsmith"},
        {"[AppSettings]\r\nRememberPass=\tsecret\t\r\n", "AppSettings", "RememberPass", "secret"},
        // Names match without regard to case or blanks inside the brackets.
        {"[ appsettings ]\nUSERID=abc\n", "AppSettings", "UserId", "abc"},
        {"[ appsettings ]\nUSERID=abc\n", "APPSETTINGS", "userid", "abc"},
        // Matching quotes around a value are removed, others kept.
        {"[S]\nA=\"  quoted  \"\n", "S", "A", "  quoted  "},
        {"[S]\nB='single'\n", "S", "B", "single"},
        {"[S]\nC=\"unbalanced\n", "S", "C", "\"unbalanced"},
        {"[S]\nD=\"mixed'\n", "S", "D", "\"mixed'"},
        {"[S]\nE=\"\n", "S", "E", "\""},
        {"[Other]\nUserId=x\n[AppSettings]\nName=y\n", "AppSettings", "UserId", ""},
        {"[Other]\nUserId=x\n[AppSettings]\nName=y\n", "Missing", "Name", ""},
        {"[A]\nk=1\n[B]\nother=2\n", "B", "k", ""},
        {"[A]\nk=1\n[B]\nother=2\n", "A", "other", ""},
        // A comment line is no entry; a semicolon inside a value is no comment.
        {"[S]\n;UserId=commented\nUserId=real ; not a comment\n", "S", "UserId",
         "real ; not a comment"},
        {"[S]\n;UserId=commented\nUserId=real ; not a comment\n", "S", ";UserId", ""},
    };
    for (const auto& row : rows) {
        writeFile(row.file);
        EXPECT_EQ(iniGetKeyValue(row.section, row.key, mFile, false, false).toString(), row.value)
            << row.file << " " << row.section << "/" << row.key;
    }
}

TEST_F(Ini, MissingFileGivesEmptyOrTheDefaultWithoutAMessageOrAFile) {
    EXPECT_EQ(File_GetSpecificKeySetting_FromSpecificFile(mFile, "AppSettings", "UserId"), "");
    EXPECT_EQ(ProfileGetString("Missing", "Name", "fallback", 256, mFile), "fallback");
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
    EXPECT_FALSE(QFile::exists(mFile));
}

TEST_F(Ini, ReadsSetThePointerBackToNormal) {
    hostScript.setMousePointer(vbHourglass);
    File_GetSpecificKeySetting_FromSpecificFile(mFile, "AppSettings", "UserId");
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(Ini, ResultsAreCutToTheBufferLessItsTerminator) {
    const QByteArray longValue(600, 'x');
    writeFile("[S]\nLong=" + longValue + "\n");
    EXPECT_EQ(File_GetSpecificKeySetting_FromSpecificFile(mFile, "S", "Long"),
              QString(254, QLatin1Char('x')));
    EXPECT_EQ(iniGetKeyValue("S", "Long", mFile, false, false).toString(),
              QString(255, QLatin1Char('x')));
}

TEST_F(Ini, IntegerReaderTakesTheLeadingDigits) {
    writeFile("[N]\nPlain=42\nTrailing=17abc\nWords=abc\nNegative=-5\nQuoted=\"8\"\nEmpty=\n");
    EXPECT_EQ(iniGetKeyValue("N", "Plain", mFile, true, false), QVariant(42));
    EXPECT_EQ(iniGetKeyValue("N", "Trailing", mFile, true, false), QVariant(17));
    EXPECT_EQ(iniGetKeyValue("N", "Words", mFile, true, false), QVariant(0));
    EXPECT_EQ(iniGetKeyValue("N", "Negative", mFile, true, false), QVariant(0));
    EXPECT_EQ(iniGetKeyValue("N", "Quoted", mFile, true, false), QVariant(8));
    EXPECT_EQ(iniGetKeyValue("N", "Empty", mFile, true, false), QVariant(0));
    EXPECT_EQ(iniGetKeyValue("N", "Missing", mFile, true, false), QVariant(0));
    EXPECT_EQ(ProfileGetInt("N", "Missing", 9, mFile), 9);
}

TEST_F(Ini, SystemFileIsReadInsteadOfTheGivenOne) {
    writeFile("[windows]\nBeep=yes\n", SystemIniFile());
    writeFile("[windows]\nBeep=no\n");
    EXPECT_EQ(SystemIniFile(), home->file("config/Tarnwick/win.ini"));
    EXPECT_EQ(iniGetKeyValue("windows", "Beep", mFile, false, true).toString(), "yes");
    EXPECT_EQ(iniGetKeyValue("windows", "Beep", mFile, false, false).toString(), "no");
    EXPECT_EQ(iniGetSectionKeys("windows", mFile, true), QStringLiteral("Beep=yes") + QChar(0));
}

TEST_F(Ini, SectionKeysGiveTheFirstEntryUpToItsTerminator) {
    writeFile("[S]\n; note\n\n first = 1 \nsecond=2\n[T]\n");
    EXPECT_EQ(iniGetSectionKeys("S", mFile, false), QStringLiteral("first=1") + QChar(0));
    EXPECT_EQ(iniGetSectionKeys("T", mFile, false), QString(QChar(0)));
    EXPECT_EQ(iniGetSectionKeys("Missing", mFile, false), QString(QChar(0)));
}

TEST_F(Ini, SectionIsCutToItsBuffer) {
    const QByteArray first(3000, 'a');
    const QByteArray second(3000, 'b');
    writeFile("[S]\nA=" + first + "\nB=" + second + "\n");
    const QStringList entries = ProfileGetSection("S", 4096, mFile);
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries.at(0).size(), 3002);
    // Both entries with their terminators and the closing one fill the buffer exactly.
    EXPECT_EQ(entries.at(0).size() + 1 + entries.at(1).size() + 1 + 1, 4096);
    EXPECT_TRUE(entries.at(1).startsWith("B=bbb"));
}

TEST_F(Ini, EnumeratedSectionValuesAreNumberedFromOne) {
    writeFile("[S]\nA=1\nFlag\n;comment\nB = two\n[T]\nC=3\n");
    const VbArray<QString> values = iniEnumSectionValues(mFile, "s");
    ASSERT_EQ(values.LBound(), 1);
    ASSERT_EQ(values.UBound(), 3);
    EXPECT_EQ(values(1), "A=1");
    EXPECT_EQ(values(2), "Flag");
    EXPECT_EQ(values(3), "B=two");

    const VbArray<QString> none = iniEnumSectionValues(mFile, "Missing");
    EXPECT_EQ(none.LBound(), 0);
    EXPECT_EQ(none.UBound(), 0);
}

TEST_F(Ini, WritingAKeyKeepsEveryOtherLine) {
    writeFile("; settings of the program\n[AppSettings]\nUserId=old\n; keep me\nRememberPass=\n\n"
              "[Other]\nx=1\n");
    hostScript.setMousePointer(vbHourglass);
    EXPECT_TRUE(
        File_WriteSpecificKeyNameAndSetting_ToSpecificFile("appsettings", "USERID", "new", mFile));
    EXPECT_EQ(fileBytes(), "; settings of the program\r\n[AppSettings]\r\nUserId=new\r\n; keep "
                           "me\r\nRememberPass=\r\n\r\n[Other]\r\nx=1\r\n");
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}

TEST_F(Ini, MissingKeyIsAddedAtTheEndOfItsSection) {
    writeFile("[AppSettings]\r\nRememberPass=\r\n\r\n[Other]\r\nx=1\r\n");
    ASSERT_TRUE(ProfileWriteString("AppSettings", "UserId", "u1", mFile));
    EXPECT_EQ(fileBytes(), "[AppSettings]\r\nRememberPass=\r\nUserId=u1\r\n\r\n[Other]\r\nx=1\r\n");
    EXPECT_EQ(File_GetSpecificKeySetting_FromSpecificFile(mFile, "AppSettings", "UserId"), "u1");
}

TEST_F(Ini, MissingSectionAndFileAreCreated) {
    ASSERT_TRUE(ProfileWriteString("AppSettings", "UserId", "u1", mFile));
    EXPECT_EQ(fileBytes(), "[AppSettings]\r\nUserId=u1\r\n");
    ASSERT_TRUE(ProfileWriteString("Second", "k", "v", mFile));
    EXPECT_EQ(fileBytes(), "[AppSettings]\r\nUserId=u1\r\n\r\n[Second]\r\nk=v\r\n");
}

TEST_F(Ini, FailedWriteShowsTheErrorBoxAndReturnsFalse) {
    const QString unreachable = home->file("no such folder/Quillstone.ini");
    hostScript.expectMsgBox("VB Error Number = ");
    EXPECT_FALSE(File_WriteSpecificKeyNameAndSetting_ToSpecificFile("AppSettings", "UserId", "u",
                                                                    unreachable));
    ASSERT_EQ(hostScript.msgBoxes().size(), 1);
    const test::HostCall box = hostScript.msgBoxes().front();
    EXPECT_EQ(box.title, "Error");
    EXPECT_EQ(box.icon(), vbExclamation);
    EXPECT_EQ(box.text, "VB Error Number = 75\r\nVB Error Source = Quillstone\r\n"
                        "VB Error Description = Path/File access error");
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(unreachable).absolutePath()));
}
