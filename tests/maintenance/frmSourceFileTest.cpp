#include "MaintenanceFixture.h"

#include "ComboBox.h"
#include "Globals.h"
#include "ListView.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmMain.h"
#include "frmSourceFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

class SourceFileWindow : public Maintenance {
protected:
    // Articles of category 1 with the folder Docs (1), selected.
    frmMain& openDocs() {
        addFile("Docs", 101, 0, true);
        return openAt("FT1101", "SF1ArticleFolder");
    }

    struct Entry {
        QString path; // chosen in the browse dialog; empty cancels it
        QString description;
        bool author = true;
        QString comment;
        QString minor;
    };
    // Fills the window as a person does and presses its Add or Update button.
    void fillAndPress(frmSourceFile& w, const Entry& e) {
        hostScript.answerFileDialog(e.path);
        w.cmdBrowse->click();
        w.txtDescriptionSF->setText(e.description);
        if (!e.author)
            w.cboAuthors->setListIndex(-1);
        w.txtRevCommentsSF->setPlainText(e.comment);
        if (!e.minor.isEmpty())
            w.cboMinorSF->setText(e.minor);
        w.CmdAddOrUpdate->click();
    }
    // Runs the window with `body`, which must leave it closed or cancel it.
    void onWindow(std::function<void(frmSourceFile&)> body) {
        hostScript.onModal<frmSourceFile>("frmSourceFile", [body](frmSourceFile& w) {
            body(w);
            if (w.IsLoaded())
                w.cmdCancel->click();
        });
    }
    // The article Guide (1) loaded from a file of the home, with a first revision when told.
    QString addGuide(bool revised) {
        const QString file = writeFile("guide.txt", "text");
        cSourceFile item(mDatabase);
        item.LoadFile(file, mAda, 1, 101);
        item.BeginEdit(0);
        item.Description("Guide");
        if (revised) {
            cRevision& line = item.Revisions().Add(0);
            line.Version("1.0.0");
            line.DateRevised(QDateTime::currentDateTime());
        }
        item.Save();
        return file;
    }
    QStringList fileVersions(int id) const {
        QStringList out;
        const cSourceFile record = cLibraryService(mDatabase).GetSourceFile(id);
        for (const cRevision& r : record.Revisions())
            out << r.Version() + QLatin1Char(' ') + r.Comment();
        return out;
    }
};

TEST_F(SourceFileWindow, AddRefusesInOrderAndWritesNothing) {
    const QString file = writeFile("guide.txt", "text");
    const QString gone = writeFile("gone.txt", "text");
    struct Case {
        QString path;
        const char* description;
        bool author;
        bool removeChosenFile; // between the browse and the Add
        const char* title;
        const char* message;
        const char* focus;
    };
    const char* const fileTitle = "File path/Name?";
    const Case cases[] = {
        {file, "Guide", false, false, "User?", "Please select the  adding the source file.",
         "cboAuthors"},
        {{},
         "Guide",
         true,
         false,
         fileTitle,
         "Please select or enter file path and name.",
         "txtFileNameSF"},
        {gone, "Guide", true, true, fileTitle, "The file you are trying to add does not exist.",
         "txtFileNameSF"},
        {file, "", true, false, fileTitle, "Please enter a description.", "txtDescriptionSF"},
    };
    frmMain& form = openDocs();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        onWindow([&](frmSourceFile& w) {
            EXPECT_EQ(w.cboAuthors->Text(), "Ada Lovelace");
            EXPECT_FALSE(w.SSTabAboutFile->isTabEnabled(1));
            hostScript.expectMsgBox(QString::fromLatin1(c.message));
            hostScript.answerFileDialog(c.path);
            w.cmdBrowse->click();
            if (c.removeChosenFile)
                QFile::remove(c.path);
            w.txtDescriptionSF->setText(QLatin1String(c.description));
            if (!c.author)
                w.cboAuthors->setListIndex(-1);
            w.CmdAddOrUpdate->click();
            ASSERT_FALSE(hostScript.msgBoxes().isEmpty());
            EXPECT_EQ(hostScript.msgBoxes().last().title, c.title);
            EXPECT_EQ(hostScript.msgBoxes().last().icon(), vbInformation);
            EXPECT_TRUE(w.isEnabled());
            ASSERT_TRUE(w.focusWidget());
            EXPECT_EQ(w.focusWidget()->objectName(), c.focus);
        });
        ASSERT_TRUE(toolBar(form, "Add SourceFile"));
        EXPECT_EQ(rows("SourceFile"), QStringList({"1 Docs"}));
        EXPECT_EQ(childKeys(*form.tvwMain, "SF1ArticleFolder"), QStringList());
        EXPECT_TRUE(form.isEnabled());
    }
}

