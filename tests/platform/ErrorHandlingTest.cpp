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
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLocal8Bit(f.readAll());
}

const QString kDashes(80, QLatin1Char('-'));

} // namespace

TEST_F(ErrorLog, EntryHoldsTheFourLinesAndTheDashes) {
    const QDateTime when(QDate(2002, 7, 11), QTime(14, 32, 8));
    EXPECT_EQ(LogEntryText(91, QStringLiteral("QuillstonefrmMain:Form_Load;"),
                           QStringLiteral("Object variable not set"), vbLogError, when),
              QStringLiteral("DateTime: 07/11/2002 14:32:08  (Error Message)\r\n"
                             "Err:91(5B)\r\n"
                             "Src:QuillstonefrmMain:Form_Load;\r\n"
                             "Des:Object variable not set\r\n") +
                  kDashes);
}

TEST_F(ErrorLog, NegativeNumberShowsSignedDecimalAndEightHexDigits) {
    const QDateTime when(QDate(2024, 1, 2), QTime(3, 4, 5));
    const QString text =
        LogEntryText(-2147217900, QStringLiteral("x"), QStringLiteral("y"), vbLogError, when);
    EXPECT_TRUE(text.contains(QStringLiteral("\r\nErr:-2147217900(80040E14)\r\n")))
        << text.toStdString();
    EXPECT_TRUE(LogEntryText(-1, QString(), QString(), vbLogError, when)
                    .contains(QStringLiteral("Err:-1(FFFFFFFF)")));
}

TEST_F(ErrorLog, KindWordsAndAnUnknownKindLeavesTheWordEmpty) {
    const QDateTime when(QDate(2024, 1, 2), QTime(3, 4, 5));
    EXPECT_TRUE(LogEntryText(1, {}, {}, vbLogWarning, when).contains("  (Warning Message)\r\n"));
    EXPECT_TRUE(
        LogEntryText(1, {}, {}, vbLogInformation, when).contains("  (Information Message)\r\n"));
    EXPECT_TRUE(
        LogEntryText(1, {}, {}, 3, when).startsWith("DateTime: 01/02/2024 03:04:05  ()\r\n"));
}

TEST_F(ErrorLog, ModeTwoStartsWithTheHeader) {
    glngLogMode = 2;
    const QString text = LogEntryText(5, {}, {}, vbLogError, QDateTime::currentDateTime());
    EXPECT_TRUE(text.startsWith(QStringLiteral("Quillstone Error Log File\r\n") +
                                QString(80, QLatin1Char('=')) +
                                QStringLiteral("\r\n\r\nDateTime: ")));
}

TEST_F(ErrorLog, BoxShowsTitleTextAndStopIconAndNoFileWithoutALogPath) {
    hostScript.answerMsgBox(vbOK);
    DisplayErrInfo(QStringLiteral("cLibraryServicefrmMain:Form_Load;"), -5,
                   QStringLiteral("Bad thing"));
    ASSERT_EQ(hostScript.msgBoxes().size(), 1);
    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.title, QStringLiteral("Quillstone - cLibraryServicefrmMain:Form_Load;"));
    EXPECT_EQ(box.text, QStringLiteral("An Error occurred in Module:  "
                                       "cLibraryServicefrmMain:Form_Load;\r\n\r\n"
                                       "Error Number: -5\r\n"
                                       "Error Description: Bad thing"));
    EXPECT_EQ(box.flags, vbCritical | vbOKOnly);
    EXPECT_EQ(gintLogFileNo, 0);
    EXPECT_EQ(glngLogMode, 0);
}

