// The bookmark tree: its fill, adding from the item tree and from a search hit, deleting, and
// its click, keys and mouse.

#include "TreeWindowFixture.h"

#include "cLibraryService.h"
#include "cSourceCode.h"

using namespace qs;
using namespace qs::test;

namespace {

const QString kCode = QStringLiteral("BkMark_SrcCode");
const QString kFile = QStringLiteral("BkMark_SrcFile");

class BookmarkTree : public TreeWindow {
protected:
    void SetUp() override {
        TreeWindow::SetUp();
        addUser(QStringLiteral("ada"));
        addUser(QStringLiteral("bob"));
    }
    void bookmark(const QString& table, int id, const char* user = "ada") {
        cLibraryService(mDatabase).AddBookmark(table, id, QLatin1String(user));
    }
    QList<int> bookmarkIds(const QString& table) {
        QList<int> ids;
        for (const ItemRow& row : cLibraryService(mDatabase).GetBookmarks(table, "ada"))
            ids << row.Id;
        return ids;
    }
    // The bookmarks shown, as "key text image".
    static QStringList shown(frmMain& form) {
        QStringList nodes;
        for (Node node = form.tvwBookMarks->Nodes("ROOT").Child(); node; node = node.Next())
            nodes << node.Key() + QLatin1Char(' ') + node.Text() + QLatin1Char(' ') + node.Image();
        return nodes;
    }
    frmMain& openBookmarks() {
        frmMain& form = open();
        form.SSTabNavigate->setTab(1);
        return form;
    }
};

TEST_F(BookmarkTree, StartUpShowsTheUsersOwnBookmarksMergedByText) {
    const struct {
        const char* name;
        int typeId;
        int tested;
    } items[] = {{"Zeta", 201, 1},  {"Beta", 201, 2},    {"Gamma", 202, 2}, {"Alpha", 203, 1},
                 {"Delta", 204, 2}, {"Epsilon", 101, 0}, {"Eta", 102, 0}};
    for (const auto& item : items) {
        const bool file = item.typeId < 200;
        const int id = file ? addFile(QLatin1String(item.name), item.typeId)
                            : addCode(QLatin1String(item.name), item.typeId, item.tested);
        bookmark(file ? kFile : kCode, id);
    }
    const int theirs = addCode(QStringLiteral("Bob's"));
    bookmark(kCode, theirs, "bob");

    frmMain& form = openBookmarks();
    EXPECT_EQ(shown(form),
              QStringList({"SC4 Alpha Class3", "SC2 Beta UnTestedSnippet", "SC5 Delta Module",
                           "SF1 Epsilon Article", "SF2 Eta Component", "SC3 Gamma Tip",
                           "SC1 Zeta TestedSnippet"}));
    EXPECT_TRUE(form.tvwBookMarks->Nodes("ROOT").Bold());
    form.Unload();

    gstrUserId = QStringLiteral("carol");
    frmMain& empty = openBookmarks();
    ASSERT_EQ(empty.tvwBookMarks->Nodes.Count(), 1);
    EXPECT_EQ(empty.tvwBookMarks->Nodes(1).Text(), "Tarnwick Bookmarks");
    EXPECT_TRUE(empty.tvwBookMarks->Nodes(1).Bold());
}

TEST_F(BookmarkTree, EveryRouteFromTheItemTreeKeepsOneNodePerItemAndRefusesFolders) {
    addCode(QStringLiteral("Folder"), 201, 1, 0, true);
    addCode(QStringLiteral("Trim"), 201, 1, 1);
    frmMain& form = open();
    click(*form.tvwCategories, "CTested1201");
    click(*form.tvwMain, "SC1CodeTestedFolder");
    click(*form.tvwMain, "SC2CodeTested");
    const std::function<void()> routes[] = {
        [&] { form.mnuBookMark->trigger(); },
        [&] { form.mnuBookMarkA->trigger(); },
        [&] { ASSERT_TRUE(form.tbToolBar->PerformClick(QStringLiteral("BookMark"))); },
    };
    for (const auto& route : routes) {
        route();
        EXPECT_EQ(shown(form), QStringList({"SC2 Trim TestedSnippet"}));
    }
    EXPECT_EQ(bookmarkIds(kCode), QList<int>({2}));
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());

    for (const char* key : {"SC1CodeTestedFolder", "ROOT"}) {
        click(*form.tvwMain, QLatin1String(key));
        hostScript.expectMsgBox(QStringLiteral("Please make sure that you are on a ''Source "
                                               "Code'' or ''Source File'' item to BookMark."));
        form.mnuBookMarkA->trigger();
        EXPECT_EQ(hostScript.msgBoxes().last().title, "BookMark?");
        EXPECT_EQ(form.lblCodeSnipDescr->text(), form.tvwMain->Nodes(QLatin1String(key)).Text());
    }
    EXPECT_EQ(bookmarkIds(kCode), QList<int>({2}));
}

