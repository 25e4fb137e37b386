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

const QString kSleep = "Declare Sub Sleep Lib \"kernel32\" (ByVal dwMilliseconds As Long)";
const QString kSetKey =
    "Declare Function SetPublicKey Lib \"crypt\" (ByVal lpPublic As Long) As Long";

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
    // The window over the small file, named as the one last opened.
    frmApiViewer& openSmall() {
        current("api.txt", kSmallApi);
        return open();
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

TEST_F(ApiViewer, EachFileLoadedOrSwappedInIsListedAndRememberedAndAFileWithoutDeclaresIsTold) {
    const QString small = writeFile("a/small.txt", kSmallApi);
    const QString one =
        writeFile("b/one.txt", "Const ONLY_ONE = 1\r\nDeclare Sub Beep Lib \"k\" ()\r\n");
    const QString notes = writeFile("c/notes.txt", "Dear diary,\r\nnothing declared here.\r\n");
    const QString picture = writeFile(
        "c/picture.txt", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) + "Const A = 1\r\n");
    // The first start asks for the file in the program's folder.
    hostScript.answerFileDialog(small);
    frmApiViewer& form = open();
    const FileDialogRequest& asked = hostScript.lastFileDialog();
    EXPECT_EQ(asked.title, "Select An API Text file");
    EXPECT_EQ(asked.filter, "API Files|*.txt");
    EXPECT_EQ(asked.initDir, AppPath() + "/Datafiles");
    EXPECT_EQ(asked.fileName, "Win32api.txt");
    EXPECT_TRUE(form.mnuFullText->isChecked());
    EXPECT_FALSE(form.mnuLineItem->isChecked());
    const auto named = [](const char* path, const char* name) {
        return setting(path).isEmpty() ? QString() : setting(path) + '/' + setting(name);
    };
    const QStringList smallDeclares = {"GetTickCount", "SetPublicKey", "Sleep", "SleepEx"};
    const struct {
        std::string via; // "load", "last", or "" for the first start
        QString answer;  // to the file dialog; empty cancels it
        const char* type;
        QStringList listed;
        QString current, last; // the files the settings name afterwards
        const char* told;
    } steps[] = {
        // Nothing came before it: the last file stays unnamed until the next load.
        {"", {}, "Declares", smallDeclares, small, {}, nullptr},
        // A load shows the Declares whatever type was chosen.
        {"load", one, "Constants", {"Beep"}, one, small, nullptr},
        // Once named, the last file changes only by Last File.
        {"load", notes, "Declares", {}, notes, small, "holds no API declarations"},
        // The type chosen stays.
        {"last", {}, "Constants", {"WM_CLOSE", "WM_QUIT"}, small, notes, nullptr},
        // Cancelled: the window stays with emptied lists, pane and search box.
        {"load", {}, "Constants", {}, small, notes, nullptr},
        {"last", {}, "Declares", {}, notes, small, "holds no API declarations"},
        {"load", picture, "Declares", {}, notes, small, "is not a text file"},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(QFileInfo(step.answer).fileName().toStdString() + " by " + step.via);
        if (!step.via.empty())
            form.cboTypes->setText(step.type);
        if (!step.via.empty() && step.listed.isEmpty() && !step.told) {
            add(form, "WM_QUIT");
            QTest::keyClicks(form.txtSearch, "wm");
        }
        hostScript.clearCalls();
        if (step.told)
            hostScript.expectMsgBox(step.told);
        if (step.via == "load") {
            hostScript.answerFileDialog(step.answer);
            form.mnuLoad->trigger();
        } else if (step.via == "last") {
            form.mnuLastFile->trigger();
        }
        EXPECT_EQ(listed(form), step.listed);
        EXPECT_EQ(named(REG_VAL_API_PATH, REG_VAL_API_PATHFILENAME), step.current);
        EXPECT_EQ(named(REG_VAL_API_LASTPATH, REG_VAL_API_LASTPATHFILENAME), step.last);
        EXPECT_TRUE(form.IsLoaded());
        if (step.answer.isEmpty() && step.via == "load") {
            EXPECT_EQ(pane(form), QString());
            EXPECT_EQ(form.txtSearch->Text(), QString());
            EXPECT_FALSE(form.frmeScope->isEnabled());
            EXPECT_EQ(hostScript.lastFileDialog().initDir, QFileInfo(small).absolutePath());
            EXPECT_EQ(hostScript.lastFileDialog().fileName, "small.txt");
        }
        if (step.told) {
            EXPECT_EQ(hostScript.msgBoxes().last().icon(),
                      step.answer == picture ? vbCritical : vbInformation);
            for (const char* type : {"Constants", "Declares", "Types"}) {
                form.cboTypes->setText(type);
                EXPECT_EQ(form.lstAvailItems->ListCount(), 0) << type;
            }
            QTest::keyClicks(form.txtSearch, "a");
            EXPECT_EQ(form.lstAvailItems->ListIndex(), -1);
        }
    }
}

