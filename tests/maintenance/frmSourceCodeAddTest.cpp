// Adding a text item: the window over a folder of the item tree, its refusals, the import of a
// file, and the node it hangs under the folder.

#include "MaintenanceFixture.h"

#include "ComboBox.h"
#include "Cp1252.h"
#include "Globals.h"
#include "NodeKeys.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "ServiceErrors.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "frmSourceCode.h"

#include <QAction>
#include <QApplication>
#include <QDateTimeEdit>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

using SourceCodeAdd = Maintenance;

TEST_F(SourceCodeAdd,
       EachFolderKindTakesOneItemWithItsFirstRevisionAndTheTreeIsPatchedNotRefilled) {
    const struct {
        int type;
        int tested;
        const char* typeNode;
        bool toolBar; // the add is asked for by the tool bar's button, else by the menu
        const char* menu;
        const char* caption;
        const char* tab;
        const char* key;
        const char* tag;
        const char* image;
        const char* code;
        const char* storedCode;
    } cases[] = {
        {201, 1, "CTested1201", false, "Add Code Snippet", "Adding Source Code", "Code Text",
         "CodeTested", "CodeTested", "TestedSnippet", "Function Pad()\nEnd Function",
         "Function Pad()\r\nEnd Function"},
        // A one-character text is stored with a line end behind it.
        {201, 2, "CUntested1201", true, "Add Code Snippet", "Adding Source Code", "Code Text",
         "CodeUnTested", "CodeUnTested", "UnTestedSnippet", "x", "x\r\n"},
        {202, 1, "CTested1202", true, "Add Tip", "Adding Tip", "Tip Text", "TipTested", "TipTested",
         "Tip", "x", "x\r\n"},
        {203, 2, "CUntested1203", true, "Add Class Module", "Adding Class Module", "Class Mod Text",
         "ClassUnTested", "ClassUnTested", "Class3", "x", "x\r\n"},
        // An untested module keeps the tag of a tested one.
        {204, 2, "CUntested1204", true, "Add General Module", "Adding General Module",
         "General Mod Text", "ModuleUnTested", "ModuleTested", "Module", "x", "x\r\n"},
    };
    const QDateTime written(QDate(2019, 3, 4), QTime(9, 30));
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.caption) + " " + c.key);
        const int folder = addCode("Folder", c.type, c.tested, 0, true);
        const int sibling = addCode("Trim", c.type, c.tested, folder);
        const QString folderKey =
            QStringLiteral("SC%1").arg(folder) + NodeKeys::KindWord(c.type, c.tested == 1, true);
        frmMain& form = openAt(QLatin1String(c.typeNode), folderKey);
        const Node siblingNode = form.tvwMain->Nodes(
            QStringLiteral("SC%1").arg(sibling) + NodeKeys::KindWord(c.type, c.tested == 1, false));
        EXPECT_EQ(form.mnuAddSourceCode->text(), QLatin1String(c.menu));
        hostScript.clearCalls();
        inWindow(
            [&] {
                if (c.toolBar)
                    EXPECT_TRUE(toolBar(form, "Add SourceCode"));
                else
                    form.mnuAddSourceCode->trigger();
            },
            [&](frmSourceCode& w) {
                EXPECT_EQ(w.Caption(), QLatin1String(c.caption));
                EXPECT_EQ(w.SSTabAboutCode->TabCaption(0), QLatin1String(c.tab));
                EXPECT_EQ(w.lblSourceType->text(), NodeKeys::TypeName(c.type));
                EXPECT_EQ(w.cboAuthors->Text(), "Ada Lovelace");
                EXPECT_FALSE(w.SSTabAboutCode->TabEnabled(3));
                w.DTPickerDateWritten->setDateTime(written);
                w.RTBoxAddOrUpdate->setText(QLatin1String(c.code));
                QTest::keyClicks(w.txtDescriptionAddOrUpdate, "Pad");
                w.txtNotesAddOrUpdate->setPlainText("n1\nn2");
                w.txtExampleAddOrUpdate->setPlainText("x = Pad()");
                QTest::mouseClick(w.CmdAddOrUpdate, Qt::LeftButton);
            });

        EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
        EXPECT_EQ(Forms::find<frmSourceCode>(), nullptr);
        EXPECT_TRUE(form.isEnabled());
        const Node added = form.tvwMain->SelectedItem();
        ASSERT_TRUE(added);
        const int id = NodeKeys::IdOf(added.Key());
        EXPECT_EQ(added.Key(), QStringLiteral("SC%1").arg(id) + QLatin1String(c.key));
        EXPECT_EQ(added.Tag(), QStringLiteral("SC%1").arg(folder) + QLatin1String(c.tag));
        EXPECT_EQ(added.Image(), QLatin1String(c.image));
        EXPECT_EQ(added.Parent().Key(), folderKey);
        // The sibling is the same node as before: nothing was refilled.
        EXPECT_EQ(siblingNode.Text(), "Trim");
        EXPECT_EQ(form.RichTextBoxCode->Text(), QLatin1String(c.storedCode));
        EXPECT_EQ(form.lblCodeSnipDescr->text(), "Pad");

        const cSourceCode item = stored(id);
        EXPECT_EQ(item.Code(), QLatin1String(c.storedCode));
        EXPECT_EQ(item.AuthorId(), mAda);
        EXPECT_EQ(item.CategoryId(), 1);
        EXPECT_EQ(item.Tested(), c.tested);
        EXPECT_EQ(item.CodeTypeId(), c.type);
        EXPECT_EQ(item.ParentId(), folder);
        EXPECT_EQ(item.Notes(), "n1\r\nn2");
        EXPECT_EQ(item.Example(), "x = Pad()");
        EXPECT_EQ(item.DateWritten().date(), written.date());
        ASSERT_EQ(item.Revisions().Count(), 1);
        const cRevision& first = item.Revisions().Item(1);
        EXPECT_EQ(first.Version(), "1.0.0");
        EXPECT_EQ(first.Comment(), "Source Code Added");
        EXPECT_EQ(first.AuthorId(), mAda);
        // The first revision is back-dated with the item.
        EXPECT_EQ(first.DateRevised().date(), written.date());
        form.Unload();
    }
}