// The duplicate check of stored files reads the code list's bound before fetching anything:
// the failure is reported, and the service keeps the list free of a second row.
TEST_F(BookmarkTree, AStoredFileIsBookmarkedAfterTheKeptFailureOfItsCheck) {
    addFile(QStringLiteral("Paper"));
    frmMain& form = open();
    click(*form.tvwCategories, "FT1101");
    click(*form.tvwMain, "SF1Article");
    for (int time = 1; time <= 2; ++time) {
        hostScript.expectMsgBox(QStringLiteral("Error Number: 9"));
        form.mnuBookMark->trigger();
        EXPECT_TRUE(
            hostScript.msgBoxes().last().title.endsWith("quillstone_private;DoesBookMarkExist;"));
        EXPECT_EQ(shown(form), QStringList({"SF1 Paper Article"}));
    }
    EXPECT_EQ(bookmarkIds(kFile), QList<int>({1}));
}

TEST_F(BookmarkTree, ASearchHitIsBookmarkedFromItsPopUp) {
    addCode(QStringLiteral("Trim blanks"));
    frmMain& form = open();
    form.SSTabNavigate->setTab(2);
    search(form, QStringLiteral("Trim"));
    click(*form.tvwSearchResults, "SRCHSC1");
    EXPECT_EQ(form.mstrBookmarkSource, "Search");
    click(*form.tvwSearchResults, "SRCHSC1", Qt::RightButton);
    EXPECT_EQ(popups(), "mnuBookMarkSearch:mnuBookMarkSch");
    EXPECT_TRUE(form.mnuBookMarkSch->isEnabled());
    form.mnuBookMarkSch->trigger();
    EXPECT_EQ(shown(form), QStringList({"SC1 Trim blanks TestedSnippet"}));

    form.txtSearchString->setFocus();
    EXPECT_EQ(form.mstrBookmarkSource, "Main");
    EXPECT_FALSE(form.mnuBookMarkSearch->isEnabled());
    EXPECT_FALSE(form.tbToolBar->Buttons("BookMark").Enabled());
}

TEST_F(BookmarkTree, DeleteAsksFirstAndTheItemStays) {
    addCode(QStringLiteral("Alpha"));
    addCode(QStringLiteral("Beta"));
    bookmark(kCode, 1);
    bookmark(kCode, 2);
    frmMain& form = openBookmarks();
    TreeView& tree = *form.tvwBookMarks;
    click(tree, "SC1");
    EXPECT_EQ(form.mstrActiveTree, "BookMarks");
    ASSERT_TRUE(form.tbToolBar->Buttons("DeleteNode").Enabled());

    hostScript.expectMsgBox(QStringLiteral("Are you sure"), vbNo);
    press(tree, Qt::Key_Delete);
    EXPECT_EQ(hostScript.msgBoxes().last().title, "Delte Bookmark?");
    EXPECT_EQ(hostScript.msgBoxes().last().flags, vbYesNo);
    EXPECT_EQ(shown(form).size(), 2);
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Alpha");

    hostScript.expectMsgBox(QStringLiteral("Are you sure"), vbYes);
    press(tree, Qt::Key_Delete);
    EXPECT_EQ(shown(form), QStringList({"SC2 Beta TestedSnippet"}));
    EXPECT_EQ(bookmarkIds(kCode), QList<int>({2}));
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceCode(1).Description(), "Alpha");

    // The root is refused when the delete comes by the tool bar.
    click(tree, "SC2");
    press(tree, Qt::Key_Up);
    ASSERT_EQ(tree.SelectedItem().Key(), "ROOT");
    hostScript.expectMsgBox(QStringLiteral("Are you sure"), vbYes);
    hostScript.expectMsgBox(QStringLiteral("Please make sure that you select the node you want "
                                           "to delete before attempting to delete it."));
    ASSERT_TRUE(form.tbToolBar->PerformClick(QStringLiteral("DeleteNode")));
    EXPECT_EQ(shown(form).size(), 1);
}

TEST_F(BookmarkTree, AClickShowsTheItemAndARightClickOnTheRootOffersNoDelete) {
    const int code = addCode(QStringLiteral("Alpha"));
    const int file = addFile(QStringLiteral("Paper"));
    bookmark(kCode, code);
    bookmark(kFile, file);
    frmMain& form = openBookmarks();
    TreeView& tree = *form.tvwBookMarks;
    click(tree, "SC1");
    EXPECT_EQ(form.RichTextBoxCode->Text(), "' code of Alpha");
    EXPECT_FALSE(form.SSTabAboutCode->isHidden());
    click(tree, "SF1");
    EXPECT_TRUE(form.SSTabAboutCode->isHidden());
    EXPECT_FALSE(form.SSTabSourceFile->isHidden());
    EXPECT_EQ(form.lblCodeSnipDescr->text(), "Paper");

    click(tree, "SC1", Qt::RightButton);
    click(tree, "ROOT", Qt::RightButton);
    EXPECT_EQ(popups(), "mnuBk:mnuDelBookmark");
    EXPECT_FALSE(form.tbToolBar->Buttons("DeleteNode").Enabled());
}

} // namespace