TEST_F(ApiViewer, CancelOnAFirstStartClosesTheViewerAndGivesTheMainWindowBack) {
    addGlobalReset("core", [] { ResetGlobals(); });
    const QString db = home->file("Libraries/Quillstone.mdb");
    cLibraryService(db).CreateDatabase(db, QString());
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH), QFileInfo(db).absolutePath());
    gstrAccessType = "Admin";
    frmMain& main = Forms::get<frmMain>();

    hostScript.answerFileDialog(QString());
    main.mnuApiViewer->trigger();
    EXPECT_EQ(Forms::find<frmApiViewer>(), nullptr);
    EXPECT_TRUE(hostScript.callsOf("Modal").isEmpty());
    EXPECT_TRUE(main.isEnabled());

    // With a file known the viewer opens modally over the disabled main window, asking nothing,
    // in the view last chosen.
    current("api.txt", kSmallApi);
    saveSetting(REG_VAL_API_LASTCLICKED, "Line");
    bool mainWasDisabled = false;
    hostScript.onModal<frmApiViewer>("frmApiViewer", [&](frmApiViewer& viewer) {
        mainWasDisabled = !main.isEnabled();
        EXPECT_EQ(listed(viewer).size(), 4);
        EXPECT_TRUE(viewer.mnuLineItem->isChecked());
        EXPECT_EQ(viewer.ViewMode(), "Line");
        viewer.mnuExit->trigger();
    });
    main.mnuApiViewer->trigger();
    EXPECT_TRUE(mainWasDisabled);
    EXPECT_TRUE(main.isEnabled());
    EXPECT_EQ(Forms::find<frmApiViewer>(), nullptr);
}

TEST_F(ApiViewer, EachTypeListsItsNamesTypingSelectsTheFirstMatchAndAboutSaysWhatItIsFor) {
    frmApiViewer& form = openSmall();
    form.cboTypes->setText("Types");
    EXPECT_EQ(listed(form), QStringList{"POINTAPI"});
    form.cboTypes->setText("Declares");

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

    hostScript.expectMsgBox("This ''API Viewer'' is used to view Windows");
    form.mnuAbout->trigger();
    EXPECT_EQ(hostScript.msgBoxes().last().title, "API Viewer");
    EXPECT_TRUE(hostScript.msgBoxes().last().text.endsWith(
        "so that you can paste them into your project."));
}

