// Updating a text item: the version lists, the ten tests, the tested move, the outline of a
// module, and an item that survives a restart of the main window.

#include "MaintenanceFixture.h"

#include "ComboBox.h"
#include "Globals.h"
#include "ListView.h"
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
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

QStringList entries(const ComboBox& combo) {
    QStringList list;
    for (int i = 0; i < combo.ListCount(); ++i)
        list << combo.List(i);
    return list;
}

class SourceCodeUpdate : public Maintenance {
protected:
    // A text item with revision lines of these versions, a day apart from 2020 on.
    int addItem(const QString& description, int type, int tested, int parent,
                const QStringList& versions, const QString& code = "Beep") {
        cSourceCode item(mDatabase);
        item.BeginEdit(0);
        item.Description(description);
        item.CategoryId(1);
        item.CodeTypeId(type);
        item.Tested(tested);
        item.ParentId(parent);
        item.AuthorId(mGrace);
        item.Code(code);
        QDate day(2020, 1, 1);
        for (const QString& version : versions) {
            cRevision& rev = item.Revisions().Add(0);
            rev.Version(version);
            rev.AuthorId(mGrace);
            rev.Comment("step");
            rev.DateRevised(QDateTime(day, QTime(8, 0)));
            day = day.addDays(1);
        }
        return item.Save();
    }

    // The window on the item of that key, through the tool bar's Edit button.
    void edit(frmMain& form, const std::function<void(frmSourceCode&)>& fill) {
        inWindow([&] { EXPECT_TRUE(form.tbToolBar->PerformClick("Edit")); },
                 [&](frmSourceCode& w) {
                     QApplication::setActiveWindow(&w);
                     fill(w);
                 });
    }

    static void setVersion(frmSourceCode& w, const char* major, const char* minor,
                           const char* rev) {
        w.cboMajor->setText(QLatin1String(major));
        w.cboMinor->setText(QLatin1String(minor));
        w.cboRev->setText(QLatin1String(rev));
    }
};

TEST_F(SourceCodeUpdate, AnAddedAndUpdatedItemShowsItsNewVersionAgainAfterARestart) {
    const int folder = addCode("Strings", 201, 1, 0, true);
    const QString folderKey = QStringLiteral("SC%1CodeTestedFolder").arg(folder);
    frmMain* form = &openAt("CTested1201", folderKey);
    inWindow([&] { form->mnuAddSourceCode->trigger(); },
             [&](frmSourceCode& w) {
                 w.RTBoxAddOrUpdate->setText("Sub Old()\r\nEnd Sub");
                 w.txtDescriptionAddOrUpdate->setText("Old");
                 w.CmdAddOrUpdate->click();
             });
    const QString key = form->tvwMain->SelectedItem().Key();
    const int id = NodeKeys::IdOf(key);
    EXPECT_EQ(form->txtVersionNo->text(), "1.0.0");

    edit(*form, [&](frmSourceCode& w) {
        EXPECT_EQ(w.Caption(), "Updating Source Code");
        EXPECT_EQ(w.CmdAddOrUpdate->text(), "Update");
        EXPECT_EQ(w.lblPersonCap->text(), "Person Updating:");
        EXPECT_FALSE(w.DTPickerDateWritten->isVisibleTo(&w));
        EXPECT_FALSE(w.ckkTested->isVisibleTo(&w)); // a tested item never moves back
        EXPECT_EQ(w.RTBoxAddOrUpdate->Text(), "Sub Old()\r\nEnd Sub");
        w.cboAuthors->setListIndex(1);
        w.RTBoxAddOrUpdate->setText("Sub New()\r\nEnd Sub");
        w.txtDescriptionAddOrUpdate->setText("New");
        w.txtRevComsAddOrUpdate->setPlainText("renamed");
        setVersion(w, "1", "1", "0");
        w.CmdAddOrUpdate->click();
    });
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();

    const auto check = [&](frmMain& f) {
        EXPECT_EQ(f.tvwMain->SelectedItem().Key(), key);
        EXPECT_EQ(f.tvwMain->SelectedItem().Text(), "New");
        EXPECT_EQ(f.RichTextBoxCode->Text(), "Sub New()\r\nEnd Sub");
        EXPECT_EQ(f.txtVersionNo->text(), "1.1.0");
        EXPECT_EQ(f.lvwRevisionHistory->ListItems.Count(), 2);
    };
    check(*form);
    const cSourceCode item = stored(id);
    EXPECT_EQ(item.AuthorId(), mAda); // the first writer stays the author
    ASSERT_EQ(item.Revisions().Count(), 2);
    EXPECT_EQ(item.Revisions().Item(2).AuthorId(), mGrace);
    EXPECT_EQ(item.Revisions().Item(2).Comment(), "renamed");

    form->Unload();
    QCoreApplication::processEvents();
    form = &openAt("CTested1201", folderKey);
    click(*form->tvwMain, key);
    check(*form);
}

