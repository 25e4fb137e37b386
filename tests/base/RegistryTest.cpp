#include "AppPaths.h"
#include "TestHome.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <memory>

using namespace qs;

namespace {

class Registry : public ::testing::Test {
protected:
    void SetUp() override { mHome = std::make_unique<test::TestHome>(); }

    QByteArray storeBytes() const {
        QFile file(RegStoreFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // The values of one key as they stand in the file, looked up by the stored spelling.
    QJsonObject storedKey(const QString& keyText) const {
        const QJsonObject keys =
            QJsonDocument::fromJson(storeBytes()).object().value(QStringLiteral("keys")).toObject();
        return keys.value(QStringLiteral("HKEY_LOCAL_MACHINE\\") + keyText).toObject();
    }
    void writeStore(const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(RegStoreFile()).absolutePath());
        QFile file(RegStoreFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }

    std::unique_ptr<test::TestHome> mHome;
};

const QString kTestKey = QStringLiteral("SOFTWARE\\Tarnwick\\Quillstone System\\TestKey");

} // namespace

TEST_F(Registry, StoreLivesInTheConfigurationFolderOfTheEnvironment) {
    EXPECT_EQ(RegStoreFile(),
              mHome->file(QStringLiteral("config/Tarnwick/Quillstone System.json")));
}

TEST_F(Registry, FirstReadOfDatabaseWritesBothDefaultsToTheStore) {
    EXPECT_FALSE(QFile::exists(RegStoreFile()));
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, REG_DEF_DATABASE_PATH),
              QVariant(QStringLiteral("Database")));
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_FILENAME, REG_DEF_DATABASE_FILENAME),
              QVariant(QStringLiteral("Quillstone.mdb")));

    const QJsonObject values = storedKey(REG_KEY_DATABASE);
    EXPECT_EQ(values.value("Path").toObject().value("type").toInt(), REG_SZ);
    EXPECT_EQ(values.value("Path").toObject().value("data").toString(), "Database");
    EXPECT_EQ(values.value("FileName").toObject().value("data").toString(), "Quillstone.mdb");
}

TEST_F(Registry, StoredValueWinsOverTheDefault) {
    SaveRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, QStringLiteral("/data/libs"));
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, REG_DEF_DATABASE_PATH),
              QVariant(QStringLiteral("/data/libs")));
}

TEST_F(Registry, OpeningAKeyCreatesIt) {
    const RegKeyHandle handle = OpenRegKey(HKEY_LOCAL_MACHINE, kTestKey);
    EXPECT_NE(handle, 0);
    CloseRegKey(handle);
    const QJsonObject keys =
        QJsonDocument::fromJson(storeBytes()).object().value(QStringLiteral("keys")).toObject();
    EXPECT_TRUE(keys.contains(QStringLiteral("HKEY_LOCAL_MACHINE\\") + kTestKey));
}

TEST_F(Registry, UnknownRootGivesNoHandleAndEmpty) {
    EXPECT_EQ(OpenRegKey(0x1234, kTestKey), 0);
    EXPECT_FALSE(GetValue(0x1234, kTestKey, QStringLiteral("X"), QStringLiteral("d")).isValid());
}

TEST_F(Registry, BooleanDefaultIsReturnedButNeverWritten) {
    for (int run = 0; run < 2; ++run) {
        const QVariant v =
            GetRegSetting(REG_KEY_TOOLBARSETTINGS, REG_VAL_VIEWBOOKMARKS, REG_DEF_VIEWBOOKMARKS);
        EXPECT_EQ(v.metaType().id(), QMetaType::Bool);
        EXPECT_TRUE(v.toBool());
    }
    EXPECT_FALSE(storedKey(REG_KEY_TOOLBARSETTINGS).contains(REG_VAL_VIEWBOOKMARKS));
    SaveRegSetting(REG_KEY_TOOLBARSETTINGS, REG_VAL_VIEWBOOKMARKS, false);
    EXPECT_TRUE(GetRegSetting(REG_KEY_TOOLBARSETTINGS, REG_VAL_VIEWBOOKMARKS, true).toBool());
}

