#include "HostFixture.h"
#include "mHelpRoutines.h"
#include "mLaunchAppsAndProcesses.h"
#include "mPathHelpers.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <cerrno>
#include <cstring>

using namespace qs;
using namespace qs::test;

namespace {
using Launch = HostFixture;
using Help = HostFixture;

void setHelpFolder(const QString& folder) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                   QString::fromLatin1(REG_VAL_HELPFILES_FILEPATH), folder);
}
} // namespace

TEST(LaunchMessages, EachProcedureKeepsItsOwnWording) {
    EXPECT_EQ(LaunchAppMessage(0),
              QStringLiteral("Insufficent system memory or corrupt program file."));
    EXPECT_EQ(RunFileMessage(0), QStringLiteral("The file could not be run due to insufficient "
                                                "system memory or a corrupt program file"));
    EXPECT_EQ(LaunchAppMessage(2), QStringLiteral("File not found."));
    EXPECT_EQ(RunFileMessage(2), QStringLiteral("File Not Found"));
    EXPECT_EQ(LaunchAppMessage(6),
              QStringLiteral("Seperate data segments are required for each task."));
    EXPECT_EQ(RunFileMessage(6),
              QStringLiteral("Separate data segments are required for each task "));
    EXPECT_EQ(RunFileMessage(12),
              QStringLiteral("Program file requires a different operating System "));
    EXPECT_EQ(RunFileMessage(15),
              QStringLiteral("Windows prgram does not support protected memory mode"));
    EXPECT_EQ(LaunchAppMessage(16), QStringLiteral("Invalid use of data segments when loading a "
                                                   "second instance of a program."));
    EXPECT_EQ(LaunchAppMessage(21), QStringLiteral("Program requires Windows 32-bit extensions."));
    EXPECT_EQ(RunFileMessage(31), QStringLiteral("No application found to run this file"));
    EXPECT_EQ(LaunchAppMessage(31), QString());
    EXPECT_EQ(LaunchAppMessage(4), QString());
}

TEST_F(Launch, FailureShowsTheMessageUnderErrorRunningAndTheFile) {
    hostScript.setShellResult(2);
    hostScript.expectMsgBox(QStringLiteral("File not found."), vbOK);
    EXPECT_EQ(extLaunchApp(QStringLiteral("/docs/a.doc"), true), 2);
    const QList<HostCall> shell = hostScript.callsOf(QStringLiteral("Shell"));
    ASSERT_EQ(shell.size(), 1);
    EXPECT_EQ(shell[0].title, QStringLiteral("Print"));
    EXPECT_EQ(hostScript.msgBoxes().first().title, QStringLiteral("Error running /docs/a.doc"));
}

TEST_F(Launch, SuppressedMessageAndNoApplicationShowNothing) {
    hostScript.setShellResult(3);
    EXPECT_EQ(extLaunchApp(QStringLiteral("/x/a.doc"), false, QString(), QString(), 1, true), 3);
    // 31 is not below 22: the launching procedure counts it as started.
    hostScript.setShellResult(31);
    EXPECT_EQ(extLaunchApp(QStringLiteral("/x/a.doc")), 31);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
    EXPECT_EQ(hostScript.callsOf(QStringLiteral("Shell"))[1].title, QStringLiteral("Open"));
}

TEST_F(Launch, RunFileReturnsTheFailureTextAndShowsNoBox) {
    hostScript.setShellResult(31);
    EXPECT_EQ(extRunFile(QStringLiteral("/x/a.xyz")),
              QStringLiteral("No application found to run this file"));
    hostScript.setShellResult(42);
    EXPECT_EQ(extRunFile(QStringLiteral("/x/a.txt")), QString());
    hostScript.setShellResult(11);
    EXPECT_EQ(extRunFile(QStringLiteral("/x/a.exe")), QStringLiteral("Invalid Program File"));
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}

TEST_F(Launch, StartUrlOpensTheTargetWithShowValueOne) {
    EXPECT_EQ(StartURL(QStringLiteral("https://example.org/")), 42);
    EXPECT_EQ(hostScript.log(), QStringLiteral("Shell[1] \"open\": https://example.org/ -> 42"));
}

TEST_F(Help, NothingIsShownWhileTheHelpFolderIsEmpty) {
    EXPECT_FALSE(ShowHelpTopic(1550));
    EXPECT_FALSE(ShowHelpContents());
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Help")).isEmpty());
}

TEST_F(Help, TopicContentsAndSearchReachTheHelpFileWithTheirCommands) {
    setHelpFolder(QStringLiteral("/opt/help"));
    EXPECT_TRUE(ShowHelpTopic(1550));
    EXPECT_TRUE(ShowHelpTopic(1420, true));
    EXPECT_TRUE(ShowHelpContents());
    EXPECT_TRUE(ShowHelpSearch());
    EXPECT_EQ(hostScript.log(QStringList{QStringLiteral("Help")}),
              QStringLiteral("Help[1] \"/opt/help/Quillstone.hlp\": 1550 -> shown\n"
                             "Help[8] \"/opt/help/Quillstone.hlp\": 1420 -> shown\n"
                             "Help[15] \"/opt/help/Quillstone.hlp\": 0 -> shown\n"
                             "Help[261] \"/opt/help/Quillstone.hlp\": 0 -> shown"));
}

TEST_F(Help, FailedHelpShowsTheSystemTextWithTheCriticalIcon) {
    setHelpFolder(QStringLiteral("/opt/help/"));
    hostScript.setHelpResult(false);
    hostScript.expectMsgBox(QString::fromLocal8Bit(std::strerror(ENOENT)), vbOK);
    EXPECT_FALSE(ShowHelpTopic(1370));
    EXPECT_EQ(hostScript.msgBoxes().first().icon(), vbCritical);
    EXPECT_EQ(hostScript.callsOf(QStringLiteral("Help")).first().title,
              QStringLiteral("/opt/help/Quillstone.hlp"));
}