TEST_F(SourceCodeAdd, RefusalsComeInOrderAndKeepTheWindowOpenWithNothingWritten) {
    gstrUserName = "Not An Author";
    const int folder = addCode("Strings", 201, 1, 0, true);
    frmMain& form = openAt("CTested1201", QStringLiteral("SC%1CodeTestedFolder").arg(folder));
    const struct {
        const char* title;
        const char* message;
        int tab;
        const char* focus;
        std::function<void(frmSourceCode&)> mend; // what the person puts right next
    } steps[] = {
        {"Add Source Code?",
         "Please select the ''Person'' that wrote the code before adding source code.", 1,
         "cboAuthors", [](frmSourceCode& w) { w.cboAuthors->setListIndex(1); }},
        {"Add Source Code?", "There is no ''Code'' in the window to add.", 0, "RTBoxAddOrUpdate",
         [](frmSourceCode& w) { w.RTBoxAddOrUpdate->setText("Beep"); }},
        {"Description?", "Please enter a ''Description'' before adding source code.", 0,
         "txtDescriptionAddOrUpdate", nullptr},
    };
    inWindow([&] { form.mnuAddSourceCode->trigger(); },
             [&](frmSourceCode& w) {
                 QApplication::setActiveWindow(&w);
                 // A user who is no author finds the person box empty.
                 EXPECT_EQ(w.cboAuthors->Text(), QString());
                 w.SSTabAboutCode->setTab(1);
                 for (const auto& step : steps) {
                     SCOPED_TRACE(step.message);
                     hostScript.expectMsgBox(QLatin1String(step.message));
                     QTest::mouseClick(w.CmdAddOrUpdate, Qt::LeftButton);
                     const HostCall box = hostScript.msgBoxes().constLast();
                     EXPECT_EQ(box.title, QLatin1String(step.title));
                     EXPECT_EQ(box.icon(), vbInformation);
                     EXPECT_TRUE(w.isEnabled());
                     EXPECT_TRUE(w.isVisible());
                     EXPECT_EQ(w.SSTabAboutCode->Tab(), step.tab);
                     EXPECT_EQ(QApplication::focusWidget()->objectName(),
                               QLatin1String(step.focus));
                     EXPECT_EQ(rows("SourceCode").size(), 1);
                     if (step.mend)
                         step.mend(w);
                 }
                 w.cmdCancel->click();
             });
    EXPECT_EQ(rows("SourceCode").size(), 1);
}

