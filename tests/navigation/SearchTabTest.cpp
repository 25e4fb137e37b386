// The library search of the search tab, the criteria a login brings back, and the text search
// of the code pane.

#include "TreeWindowFixture.h"

#include "FormBase.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QRadioButton>

using namespace qs;
using namespace qs::test;

namespace {

QString searchSetting(const char* value) {
    return GetRegSetting(QString::fromLatin1(REG_KEY_SEARCHSETTINGS), QString::fromLatin1(value))
        .toString();
}

class SearchTab : public TreeWindow {
protected:
    frmMain& openSearch() {
        frmMain& form = open();
        form.SSTabNavigate->setTab(2);
        return form;
    }
    static QStringList hitTexts(frmMain& form) {
        QStringList texts;
        for (Node hit = form.tvwSearchResults->Nodes("ROOT").Child(); hit; hit = hit.Next())
            texts << hit.Text() + QLatin1Char(' ') + hit.Image();
        return texts;
    }
};

TEST_F(SearchTab, CriteriaAreCheckedInOrderAndNothingIsSearchedOnAFailure) {
    addCode(QStringLiteral("Alpha"));
    frmMain& form = openSearch();
    struct Case {
        const char* category;
        const char* codeType;
        bool modeBlank;
        const char* text;
        const char* title;
        const char* message;
    };
    const Case cases[] = {
        {"", "", false, "Alpha", "Category", "Please select a ''Category'' to search by."},
        {"Visual Basic", "", false, "", "Code Type", "Please select a ''Code Type'' to search by."},
        {"", "Tip", true, "Alpha", "Tested or Untested Code",
         "Please select a ''Mode'' to search by."},
        {"", "Code Snippet", false, "", "Search String",
         "Please enter a ''Search String'' to search by."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.title);
        if (*c.category)
            form.cboCategory->setText(QLatin1String(c.category));
        if (*c.codeType)
            form.cboCodeType->setText(QLatin1String(c.codeType));
        if (c.modeBlank)
            form.cboTestedOrUntested->setListIndex(-1);
        form.txtSearchString->setText(QLatin1String(c.text));
        hostScript.clearCalls();
        hostScript.expectMsgBox(QLatin1String(c.message));
        form.cmdSearch->click();
        ASSERT_EQ(hostScript.msgBoxes().size(), 1);
        EXPECT_EQ(hostScript.msgBoxes().at(0).title, QLatin1String(c.title));
        EXPECT_EQ(hostScript.msgBoxes().at(0).text, QLatin1String(c.message));
        EXPECT_EQ(form.tvwSearchResults->Nodes.Count(), 0);
    }
}

TEST_F(SearchTab, EachOptionSendsItsMatchAndFoldersNeverShow) {
    const int folder = addCode(QStringLiteral("Alpha folder"), 201, 1, 0, true);
    addCode(QStringLiteral("Alpha Beta"));
    addCode(QStringLiteral("Beta and Alpha"), 201, 2);
    addCode(QStringLiteral("Alpha only"));
    addCode(QStringLiteral("Alpha only"), 201, 1, folder);
    addCode(QStringLiteral("Beta tip"), 202, 1);
    frmMain& form = openSearch();
    struct Case {
        int option;
        const char* saved;
        const char* mode;
        QStringList hits;
    };
    const Case cases[] = {
        {0, "Exact Phrase", "Tested", {"Alpha Beta TestedSnippet"}},
        {1, "All Words", "Untested", {"Beta and Alpha UnTestedSnippet"}},
        {2,
         "Any Word",
         "Tested",
         {"Alpha Beta TestedSnippet", "Alpha only TestedSnippet", "Alpha only TestedSnippet"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.saved);
        QTest::mouseClick(form.rdoSearchOption[c.option], Qt::LeftButton);
        EXPECT_EQ(searchSetting(REG_VAL_LASTSEARCHCRITERIA), QLatin1String(c.saved));
        form.cboCodeType->setText(QStringLiteral("Code Snippet"));
        form.cboTestedOrUntested->setText(QLatin1String(c.mode));
        search(form, QStringLiteral("Alpha Beta"), nullptr);
        EXPECT_EQ(hitTexts(form), c.hits);
        EXPECT_TRUE(form.tvwSearchResults->Nodes("ROOT").Bold());
        EXPECT_EQ(form.mstrSearchCodeType, "Code Snippet");
    }
    search(form, QStringLiteral("Nowhere"));
    EXPECT_EQ(form.tvwSearchResults->Nodes.Count(), 1);
    EXPECT_EQ(form.tvwSearchResults->Nodes(1).Text(), "Tarnwick Search");
    search(form, QStringLiteral("Beta"), "Tip");
    EXPECT_EQ(hitTexts(form), QStringList({"Beta tip Tip"}));
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}

TEST_F(SearchTab, AFileTypeBlanksTheModeAndTheChoicesAreSaved) {
    const int folder = addFile(QStringLiteral("Papers"), 101, 0, true);
    const int article = addFile(QStringLiteral("Printing notes"), 101, folder);
    addCategory(QStringLiteral("Other"));
    frmMain& form = openSearch();
    form.cboCodeType->setText(QStringLiteral("Code Snippet"));
    EXPECT_EQ(searchSetting(REG_VAL_LASTMODETYPE), "Tested");
    search(form, QStringLiteral("Printing"), "Article");
    EXPECT_FALSE(form.cboTestedOrUntested->isEnabled());
    EXPECT_EQ(form.cboTestedOrUntested->ListIndex(), -1);
    // One blank is written, and a stored text reads back trimmed.
    EXPECT_EQ(searchSetting(REG_VAL_LASTMODETYPE), "");
    EXPECT_EQ(searchSetting(REG_VAL_SEARCH_LASTCODETYPE), "Article");
    EXPECT_EQ(searchSetting(REG_VAL_LASTCAT), "Visual Basic");
    EXPECT_EQ(hitTexts(form), QStringList({"Printing notes Article"}));

    // The path line reads the combo boxes as they stand at the click.
    const QString hit = QStringLiteral("SRCHSF%1").arg(article);
    const struct {
        const char* category;
        const char* path;
    } clicks[] = {{"Visual Basic", "Visual Basic\\Article\\Papers\\Printing notes"},
                  {"Other", "Other\\Article\\Papers\\Printing notes"}};
    for (const auto& c : clicks) {
        form.cboCategory->setText(QLatin1String(c.category));
        click(*form.tvwSearchResults, "ROOT");
        EXPECT_EQ(form.txtCodePath->text(), "Bookmark Not Selected");
        click(*form.tvwSearchResults, hit);
        EXPECT_EQ(form.txtCodePath->text(), QLatin1String(c.path));
        EXPECT_TRUE(form.txtCodePath2->isHidden());
        EXPECT_EQ(form.mlngSearchItemId, article);
        EXPECT_TRUE(form.SSTabAboutCode->isHidden());
        EXPECT_EQ(form.lblCodeSnipDescr->text(), "Printing notes");
    }
}

TEST_F(SearchTab, ACodeHitShowsItsCodeAndALongPathGoesToTheWideBox) {
    const QString name = QStringLiteral("Trim every blank off both ends of a string, tabs too");
    const int folder = addCode(QStringLiteral("Strings and more strings"), 201, 1, 0, true);
    const int id = addCode(name, 201, 1, folder);
    frmMain& form = openSearch();
    search(form, QStringLiteral("Trim"));
    click(*form.tvwSearchResults, QStringLiteral("SRCHSC%1").arg(id));
    const QString path = "Visual Basic\\Tested\\Code Snippet\\Strings and more strings\\" + name;
    ASSERT_GE(path.size(), 82);
    EXPECT_EQ(form.txtCodePath2->text(), path);
    EXPECT_TRUE(form.txtCodePath->isHidden());
    EXPECT_EQ(form.txtCodePath->text(), "");
    EXPECT_EQ(form.RichTextBoxCode->Text(), "' code of " + name);
    EXPECT_TRUE(form.tbToolBar->Buttons("BookMark").Enabled());
}

// The criteria of the last run come back when a user logs in.
TEST_F(SearchTab, LoginSelectsTheSavedCriteria) {
    addCategory(QStringLiteral("Dup"));
    addCategory(QStringLiteral("Dup"));
    addUser(QStringLiteral("ada"));
    struct Case {
        const char* saved[4]; // category, code type, mode, criteria; no criteria: never saved
        QList<int> indexes;   // of cboCategory, cboCodeType, cboTestedOrUntested
        int option;
    };
    // cboCodeType lists the file types, then the code types; cboCategory the categories by id.
    // A code type's pick sets "Tested"; the saved mode, read before the walk, then stands.
    const Case cases[] = {
        {{"", "", "", nullptr}, {-1, -1, -1}, 0},
        {{"Visual Basic", "Tip", "Untested", "Any Word"}, {0, 3, 1}, 2},
        {{"Dup", "Article", "Tested", "All Words"}, {2, 0, 0}, 1},
        {{"", "", "", "Whatever"}, {-1, -1, -1}, -1},
    };
    const char* const names[] = {REG_VAL_LASTCAT, REG_VAL_SEARCH_LASTCODETYPE, REG_VAL_LASTMODETYPE,
                                 REG_VAL_LASTSEARCHCRITERIA};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.saved[3] ? c.saved[3] : "none");
        for (int i = 0; c.saved[3] && i < 4; ++i)
            SaveRegSetting(QString::fromLatin1(REG_KEY_SEARCHSETTINGS),
                           QString::fromLatin1(names[i]), QLatin1String(c.saved[i]));
        gintLoginAttempts = 0;
        logIn();
        frmMain& form = Forms::get<frmMain>();
        EXPECT_EQ(QList<int>({form.cboCategory->ListIndex(), form.cboCodeType->ListIndex(),
                              form.cboTestedOrUntested->ListIndex()}),
                  c.indexes);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(form.rdoSearchOption[i]->isChecked(), i == c.option) << i;
        form.Unload();
    }
}

