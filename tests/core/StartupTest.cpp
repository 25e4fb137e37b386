#include "CoreFixture.h"
#include "FirstUserScript.h"

#include "AppPaths.h"
#include "ComboBox.h"
#include "FormBase.h"
#include "Globals.h"
#include "QtHost.h"
#include "cAuthor.h"
#include "frmDatabase.h"
#include "frmLogin.h"
#include "frmUser.h"
#include "mDriveInfo.h"
#include "mHelpRoutines.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace qs;
using namespace qs::test;

namespace {

class Startup : public CoreFixture {};

TEST_F(Startup, MissingDatabaseShowsTheServiceTextThenTheDialogThenTheLogin) {
    const QString found = makeLibrary(QStringLiteral("Found.mdb"));
    addUser(QStringLiteral("ada"), QStringLiteral("secret"));
    pointDatabaseAt(libraryPath(QStringLiteral("Missing.mdb")));

    hostScript.expectMsgBox(
        QStringLiteral("The Quillstone Database does not exist in the specified path."));
    hostScript.onModal<frmDatabase>(QStringLiteral("frmDatabase"), [&](frmDatabase& dialog) {
        dialog.optSearch->setChecked(true);
        hostScript.answerFileDialog(found);
        dialog.cmdOK->click();
    });
    Main();

    EXPECT_EQ(windowOrder(),
              QStringList({QStringLiteral("MsgBox: The Quillstone Database does not exist in the "
                                          "specified path."),
                           QStringLiteral("Modal: frmDatabase"),
                           QStringLiteral("FileOpen: Select a Tarnwick Database.")}));
    EXPECT_EQ(hostScript.msgBoxes().first().icon(), 0);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_TRUE(login->isVisible());
    EXPECT_EQ(login->Caption(), QStringLiteral("Login To Database You Selected"));
    EXPECT_FALSE(gblnFirstUser);
    EXPECT_EQ(registryFileName(), QStringLiteral("Found.mdb"));
}

TEST_F(Startup, OnAFreshHomeHelpOnTheDatabaseDialogShowsItsTopicFromTheHelpFolder) {
    hostScript.expectMsgBox(
        QStringLiteral("The Quillstone Database does not exist in the specified path."));
    hostScript.onModal<frmDatabase>(QStringLiteral("frmDatabase"), [this](frmDatabase& dialog) {
        QTest::mouseClick(dialog.cmdHelp, Qt::LeftButton);
        hostScript.expectMsgBox(QStringLiteral("Do you wish to continue?"), vbYes);
        dialog.cmdExit_Click();
    });
    EXPECT_TRUE(hostScript.runToEnd([] { Main(); }));

    const QList<HostCall> help = hostScript.callsOf(QStringLiteral("Help"));
    ASSERT_EQ(help.size(), 1);
    EXPECT_EQ(help.first().title,
              FormatPath(AppPath()) + QStringLiteral("HelpFiles/Quillstone.hlp"));
    EXPECT_EQ(help.first().text, QStringLiteral("1550"));
    EXPECT_EQ(help.first().flags, HELP_CONTEXT);
}

TEST_F(Startup, TheHelpFolderTheUserHasIsKept) {
    for (const QString& mine : {QStringLiteral("/srv/help"), QStringLiteral("")}) {
        SaveRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                       QString::fromLatin1(REG_VAL_HELPFILES_FILEPATH), mine);
        WriteInstallDefaults();
        EXPECT_EQ(GetRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                                QString::fromLatin1(REG_VAL_HELPFILES_FILEPATH))
                      .toString(),
                  mine);
    }
}

