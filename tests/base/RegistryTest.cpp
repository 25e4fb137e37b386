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

const QString kTestKey = "SOFTWARE\\Tarnwick\\Quillstone System\\TestKey";

class Registry : public ::testing::Test {
protected:
    void SetUp() override { mHome = std::make_unique<test::TestHome>(); }

    static QByteArray storeBytes() {
        QFile file(RegStoreFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QJsonObject storedKeys() {
        return QJsonDocument::fromJson(storeBytes()).object().value("keys").toObject();
    }
    // The values of one key as they stand in the file, looked up by the stored spelling.
    static QJsonObject storedKey(const QString& keyText) {
        return storedKeys().value("HKEY_LOCAL_MACHINE\\" + keyText).toObject();
    }
    // One value's type and data as stored.
    static QJsonObject stored(const QString& value, const QString& keyText = kTestKey) {
        return storedKey(keyText).value(value).toObject();
    }
    static void writeStore(const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(RegStoreFile()).absolutePath());
        QFile file(RegStoreFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    static QVariant databasePath() {
        return GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, REG_DEF_DATABASE_PATH);
    }

    std::unique_ptr<test::TestHome> mHome;
};

} // namespace

TEST_F(Registry, FirstReadWritesTheDefaultsAndAStoredValueWinsAfterwards) {
    EXPECT_FALSE(QFile::exists(RegStoreFile()));
    EXPECT_EQ(databasePath(), QVariant(QString("Database")));
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_FILENAME, REG_DEF_DATABASE_FILENAME),
              QVariant(QString("Quillstone.mdb")));
    EXPECT_EQ(stored("Path", REG_KEY_DATABASE)["type"].toInt(), REG_SZ);
    EXPECT_EQ(stored("Path", REG_KEY_DATABASE)["data"].toString(), "Database");
    EXPECT_EQ(stored("FileName", REG_KEY_DATABASE)["data"].toString(), "Quillstone.mdb");

    SaveRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, QString("/data/libs"));
    EXPECT_EQ(databasePath(), QVariant(QString("/data/libs")));
}

TEST_F(Registry, OpeningAKeyCreatesItAndAnUnknownRootGivesNoHandleAndEmpty) {
    const RegKeyHandle handle = OpenRegKey(HKEY_LOCAL_MACHINE, kTestKey);
    EXPECT_NE(handle, 0);
    CloseRegKey(handle);
    EXPECT_TRUE(storedKeys().contains("HKEY_LOCAL_MACHINE\\" + kTestKey));
    EXPECT_EQ(OpenRegKey(0x1234, kTestKey), 0);
    EXPECT_FALSE(GetValue(0x1234, kTestKey, "X", QString("d")).isValid());
}

TEST_F(Registry, BooleanOrMissingDefaultIsNeverWritten) {
    for (int run = 0; run < 2; ++run) {
        const QVariant v =
            GetRegSetting(REG_KEY_TOOLBARSETTINGS, REG_VAL_VIEWBOOKMARKS, REG_DEF_VIEWBOOKMARKS);
        EXPECT_EQ(v.metaType().id(), QMetaType::Bool);
        EXPECT_TRUE(v.toBool());
    }
    EXPECT_FALSE(storedKey(REG_KEY_TOOLBARSETTINGS).contains(REG_VAL_VIEWBOOKMARKS));
    SaveRegSetting(REG_KEY_TOOLBARSETTINGS, REG_VAL_VIEWBOOKMARKS, false);
    EXPECT_TRUE(GetRegSetting(REG_KEY_TOOLBARSETTINGS, REG_VAL_VIEWBOOKMARKS, true).toBool());

    EXPECT_FALSE(GetRegSetting(kTestKey, "Nothing").isValid());
    EXPECT_TRUE(storedKey(kTestKey).isEmpty());
}

TEST_F(Registry, ValueNamesAndKeysMatchWithoutRegardToCase) {
    SaveRegSetting(kTestKey, "LastCat", QString("first"));
    SaveRegSetting(kTestKey.toUpper(), "LASTCAT", QString("second"));
    EXPECT_EQ(GetRegSetting(kTestKey.toLower(), "lastcat").toString(), "second");
    // One value, under the spelling it was first written with.
    EXPECT_EQ(storedKey(kTestKey).keys(), QStringList{"LastCat"});
}

// Strings come through a buffer of 2048 characters with its terminator, cut at the first NUL or
// else trimmed of blanks; numbers and bytes keep their types.  The store keeps what was written.
TEST_F(Registry, ValuesRoundTripByTheirTypeAndStringsAreCutOrTrimmed) {
    const QByteArray bytes("\x00\x01\xfe\xff", 4);
    const struct {
        const char* name;
        QVariant written, read;
        int type;
    } cases[] = {
        {"Padded", QString("  text with blanks  "), QString("text with blanks"), REG_SZ},
        {"WithNul", QString("  keep") + QChar(0) + "dropped  ", QString("  keep"), REG_SZ},
        {"OneBlank", QString(" "), QString(""), REG_SZ},
        {"Exact", QString(2047, 'a'), QString(2047, 'a'), REG_SZ},
        {"Longer", QString(2047, 'b') + "cdef", QString(2047, 'b'), REG_SZ},
        {"Long", 123456789, 123456789, REG_DWORD},
        {"Negative", -42, -42, REG_DWORD},
        {"Short", QVariant::fromValue<short>(7), 7, REG_DWORD},
        {"Bytes", bytes, bytes, REG_BINARY},
    };
    for (const auto& c : cases)
        SaveRegSetting(kTestKey, c.name, c.written);
    for (const auto& c : cases) {
        EXPECT_EQ(GetRegSetting(kTestKey, c.name), c.read) << c.name;
        EXPECT_EQ(stored(c.name)["type"].toInt(), c.type) << c.name;
    }
    EXPECT_EQ(stored("Longer")["data"].toString(), QString(2047, 'b') + "cdef");
}

