#include "MaintenanceFixture.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmChooseFolderType.h"
#include "frmInsert.h"
#include "frmMain.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

class Folders : public Maintenance {
protected:
    // Answers the folder dialog: the option of that type when one is given, the name, OK.
    void answerFolder(const QString& type, const QString& name,
                      std::function<void(frmChooseFolderType&)> look = {}) {
        hostScript.onModal<frmChooseFolderType>(
            QStringLiteral("frmChooseFolderType"), [=](frmChooseFolderType& d) {
                if (look)
                    look(d);
                for (QRadioButton* opt :
                     {d.optCodeFolder, d.optTipFolder, d.optClassFolder, d.optModFolder})
                    if (opt->text().startsWith(type) && !type.isEmpty())
                        opt->setChecked(true);
                d.txtFolderName->setText(name);
                QTest::keyClick(d.txtFolderName, Qt::Key_Return);
                if (d.IsLoaded())
                    d.cmdCancel->click();
            });
    }
    static QStringList visibleOptions(const frmChooseFolderType& d) {
        QStringList out;
        for (QRadioButton* opt :
             {d.optCodeFolder, d.optTipFolder, d.optClassFolder, d.optModFolder})
            if (!opt->isHidden())
                out << opt->objectName();
        return out;
    }
};

TEST_F(Folders, TheKindOfANewFolderFollowsWhereItIsMade) {
    addCode(QStringLiteral("Classes"), 203, 1, 0, true); // 1
    addFile(QStringLiteral("Docs"), 102, 0, true);       // 1
    struct Case {
        const char* category;
        const char* node;
        const char* pressed; // the option the person sets, when offered
        const char* key;
        const char* tag;
        const char* options; // offered: "all", "none", or the file label
        const char* frame;
    };
    const Case cases[] = {
        {"FT1101", "ROOT", "", "SF2ArticleFolder", "SF0ArticleFolder", "Article Folder",
         "Folder Type"},
        {"FT1102", "SF1ComponentFolder", "", "SF3ComponentFolder", "SF1ComponentFolder",
         "Component Folder", "Folder Type"},
        {"CTested1202", "ROOT", "", "SC2TipTestedFolder", "SC0TipTestedFolder", "none",
         "Select the Desired Folder Type"},
        {"CUntested1201", "ROOT", "", "SC3CodeUnTestedFolder", "SC0CodeUnTestedFolder", "none",
         "Select the Desired Folder Type"},
        // Under a tested class folder the kind is fixed whatever is pressed.
        {"CTested1203", "SC1ClassTestedFolder", "Tip", "SC4ClassTestedFolder",
         "SC1ClassTestedFolder", "none", "Folder Type"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        frmMain& form = open();
        click(*form.tvwCategories, c.category);
        click(*form.tvwMain, c.node);
        answerFolder(QString::fromLatin1(c.pressed), QStringLiteral("New"),
                     [&](frmChooseFolderType& d) {
                         const QString options = QString::fromLatin1(c.options);
                         const bool all = options == QLatin1String("all");
                         EXPECT_EQ(visibleOptions(d).size(), all ? 4 : 0);
                         const bool file = options.contains("Folder");
                         EXPECT_EQ(!d.lblFolderTypeName->isHidden(), file);
                         EXPECT_EQ(d.lblFolderTypeName->text(), file ? options : QString());
                         EXPECT_EQ(d.frmeOptions->title(), c.frame);
                         EXPECT_EQ(d.cboAuthors->Text(), "Ada Lovelace");
                     });
        ASSERT_TRUE(toolBar(form, "Add Folder"));
        Node made = form.tvwMain->SelectedItem();
        EXPECT_EQ(made.Key(), c.key);
        EXPECT_EQ(made.Tag(), c.tag);
        EXPECT_EQ(made.Text(), "New");
        EXPECT_EQ(made.Image(), "ClosedFolder");
        EXPECT_EQ(made.Parent().Key(), c.node);
        EXPECT_EQ(form.lblCodeSnipDescr->text(), "New");
        form.Unload();
    }
    // No revision line goes with a folder.
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceFile(2).Revisions().Count(), 0);
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceCode(4).Revisions().Count(), 0);
}

TEST_F(Folders, TheDialogRefusesInOrderAndAcceptsOnlyWhenAllIsGiven) {
    struct Case {
        bool author;
        bool option;
        const char* name;
        const char* title; // empty: accepted
        const char* message;
    };
    const Case cases[] = {
        {false, true, "New", "Author?", "Please select the ''Person Adding''."},
        {true, false, "New", "Folder Type?", "Please select a ''Folder Type''."},
        {true, true, "", "Folder Name?", "Please enter a ''Folder Name''."},
        {true, true, "New", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.title);
        gblnFolderAccepted = false;
        frmChooseFolderType& d = Forms::get<frmChooseFolderType>();
        d.show();
        EXPECT_EQ(d.cboAuthors->Text(), "Ada Lovelace");
        if (!c.author)
            d.cboAuthors->setListIndex(-1);
        d.optClassFolder->setChecked(c.option);
        d.txtFolderName->setText(QString::fromLatin1(c.name));
        if (*c.title)
            hostScript.expectMsgBox(QString::fromLatin1(c.message));
        d.cmdOk->click();
        EXPECT_EQ(d.IsLoaded(), *c.title != 0);
        EXPECT_EQ(gblnFolderAccepted, *c.title == 0);
        if (*c.title) {
            EXPECT_EQ(hostScript.msgBoxes().last().title, c.title);
            d.cmdCancel->click();
        }
    }
    EXPECT_EQ(gstrFolderType, "Class");
    EXPECT_EQ(gstrFolderName, "New");
    EXPECT_EQ(glngFolderAuthorId, mAuthorId);
}

