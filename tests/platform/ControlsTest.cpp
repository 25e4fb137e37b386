#include "ComboBox.h"
#include "ImageList.h"
#include "ListBox.h"
#include "ListView.h"
#include "QsError.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Timer.h"
#include "Toolbar.h"
#include "mComboBox.h"
#include "mListView.h"
#include "mToolBar.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace qs;

namespace {

template <class F> long raised(F&& call) {
    try {
        call();
    } catch (const QsError& e) {
        return e.number();
    }
    return 0;
}

QStringList column(const ListView& list, int sub) {
    QStringList out;
    for (int i = 1; i <= list.ListItems.Count(); ++i)
        out << (sub == 0 ? list.ListItems(i).Text() : list.ListItems(i).SubItems(sub));
    return out;
}

} // namespace

// Combo and list boxes.

TEST(ComboBox, NewIndexAndItemDataFollowEachEntry) {
    ComboBox combo("cboAuthors");
    combo.AddItem("Ann Smith");
    combo.setItemData(combo.NewIndex(), 2147483647);
    combo.AddItem("Bob Jones");
    combo.setItemData(combo.NewIndex(), -5);
    combo.AddItem("Al First", 0);
    EXPECT_EQ(combo.NewIndex(), 0);
    combo.setItemData(combo.NewIndex(), 7);

    EXPECT_EQ(combo.ListCount(), 3);
    EXPECT_EQ(combo.List(0), "Al First");
    EXPECT_EQ(combo.ItemData(0), 7);
    EXPECT_EQ(combo.ItemData(1), 2147483647);
    EXPECT_EQ(combo.ItemData(2), -5);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(combo.List(3), "");
    EXPECT_EQ(raised([&] { combo.ItemData(3); }), 381);

    combo.RemoveItem(0);
    EXPECT_EQ(combo.ItemData(0), 2147483647);
    combo.Clear();
    EXPECT_EQ(combo.ListCount(), 0);
    EXPECT_EQ(combo.NewIndex(), -1);
}

TEST(ComboBox, SettingListIndexClicksEveryTime) {
    ComboBox combo("cboCategory");
    int clicks = 0;
    combo.Click = [&] { ++clicks; };
    combo.AddItem("a");
    combo.AddItem("b");
    EXPECT_EQ(clicks, 0);
    combo.setListIndex(1);
    combo.setListIndex(1);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(combo.Text(), "b");
    combo.setListIndex(-1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(raised([&] { combo.setListIndex(2); }), 380);
    EXPECT_EQ(clicks, 3);
}

TEST(ComboBox, DropDownListTakesOnlyItsOwnEntriesAsText) {
    ComboBox list("cboTypes");
    list.AddItem("Declares");
    list.AddItem("Constants");
    list.setText("constants");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(raised([&] { list.setText("Types"); }), 383);

    ComboBox edit("cboSearch", nullptr, vbComboDropdown);
    edit.AddItem("alpha");
    edit.setText("typed");
    EXPECT_EQ(edit.Text(), "typed");
    EXPECT_EQ(edit.ListIndex(), -1);
    edit.AddItem("beta");
    EXPECT_EQ(edit.Text(), "typed");
}

TEST(ComboBoxHelpers, GetIndexFindsTheFirstEntryBeginningWithTheTextIgnoringCase) {
    ComboBox combo("cboCategory");
    for (const char* s : {"Delphi", "Visual Basic", "Visual C++", "VB Script"})
        combo.AddItem(s);
    EXPECT_EQ(cboGetIndex(combo, "visual"), 1);
    EXPECT_EQ(cboGetIndex(combo, "VISUAL C"), 2);
    EXPECT_EQ(cboGetIndex(combo, "v"), 1);
    EXPECT_EQ(cboGetIndex(combo, "Basic"), -1);
    EXPECT_EQ(cboGetIndex(combo, ""), 0);

    cboSearchWithString(combo, "vb");
    EXPECT_EQ(combo.Text(), "VB Script");
    cboSearchWithString(combo, "nothing like it");
    EXPECT_EQ(combo.Text(), "VB Script");
}

TEST(ComboBoxHelpers, SearchByItemDataSelectsTheEntryAndZeroDoesNothing) {
    ComboBox combo("cboAuthors");
    for (int id : {4, 9, 0}) {
        combo.AddItem(QString("author %1").arg(id));
        combo.setItemData(combo.NewIndex(), id);
    }
    int clicks = 0;
    combo.Click = [&] { ++clicks; };
    cboSearchByItemData(combo, 9);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    cboSearchByItemData(combo, 0);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    cboSearchByItemData(combo, 77);
    EXPECT_EQ(combo.ListIndex(), 1);
}

TEST(ListBox, EntriesCarryItemDataAndListIndexClicks) {
    ListBox list("lboxVerInfo");
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    list.AddItem("Company Name");
    list.setItemData(list.NewIndex(), 0);
    list.AddItem("Product Version");
    list.setItemData(list.NewIndex(), 14);
    list.AddItem("Description", 1);
    EXPECT_EQ(list.NewIndex(), 1);
    EXPECT_EQ(list.ItemData(2), 14);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks, 0);
    list.setListIndex(2);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list.Text(), "Product Version");
    EXPECT_EQ(raised([&] { list.setListIndex(3); }), 380);
    EXPECT_EQ(raised([&] { list.setItemData(5, 1); }), 381);
    list.RemoveItem(0);
    EXPECT_EQ(list.List(0), "Description");
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(clicks, 1);
}