TEST_F(Registry, WriterIgnoresNullBooleansAndOtherTypesAndKeepsAKeysDefaultValueAsAString) {
    SaveRegSetting(kTestKey, "Null", QVariant::fromValue(nullptr));
    SaveRegSetting(kTestKey, "Double", 1.5);
    SaveRegSetting(kTestKey, "Wide", QVariant::fromValue<qint64>(5));
    SaveRegSetting(kTestKey, "Flag", true);
    EXPECT_TRUE(storedKey(kTestKey).isEmpty());
    // Null leaves a stored value as it was.
    SaveRegSetting(kTestKey, "Kept", QString("v"));
    SaveRegSetting(kTestKey, "Kept", QVariant::fromValue(nullptr));
    EXPECT_EQ(GetRegSetting(kTestKey, "Kept").toString(), "v");

    EXPECT_EQ(GetValue(HKEY_LOCAL_MACHINE, kTestKey, QString(), QString("dflt")).toString(),
              "dflt");
    SetValue(HKEY_LOCAL_MACHINE, kTestKey, QString(), 12);
    EXPECT_EQ(GetValue(HKEY_LOCAL_MACHINE, kTestKey, QString()), QVariant(QString("12")));
}

// A store that is not ours to read counts as empty: a read leaves the file alone, and a write,
// a default's included, replaces it.
TEST_F(Registry, UnreadableStoreReadsAsEmptyAndTheNextWriteReplacesIt) {
    for (const QByteArray& bad :
         {QByteArray("{\"keys\": {\"HKEY_LOCAL_MACHINE\\\\SOFT"), QByteArray("[1, 2, 3]")}) {
        SCOPED_TRACE(bad.toStdString());
        writeStore(bad);
        EXPECT_FALSE(GetRegSetting(kTestKey, "Any").isValid());
        EXPECT_EQ(storeBytes(), bad);
        EXPECT_EQ(GetRegSetting(kTestKey, "X", QString("d")).toString(), "d");
        EXPECT_EQ(GetRegSetting(kTestKey, "X").toString(), "d");
        SaveRegSetting(kTestKey, "Any", QString("fresh"));
        EXPECT_EQ(GetRegSetting(kTestKey, "Any").toString(), "fresh");
    }
}

TEST_F(Registry, UnwritableFolderKeepsNothingAndRaisesNothing) {
    // A plain file where the store's folder belongs: nothing can be written there, whatever the
    // rights of the user running the tests.
    const QString folder = QFileInfo(RegStoreFile()).absolutePath();
    {
        QFile blocker(folder);
        ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    }
    EXPECT_NO_THROW(SaveRegSetting(kTestKey, "Lost", QString("x")));
    EXPECT_FALSE(GetRegSetting(kTestKey, "Lost").isValid());
    // Reads still give their defaults, run after run.
    for (int run = 0; run < 2; ++run)
        EXPECT_EQ(databasePath().toString(), "Database");
    EXPECT_TRUE(QFileInfo(folder).isFile());
    EXPECT_EQ(QFileInfo(folder).size(), 0);
}

TEST_F(Registry, ChangesByAnotherProgramAreSeenByTheNextRead) {
    SaveRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH, QString("/mine"));
    EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH).toString(), "/mine");
    // Another program rewrites the file, spelling the key in its own case, and adds a value of a
    // type this store does not read: that one reads as empty and is not overwritten by a default.
    writeStore(R"({"keys":{"hkey_local_machine\\software\\tarnwick\\quillstone system\\database":
                  {"path":{"type":1,"data":"/theirs"},"Expand":{"type":2,"data":"%HOME%"}}}})");
    for (int run = 0; run < 2; ++run)
        EXPECT_EQ(GetRegSetting(REG_KEY_DATABASE, REG_VAL_DATABASE_PATH).toString(), "/theirs");
    EXPECT_FALSE(GetRegSetting(REG_KEY_DATABASE, "Expand", QString("d")).isValid());
    EXPECT_TRUE(storeBytes().contains(R"("Expand":{"type":2,"data":"%HOME%"})"));
}

TEST_F(Registry, StoreAndAppPathFollowTheEnvironment) {
    EXPECT_EQ(RegStoreFile(), mHome->file("config/Tarnwick/Quillstone System.json"));
    SaveRegSetting(kTestKey, "Where", QString("first home"));
    {
        test::TestHome other;
        EXPECT_EQ(RegStoreFile(), other.file("config/Tarnwick/Quillstone System.json"));
        EXPECT_FALSE(GetRegSetting(kTestKey, "Where").isValid());
    }
    EXPECT_EQ(GetRegSetting(kTestKey, "Where").toString(), "first home");

    const QString path = AppPath();
    EXPECT_TRUE(path.startsWith(mHome->file("data")));
    EXPECT_FALSE(path.endsWith('/'));
    EXPECT_TRUE(QFileInfo(path).isDir());
}