TEST_F(Registry, MissingValueWithoutDefaultIsEmptyAndNotWritten) {
    EXPECT_FALSE(GetRegSetting(kTestKey, QStringLiteral("Nothing")).isValid());
    EXPECT_TRUE(storedKey(kTestKey).isEmpty());
}

TEST_F(Registry, ValueNamesAndKeysMatchWithoutRegardToCase) {
    SaveRegSetting(kTestKey, QStringLiteral("LastCat"), QStringLiteral("first"));
    SaveRegSetting(kTestKey.toUpper(), QStringLiteral("LASTCAT"), QStringLiteral("second"));
    EXPECT_EQ(GetRegSetting(kTestKey.toLower(), QStringLiteral("lastcat")).toString(), "second");
    // One value, under the spelling it was first written with.
    EXPECT_EQ(storedKey(kTestKey).keys(), QStringList{QStringLiteral("LastCat")});
}

TEST_F(Registry, StringsAreCutAtTheFirstNulOrTrimmedOfBlanks) {
    SaveRegSetting(kTestKey, "Padded", QStringLiteral("  text with blanks  "));
    SaveRegSetting(kTestKey, "WithNul", QStringLiteral("  keep") + QChar(0) + "dropped  ");
    SaveRegSetting(kTestKey, "OneBlank", QStringLiteral(" "));
    EXPECT_EQ(GetRegSetting(kTestKey, "Padded").toString(), "text with blanks");
    EXPECT_EQ(GetRegSetting(kTestKey, "WithNul").toString(), "  keep");
    EXPECT_EQ(GetRegSetting(kTestKey, "OneBlank").toString(), "");
}

TEST_F(Registry, LongStringsAreCutToTheBufferLessItsTerminator) {
    const QString exact(2047, QLatin1Char('a'));
    const QString longer = QString(2047, QLatin1Char('b')) + QStringLiteral("cdef");
    SaveRegSetting(kTestKey, "Exact", exact);
    SaveRegSetting(kTestKey, "Longer", longer);
    EXPECT_EQ(GetRegSetting(kTestKey, "Exact").toString(), exact);
    EXPECT_EQ(GetRegSetting(kTestKey, "Longer").toString(), QString(2047, QLatin1Char('b')));
    // The store itself keeps the whole text.
    EXPECT_EQ(storedKey(kTestKey).value("Longer").toObject().value("data").toString(), longer);
}

TEST_F(Registry, IntegersAndBytesRoundTripWithTheirTypes) {
    SaveRegSetting(kTestKey, "Long", 123456789);
    SaveRegSetting(kTestKey, "Negative", -42);
    SaveRegSetting(kTestKey, "Short", QVariant::fromValue<short>(7));
    const QByteArray bytes("\x00\x01\xfe\xff", 4);
    SaveRegSetting(kTestKey, "Bytes", bytes);

    EXPECT_EQ(GetRegSetting(kTestKey, "Long"), QVariant(123456789));
    EXPECT_EQ(GetRegSetting(kTestKey, "Negative"), QVariant(-42));
    EXPECT_EQ(GetRegSetting(kTestKey, "Short"), QVariant(7));
    EXPECT_EQ(GetRegSetting(kTestKey, "Bytes").toByteArray(), bytes);
    EXPECT_EQ(storedKey(kTestKey).value("Short").toObject().value("type").toInt(), REG_DWORD);
    EXPECT_EQ(storedKey(kTestKey).value("Bytes").toObject().value("type").toInt(), REG_BINARY);
}

TEST_F(Registry, WriterIgnoresNullBooleansAndOtherTypes) {
    SaveRegSetting(kTestKey, "Null", QVariant::fromValue(nullptr));
    SaveRegSetting(kTestKey, "Double", 1.5);
    SaveRegSetting(kTestKey, "Wide", QVariant::fromValue<qint64>(5));
    SaveRegSetting(kTestKey, "Flag", true);
    EXPECT_TRUE(storedKey(kTestKey).isEmpty());
    // Null leaves a stored value as it was.
    SaveRegSetting(kTestKey, "Kept", QStringLiteral("v"));
    SaveRegSetting(kTestKey, "Kept", QVariant::fromValue(nullptr));
    EXPECT_EQ(GetRegSetting(kTestKey, "Kept").toString(), "v");
}