// Report lists.

namespace {
class ListViewTest : public ::testing::Test {
protected:
    ListView list{"lvwRevisionHistory"};
    void SetUp() override {
        list.ColumnHeaders.Add("COLHEADER_REVISIONDATE", "Revision Date", 100);
        list.ColumnHeaders.Add("COLHEADER_REVISIONNUMBER", "Revision Number", 80);
        const QList<QPair<QString, QString>> rows = {
            {"03/01/2004", "1.0.10"}, {"01/15/2003", "1.0.2"}, {"02/01/2004", "1.0.9"}};
        int n = 0;
        for (const auto& r : rows) {
            ListItem item = list.ListItems.Add(QString("KEY%1").arg(++n), r.first);
            item.setSubItems(1, r.second);
        }
    }
};
} // namespace

TEST_F(ListViewTest, RowsHoldSubItemsTagsAndKeys) {
    EXPECT_EQ(list.ColumnHeaders.Count(), 2);
    EXPECT_EQ(list.ColumnHeaders(2).Text(), "Revision Number");
    EXPECT_EQ(list.ColumnHeaders("COLHEADER_REVISIONDATE").Index(), 1);
    EXPECT_EQ(list.ListItems.Count(), 3);
    EXPECT_EQ(list.ListItems("KEY2").SubItems(1), "1.0.2");
    list.ListItems(1).setTag("first");
    EXPECT_EQ(list.ListItems("KEY1").Tag(), "first");
    EXPECT_EQ(raised([&] { list.ListItems.Add("KEY1", "again"); }), 35602);
    EXPECT_EQ(raised([&] { list.ListItems("KEY9"); }), 35601);
    EXPECT_EQ(raised([&] { list.ListItems(4); }), 35601);
    list.Clear();
    EXPECT_EQ(list.ListItems.Count(), 0);
    EXPECT_FALSE(list.ListItems.Exists("KEY1"));
}

TEST_F(ListViewTest, SortSetsKeyOrderAndSortedAndRenumbersTheRows) {
    lvwSort(list, 2, true);
    EXPECT_EQ(list.SortKey(), 1);
    EXPECT_EQ(list.SortOrder(), lvwDescending);
    EXPECT_TRUE(list.Sorted());
    // Text order, as the list sorts: "1.0.10" stands before "1.0.2".
    EXPECT_EQ(column(list, 1), QStringList({"1.0.9", "1.0.2", "1.0.10"}));
    EXPECT_EQ(list.ListItems(1).Key(), "KEY3");
    EXPECT_EQ(list.ListItems("KEY3").Index(), 1);

    lvwSort(list, 1, false);
    EXPECT_EQ(list.SortKey(), 0);
    EXPECT_EQ(column(list, 0), QStringList({"01/15/2003", "02/01/2004", "03/01/2004"}));
    // A sorted list keeps new rows in order.
    list.ListItems.Add("KEY4", "01/01/2001").setSubItems(1, "1.0.0");
    EXPECT_EQ(list.ListItems(1).Key(), "KEY4");
}