TEST_F(SourceCodeUpdate, ListsStartAtTheLastEntryAndTheFirstMajorPickIsSkipped) {
    const int folder = addCode("F", 202, 1, 0, true);
    // The last entry is not the newest by date; the floor is taken from it all the same.
    const int id = addItem("Tip", 202, 1, folder, {"2.3.4", "1.0.0"});
    const int newer = addItem("Tip 2", 202, 1, folder, {"1.0.0", "2.3.4"});
    frmMain& form = openAt("CTested1202", QStringLiteral("SC%1TipTestedFolder").arg(folder));
    click(*form.tvwMain, QStringLiteral("SC%1TipTested").arg(id));
    EXPECT_EQ(form.txtVersionNo->text(), "1.0.0");
    edit(form, [&](frmSourceCode& w) {
        EXPECT_EQ(gstrCurrentVersion, "1.0.0");
        EXPECT_EQ(w.cboMajor->ListCount(), 3000);
        EXPECT_EQ(w.cboMajor->List(0), "1");
        EXPECT_EQ(w.cboMajor->List(2999), "3000");
        EXPECT_EQ(w.cboMinor->Text(), "0");
        w.cmdCancel->click();
    });
    click(*form.tvwMain, QStringLiteral("SC%1TipTested").arg(newer));
    edit(form, [&](frmSourceCode& w) {
        EXPECT_EQ(w.cboMajor->Text(), "2");
        EXPECT_EQ(entries(*w.cboMinor), QString::fromLatin1("3 4 5 6 7 8 9").split(' '));
        EXPECT_EQ(entries(*w.cboRev), QString::fromLatin1("4 5 6 7 8 9").split(' '));
        // The first pick only ends the skip; the next opens minor and revision from 0.
        w.cboMajor->setListIndex(1);
        EXPECT_EQ(w.cboMinor->ListCount(), 7);
        w.cboMajor->setListIndex(2);
        EXPECT_EQ(entries(*w.cboMinor), QString::fromLatin1("0 1 2 3 4 5 6 7 8 9").split(' '));
        EXPECT_EQ(entries(*w.cboRev), entries(*w.cboMinor));
        w.cmdCancel->click();
    });
}