TEST_F(SourceFileWindow, AStoredFileIsAddedUpdatedWrittenBackAndFoundAfterARestart) {
    frmMain& form = openDocs();
    const QString first = writeFile("guide.txt", "first edition");
    onWindow([&](frmSourceFile& w) { fillAndPress(w, {first, "Guide", true, {}, {}}); });
    ASSERT_TRUE(toolBar(form, "Add SourceFile"));

    TreeView& tree = *form.tvwMain;
    ASSERT_EQ(childKeys(tree, "SF1ArticleFolder"), QStringList({"SF2Article"}));
    Node added = tree.Nodes("SF2Article");
    EXPECT_EQ(added.Tag(), "SF1Article");
    EXPECT_EQ(added.Image(), "Article");
    EXPECT_EQ(added.Text(), "Guide");
    EXPECT_EQ(tree.SelectedItem(), added);
    EXPECT_EQ(form.txtFilename->text(), "guide.txt");
    EXPECT_EQ(versions(*form.lstSrcFileRevHist), QStringList({"1.0.0"}));
    EXPECT_EQ(fileVersions(2), QStringList({"1.0.0 Source File Added"}));

    // An update brings in a new file under a new version.
    const QString second = writeFile("guide-2.txt", "second edition, longer");
    onWindow([&](frmSourceFile& w) {
        EXPECT_EQ(w.Caption(), "Updating Source File");
        EXPECT_EQ(w.lblFileName->text(), "New File Name:");
        EXPECT_EQ(w.txtFileNameSF->text(), "");
        EXPECT_EQ(w.txtDescriptionSF->text(), "Guide");
        EXPECT_EQ(w.cboMajorSF->Text() + w.cboMinorSF->Text() + w.cboRevSF->Text(), "100");
        fillAndPress(w, {second, "Guide, second edition", true, "Second edition", "1"});
    });
    EXPECT_TRUE(form.tbToolBar->PerformClick("Edit"));
    EXPECT_EQ(added.Text(), "Guide, second edition");
    EXPECT_EQ(form.txtFilename->text(), "guide-2.txt");
    EXPECT_EQ(versions(*form.lstSrcFileRevHist), QStringList({"1.0.0", "1.1.0"}));
    EXPECT_EQ(fileVersions(2).last(), "1.1.0 Second edition");

    // The stored copy goes out under the hourglass, the window back on afterwards.
    const QString copy = home->file("copy-of-guide.txt");
    hostScript.answerFileDialog(copy);
    hostScript.clearCalls();
    form.cmdSaveFile->click();
    EXPECT_EQ(hostScript.lastFileDialog().title, "Save File");
    QFile out(copy);
    ASSERT_TRUE(out.open(QIODevice::ReadOnly));
    EXPECT_EQ(out.readAll(), "second edition, longer");
    EXPECT_TRUE(hostScript.pointerHistory().contains(vbHourglass));
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    EXPECT_TRUE(form.isEnabled());

    form.Unload();
    frmMain& again = openAt("FT1101", "SF2Article");
    EXPECT_EQ(again.lblCodeSnipDescr->text(), "Guide, second edition");
    EXPECT_EQ(again.txtFilename->text(), "guide-2.txt");
    EXPECT_EQ(versions(*again.lstSrcFileRevHist), QStringList({"1.0.0", "1.1.0"}));
}

TEST_F(SourceFileWindow, UpdateIsRefusedWithoutANewFileACommentOrANewVersion) {
    const QString file = addGuide(true);
    struct Case {
        Entry entry;
        const char* message;
    };
    // Changing only the notes needs a file chosen again.
    const Case cases[] = {
        {{{}, "Guide", true, "Notes only", "1"}, "Please select or enter file path and name."},
        {{file, "Guide", true, {}, "1"}, "Please enter a ''Revision Comment''"},
        {{file, "Guide", true, "Same number", {}}, "that is not in the current revision number"},
    };
    frmMain& form = openAt("FT1101", "SF1Article");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        onWindow([&](frmSourceFile& w) {
            hostScript.expectMsgBox(QString::fromLatin1(c.message));
            fillAndPress(w, c.entry);
            EXPECT_TRUE(w.isEnabled());
        });
        EXPECT_TRUE(form.tbToolBar->PerformClick("Edit"));
        EXPECT_EQ(fileVersions(1), QStringList({"1.0.0 "}));
    }
}

TEST_F(SourceFileWindow, AParentFolderGoneMeanwhileIsReportedAndNothingChanges) {
    frmMain& form = openDocs();
    // Another user removes the folder while this window still shows it.
    removeElsewhere(1, true);
    const QString file = writeFile("guide.txt", "text");
    onWindow([&](frmSourceFile& w) {
        hostScript.expectMsgBox("The parent folder is not valid");
        fillAndPress(w, {file, "Guide", true, {}, {}});
        EXPECT_TRUE(w.isEnabled());
    });
    ASSERT_TRUE(toolBar(form, "Add SourceFile"));
    EXPECT_EQ(rows("SourceFile"), QStringList());
    EXPECT_EQ(childKeys(*form.tvwMain, "SF1ArticleFolder"), QStringList());
}

TEST_F(SourceFileWindow, SaveFilterFollowsTheLastThreeCharactersOfTheName) {
    frmMain& form = open();
    const struct {
        const char* name;
        const char* filter;
    } cases[] = {{"notes.txt", "File (*.txt)|*.txt"}, {"a.md", "File (*..md)|*..md"}};
    for (const auto& c : cases) {
        form.txtFilename->setText(QString::fromLatin1(c.name));
        hostScript.answerFileDialog(QString());
        form.cmdSaveFile->click();
        EXPECT_EQ(hostScript.lastFileDialog().filter, c.filter);
        EXPECT_EQ(hostScript.lastFileDialog().fileName, c.name);
    }
}

TEST_F(SourceFileWindow, OpenFileRunsTheRecordedFileAndShowsAFailure) {
    const QString file = addGuide(false);
    frmMain& form = openAt("FT1101", "SF1Article");
    form.cmdOpenFile->click();
    ASSERT_EQ(hostScript.callsOf("Shell").size(), 1);
    EXPECT_EQ(hostScript.callsOf("Shell")[0].text, QFileInfo(file).absoluteFilePath());
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());

    hostScript.setShellResult(2);
    hostScript.answerMsgBox(vbOK);
    form.cmdOpenFile->click();
    ASSERT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_FALSE(hostScript.msgBoxes()[0].text.isEmpty());
}

} // namespace
