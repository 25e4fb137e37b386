#include "HostFixture.h"

#include "AppPaths.h"
#include "ComboBox.h"
#include "Globals.h"
#include "ListBox.h"
#include "RichTextBox.h"
#include "TextBox.h"
#include "cLibraryService.h"
#include "frmApiViewer.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

const QByteArray kSmallApi =
    "' a small API file\r\n"
    "Public Const WM_CLOSE = &H10\r\n"
    "Public Const WM_QUIT = &H12\r\n"
    "Public Declare Function GetTickCount Lib \"kernel32\" () As Long\r\n"
    "Public Declare Sub Sleep Lib \"kernel32\" (ByVal dwMilliseconds As Long)\r\n"
    "Public Declare Function SleepEx Lib \"kernel32\" (ByVal ms As Long, ByVal b As Long) As "
    "Long\r\n"
    "Public Declare Function SetPublicKey Lib \"crypt\" (ByVal lpPublic As Long) As Long\r\n"
    "Public Type POINTAPI\r\n    x As Long\r\n    y As Long\r\nEnd Type\r\n";

const QString kSleep =
    QStringLiteral("Declare Sub Sleep Lib \"kernel32\" (ByVal dwMilliseconds As Long)");
const QString kSetKey =
    QStringLiteral("Declare Function SetPublicKey Lib \"crypt\" (ByVal lpPublic As Long) As Long");

QString setting(const char* value) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_APISETTING), QString::fromLatin1(value))
        .toString();
}

void saveSetting(const char* value, const QString& text) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_APISETTING), QString::fromLatin1(value), text);
}

QStringList listed(const frmApiViewer& form) {
    QStringList names;
    for (int i = 0; i < form.lstAvailItems->ListCount(); ++i)
        names << form.lstAvailItems->List(i);
    return names;
}

class ApiViewer : public HostFixture {
protected:
    QString writeFile(const QString& name, const QByteArray& bytes) {
        const QString path = home->file(name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }
    // The settings name the file as the one last opened.
    QString current(const QString& name, const QByteArray& bytes) {
        const QString path = writeFile(name, bytes);
        saveSetting(REG_VAL_API_PATH, QFileInfo(path).absolutePath());
        saveSetting(REG_VAL_API_PATHFILENAME, QFileInfo(path).fileName());
        return path;
    }
    static frmApiViewer& open() {
        frmApiViewer& form = Forms::get<frmApiViewer>();
        form.show();
        QApplication::setActiveWindow(&form);
        return form;
    }
    static void pick(frmApiViewer& form, const QString& name) {
        const auto items = form.lstAvailItems->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name.toStdString();
        form.lstAvailItems->scrollToItem(items.first());
        QTest::mouseClick(form.lstAvailItems->viewport(), Qt::LeftButton, {},
                          form.lstAvailItems->visualItemRect(items.first()).center());
    }
    static void add(frmApiViewer& form, const QString& name) {
        pick(form, name);
        QTest::mouseClick(form.cmdAdd, Qt::LeftButton);
    }
    static QString pane(const frmApiViewer& form) { return form.RTBoxSelItems->Text(); }
};

// ---------------------------------------------------------------------------------------------
// Opening files.

TEST_F(ApiViewer, FirstStartAsksForTheFileInTheProgramsFolderAndShowsItsDeclares) {
    const QString sample =
        qEnvironmentVariable("QS_SOURCE_DIR") + QStringLiteral("/data/Datafiles/Win32api.txt");
    ASSERT_TRUE(QFileInfo::exists(sample));
    hostScript.answerFileDialog(sample);
    frmApiViewer& form = open();

    const FileDialogRequest& asked = hostScript.lastFileDialog();
    EXPECT_EQ(asked.title, QStringLiteral("Select An API Text file"));
    EXPECT_EQ(asked.filter, QStringLiteral("API Files|*.txt"));
    EXPECT_EQ(asked.initDir, AppPath() + QStringLiteral("/Datafiles"));
    EXPECT_EQ(asked.fileName, QStringLiteral("Win32api.txt"));
    EXPECT_EQ(form.cboTypes->Text(), QStringLiteral("Declares"));
    EXPECT_GT(form.lstAvailItems->ListCount(), 200);
    EXPECT_EQ(setting(REG_VAL_API_PATH), QFileInfo(sample).absolutePath());
    EXPECT_EQ(setting(REG_VAL_API_PATHFILENAME), QStringLiteral("Win32api.txt"));
    // Nothing came before it: the last file stays unnamed until the next load.
    EXPECT_EQ(setting(REG_VAL_API_LASTPATH), QString());
    EXPECT_TRUE(form.mnuFullText->isChecked());
    EXPECT_FALSE(form.mnuLineItem->isChecked());
    EXPECT_FALSE(form.frmeScope->isEnabled());

    const QString other = writeFile(QStringLiteral("apis/Other.txt"), kSmallApi);
    hostScript.answerFileDialog(other);
    form.mnuLoad->trigger();
    EXPECT_EQ(listed(form), QStringList({"GetTickCount", "SetPublicKey", "Sleep", "SleepEx"}));
    EXPECT_EQ(setting(REG_VAL_API_PATHFILENAME), QStringLiteral("Other.txt"));
    EXPECT_EQ(setting(REG_VAL_API_LASTPATH), QFileInfo(sample).absolutePath());
    EXPECT_EQ(setting(REG_VAL_API_LASTPATHFILENAME), QStringLiteral("Win32api.txt"));
    // Once named, the last file changes only by Last File.
    hostScript.answerFileDialog(writeFile(QStringLiteral("third/Third.txt"), kSmallApi));
    form.mnuLoad->trigger();
    EXPECT_EQ(setting(REG_VAL_API_LASTPATH), QFileInfo(sample).absolutePath());
}

TEST_F(ApiViewer, CancelOnAFirstStartClosesTheViewerAndGivesTheMainWindowBack) {
    addGlobalReset("core", [] { ResetGlobals(); });
    const QString db = home->file(QStringLiteral("Libraries/Quillstone.mdb"));
    cLibraryService(db).CreateDatabase(db, QString());
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH), QFileInfo(db).absolutePath());
    gstrAccessType = QStringLiteral("Admin");
    frmMain& main = Forms::get<frmMain>();

    hostScript.answerFileDialog(QString());
    main.mnuApiViewer->trigger();
    EXPECT_EQ(Forms::find<frmApiViewer>(), nullptr);
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Modal")).isEmpty());
    EXPECT_TRUE(main.isEnabled());

    // With a file known the viewer opens modally over the disabled main window.
    current(QStringLiteral("api.txt"), kSmallApi);
    bool mainWasDisabled = false;
    hostScript.onModal<frmApiViewer>(QStringLiteral("frmApiViewer"), [&](frmApiViewer& viewer) {
        mainWasDisabled = !main.isEnabled();
        EXPECT_EQ(listed(viewer).size(), 4);
        viewer.mnuExit->trigger();
    });
    main.mnuApiViewer->trigger();
    EXPECT_TRUE(mainWasDisabled);
    EXPECT_TRUE(main.isEnabled());
    EXPECT_EQ(Forms::find<frmApiViewer>(), nullptr);
}

