#include "HostFixture.h"
#include "QsError.h"
#include "mErrorHandling.h"

#include <QFile>
#include <stdexcept>

using namespace qs;
using namespace qs::test;

namespace {

using ErrorLog = HostFixture;

QString readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(f.readAll()) : QString();
}

const QString kDashes(80, '-');

// Runs DisplayErrInfo and gives the error it raised (its number 0 when none).
QsError displayFailure(const QString& source, long number, const QString& description) {
    try {
        DisplayErrInfo(source, number, description);
    } catch (const QsError& e) {
        return e;
    }
    return QsError(0, QString(), QString());
}

} // namespace

TEST_F(ErrorLog, EntryHoldsTheFourLinesAndTheDashes) {
    const QDateTime when(QDate(2002, 7, 11), QTime(14, 32, 8));
    EXPECT_EQ(LogEntryText(91, "QuillstonefrmMain:Form_Load;", "Object variable not set",
                           vbLogError, when),
              "DateTime: 07/11/2002 14:32:08  (Error Message)\r\n"
              "Err:91(5B)\r\n"
              "Src:QuillstonefrmMain:Form_Load;\r\n"
              "Des:Object variable not set\r\n" +
                  kDashes);
    // Negative numbers in signed decimal and eight hex digits; the kind's word, or none.
    const struct {
        long number, kind;
        const char* part;
    } cases[] = {
        {-2147217900, vbLogError, "\r\nErr:-2147217900(80040E14)\r\n"},
        {-1, vbLogError, "Err:-1(FFFFFFFF)"},
        {1, vbLogWarning, "  (Warning Message)\r\n"},
        {1, vbLogInformation, "  (Information Message)\r\n"},
        {1, 3, "DateTime: 07/11/2002 14:32:08  ()\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_TRUE(LogEntryText(c.number, "x", "y", c.kind, when).contains(c.part)) << c.part;
    glngLogMode = 2;
    EXPECT_TRUE(
        LogEntryText(5, {}, {}, vbLogError, when)
            .startsWith("Quillstone Error Log File\r\n" + QString(80, '=') + "\r\n\r\nDateTime: "));
}

TEST_F(ErrorLog, BoxShowsTitleTextAndStopIconAndNoFileWithoutALogPath) {
    hostScript.answerMsgBox(vbOK);
    DisplayErrInfo("cLibraryServicefrmMain:Form_Load;", -5, "Bad thing");
    ASSERT_EQ(hostScript.msgBoxes().size(), 1);
    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.title, "Quillstone - cLibraryServicefrmMain:Form_Load;");
    EXPECT_EQ(box.text, "An Error occurred in Module:  cLibraryServicefrmMain:Form_Load;\r\n\r\n"
                        "Error Number: -5\r\nError Description: Bad thing");
    EXPECT_EQ(box.flags, vbCritical | vbOKOnly);
    EXPECT_EQ(gintLogFileNo, 0);
    EXPECT_EQ(glngLogMode, 0);
}

TEST_F(ErrorLog, ModeTwoOverwritesWithAHeaderThenEntriesAreAppended) {
    gstrLogFile = home->file("Quillstone.log");
    glngLogMode = 1;
    ErrWriteToLog(1, "Old", QString(), vbLogError);
    glngLogMode = 2;
    ErrWriteToLog(91, "S1", "D1", vbLogError);
    EXPECT_EQ(glngLogMode, 1);
    EXPECT_EQ(gintLogFileNo, 0);
    ErrWriteToLog(7, "S2", "D2", vbLogInformation);
    const QString text = readAll(gstrLogFile);
    EXPECT_FALSE(text.contains("Src:Old"));
    EXPECT_EQ(text.count("Quillstone Error Log File"), 1);
    EXPECT_TRUE(text.startsWith("Quillstone Error Log File\r\n"));
    EXPECT_TRUE(text.contains("Src:S1\r\nDes:D1\r\n" + kDashes + "\r\nDateTime: "));
    EXPECT_TRUE(text.endsWith("Src:S2\r\nDes:D2\r\n" + kDashes + "\r\n"));
}

// The box stands before the log fails, and the failure carries both procedures' sources.
TEST_F(ErrorLog, LogThatCannotBeWrittenFailsAfterTheBox) {
    gstrLogFile = home->file("Quillstone.log");
    hostScript.expectMsgBox("Error Description: Object required", vbOK);
    const QsError unset = displayFailure("frmMain:Form_Load;", 424, "Object required");
    EXPECT_EQ(unset.number(), 52);
    EXPECT_EQ(unset.description(), "Bad file number");
    EXPECT_EQ(unset.source(),
              "QuillstonemErrorHandling:ErrWriteToLog;mErrorHandling:DisplayErrInfo;");
    EXPECT_FALSE(QFile::exists(gstrLogFile));

    gstrLogFile = home->file("no/such/folder/Quillstone.log");
    glngLogMode = 1;
    hostScript.answerMsgBox(vbOK);
    const QsError missing = displayFailure("x;", 1, "y");
    EXPECT_EQ(missing.number(), 76);
    EXPECT_TRUE(
        missing.source().endsWith("mErrorHandling:ErrWriteToLog;mErrorHandling:DisplayErrInfo;"));
    EXPECT_EQ(hostScript.msgBoxes().size(), 2);
    EXPECT_EQ(gintLogFileNo, 0);
}

// The failure tail puts the error's source before the literal; a standard exception is the
// program's own run-time error; the pointer goes back unless the tail keeps it.
TEST_F(ErrorLog, FailureTailReportsTheErrorInFlightUnderTheLiteral) {
    const struct {
        std::function<void()> fail;
        const char* literal;
        FailureTail tail;
        const char *text, *title;
        QList<int> pointers;
    } cases[] = {
        {[] { throw QsError(3021, "cLibraryService.GetItems;", "No current record."); },
         "frmMain:FillTreeViewMain;",
         FailureTail::Standard,
         "Error Number: 3021",
         "Quillstone - cLibraryService.GetItems;frmMain:FillTreeViewMain;",
         {vbHourglass, vbDefault}},
        {[] { throw QsError(5, "Quillstone", "x"); },
         "quillstone_private;UsersExist;",
         FailureTail::KeepPointer,
         "Error Number: 5",
         "Quillstone - Quillstonequillstone_private;UsersExist;",
         {vbHourglass}},
        {[] { throw std::runtime_error("broken"); },
         "quillstone_private;Main;",
         FailureTail::ClearError,
         "Error Description: broken",
         "Quillstone - Quillstonequillstone_private;Main;",
         {vbHourglass, vbDefault}},
    };
    for (const auto& c : cases) {
        ScriptedHost script;
        setHost(&script);
        script.expectMsgBox(c.text, vbOK);
        host().setMousePointer(vbHourglass);
        try {
            c.fail();
        } catch (...) {
            HandleFailure(c.literal, c.tail);
        }
        setHost(&hostScript);
        EXPECT_EQ(script.msgBoxes().size(), 1) << c.literal;
        EXPECT_EQ(script.msgBoxes().value(0).title, c.title);
        EXPECT_EQ(script.pointerHistory(), c.pointers) << c.literal;
    }
}

TEST_F(ErrorLog, EndPassesThroughTheFailureTail) {
    EXPECT_TRUE(hostScript.runToEnd([] {
        try {
            host().endProcess();
        } catch (...) {
            HandleFailure("frmMain:mnuExit_Click;");
        }
    }));
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}