TEST_F(ListViewTest, SortWithoutAnOrderTogglesIt) {
    EXPECT_EQ(list.SortOrder(), lvwAscending);
    lvwSort(list, 2);
    EXPECT_EQ(list.SortOrder(), lvwDescending);
    lvwSort(list, 2);
    EXPECT_EQ(list.SortOrder(), lvwAscending);
    EXPECT_EQ(column(list, 1), QStringList({"1.0.10", "1.0.2", "1.0.9"}));
}

// The column click of the revision lists: descending when the order is ascending, else
// ascending.
TEST_F(ListViewTest, ColumnClickHandlerTogglesThroughTheHeader) {
    QList<int> headers;
    list.ColumnClick = [&](ColumnHeader& header) {
        headers << header.Index();
        lvwSort(list, header.Index(), list.SortOrder() == 0);
    };
    list.PerformColumnClick(2);
    EXPECT_EQ(list.SortOrder(), lvwDescending);
    list.PerformColumnClick(2);
    EXPECT_EQ(list.SortOrder(), lvwAscending);
    EXPECT_EQ(headers, QList<int>({2, 2}));
    EXPECT_EQ(raised([&] { list.PerformColumnClick(3); }), 35601);
}

TEST_F(ListViewTest, SelectionCanBeSetAndClearedForAllRows) {
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    list.ListItems(2).setSelected(true);
    EXPECT_EQ(list.SelectedItem().Key(), "KEY2");
    EXPECT_EQ(clicks, 0);
    lvwClearSelection(list);
    EXPECT_TRUE(list.SelectedItem().isNothing());
    for (int i = 1; i <= 3; ++i)
        EXPECT_FALSE(list.ListItems(i).Selected());
    list.PerformClick(list.ListItems(1));
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(list.ListItems(1).Selected());
}

TEST_F(ListViewTest, AutoSizeWidensTheLastColumnToTheClientWidth) {
    list.resize(400, 200);
    list.show();
    lvwAutoSizeLastColumn(list);
    const int scrollBar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
    const int client =
        list.viewport()->width() +
        (list.verticalScrollBar()->isVisible() ? list.verticalScrollBar()->width() : 0);
    EXPECT_EQ(list.ColumnHeaders(1).Width(), 100);
    EXPECT_EQ(list.ColumnHeaders(2).Width(), client - 100 - scrollBar);
    EXPECT_GT(list.ColumnHeaders(2).Width(), 80);

    ListView single("one");
    single.ColumnHeaders.Add("only", 50);
    lvwAutoSizeLastColumn(single);
    EXPECT_EQ(single.ColumnHeaders(1).Width(), 50);
}

// Tabs, tool bar, status bar, timer.

TEST(SSTab, TabChangesClickWithThePreviousTab) {
    SSTab tabs("SSTabNavigate");
    tabs.setTabs(3);
    tabs.setTabCaption(0, "Main");
    tabs.setTabCaption(1, "BookMarks");
    tabs.setTabCaption(2, "Search/Results");
    QList<int> previous;
    tabs.Click = [&](int p) { previous << p; };
    tabs.setTab(2);
    tabs.setTab(2);
    tabs.setTab(0);
    EXPECT_EQ(previous, QList<int>({0, 2}));
    EXPECT_EQ(tabs.Tab(), 0);
    EXPECT_EQ(tabs.TabCaption(1), "BookMarks");
    tabs.setTabEnabled(1, false);
    EXPECT_FALSE(tabs.TabEnabled(1));
    EXPECT_EQ(raised([&] { tabs.setTab(3); }), 380);
    EXPECT_EQ(raised([&] { tabs.Page(-1); }), 380);
    tabs.setTabs(2);
    EXPECT_EQ(tabs.Tabs(), 2);
}