// Files written elsewhere, as bytes, and the text the code box must show for each.
TEST_F(SourceCodeAdd, ImportShowsOnlyInTheCodeBoxAndKeepsEveryCharacterWithTheSystemsLineEnds) {
    const QString accents = QStringLiteral("caf\u00e9 \u20ac \u2019q\u2019 \u00a0nbsp");
    const struct {
        const char* name;
        QByteArray bytes;
        QString text;
    } files[] = {
        {"bom.bas", "\xEF\xBB\xBF" + accents.toUtf8() + "\r\n\xF0\x9F\x98\x80",
         accents + QStringLiteral("\r\n\U0001F600")},
        {"plain.bas", accents.toUtf8() + "\nline 2\n", accents + "\r\nline 2\r\n"},
        {"ansi.bas", ToCp1252(accents) + "\r\n\x80\x9f",
         accents + QStringLiteral("\r\n\u20ac\u0178")},
        {"mac.txt", QByteArray("a\rb\r\nc"), "a\r\nb\r\nc"},
    };
    const int folder = addCode("Mods", 204, 1, 0, true);
    frmMain& form = openAt("CTested1204", QStringLiteral("SC%1ModuleTestedFolder").arg(folder));
    inWindow([&] { form.mnuAddSourceCode->trigger(); },
             [&](frmSourceCode& w) {
                 // The import entry shows only while the code box has the focus.
                 QApplication::setActiveWindow(&w);
                 EXPECT_FALSE(w.mnuAsciiFile->isVisible());
                 QTest::mouseClick(w.RTBoxAddOrUpdate->viewport(), Qt::LeftButton);
                 EXPECT_TRUE(w.mnuAsciiFile->isVisible());
                 EXPECT_TRUE(w.Seperator1->isVisible());
                 QTest::mouseClick(w.txtDescriptionAddOrUpdate, Qt::LeftButton);
                 EXPECT_FALSE(w.mnuAsciiFile->isVisible());
                 EXPECT_FALSE(w.Seperator1->isVisible());

                 for (const auto& f : files) {
                     SCOPED_TRACE(f.name);
                     w.RTBoxAddOrUpdate->clear();
                     hostScript.answerFileDialog(writeFile(QLatin1String(f.name), f.bytes));
                     w.mnuAsciiFile->trigger();
                     EXPECT_EQ(w.RTBoxAddOrUpdate->Text(), f.text);
                 }
                 EXPECT_EQ(hostScript.lastFileDialog().filter,
                           QStringLiteral("VB Mod Files (*.bas)|*.bas:VB Class Files (*.cls)|*.cls:"
                                          "Text Files (*.txt)|*.txt:All Files (*.*)|*.*:"));
                 // A second file goes behind the first, one empty line between.
                 const QString twice = "a\r\nb\r\nc\r\n\r\na\r\nb\r\nc";
                 hostScript.answerFileDialog(home->file("mac.txt"));
                 w.mnuAsciiFile->trigger();
                 EXPECT_EQ(w.RTBoxAddOrUpdate->Text(), twice);
                 // Cancel, a name that is not there: nothing changes, nothing is said.
                 hostScript.answerFileDialog(QString());
                 w.mnuAsciiFile->trigger();
                 hostScript.answerFileDialog(home->file("gone.bas"));
                 w.mnuAsciiFile->trigger();
                 // A name that is there but is no file to read is reported.
                 hostScript.expectMsgBox("could not be read");
                 const QString folderPath = home->file("folder.bas");
                 ASSERT_TRUE(QDir().mkpath(folderPath));
                 hostScript.answerFileDialog(folderPath);
                 w.mnuAsciiFile->trigger();
                 EXPECT_EQ(w.RTBoxAddOrUpdate->Text(), twice);
                 // Cancel after an import writes nothing.
                 w.cmdCancel->click();
             });
    EXPECT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_EQ(rows("SourceCode").size(), 1);
}

TEST_F(SourceCodeAdd, AFolderGoneMeanwhileIsReportedAndLeavesTreeAndLibraryAsTheyWere) {
    const int folder = addCode("Doomed", 201, 1, 0, true);
    frmMain& form = openAt("CTested1201", QStringLiteral("SC%1CodeTestedFolder").arg(folder));
    const int nodes = form.tvwMain->Nodes.Count();
    inWindow([&] { form.mnuAddSourceCode->trigger(); },
             [&](frmSourceCode& w) {
                 removeElsewhere(folder);
                 w.RTBoxAddOrUpdate->setText("Beep");
                 w.txtDescriptionAddOrUpdate->setText("Beep");
                 hostScript.expectMsgBox(QString::fromLatin1(kTextInvalidParent));
                 QTest::mouseClick(w.CmdAddOrUpdate, Qt::LeftButton);
                 EXPECT_TRUE(w.isVisible());
                 EXPECT_TRUE(w.isEnabled());
                 w.cmdCancel->click();
             });
    EXPECT_EQ(hostScript.msgBoxes().constLast().icon(), vbCritical);
    EXPECT_EQ(form.tvwMain->Nodes.Count(), nodes);
    EXPECT_EQ(rows("SourceCode"), QStringList());
}

} // namespace