TEST_F(Startup, EmptyDatabaseAsksForTheFirstUserThenPrefillsALoginThatMakesAnAdministrator) {
    makeLibrary();
    hostScript.expectMsgBox(QStringLiteral("There are no users in the database. You must \r\n"
                                           "create a user account before continuing."));
    hostScript.onModal<frmUser>(QStringLiteral("frmUser"), [](frmUser& user) {
        makeFirstUser(user, QStringLiteral("ada"), QStringLiteral("secret"));
    });
    Main();

    EXPECT_EQ(hostScript.msgBoxes().first().flags, vbOKOnly);
    EXPECT_TRUE(gblnFirstUser);
    EXPECT_FALSE(gblnFirstUserCancelled);
    frmLogin* login = Forms::find<frmLogin>();
    ASSERT_NE(login, nullptr);
    EXPECT_TRUE(login->isVisible());
    EXPECT_EQ(login->Caption(), QStringLiteral("Login"));
    EXPECT_EQ(login->txtUserId->text(), QStringLiteral("ada"));
    EXPECT_EQ(login->txtPassword->text(), QStringLiteral("secret"));
    // Main has returned before anyone answered the login.
    EXPECT_FALSE(login->ValidUser());
    EXPECT_GE(hostScript.doEventsCount(), 1);

    login->cmdOk->click();
    EXPECT_EQ(gstrUserId, QStringLiteral("ada"));
    EXPECT_EQ(gstrAccessType, QStringLiteral("Admin"));
    EXPECT_EQ(gintAccessLevel, 1);
    EXPECT_EQ(gstrUserName, QStringLiteral("Ada Byron"));
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
}

TEST_F(Startup, CancellingTheFirstUserFormEndsTheProgramWithoutALogin) {
    makeLibrary();
    hostScript.expectMsgBox(QStringLiteral("There are no users in the database."));
    hostScript.onModal<frmUser>(QStringLiteral("frmUser"), [this](frmUser& user) {
        hostScript.expectMsgBox(QStringLiteral("There are no users in the database."));
        hostScript.expectMsgBox(QStringLiteral("Exiting without entering an employee"), vbYes);
        user.cmdExit_Click();
    });
    EXPECT_TRUE(hostScript.runToEnd([] { Main(); }));
    EXPECT_TRUE(gblnFirstUserCancelled);
    EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
}

TEST_F(Startup, OtherServiceErrorsAreReportedAndTheLoginStillComes) {
    const QString path = libraryPath(QStringLiteral("Garbage.mdb"));
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile garbage(path);
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
    garbage.write("this is no library at all");
    garbage.close();
    pointDatabaseAt(path);

    hostScript.expectMsgBox(QStringLiteral("The database is missing or corrupt."));
    Main();

    const HostCall report = hostScript.msgBoxes().first();
    EXPECT_TRUE(report.title.endsWith(QStringLiteral("quillstone_private;UsersExist;")));
    EXPECT_EQ(report.icon(), vbCritical);
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Modal")).isEmpty());
    EXPECT_FALSE(gblnFirstUser);
    EXPECT_NE(Forms::find<frmLogin>(), nullptr);
}

// The lock of a running copy: a child process takes it through the real host and holds it until
// told to go, or until it is killed.
class RunningCopy {
public:
    RunningCopy() {
        int ready[2];
        int release[2];
        if (pipe(ready) != 0 || pipe(release) != 0)
            return;
        mPid = fork();
        if (mPid == 0) {
            close(ready[0]);
            close(release[1]);
            QtHost first;
            const char tookLock = first.previousInstance() ? 'n' : 'y';
            (void)!write(ready[1], &tookLock, 1);
            char go = 0;
            (void)!read(release[0], &go, 1);
            _exit(0);
        }
        close(ready[1]);
        close(release[0]);
        mRelease = release[1];
        char answer = 0;
        mHoldsLock = read(ready[0], &answer, 1) == 1 && answer == 'y';
        close(ready[0]);
    }
    ~RunningCopy() { crash(); }
    bool holdsLock() const { return mHoldsLock; }
    bool running() const { return mPid > 0 && kill(mPid, 0) == 0; }
    // Ends the copy the hard way, so that it frees nothing itself.
    void crash() {
        if (mPid <= 0)
            return;
        kill(mPid, SIGKILL);
        waitpid(mPid, nullptr, 0);
        close(mRelease);
        mPid = -1;
    }

private:
    pid_t mPid = -1;
    int mRelease = -1;
    bool mHoldsLock = false;
};