TEST_F(Folders, ACancelledDialogWritesNothingAndGivesTheTreeTheFocus) {
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    click(*form.tvwMain, "ROOT");
    hostScript.onModal<frmChooseFolderType>(QStringLiteral("frmChooseFolderType"),
                                            [](frmChooseFolderType& d) { d.cmdCancel->click(); });
    ASSERT_TRUE(toolBar(form, "Add Folder"));
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), QStringList());
    EXPECT_EQ(form.tvwMain->Nodes.Count(), 1);
    EXPECT_TRUE(form.tvwMain->hasFocus());
}

TEST_F(Folders, AFolderOnlyGoesUnderAFolderOrTheRoot) {
    addCode(QStringLiteral("Pad"), 201, 1);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    click(*form.tvwMain, "SC1CodeTested");
    hostScript.expectMsgBox("Please click on a ''Folder'' or ''Root'' directory to add a folder.");
    form.mnuAddFolder->trigger();
    EXPECT_EQ(form.tvwMain->SelectedItem().Key(), "SC1CodeTested");
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Pad");
    EXPECT_TRUE(hostScript.callsOf("Modal").isEmpty());
}

TEST_F(Folders, TheInsertKeyOffersAFolderOrAnItemOfTheFoldersFamily) {
    addCode(QStringLiteral("Snippets"), 201, 1, 0, true);
    addFile(QStringLiteral("Docs"), 101, 0, true);
    struct Case {
        const char* category;
        const char* node;
        const char* choice; // "folder", "item", "cancel"
        const char* sourceCaption;
        const char* shown; // the window the choice leads to, if any
    };
    const Case cases[] = {
        {"CTested1201", "SC1CodeTestedFolder", "folder", "Insert Source Code",
         "frmChooseFolderType"},
        {"FT1101", "SF1ArticleFolder", "item", "Insert Source File", "frmSourceFile"},
        {"FT1101", "SF1ArticleFolder", "cancel", "Insert Source File", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.node) + " " + c.choice);
        frmMain& form = open();
        click(*form.tvwCategories, c.category);
        click(*form.tvwMain, c.node);
        hostScript.clearCalls();
        hostScript.onModal<frmInsert>(QStringLiteral("frmInsert"), [&](frmInsert& d) {
            EXPECT_EQ(d.optSource->text(), c.sourceCaption);
            EXPECT_FALSE(form.isEnabled());
            const QString choice = QString::fromLatin1(c.choice);
            if (choice == QLatin1String("cancel")) {
                d.cmdCancel->click();
                return;
            }
            (choice == QLatin1String("folder") ? d.optFolder : d.optSource)->setChecked(true);
            d.cmdOk->click();
        });
        for (const char* name : {"frmChooseFolderType", "frmSourceFile"})
            hostScript.onModal(QString::fromLatin1(name), [](FormBase& f) { f.Unload(); });
        press(*form.tvwMain, Qt::Key_Insert);
        QStringList shown;
        for (const HostCall& call : hostScript.callsOf("Modal"))
            shown << call.text;
        QStringList expected = {"frmInsert"};
        if (*c.shown)
            expected << c.shown;
        EXPECT_EQ(shown, expected);
        EXPECT_TRUE(form.isEnabled());
        form.Unload();
    }
    // On an item the key does nothing here.
    frmMain& form = open();
    addCode(QStringLiteral("Pad"), 201, 1);
    click(*form.tvwCategories, "CTested1201");
    click(*form.tvwMain, "SC2CodeTested");
    hostScript.clearCalls();
    press(*form.tvwMain, Qt::Key_Insert);
    EXPECT_TRUE(hostScript.callsOf("Modal").isEmpty());
}

TEST_F(Folders, AFolderIsMadeRenamedAndFoundAgainAfterARestart) {
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1203");
    click(*form.tvwMain, "ROOT");
    answerFolder(QString(), QStringLiteral("Shapes"));
    press(*form.tvwMain, Qt::Key_Insert); // on the root the key adds a folder at once
    ASSERT_EQ(childKeys(*form.tvwMain, "ROOT"), QStringList({"SC1ClassTestedFolder"}));
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), QStringList({"1 Shapes"}));

    // Rename through the tool bar's button: the label edit of the item tree.
    ASSERT_TRUE(toolBar(form, "ReName Item"));
    EXPECT_TRUE(form.tvwMain->IsLabelEditing());
    auto* editor = form.tvwMain->viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    editor->setText(QStringLiteral("Shapes and Solids"));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents(); // the commit is queued
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), QStringList({"1 Shapes and Solids"}));

    form.Unload();
    frmMain& again = open();
    click(*again.tvwCategories, "CTested1203");
    EXPECT_EQ(again.tvwMain->Nodes("SC1ClassTestedFolder").Text(), "Shapes and Solids");
}

TEST_F(Folders, AFolderUnderAFolderGoneMeanwhileIsReportedAndNothingChanges) {
    addCode(QStringLiteral("Snippets"), 201, 1, 0, true);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    click(*form.tvwMain, "SC1CodeTestedFolder");
    cSourceCode gone = cLibraryService(mDatabase).GetSourceCode(1);
    gone.BeginEdit(0);
    gone.Deleted(true);
    gone.Save();
    answerFolder(QString(), QStringLiteral("Inner"));
    hostScript.expectMsgBox(QStringLiteral("The parent folder is not valid"));
    ASSERT_TRUE(toolBar(form, "Add Folder"));
    EXPECT_EQ(rows(QStringLiteral("SourceCode")), QStringList());
    EXPECT_EQ(childKeys(*form.tvwMain, "SC1CodeTestedFolder"), QStringList());
    EXPECT_TRUE(form.isEnabled());
}

} // namespace
