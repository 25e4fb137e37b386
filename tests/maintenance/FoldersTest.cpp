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
        hostScript.onModal<frmChooseFolderType>("frmChooseFolderType", [=](frmChooseFolderType& d) {
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
    addCode("Classes", 203, 1, 0, true); // 1
    addFile("Docs", 102, 0, true);       // 1
    struct Case {
        const char* category;
        const char* node;
        const char* pressed; // the option the person sets, when offered
        const char* key;
        const char* tag;
        const char* fileLabel; // shown instead of the options, or nullptr
        const char* frame;
    };
    const Case cases[] = {
        {"FT1101", "ROOT", "", "SF2ArticleFolder", "SF0ArticleFolder", "Article Folder",
         "Folder Type"},
        {"FT1102", "SF1ComponentFolder", "", "SF3ComponentFolder", "SF1ComponentFolder",
         "Component Folder", "Folder Type"},
        {"CTested1202", "ROOT", "", "SC2TipTestedFolder", "SC0TipTestedFolder", nullptr,
         "Select the Desired Folder Type"},
        {"CUntested1201", "ROOT", "", "SC3CodeUnTestedFolder", "SC0CodeUnTestedFolder", nullptr,
         "Select the Desired Folder Type"},
        // Under a tested class folder the kind is fixed whatever is pressed.
        {"CTested1203", "SC1ClassTestedFolder", "Tip", "SC4ClassTestedFolder",
         "SC1ClassTestedFolder", nullptr, "Folder Type"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        frmMain& form = openAt(QLatin1String(c.category), QLatin1String(c.node));
        answerFolder(QString::fromLatin1(c.pressed), "New", [&](frmChooseFolderType& d) {
            EXPECT_EQ(visibleOptions(d), QStringList());
            EXPECT_EQ(d.lblFolderTypeName->isHidden(), !c.fileLabel);
            EXPECT_EQ(d.lblFolderTypeName->text(), QLatin1String(c.fileLabel));
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
    EXPECT_EQ(glngFolderAuthorId, mAda);
}

TEST_F(Folders, NothingIsWrittenWhenCancelledOnAnItemOrUnderAFolderGoneMeanwhile) {
    addCode("Pad", 201, 1);
    addCode("Snippets", 201, 1, 0, true);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    const struct {
        const char* node;
        const char* told; // nullptr: nothing said
        bool answered;    // the dialog is answered with a name, else cancelled
        bool gone;        // the folder is removed meanwhile
    } cases[] = {
        {"ROOT", nullptr, false, false},
        {"SC1CodeTested", "Please click on a ''Folder'' or ''Root'' directory to add a folder.",
         false, false},
        {"SC2CodeTestedFolder", "The parent folder is not valid", true, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.node);
        click(*form.tvwMain, c.node);
        const QString label = form.lblCodeSnipDescr->text();
        if (c.gone)
            removeElsewhere(2);
        hostScript.clearCalls();
        if (c.answered)
            answerFolder(QString(), "Inner");
        else if (!c.told)
            hostScript.onModal<frmChooseFolderType>(
                "frmChooseFolderType", [](frmChooseFolderType& d) { d.cmdCancel->click(); });
        if (c.told)
            hostScript.expectMsgBox(QLatin1String(c.told));
        form.mnuAddFolder->trigger();
        EXPECT_EQ(rows("SourceCode").size(), c.gone ? 1 : 2);
        EXPECT_EQ(childKeys(*form.tvwMain, c.node),
                  c.node == std::string("ROOT")
                      ? QStringList({"SC1CodeTested", "SC2CodeTestedFolder"})
                      : QStringList());
        EXPECT_EQ(form.tvwMain->SelectedItem().Key(), c.node);
        EXPECT_TRUE(form.isEnabled());
        if (!c.told) {
            EXPECT_TRUE(form.tvwMain->hasFocus());
        }
        const bool refused = c.told && !c.answered; // before the dialog
        EXPECT_EQ(hostScript.callsOf("Modal").isEmpty(), refused);
        if (refused) {
            EXPECT_EQ(form.lblCodeSnipDescr->text(), label);
        }
    }
}

TEST_F(Folders, TheInsertKeyOffersAFolderOrAnItemOfTheFoldersFamily) {
    addCode("Snippets", 201, 1, 0, true);
    addFile("Docs", 101, 0, true);
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
        frmMain& form = openAt(QLatin1String(c.category), QLatin1String(c.node));
        hostScript.clearCalls();
        hostScript.onModal<frmInsert>("frmInsert", [&](frmInsert& d) {
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
}

} // namespace