TEST_F(ApiViewer, LoadCancelledKeepsTheWindowWithEmptiedLists) {
    current(QStringLiteral("api.txt"), kSmallApi);
    saveSetting(REG_VAL_API_LASTCLICKED, QStringLiteral("Line"));
    frmApiViewer& form = open();
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("FileOpen")).isEmpty());
    EXPECT_TRUE(form.mnuLineItem->isChecked());
    EXPECT_EQ(form.ViewMode(), QStringLiteral("Line"));
    add(form, QStringLiteral("Sleep"));
    QTest::keyClicks(form.txtSearch, QStringLiteral("sl"));

    hostScript.answerFileDialog(QString());
    form.mnuLoad->trigger();
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_EQ(form.lstAvailItems->ListCount(), 0);
    EXPECT_EQ(pane(form), QString());
    EXPECT_EQ(form.txtSearch->Text(), QString());
    EXPECT_FALSE(form.frmeScope->isEnabled());
    EXPECT_EQ(hostScript.lastFileDialog().initDir, home->path());
    EXPECT_EQ(hostScript.lastFileDialog().fileName, QStringLiteral("api.txt"));
}

TEST_F(ApiViewer, LastFileSwapsTheTwoFilesAndShowsTheOtherOne) {
    const QString first = current(QStringLiteral("a/first.txt"), kSmallApi);
    const QString second = writeFile(QStringLiteral("b/second.txt"),
                                     "Const ONLY_ONE = 1\r\nDeclare Sub Beep Lib \"k\" ()\r\n");
    saveSetting(REG_VAL_API_LASTPATH, QFileInfo(second).absolutePath());
    saveSetting(REG_VAL_API_LASTPATHFILENAME, QStringLiteral("second.txt"));
    frmApiViewer& form = open();
    form.cboTypes->setText(QStringLiteral("Constants"));

    form.mnuLastFile->trigger();
    EXPECT_EQ(listed(form), QStringList{"ONLY_ONE"}); // the type chosen stays
    EXPECT_EQ(setting(REG_VAL_API_PATHFILENAME), QStringLiteral("second.txt"));
    EXPECT_EQ(setting(REG_VAL_API_LASTPATH), QFileInfo(first).absolutePath());
    EXPECT_EQ(setting(REG_VAL_API_LASTPATHFILENAME), QStringLiteral("first.txt"));
    form.mnuLastFile->trigger();
    EXPECT_EQ(listed(form), QStringList({"WM_CLOSE", "WM_QUIT"}));
}

