// The main window's database commands: Create, Backup and Compact.
#include "AdminFixture.h"

#include "Globals.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cSourceCode.h"
#include "frmLogin.h"
#include "frmMain.h"
#include "frmUser.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

QString databaseSetting(const char* value) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE), QString::fromLatin1(value))
        .toString();
}

class MainDatabase : public AdminFixture {
protected:
    void SetUp() override {
        AdminFixture::SetUp();
        addUser("ada", "pw", 1, "Ada", "Byron");
        logIn("ada", "pw");
    }
    static int addCode(const QString& path, const QString& name) {
        cSourceCode item(path);
        item.BeginEdit(0);
        item.CategoryId(1);
        item.CodeTypeId(201);
        item.Tested(1);
        item.Description(name);
        item.Code(QString(3000, QLatin1Char('x')));
        item.Revisions().Add(0).Version("1.0.0");
        return item.Save();
    }
    static int items(const QString& path) {
        return cLibraryService(path).GetItems("SourceCode", 0, 0, 0, 0, 0, 0, 0).UBound();
    }
    // The first-user form as a person fills it after a new database.
    void answerFirstUser(const QString& id) {
        hostScript.expectMsgBox("Please add the first user");
        hostScript.onModal<frmUser>("frmUser", [id](frmUser& form) {
            EXPECT_EQ(form.Mode(), frmUser::ModeAdd);
            fillUser(form, id, "Eve", "Ng", "pw2", "Admin");
            form.cmdUserUpdate_Click();
        });
    }
};

TEST_F(MainDatabase, CreateRefusesAnythingButANewDatabaseElseMakesItTakesItsFirstUserAndShowsIt) {
    frmMain& form = Forms::get<frmMain>();
    const QString made1 = home->file("Made1"), made2 = home->file("Made2");
    QDir().mkpath(made1);
    QDir().mkpath(made2);
    const char* const exists = "You can only enter an access database that does not already exist";
    const struct {
        QString answer;
        const char* told; // the refusal, if any
        QString made;     // the library made, if any
    } cases[] = {
        {QString(), nullptr, {}},
        {home->file("New/data.txt"), "You can only enter an access database (.mdb).", {}},
        {mDatabase, exists, {}},
        // Without its extension the name of an existing library is still that library.
        {mDatabase.chopped(4), exists, {}},
        {made1 + "/data", nullptr, made1 + "/data.mdb"},
        {made2 + "/DATA.MDB", nullptr, made2 + "/DATA.MDB"},
    };
    QString named = QFileInfo(mDatabase).absoluteFilePath(); // by the settings
    int users = 0;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer.toStdString());
        hostScript.clearCalls();
        hostScript.answerFileDialog(c.answer);
        if (c.told)
            hostScript.expectMsgBox(QString::fromLatin1(c.told));
        if (!c.made.isEmpty())
            answerFirstUser(QStringLiteral("eve%1").arg(++users));
        form.mnuNewDatabase->trigger();
        EXPECT_EQ(hostScript.lastFileDialog().title,
                  "Please select path and enter new database name.");
        EXPECT_EQ(hostScript.lastFileDialog().filter, "MsAccess Files (*.mdb)|*.mdb");
        EXPECT_TRUE(hostScript.lastFileDialog().forSave);
        EXPECT_EQ(hostScript.msgBoxes().size(), c.told || !c.made.isEmpty() ? 1 : 0);
        if (c.told) {
            EXPECT_EQ(hostScript.msgBoxes().first().title, "Database?");
            EXPECT_EQ(hostScript.msgBoxes().first().icon(), vbInformation);
        }
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
        if (!c.made.isEmpty()) {
            named = c.made;
            EXPECT_TRUE(QFileInfo(c.made).isFile());
            EXPECT_TRUE(gblnFirstUser);
            EXPECT_EQ(cSecurityService(c.made).GetUsers().UBound(), 1);
            // The window works on the new library at once, with no login in between.
            EXPECT_EQ(gobjLibrary->DatabasePath(), QFileInfo(c.made).absoluteFilePath());
            EXPECT_EQ(Forms::find<frmLogin>(), nullptr);
            EXPECT_TRUE(form.IsLoaded());
            EXPECT_GT(form.tvwCategories->Nodes.Count(), 0);
        }
        EXPECT_EQ(databaseSetting(REG_VAL_DATABASE_PATH) + '/' +
                      databaseSetting(REG_VAL_DATABASE_FILENAME),
                  named);
    }
    EXPECT_FALSE(QDir(home->file("New")).exists());
    // The library the window had before is left as it was.
    EXPECT_EQ(cSecurityService(mDatabase).GetUsers().UBound(), 1);
}

TEST_F(MainDatabase, CreateEndsTheProgramWhenTheFirstUserIsNotMade) {
    frmMain& form = Forms::get<frmMain>();
    const QString path = home->file("Quit.mdb");
    hostScript.answerFileDialog(path);
    hostScript.expectMsgBox("Please add the first user");
    hostScript.onModal<frmUser>("frmUser", [this](frmUser& user) {
        hostScript.expectMsgBox("There are no users in the database.");
        hostScript.expectMsgBox("Exiting without entering an employee", vbYes);
        // Called, not clicked: the scripted End must unwind to here as the real one ends all.
        user.cmdExit_Click();
    });
    EXPECT_TRUE(hostScript.runToEnd([&] { form.mnuNewDatabase_Click(); }));
    // The settings already name the new, empty library: the next start asks for a first user.
    EXPECT_EQ(databaseSetting(REG_VAL_DATABASE_FILENAME), "Quit.mdb");
    EXPECT_EQ(cSecurityService(path).GetUsers().UBound(), 0);
}

TEST_F(MainDatabase, BackupCopiesTheLibraryBesideItWithNoMessage) {
    addCode(mDatabase, "Saved");
    frmMain& form = Forms::get<frmMain>();
    const int yields = hostScript.doEventsCount();
    form.mnuBackup->trigger();
    const QFileInfoList made =
        QDir(QFileInfo(mDatabase).absolutePath() + "/Backup").entryInfoList(QDir::Files);
    ASSERT_EQ(made.size(), 1);
    EXPECT_EQ(items(made.first().absoluteFilePath()), 1);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_GT(hostScript.doEventsCount(), yields);
    EXPECT_EQ(hostScript.pointerHistory().mid(hostScript.pointerHistory().size() - 2),
              QList<int>({vbHourglass, vbDefault}));
}

TEST_F(MainDatabase, CompactKeepsEveryItemAndSaysSoUnlessTheLibraryIsOpenElsewhere) {
    for (int i = 0; i < 30; ++i)
        addCode(mDatabase, QStringLiteral("item %1").arg(i));
    frmMain& form = Forms::get<frmMain>();
    hostScript.expectMsgBox("Your database was successfully compacted.");
    form.mnuCompact->trigger();
    EXPECT_EQ(hostScript.msgBoxes().last().title, "Compacted Database");
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbInformation);
    EXPECT_EQ(items(mDatabase), 30);

    cLibraryService elsewhere(mDatabase);
    elsewhere.GetLookup("Category");
    hostScript.expectMsgBox("frmMain:mnuCompact_Click;");
    form.mnuCompact->trigger();
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbCritical);
    EXPECT_TRUE(hostScript.msgBoxes().last().text.contains("open in another"));
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    EXPECT_EQ(items(mDatabase), 30);
}

} // namespace