TEST(SSTab, ClickOnACaptionRaisesGotFocusAndAControlOnAPageDoesNot) {
    QWidget window;
    auto* tabs = new SSTab("SSTabAboutCode", &window);
    tabs->setTabs(2);
    auto* field = new QLineEdit(tabs->Page(1));
    int focused = 0;
    tabs->GotFocus = [&] { ++focused; };
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(tabs->Tab(), 1);
    EXPECT_EQ(focused, 1);
    field->setFocus();
    EXPECT_EQ(focused, 1);
}

namespace {
struct ButtonRow {
    const char* key;
    const char* tag;
    const char* tip;
    const char* image;
};
const ButtonRow kButtons[] = {
    {"Open DataBase", "Open DataBase", "Open DataBase", "OpenDataBase"},
    {"Add Category", "Add Category", "Add Category", "Category"},
    {"Add Folder", "Add Folder", "Add Folder", "Folder"},
    {"Add SourceCode", "Add SourceCode", "Add SourceCode", "SourceCode"},
    {"Add SourceFile", "Add SourceFile", "Add SourceFile", "SourceFile"},
    {"Seperator2", "Seperator2", "", ""},
    {"DeleteNode", "DeleteNode", "Delete Selected Node", "Delete"},
    {"BookMark", "BookMark", "BookMark Item", "BookMark"},
    {"Edit", "Edit", "Edit Source", "Edit"},
    {"ReName Item", "ReName", "Rename Node", "ReName2"},
    {"Find", "Find", "Find Item", "Find"},
    {"BookMarks", "BookMarks", "View BookMarks", "BookMarks"},
    {"Back", "Back", "Next Item", "Back"},
    {"Forward", "Forward", "Forward Item", "Forward"},
    {"Copy", "Copy", "Copy", "Copy"},
    {"AdvCopy", "AdvCopy", "Advanced Copy", "AdvCopy"},
    {"Print", "Print", "Print", "Print"},
};

void fill(Toolbar& bar) {
    bar.setImageList(&ImageList::instance());
    for (const ButtonRow& r : kButtons) {
        const bool separator = QString(r.key) == "Seperator2";
        Button& b =
            bar.Buttons.Add(r.key, QString(), separator ? tbrSeparator : tbrDefault, r.image);
        b.setTag(r.tag);
        b.setToolTipText(r.tip);
    }
}
} // namespace

TEST(Toolbar, ButtonsAreReachedByKeyAndClickWithTheirTag) {
    Toolbar bar("tbToolBar");
    fill(bar);
    EXPECT_EQ(bar.Buttons.Count(), 17);
    EXPECT_EQ(bar.Buttons("ReName Item").Tag(), "ReName");
    EXPECT_EQ(bar.Buttons("Back").ToolTipText(), "Next Item");
    EXPECT_EQ(bar.Buttons(6).Style(), tbrSeparator);
    EXPECT_EQ(bar.Buttons(17).Key(), "Print");
    EXPECT_EQ(bar.Buttons("Edit").Image(), "Edit");
    EXPECT_FALSE(bar.Buttons("Edit").action()->icon().isNull());
    EXPECT_EQ(raised([&] { bar.Buttons("Rename"); }), 35601);
    EXPECT_EQ(raised([&] { bar.Buttons.Add("Copy"); }), 35602);

    QStringList tags;
    bar.ButtonClick = [&](Button& b) { tags << b.Tag(); };
    EXPECT_TRUE(bar.PerformClick("ReName Item"));
    bar.Buttons("Edit").setEnabled(false);
    EXPECT_FALSE(bar.PerformClick("Edit"));
    bar.Buttons("Find").setVisible(false);
    EXPECT_FALSE(bar.Buttons("Find").Visible());
    EXPECT_FALSE(bar.PerformClick("Find"));
    EXPECT_FALSE(bar.PerformClick("Seperator2"));
    EXPECT_EQ(tags, QStringList({"ReName"}));
}

