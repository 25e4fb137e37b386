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

// Each procedure keeps its own wording; empty where it has none for that code.
TEST(LaunchMessages, EachProcedureKeepsItsOwnWording) {
    const struct {
        int code;
        const char *launch, *run;
    } rows[] = {
        {0, "Insufficent system memory or corrupt program file.",
         "The file could not be run due to insufficient system memory or a corrupt program file"},
        {2, "File not found.", "File Not Found"},
        {6, "Seperate data segments are required for each task.",
         "Separate data segments are required for each task "},
        {12, nullptr, "Program file requires a different operating System "},
        {15, nullptr, "Windows prgram does not support protected memory mode"},
        {16, "Invalid use of data segments when loading a second instance of a program.", nullptr},
        {21, "Program requires Windows 32-bit extensions.", nullptr},
        {31, "", "No application found to run this file"},
        {4, "", nullptr},
    };
    for (const auto& r : rows) {
        if (r.launch) {
            EXPECT_EQ(LaunchAppMessage(r.code), r.launch) << r.code;
        }
        if (r.run) {
            EXPECT_EQ(RunFileMessage(r.code), r.run) << r.code;
        }
    }
}

TEST_F(Launch, FailureShowsTheMessageUnderErrorRunningAndTheFile) {
    hostScript.setShellResult(2);
    hostScript.expectMsgBox("File not found.", vbOK);
    EXPECT_EQ(extLaunchApp("/docs/a.doc", true), 2);
    EXPECT_EQ(hostScript.log({"Shell"}), "Shell[1] \"Print\": /docs/a.doc -> 2");
    EXPECT_EQ(hostScript.msgBoxes().first().title, "Error running /docs/a.doc");
}

// A suppressed message, a code the launcher counts as started (31 is not below 22), and every
// result of the run procedure, which returns its text instead of showing it.
TEST_F(Launch, SuppressedOrReturnedFailuresShowNoBox) {
    hostScript.setShellResult(3);
    EXPECT_EQ(extLaunchApp("/x/a.doc", false, QString(), QString(), 1, true), 3);
    hostScript.setShellResult(31);
    EXPECT_EQ(extLaunchApp("/x/a.doc"), 31);
    EXPECT_EQ(hostScript.callsOf("Shell")[1].title, "Open");
    for (const auto& [code, text] : {std::pair{31, "No application found to run this file"},
                                     std::pair{42, ""}, std::pair{11, "Invalid Program File"}}) {
        hostScript.setShellResult(code);
        EXPECT_EQ(extRunFile("/x/a.xyz"), text) << code;
    }
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}

TEST_F(Launch, StartUrlOpensTheTargetWithShowValueOne) {
    EXPECT_EQ(StartURL("https://example.org/"), 42);
    EXPECT_EQ(hostScript.log(), "Shell[1] \"open\": https://example.org/ -> 42");
}

TEST_F(Help, NothingIsShownWhileTheHelpFolderIsEmpty) {
    EXPECT_FALSE(ShowHelpTopic(1550));
    EXPECT_FALSE(ShowHelpContents());
    EXPECT_TRUE(hostScript.callsOf("Help").isEmpty());
}

TEST_F(Help, TopicContentsAndSearchReachTheHelpFileWithTheirCommands) {
    setHelpFolder("/opt/help");
    EXPECT_TRUE(ShowHelpTopic(1550));
    EXPECT_TRUE(ShowHelpTopic(1420, true));
    EXPECT_TRUE(ShowHelpContents());
    EXPECT_TRUE(ShowHelpSearch());
    EXPECT_EQ(hostScript.log({"Help"}), "Help[1] \"/opt/help/Quillstone.hlp\": 1550 -> shown\n"
                                        "Help[8] \"/opt/help/Quillstone.hlp\": 1420 -> shown\n"
                                        "Help[15] \"/opt/help/Quillstone.hlp\": 0 -> shown\n"
                                        "Help[261] \"/opt/help/Quillstone.hlp\": 0 -> shown");
}

TEST_F(Help, FailedHelpShowsTheSystemTextWithTheCriticalIcon) {
    setHelpFolder("/opt/help/");
    hostScript.setHelpResult(false);
    hostScript.expectMsgBox(QString::fromLocal8Bit(std::strerror(ENOENT)), vbOK);
    EXPECT_FALSE(ShowHelpTopic(1370));
    EXPECT_EQ(hostScript.msgBoxes().first().icon(), vbCritical);
    EXPECT_EQ(hostScript.callsOf("Help").first().title, "/opt/help/Quillstone.hlp");
}