TEST_F(Registry, DefaultValueOfAKeyIsReadWithAnEmptyName) {
    EXPECT_EQ(GetValue(HKEY_LOCAL_MACHINE, kTestKey, QString(), QStringLiteral("dflt")).toString(),
              "dflt");
    SetValue(HKEY_LOCAL_MACHINE, kTestKey, QString(), 12);
    // Under an empty name everything is written as a string.
    EXPECT_EQ(GetValue(HKEY_LOCAL_MACHINE, kTestKey, QString()), QVariant(QStringLiteral("12")));
}

TEST_F(Registry, ValueOfAnotherTypeReadsAsEmpty) {
    writeStore(R"({"keys":{"HKEY_LOCAL_MACHINE\\SOFTWARE\\Tarnwick\\Quillstone System\\TestKey":
                  {"Expand":{"type":2,"data":"%HOME%"}}}})");
    EXPECT_FALSE(GetRegSetting(kTestKey, "Expand", QStringLiteral("d")).isValid());
    // A value that exists is not overwritten by its default.
    EXPECT_EQ(storedKey(kTestKey).value("Expand").toObject().value("type").toInt(), 2);
}

TEST_F(Registry, CorruptStoreReadsAsEmptyAndTheNextWriteWorks) {
    const QByteArray garbage("{\"keys\": {\"HKEY_LOCAL_MACHINE\\\\SOFT");
    writeStore(garbage);
    EXPECT_FALSE(GetRegSetting(kTestKey, "Any").isValid());
    EXPECT_EQ(storeBytes(), garbage);

    SaveRegSetting(kTestKey, "Any", QStringLiteral("fresh"));
    EXPECT_EQ(GetRegSetting(kTestKey, "Any").toString(), "fresh");
}

TEST_F(Registry, StoreOfTheWrongShapeReadsAsEmpty) {
    writeStore("[1, 2, 3]");
    EXPECT_EQ(GetRegSetting(kTestKey, "X", QStringLiteral("d")).toString(), "d");
    EXPECT_EQ(GetRegSetting(kTestKey, "X").toString(), "d");
}

TEST_F(Registry, UnwritableFolderKeepsNothingAndRaisesNothing) {
    // A plain file where the store's folder belongs: nothing can be written there, whatever the
    // rights of the user running the tests.
    const QString folder = QFileInfo(RegStoreFile()).absolutePath();
    {
        QFile blocker(folder);
        ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    }

    EXPECT_NO_THROW(SaveRegSetting(kTestKey, "Lost", QStringLiteral("x")));
    EXPECT_FALSE(GetRegSetting(kTestKey, "Lost").isValid());
    // Reads still give their defaults, run after run.
    for (int run = 0; run < 2; ++run)
        EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, REG_DEF_DATABASE_PATH)
                      .toString(),
                  "Database");
    EXPECT_TRUE(QFileInfo(folder).isFile());
    EXPECT_EQ(QFileInfo(folder).size(), 0);
}

TEST_F(Registry, ChangesByAnotherProgramAreSeenByTheNextRead) {
    SaveRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, QStringLiteral("/mine"));
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH).toString(), "/mine");

    // Another program rewrites the file, spelling the key in its own case.
    writeStore(R"({"keys":{"hkey_local_machine\\software\\tarnwick\\quillstone system\\database":
                  {"path":{"type":1,"data":"/theirs"}}}})");
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH).toString(), "/theirs");
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH).toString(), "/theirs");
}

TEST_F(Registry, ChangedEnvironmentMovesTheStore) {
    SaveRegSetting(kTestKey, "Where", QStringLiteral("first home"));
    {
        test::TestHome other;
        EXPECT_FALSE(GetRegSetting(kTestKey, "Where").isValid());
    }
    EXPECT_EQ(GetRegSetting(kTestKey, "Where").toString(), "first home");
}

TEST(AppPaths, AppPathIsTheCreatedDataFolderWithoutTrailingSeparator) {
    test::TestHome home;
    const QString path = AppPath();
    EXPECT_TRUE(path.startsWith(home.file(QStringLiteral("data"))));
    EXPECT_FALSE(path.endsWith(QLatin1Char('/')));
    EXPECT_TRUE(QFileInfo(path).isDir());
}