TEST_F(SourceCodeUpdate, TestsRunInOrderAndEachStaysInTheWindowWithNothingWritten) {
    gstrUserName = "Not An Author";
    const int folder = addCode("F", 201, 2, 0, true);
    const int id = addItem("Item", 201, 2, folder, {"1.0.0", "1.2.3"});
    frmMain& form = openAt("CUntested1201", QStringLiteral("SC%1CodeUnTestedFolder").arg(folder));
    click(*form.tvwMain, QStringLiteral("SC%1CodeUnTested").arg(id));
    const QString described = "Description?";
    const struct {
        QString title;
        const char* message;
        int tab; // -1: the tab does not change
        const char* focus;
        std::function<void(frmSourceCode&)> mend;
    } steps[] = {
        {"Update Source Code?", "Please select the ''Person'' that is updating the source code.",
         -1, "cboAuthors",
         [](frmSourceCode& w) {
             w.cboAuthors->setListIndex(0);
             w.RTBoxAddOrUpdate->clear();
         }},
        {"Update Source Code?", "There is no ''Code'' in the window to update.", 0,
         "RTBoxAddOrUpdate",
         [](frmSourceCode& w) {
             w.RTBoxAddOrUpdate->setText("x");
             w.txtDescriptionAddOrUpdate->clear();
         }},
        {described, "Please enter a ''Description'' before updating source code.", -1,
         "txtDescriptionAddOrUpdate",
         [](frmSourceCode& w) { w.txtDescriptionAddOrUpdate->setText("D"); }},
        {described, "Please enter a ''Revision Comment'' about what you have changed.", 3,
         "txtRevComsAddOrUpdate",
         [](frmSourceCode& w) {
             w.txtRevComsAddOrUpdate->setPlainText("c");
             setVersion(w, "", "", "");
         }},
        {described, "Please select or enter a ''Major'' about waht you have changed.", 3,
         "cboMajor", [](frmSourceCode& w) { w.cboMajor->setText("1"); }},
        {described, "Please select a ''Minor'' before updating.", 3, "cboMinor",
         [](frmSourceCode& w) { w.cboMinor->setText("2"); }},
        {described, "Please select a ''Revision'' before updating", 3, "cboRev",
         [](frmSourceCode& w) { w.cboRev->setText("3"); }},
        {described,
         "Please select a ''Revision'' that is not in the current revision number before "
         "updating.",
         3, "cboMajor",
         [](frmSourceCode& w) {
             // A leading zero makes another text of the same version, which passes.
             w.cboMajor->setText("01");
             w.ckkTested->click();
         }},
        {described, "Please select a ''Tested Parent ID'' before updating.", -1, "cboSelParFolder",
         [](frmSourceCode& w) { w.ckkTested->click(); }},
    };
    edit(form, [&](frmSourceCode& w) {
        EXPECT_TRUE(w.ckkTested->isVisible());
        EXPECT_EQ(w.cboAuthors->Text(), QString());
        // No tested folder in this category: nothing to choose.
        EXPECT_EQ(w.cboSelParFolder->ListCount(), 0);
        w.SSTabAboutCode->setTab(1);
        for (const auto& step : steps) {
            SCOPED_TRACE(step.message);
            const int tab = step.tab < 0 ? w.SSTabAboutCode->Tab() : step.tab;
            hostScript.expectMsgBox(QLatin1String(step.message));
            w.CmdAddOrUpdate->click();
            EXPECT_EQ(hostScript.msgBoxes().constLast().title, step.title);
            EXPECT_TRUE(w.isEnabled());
            EXPECT_EQ(w.SSTabAboutCode->Tab(), tab);
            EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(step.focus));
            EXPECT_EQ(stored(id).Revisions().Count(), 2);
            step.mend(w);
        }
        w.CmdAddOrUpdate->click();
    });
    EXPECT_EQ(Forms::find<frmSourceCode>(), nullptr);
    ASSERT_EQ(stored(id).Revisions().Count(), 3);
    EXPECT_EQ(stored(id).Revisions().Item(3).Version(), "01.2.3");
    EXPECT_EQ(stored(id).Code(), "x");
}

TEST_F(SourceCodeUpdate, AMajorThreeAboveIsQuestionedAndYesLeavesADisabledWindow) {
    const struct {
        const char* major;
        int answer; // 0: no question
        bool written;
    } cases[] = {{"3", 0, true}, {"4", vbNo, true}, {"4", vbYes, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.major) + " " + std::to_string(c.answer));
        const int folder = addCode("F", 201, 1, 0, true);
        const int id = addItem("Item", 201, 1, folder, {"1.0.0"});
        frmMain& form = openAt("CTested1201", QStringLiteral("SC%1CodeTestedFolder").arg(folder));
        click(*form.tvwMain, QStringLiteral("SC%1CodeTested").arg(id));
        hostScript.clearCalls();
        if (c.answer)
            hostScript.expectMsgBox("Are you sue you want to update?", c.answer);
        edit(form, [&](frmSourceCode& w) {
            w.txtRevComsAddOrUpdate->setPlainText("big");
            w.cboMajor->setText(QLatin1String(c.major));
            w.CmdAddOrUpdate->click();
            if (!c.written) {
                EXPECT_FALSE(w.isEnabled());
                EXPECT_TRUE(w.isVisible());
                w.Unload(); // nothing in the system closes it
            }
        });
        if (c.answer) {
            EXPECT_EQ(hostScript.msgBoxes().constFirst().title, "Major?");
            EXPECT_EQ(hostScript.msgBoxes().constFirst().buttons(), vbYesNo);
        } else {
            EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
        }
        EXPECT_EQ(stored(id).Revisions().Count(), c.written ? 2 : 1);
        form.Unload();
        QCoreApplication::processEvents();
    }
}