// ---------------------------------------------------------------------------------------------
// The text search of the code pane.

// The snippet "Counter" shown in the code pane.
class CodePaneFind : public TreeWindow {
protected:
    frmMain& openCode() {
        addCode(QStringLiteral("Counter"));
        frmMain& form = open();
        click(*form.tvwCategories, "CTested1201");
        click(*form.tvwMain, "SC1CodeTested");
        return form;
    }
};

TEST_F(CodePaneFind, FindMarksEveryHitAndEnterStepsToTheEnd) {
    frmMain& form = openCode();
    RichTextBox& pane = *form.RichTextBoxCode;
    pane.setText(QStringLiteral("Dim n\r\nn = N + 1 ' next n."));
    const QList<int> hits = {4, 7, 11, 19, 24};
    pane.setFocus();
    hostScript.answerInputBox(QStringLiteral("N"));
    form.mnuFind->trigger();
    ASSERT_EQ(hostScript.callsOf("InputBox").size(), 1);
    EXPECT_EQ(hostScript.callsOf("InputBox").at(0).text,
              "Please enter a ''Word'' or ''Phrase'' to search by.");
    // Every hit blue and bold, the first selected; a find starts at 1, so "Dim" hides no "n".
    EXPECT_EQ(pane.SelStart(), hits.first());
    for (int step = 1; step < hits.size(); ++step) {
        QTest::keyClick(&pane, step % 2 ? Qt::Key_Return : Qt::Key_F3);
        EXPECT_EQ(pane.SelStart(), hits.at(step));
        EXPECT_EQ(pane.SelLength(), 1);
        EXPECT_EQ(pane.SelColor(), 16711680);
        EXPECT_TRUE(pane.SelBold());
    }
    hostScript.expectMsgBox(QStringLiteral("End of Search."));
    QTest::keyClick(&pane, Qt::Key_Return);
    EXPECT_FALSE(form.mblnFindHit);
    QTest::keyClick(&pane, Qt::Key_F3); // nothing more until a new search
    EXPECT_EQ(hostScript.msgBoxes().size(), 1);
    EXPECT_EQ(pane.Text(), "Dim n\r\nn = N + 1 ' next n.");

    // The tool bar's Find starts afresh and clears the marks of the last one.
    hostScript.answerInputBox(QStringLiteral("next"));
    ASSERT_TRUE(form.tbToolBar->PerformClick(QStringLiteral("Find")));
    EXPECT_EQ(pane.SelStart(), 19);
    pane.setSelStart(hits.first());
    pane.setSelLength(1);
    EXPECT_EQ(pane.SelColor(), 0);
    EXPECT_FALSE(pane.SelBold());
}