TEST(Toolbar, UnknownImageKeyRaises) {
    Toolbar bar("tbToolBar");
    bar.setImageList(&ImageList::instance());
    Button& b = bar.Buttons.Add("X");
    EXPECT_EQ(raised([&] { b.setImage("NoSuchImage"); }), 35601);
    EXPECT_EQ(b.Image(), "");
}

TEST(Toolbar, MakeFlatTogglesTheLookOfEveryButton) {
    Toolbar bar("tbToolBar");
    fill(bar);
    EXPECT_FALSE(bar.Flat());
    tbrMakeFlat(bar);
    EXPECT_TRUE(bar.Flat());
    for (QToolButton* b : bar.findChildren<QToolButton*>())
        EXPECT_TRUE(b->autoRaise());
    tbrMakeFlat(bar);
    EXPECT_FALSE(bar.Flat());
    for (QToolButton* b : bar.findChildren<QToolButton*>())
        EXPECT_FALSE(b->autoRaise());
}

TEST(StatusBar, PanelsAreNumberedFromOne) {
    StatusBar bar("sbStatusBar", nullptr, 2);
    bar.Panels(1).setText("Loading...");
    EXPECT_EQ(bar.Panels(1).Text(), "Loading...");
    EXPECT_EQ(bar.Panels.Count(), 2);
    EXPECT_EQ(raised([&] { bar.Panels(0); }), 35601);
    EXPECT_EQ(raised([&] { bar.Panels(3); }), 35601);
}

TEST(Timer, RunsOnlyWhenEnabledWithAnInterval) {
    Timer timer("tmrDrag");
    EXPECT_FALSE(timer.IsRunning());
    timer.setInterval(100);
    EXPECT_TRUE(timer.IsRunning());
    timer.setEnabled(false);
    EXPECT_FALSE(timer.IsRunning());
    timer.setEnabled(true);
    timer.setInterval(0);
    EXPECT_FALSE(timer.IsRunning());

    int ticks = 0;
    timer.OnTimer = [&] { ++ticks; };
    timer.setInterval(1);
    QElapsedTimer guard;
    guard.start();
    while (ticks == 0 && guard.elapsed() < 5000)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_GT(ticks, 0);
}

// The image list.

TEST(ImageList, HoldsEveryTreeAndToolBarKeyWithDistinctIcons) {
    const QStringList keys = {
        "Categories",   "MainIco",  "BookMarks", "Find",          "ClosedFolder",
        "OpenFolder",   "Article",  "Component", "TestedSnippet", "UnTestedSnippet",
        "Tip",          "Class3",   "Module",    "Constant",      "Type1",
        "Enum",         "API",      "Property",  "Function",      "Sub",
        "OpenDataBase", "Category", "Folder",    "SourceCode",    "SourceFile",
        "Delete",       "BookMark", "Edit",      "ReName2",       "Back",
        "Forward",      "Copy",     "AdvCopy",   "Print"};
    ImageList& list = ImageList::instance();
    EXPECT_EQ(list.Count(), keys.size());
    QList<QImage> images;
    for (const QString& key : keys) {
        ASSERT_TRUE(list.Exists(key)) << key.toStdString();
        const QImage image = list.ListImages(key).pixmap(16, 16).toImage();
        EXPECT_FALSE(image.isNull());
        for (const QImage& other : images)
            EXPECT_NE(image, other) << key.toStdString() << " looks like another icon";
        images << image;
    }
}

TEST(ImageList, UnknownOrDifferentlyCasedKeyRaisesElementNotFound) {
    EXPECT_EQ(raised([] { ImageList::instance().ListImages("closedfolder"); }), 35601);
    EXPECT_EQ(raised([] { ImageList::instance().ListImages(""); }), 35601);
}