TEST_F(ApiViewer, AFileThatIsNoApiFileOrNoTextIsToldAndLeavesTheListsEmpty) {
    const struct {
        const char* name;
        QByteArray bytes;
        const char* told;
    } cases[] = {
        {"notes.txt", "Dear diary,\r\nnothing declared here.\r\n", "holds no API declarations"},
        {"picture.txt", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) + "Const A = 1\r\n",
         "is not a text file"},
    };
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        hostScript.answerFileDialog(writeFile(QString::fromLatin1(c.name), c.bytes));
        hostScript.expectMsgBox(QString::fromLatin1(c.told));
        form.mnuLoad->trigger();
        for (const char* type : {"Constants", "Declares", "Types"}) {
            form.cboTypes->setText(QString::fromLatin1(type));
            EXPECT_EQ(form.lstAvailItems->ListCount(), 0) << type;
        }
        QTest::keyClicks(form.txtSearch, QStringLiteral("a"));
        EXPECT_EQ(form.lstAvailItems->ListIndex(), -1);
    }
    EXPECT_EQ(hostScript.msgBoxes().at(1).icon(), vbCritical);
    EXPECT_TRUE(form.IsLoaded());
}

// ---------------------------------------------------------------------------------------------
// The lists and the search as you type.

TEST_F(ApiViewer, EachTypeListsItsNamesAndTypingSelectsTheFirstMatch) {
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    form.cboTypes->setText(QStringLiteral("Types"));
    EXPECT_EQ(listed(form), QStringList{"POINTAPI"});
    form.cboTypes->setText(QStringLiteral("Declares"));

    const struct {
        const char* typed;
        const char* selected;
    } keys[] = {{"s", "SetPublicKey"}, {"l", "Sleep"}, {"EEPE", "SleepEx"}, {"zz", "SleepEx"}};
    for (const auto& k : keys) {
        QTest::keyClicks(form.txtSearch, QString::fromLatin1(k.typed));
        EXPECT_EQ(form.lstAvailItems->Text(), QString::fromLatin1(k.selected)) << k.typed;
    }
    EXPECT_EQ(form.SearchPosition(), 4); // walked past the end for "sleepexzz"
    EXPECT_TRUE(form.cmdAdd->isEnabled());
    EXPECT_TRUE(form.frmeScope->isEnabled());
}

// ---------------------------------------------------------------------------------------------
// The Selected Items pane.

TEST_F(ApiViewer, FullTextHoldsEachItemOnceUnderOneScope) {
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    EXPECT_FALSE(form.cmdCopy->isEnabled());
    add(form, QStringLiteral("Sleep"));
    add(form, QStringLiteral("Sleep"));
    EXPECT_EQ(pane(form), QStringLiteral("Public ") + kSleep + QStringLiteral("\r\n"));
    add(form, QStringLiteral("SetPublicKey"));
    EXPECT_EQ(pane(form), QStringLiteral("Public ") + kSleep + QStringLiteral("\r\n\r\nPublic ") +
                              kSetKey + QStringLiteral("\r\n"));

    QTest::mouseClick(form.optPrivate, Qt::LeftButton);
    add(form, QStringLiteral("Sleep"));
    QString setKeyPrivate = kSetKey;
    setKeyPrivate.replace(QStringLiteral("lpPublic "), QStringLiteral("lpPrivate "));
    EXPECT_EQ(pane(form), QStringLiteral("Private ") + kSleep + QStringLiteral("\r\n\r\nPrivate ") +
                              setKeyPrivate + QStringLiteral("\r\n"));
    EXPECT_EQ(form.SelectedNames(), QStringList({"Sleep", "SetPublicKey", ""}));
    EXPECT_TRUE(form.cmdCopy->isEnabled());
    EXPECT_TRUE(form.cmdRemove->isEnabled());
    EXPECT_TRUE(form.cmdClear->isEnabled());
}

TEST_F(ApiViewer, LineItemsCarryNamesOnlyAndANameGoesInAgainUnlessItEndsThePane) {
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    form.mnuLineItem->trigger();
    EXPECT_EQ(setting(REG_VAL_API_LASTCLICKED), QStringLiteral("Line"));
    for (const char* name : {"Sleep", "SleepEx", "Sleep"})
        add(form, QString::fromLatin1(name));
    EXPECT_EQ(pane(form), QStringLiteral("Sleep\r\nSleepEx\r\nSleep\r\n"));
    EXPECT_FALSE(pane(form).contains(QStringLiteral("Public ")));

    QTest::mouseClick(form.cmdClear, Qt::LeftButton);
    add(form, QStringLiteral("GetTickCount"));
    form.RTBoxSelItems->setSelStart(12);
    form.RTBoxSelItems->setSelLength(2);
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    add(form, QStringLiteral("GetTickCount"));
    EXPECT_EQ(pane(form), QStringLiteral("GetTickCount"));
    EXPECT_EQ(form.SelectedNames(), QStringList({"GetTickCount", ""}));
}