TEST_F(Startup, SecondInstanceIsRefusedAndTheFirstIsNotDisturbed) {
    makeLibrary();
    addUser(QStringLiteral("ada"), QStringLiteral("secret"));
    RunningCopy first;
    ASSERT_TRUE(first.holdsLock());
    {
        QtHost second;
        hostScript.setPreviousInstance(second.previousInstance());
    }

    hostScript.expectMsgBox(
        QStringLiteral("There is an instance of this application already running."));
    EXPECT_TRUE(hostScript.runToEnd([] { Main(); }));

    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.icon(), vbInformation);
    EXPECT_EQ(box.buttons(), vbOKOnly);
    QStringList kinds;
    for (const HostCall& call : hostScript.calls())
        kinds << call.kind;
    EXPECT_EQ(kinds, QStringList({QStringLiteral("PrevInstance"), QStringLiteral("MsgBox"),
                                  QStringLiteral("End")}));
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_FALSE(gobjLibrary);
    EXPECT_TRUE(first.running());

    // A copy that crashed leaves no lock that counts.
    first.crash();
    QtHost afterCrash;
    EXPECT_FALSE(afterCrash.previousInstance());
}

TEST_F(Startup, SettingsFileFollowsTheDatafilesValues) {
    EXPECT_EQ(SettingsFilePath(),
              FormatPath(AppPath()) + QStringLiteral("Datafiles/Quillstone.ini"));
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATAFILES), QStringLiteral("FilePath"),
                   QStringLiteral("/srv/quill"));
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATAFILES), QStringLiteral("FileName"),
                   QStringLiteral("Team.ini"));
    EXPECT_EQ(SettingsFilePath(), QStringLiteral("/srv/quill/Team.ini"));
}

TEST_F(Startup, UnloadAllFormsSparesTheNamedForm) {
    Forms::get<frmLogin>();
    Forms::get<frmDatabase>();
    UnloadAllForms(QStringLiteral("frmLogin"));
    EXPECT_NE(Forms::find<frmLogin>(), nullptr);
    EXPECT_EQ(Forms::find<frmDatabase>(), nullptr);
    UnloadAllForms(QString());
    EXPECT_EQ(Forms::count(), 0);
}

class FillCombo : public CoreFixture {
protected:
    void SetUp() override {
        CoreFixture::SetUp();
        makeLibrary();
    }
    static QStringList entries(const ComboBox& combo) {
        QStringList list;
        for (int i = 0; i < combo.ListCount(); ++i)
            list << combo.List(i);
        return list;
    }
    ComboBox combo{QStringLiteral("cboTest")};
};

TEST_F(FillCombo, AccessTypeLeavesOutUnauthorizedAndCarriesTheIds) {
    FillComboBox(QStringLiteral("AccessType"), &combo);
    EXPECT_EQ(entries(combo), QStringList({QStringLiteral("Admin"), QStringLiteral("Read"),
                                           QStringLiteral("Read/Write")}));
    EXPECT_EQ(combo.ItemData(0), 1);
    EXPECT_EQ(combo.ItemData(2), 3);
    EXPECT_TRUE(gobjLibrary);
}

TEST_F(FillCombo, FieldsAreJoinedAndTheFirstIsFormatted) {
    FillComboBox(QStringLiteral("FileType"), &combo, true, false, true, QStringLiteral("0000"));
    EXPECT_EQ(entries(combo),
              QStringList({QStringLiteral("0101 - Article"), QStringLiteral("0102 - Component")}));
}

TEST_F(FillCombo, WithoutClearingTheSecondTableFollowsTheFirst) {
    FillComboBox(QStringLiteral("FileType"), &combo);
    FillComboBox(QStringLiteral("CodeType"), &combo, false, false, true, QString(), true, false);
    ASSERT_EQ(combo.ListCount(), 6);
    EXPECT_EQ(combo.List(0), QStringLiteral("Article"));
    EXPECT_EQ(combo.List(5), QStringLiteral("General Module"));
    EXPECT_EQ(combo.ItemData(5), 204);
}

TEST_F(FillCombo, AuthorsCarryTheirIds) {
    cAuthor author;
    author.BeginEdit(0);
    author.FirstName(QStringLiteral("Grace"));
    author.LastName(QStringLiteral("Hopper"));
    author.Save();
    FillComboBox(QStringLiteral("Authors"), &combo);
    ASSERT_EQ(entries(combo), QStringList({QStringLiteral("Grace Hopper")}));
    EXPECT_EQ(combo.ItemData(0), author.AuthorId());
}

} // namespace