TEST_F(ErrorLog, WritesAHeaderFirstThenAppendsWithCrLfRecords) {
    gstrLogFile = home->file(QStringLiteral("Quillstone.log"));
    glngLogMode = 2;
    ErrWriteToLog(91, QStringLiteral("S1"), QStringLiteral("D1"), vbLogError);
    EXPECT_EQ(glngLogMode, 1);
    EXPECT_EQ(gintLogFileNo, 0);
    ErrWriteToLog(7, QStringLiteral("S2"), QStringLiteral("D2"), vbLogInformation);
    const QString text = readAll(gstrLogFile);
    EXPECT_EQ(text.count(QStringLiteral("Quillstone Error Log File")), 1);
    EXPECT_TRUE(text.startsWith(QStringLiteral("Quillstone Error Log File\r\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("Src:S1\r\nDes:D1\r\n") + kDashes + "\r\nDateTime: "));
    EXPECT_TRUE(text.endsWith(QStringLiteral("Src:S2\r\nDes:D2\r\n") + kDashes + "\r\n"));
}

TEST_F(ErrorLog, ModeTwoOverwritesAnOldLog) {
    gstrLogFile = home->file(QStringLiteral("Quillstone.log"));
    glngLogMode = 1;
    ErrWriteToLog(1, QStringLiteral("Old"), QString(), vbLogError);
    glngLogMode = 2;
    ErrWriteToLog(2, QStringLiteral("New"), QString(), vbLogError);
    const QString text = readAll(gstrLogFile);
    EXPECT_FALSE(text.contains(QStringLiteral("Src:Old")));
    EXPECT_TRUE(text.contains(QStringLiteral("Src:New")));
}

TEST_F(ErrorLog, UnsetModeFailsWithBadFileNumberAndTheSourcesChain) {
    gstrLogFile = home->file(QStringLiteral("Quillstone.log"));
    hostScript.expectMsgBox(QStringLiteral("Error Description: Object required"), vbOK);
    try {
        DisplayErrInfo(QStringLiteral("frmMain:Form_Load;"), 424,
                       QStringLiteral("Object required"));
        ADD_FAILURE() << "the log write did not fail";
    } catch (const QsError& e) {
        EXPECT_EQ(e.number(), 52);
        EXPECT_EQ(e.description(), QStringLiteral("Bad file number"));
        EXPECT_EQ(e.source(), QStringLiteral("QuillstonemErrorHandling:ErrWriteToLog;"
                                             "mErrorHandling:DisplayErrInfo;"));
    }
    // The box stood before the log failed.
    EXPECT_EQ(hostScript.log(QStringList{QStringLiteral("MsgBox")}).count('\n'), 0);
    EXPECT_FALSE(QFile::exists(gstrLogFile));
}

TEST_F(ErrorLog, LogInAMissingFolderFailsAfterTheBox) {
    gstrLogFile = home->file(QStringLiteral("no/such/folder/Quillstone.log"));
    glngLogMode = 1;
    hostScript.answerMsgBox(vbOK);
    try {
        DisplayErrInfo(QStringLiteral("x;"), 1, QStringLiteral("y"));
        ADD_FAILURE() << "the log write did not fail";
    } catch (const QsError& e) {
        EXPECT_EQ(e.number(), 76);
        EXPECT_TRUE(e.source().endsWith(
            QStringLiteral("mErrorHandling:ErrWriteToLog;mErrorHandling:DisplayErrInfo;")));
    }
    EXPECT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_EQ(gintLogFileNo, 0);
}

TEST_F(ErrorLog, HandleFailurePutsTheServiceSourceBeforeTheLiteralAndResetsThePointer) {
    hostScript.expectMsgBox(QStringLiteral("Error Number: 3021"), vbOK);
    host().setMousePointer(vbHourglass);
    try {
        throw QsError(3021, QStringLiteral("cLibraryService.GetItems;"),
                      QStringLiteral("No current record."));
    } catch (...) {
        HandleFailure("frmMain:FillTreeViewMain;");
    }
    EXPECT_EQ(hostScript.msgBoxes().first().title,
              QStringLiteral("Quillstone - cLibraryService.GetItems;frmMain:FillTreeViewMain;"));
    EXPECT_EQ(host().mousePointer(), vbDefault);
}

TEST_F(ErrorLog, KeepPointerTailLeavesTheHourglass) {
    hostScript.answerMsgBox(vbOK);
    host().setMousePointer(vbHourglass);
    try {
        throw QsError(5, QStringLiteral("Quillstone"), QStringLiteral("x"));
    } catch (...) {
        HandleFailure("quillstone_private;UsersExist;", FailureTail::KeepPointer);
    }
    EXPECT_EQ(host().mousePointer(), vbHourglass);
}

TEST_F(ErrorLog, StandardExceptionIsReportedAsTheProgramsOwnRunTimeError) {
    hostScript.expectMsgBox(QStringLiteral("Error Description: broken"), vbOK);
    try {
        throw std::runtime_error("broken");
    } catch (...) {
        HandleFailure("quillstone_private;Main;", FailureTail::ClearError);
    }
    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.title, QStringLiteral("Quillstone - Quillstonequillstone_private;Main;"));
    EXPECT_EQ(hostScript.pointerHistory(), QList<int>{vbDefault});
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