TEST_F(CodePaneFind, MessagesForAnEmptyPaneNoWordAndNoHitAndTheSearchTabElsewhere) {
    frmMain& form = openCode();
    RichTextBox& pane = *form.RichTextBoxCode;
    struct Case {
        const char* text;
        const char* answer; // nullptr: no input box
        const char* message;
    };
    const Case cases[] = {
        {"", nullptr, "No text in the code window to search through."},
        {"Dim n", "", "No text was entered to search by."},
        {"Dim n", "Zebra", "The text you entered was not found."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        pane.setText(QLatin1String(c.text));
        pane.setFocus();
        if (c.answer)
            hostScript.answerInputBox(QLatin1String(c.answer));
        hostScript.expectMsgBox(QLatin1String(c.message));
        form.mnuFind->trigger();
        EXPECT_FALSE(form.mblnFindHit);
    }
    form.tvwMain->setFocus();
    form.mnuFind->trigger();
    EXPECT_EQ(form.SSTabNavigate->Tab(), 2);
    EXPECT_EQ(hostScript.callsOf("InputBox").size(), 2);
    // Enter is plain typing while no text search is active.
    pane.setText(QStringLiteral("ab"));
    pane.setFocus();
    QTest::keyClick(&pane, Qt::Key_Return);
    EXPECT_EQ(pane.Text().size(), 4);
    EXPECT_EQ(hostScript.msgBoxes().size(), 3);
}

} // namespace