TEST_F(ApiViewer, SwitchingTheViewRebuildsThePaneFromTheNamesStillInIt) {
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    pick(form, QStringLiteral("Sleep"));
    QTest::mouseClick(form.optPrivate, Qt::LeftButton);
    QTest::mouseClick(form.cmdAdd, Qt::LeftButton);
    add(form, QStringLiteral("SetPublicKey"));
    add(form, QStringLiteral("GetTickCount"));
    // A name removed by hand stays in the array and is skipped.
    const QString text = pane(form);
    form.RTBoxSelItems->setSelStart(text.indexOf(QStringLiteral("Private Declare Function Get")));
    form.RTBoxSelItems->setSelLength(text.size() - form.RTBoxSelItems->SelStart());
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);

    form.mnuLineItem->trigger();
    EXPECT_EQ(pane(form), QStringLiteral("Sleep\r\nSetPublicKey\r\n\r\n"));
    form.mnuFullText->trigger();
    EXPECT_EQ(pane(form), QStringLiteral("Private ") + kSleep + QStringLiteral("\r\n\r\nPrivate ") +
                              kSetKey + QStringLiteral("\r\n"));
    EXPECT_TRUE(form.mnuFullText->isChecked());
    EXPECT_FALSE(form.mnuLineItem->isChecked());
    EXPECT_EQ(setting(REG_VAL_API_LASTCLICKED), QStringLiteral("Full"));

    // Names of another type than the one chosen now are not in its collection.
    form.cboTypes->setText(QStringLiteral("Constants"));
    form.mnuLineItem->trigger();
    hostScript.expectMsgBox(QStringLiteral("frmApiViewer:mnuFullText_Click;"));
    form.mnuFullText->trigger();
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbCritical);
}

TEST_F(ApiViewer, CopyTakesTheWholePaneRemoveAsksForASelectionClearEmptiesIt) {
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    add(form, QStringLiteral("Sleep"));
    add(form, QStringLiteral("SleepEx"));
    const QString text = pane(form);
    form.RTBoxSelItems->setSelStart(3);
    QTest::mouseClick(form.cmdCopy, Qt::LeftButton);
    EXPECT_EQ(hostScript.callsOf(QStringLiteral("ClipboardClear")).size(), 1);
    EXPECT_EQ(hostScript.clipboardText(), text);
    EXPECT_EQ(form.RTBoxSelItems->SelLength(), 0);
    form.mnucopy->trigger(); // the focus stays in the pane
    EXPECT_EQ(hostScript.callsOf(QStringLiteral("ClipboardSet")).size(), 2);

    hostScript.expectMsgBox(
        QStringLiteral("Please select which area of text you would like to remove"));
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    EXPECT_EQ(hostScript.msgBoxes().last().title, QStringLiteral("Select Text"));
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbInformation);
    EXPECT_EQ(pane(form), text);

    form.RTBoxSelItems->setSelStart(0);
    form.RTBoxSelItems->setSelLength(7);
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    EXPECT_EQ(pane(form), text.mid(7));
    EXPECT_TRUE(form.cmdClear->isEnabled());
    EXPECT_EQ(form.SelectedNames().size(), 3);

    for (QPushButton* cmd : {form.cmdClear, form.cmdRemove}) {
        add(form, QStringLiteral("Sleep"));
        form.RTBoxSelItems->selectAll();
        QTest::mouseClick(cmd, Qt::LeftButton);
        EXPECT_EQ(pane(form), QString());
        EXPECT_FALSE(form.cmdCopy->isEnabled());
        EXPECT_FALSE(form.cmdRemove->isEnabled());
        EXPECT_FALSE(form.cmdClear->isEnabled());
        EXPECT_EQ(form.SelectedNames(), QStringList{QString()});
    }
}

TEST_F(ApiViewer, AboutTellsWhatTheViewerIsFor) {
    current(QStringLiteral("api.txt"), kSmallApi);
    frmApiViewer& form = open();
    hostScript.expectMsgBox(QStringLiteral("This ''API Viewer'' is used to view Windows"));
    form.mnuAbout->trigger();
    EXPECT_EQ(hostScript.msgBoxes().last().title, QStringLiteral("API Viewer"));
    EXPECT_TRUE(hostScript.msgBoxes().last().text.endsWith(
        QStringLiteral("so that you can paste them into your project.")));
}

} // namespace