TEST_F(ApiViewer, FullTextHoldsEachItemOnceUnderOneScopeAndASwitchRebuildsThePaneFromItsNames) {
    frmApiViewer& form = openSmall();
    EXPECT_FALSE(form.cmdCopy->isEnabled());
    add(form, "Sleep");
    add(form, "Sleep");
    EXPECT_EQ(pane(form), "Public " + kSleep + "\r\n");
    add(form, "SetPublicKey");
    EXPECT_EQ(pane(form), "Public " + kSleep + "\r\n\r\nPublic " + kSetKey + "\r\n");

    QTest::mouseClick(form.optPrivate, Qt::LeftButton);
    add(form, "Sleep");
    QString setKeyPrivate = kSetKey;
    setKeyPrivate.replace("lpPublic ", "lpPrivate ");
    EXPECT_EQ(pane(form), "Private " + kSleep + "\r\n\r\nPrivate " + setKeyPrivate + "\r\n");
    EXPECT_EQ(form.SelectedNames(), QStringList({"Sleep", "SetPublicKey", ""}));
    EXPECT_TRUE(form.cmdCopy->isEnabled());
    EXPECT_TRUE(form.cmdRemove->isEnabled());
    EXPECT_TRUE(form.cmdClear->isEnabled());

    // A name removed by hand stays in the array and is skipped by the rebuilds.
    add(form, "GetTickCount");
    const QString text = pane(form);
    form.RTBoxSelItems->setSelStart(text.indexOf("Private Declare Function Get"));
    form.RTBoxSelItems->setSelLength(text.size() - form.RTBoxSelItems->SelStart());
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    form.mnuLineItem->trigger();
    EXPECT_EQ(pane(form), "Sleep\r\nSetPublicKey\r\n\r\n");
    form.mnuFullText->trigger();
    EXPECT_EQ(pane(form), "Private " + kSleep + "\r\n\r\nPrivate " + kSetKey + "\r\n");
    EXPECT_TRUE(form.mnuFullText->isChecked());
    EXPECT_FALSE(form.mnuLineItem->isChecked());
    EXPECT_EQ(setting(REG_VAL_API_LASTCLICKED), "Full");

    // Names of another type than the one chosen now are not in its collection.
    form.cboTypes->setText("Constants");
    form.mnuLineItem->trigger();
    hostScript.expectMsgBox("frmApiViewer:mnuFullText_Click;");
    form.mnuFullText->trigger();
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbCritical);
}

TEST_F(ApiViewer, LineItemsCarryNamesOnlyAndANameGoesInAgainUnlessItEndsThePane) {
    frmApiViewer& form = openSmall();
    form.mnuLineItem->trigger();
    EXPECT_EQ(setting(REG_VAL_API_LASTCLICKED), "Line");
    for (const char* name : {"Sleep", "SleepEx", "Sleep"})
        add(form, QString::fromLatin1(name));
    EXPECT_EQ(pane(form), "Sleep\r\nSleepEx\r\nSleep\r\n");
    EXPECT_FALSE(pane(form).contains("Public "));

    QTest::mouseClick(form.cmdClear, Qt::LeftButton);
    add(form, "GetTickCount");
    form.RTBoxSelItems->setSelStart(12);
    form.RTBoxSelItems->setSelLength(2);
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    add(form, "GetTickCount");
    EXPECT_EQ(pane(form), "GetTickCount");
    EXPECT_EQ(form.SelectedNames(), QStringList({"GetTickCount", ""}));
}

TEST_F(ApiViewer, CopyTakesTheWholePaneRemoveAsksForASelectionClearEmptiesIt) {
    frmApiViewer& form = openSmall();
    add(form, "Sleep");
    add(form, "SleepEx");
    const QString text = pane(form);
    form.RTBoxSelItems->setSelStart(3);
    QTest::mouseClick(form.cmdCopy, Qt::LeftButton);
    EXPECT_EQ(hostScript.callsOf("ClipboardClear").size(), 1);
    EXPECT_EQ(hostScript.clipboardText(), text);
    EXPECT_EQ(form.RTBoxSelItems->SelLength(), 0);
    form.mnucopy->trigger(); // the focus stays in the pane
    EXPECT_EQ(hostScript.callsOf("ClipboardSet").size(), 2);

    hostScript.expectMsgBox("Please select which area of text you would like to remove");
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    EXPECT_EQ(hostScript.msgBoxes().last().title, "Select Text");
    EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbInformation);
    EXPECT_EQ(pane(form), text);

    form.RTBoxSelItems->setSelStart(0);
    form.RTBoxSelItems->setSelLength(7);
    QTest::mouseClick(form.cmdRemove, Qt::LeftButton);
    EXPECT_EQ(pane(form), text.mid(7));
    EXPECT_TRUE(form.cmdClear->isEnabled());
    EXPECT_EQ(form.SelectedNames().size(), 3);

    for (QPushButton* cmd : {form.cmdClear, form.cmdRemove}) {
        add(form, "Sleep");
        form.RTBoxSelItems->selectAll();
        QTest::mouseClick(cmd, Qt::LeftButton);
        EXPECT_EQ(pane(form), QString());
        EXPECT_FALSE(form.cmdCopy->isEnabled());
        EXPECT_FALSE(form.cmdRemove->isEnabled());
        EXPECT_FALSE(form.cmdClear->isEnabled());
        EXPECT_EQ(form.SelectedNames(), QStringList{QString()});
    }
}

} // namespace