TEST_F(SourceCodeUpdate, MarkingTestedMovesTheItemIntoTheChosenTestedFolder) {
    const int tested = addCode("Proven", 203, 1, 0, true);
    const int doomed = addCode("Doomed", 203, 1, 0, true);
    const int draft = addCode("Drafts", 203, 2, 0, true);
    const int id = addItem("cQueue", 203, 2, draft, {"1.0.0"});
    frmMain& form = openAt("CUntested1203", QStringLiteral("SC%1ClassUnTestedFolder").arg(draft));
    const QString key = QStringLiteral("SC%1ClassUnTested").arg(id);
    click(*form.tvwMain, key);
    edit(form, [&](frmSourceCode& w) {
        EXPECT_EQ(entries(*w.cboSelParFolder), QStringList({"Proven", "Doomed"}));
        EXPECT_FALSE(w.cboSelParFolder->isVisible());
        w.ckkTested->click();
        EXPECT_TRUE(w.cboSelParFolder->isVisible());
        EXPECT_TRUE(w.lblParent->isVisible());
        w.txtRevComsAddOrUpdate->setPlainText("proven");
        w.cboRev->setText("1");
        // A folder gone meanwhile is refused by the service: reported, nothing changes.
        w.cboSelParFolder->setListIndex(1);
        removeElsewhere(doomed);
        hostScript.expectMsgBox(QString::fromLatin1(kTextInvalidParent));
        w.CmdAddOrUpdate->click();
        EXPECT_TRUE(w.isEnabled());
        EXPECT_TRUE(form.tvwMain->Nodes.Exists(key));
        EXPECT_EQ(stored(id).Revisions().Count(), 1);
        EXPECT_EQ(stored(id).Tested(), 2);
        w.cboSelParFolder->setListIndex(0);
        w.CmdAddOrUpdate->click();
    });
    EXPECT_EQ(Forms::find<frmSourceCode>(), nullptr);
    EXPECT_FALSE(form.tvwMain->Nodes.Exists(key));
    const cSourceCode item = stored(id);
    EXPECT_EQ(item.Tested(), 1);
    EXPECT_EQ(item.ParentId(), tested);
    ASSERT_EQ(item.Revisions().Count(), 2);
    EXPECT_EQ(item.Revisions().Item(2).Version(), "1.0.1");
}

TEST_F(SourceCodeUpdate, UpdatingAModuleBuildsItsOutlineAfreshFromTheNewText) {
    const int folder = addCode("Mods", 204, 1, 0, true);
    const int id = addItem("mText", 204, 1, folder, {"1.0.0"}, "Private Sub Old()\r\nEnd Sub\r\n");
    frmMain& form = openAt("CTested1204", QStringLiteral("SC%1ModuleTestedFolder").arg(folder));
    const QString key = QStringLiteral("SC%1ModuleTested").arg(id);
    click(*form.tvwMain, key);
    const auto outline = [&] {
        QStringList lines;
        for (Node group = form.tvwMain->Nodes(key).Child(); group; group = group.Next())
            for (Node member = group.Child(); member; member = member.Next())
                lines << group.Text() + QLatin1Char(':') + member.Text();
        return lines;
    };
    EXPECT_EQ(outline(), QStringList({"Subs:Old"}));
    edit(form, [&](frmSourceCode& w) {
        w.RTBoxAddOrUpdate->setText("Public Function Fresh() As Long\r\nEnd Function\r\n");
        w.txtRevComsAddOrUpdate->setPlainText("rewritten");
        w.cboMinor->setText("1");
        w.CmdAddOrUpdate->click();
    });
    EXPECT_EQ(outline(), QStringList({"Functions:Fresh"}));
}

TEST_F(SourceCodeUpdate, EditOnAFolderOrTheRootAsksForAnItem) {
    const int folder = addCode("F", 201, 1, 0, true);
    frmMain& form = openAt("CTested1201", QStringLiteral("SC%1CodeTestedFolder").arg(folder));
    for (const QString& key :
         {QStringLiteral("SC%1CodeTestedFolder").arg(folder), QStringLiteral("ROOT")}) {
        SCOPED_TRACE(key.toStdString());
        click(*form.tvwMain, key);
        hostScript.expectMsgBox(QStringLiteral("Please make sure that you are on a ''Source Code'' "
                                               "or ''Source File'' item to Edit."));
        form.mnuEditSource->trigger();
        EXPECT_EQ(hostScript.msgBoxes().constLast().title, "Edit Source?");
        EXPECT_TRUE(form.isEnabled());
    }
}

} // namespace
