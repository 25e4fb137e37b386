#include "ComboBox.h"
#include "ImageList.h"
#include "ListBox.h"
#include "ListView.h"
#include "Raised.h"
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

// Combo and list boxes share their list rules.

template <class List> class ListControls : public ::testing::Test {};
using ListTypes = ::testing::Types<ComboBox, ListBox>;
TYPED_TEST_SUITE(ListControls, ListTypes);

TYPED_TEST(ListControls, EntriesCarryItemDataAndSettingListIndexClicksEveryTime) {
    TypeParam list("cboAuthors");
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    const std::pair<const char*, qint32> entries[] = {{"Ann Smith", 2147483647}, {"Bob Jones", -5}};
    for (const auto& [text, data] : entries) {
        list.AddItem(text);
        list.setItemData(list.NewIndex(), data);
    }
    list.AddItem("Al First", 0);
    EXPECT_EQ(list.NewIndex(), 0);
    list.setItemData(list.NewIndex(), 7);

    EXPECT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.List(0), "Al First");
    EXPECT_EQ(list.ItemData(0), 7);
    EXPECT_EQ(list.ItemData(1), 2147483647);
    EXPECT_EQ(list.ItemData(2), -5);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(list.List(3), "");
    EXPECT_EQ(raised([&] { list.ItemData(3); }), 381);
    EXPECT_EQ(raised([&] { list.setItemData(5, 1); }), 381);
    EXPECT_EQ(clicks, 0);

    list.setListIndex(2);
    list.setListIndex(2);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.Text(), "Bob Jones");
    list.setListIndex(-1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(raised([&] { list.setListIndex(3); }), 380);
    EXPECT_EQ(clicks, 3);

    list.RemoveItem(0);
    EXPECT_EQ(list.List(0), "Ann Smith");
    EXPECT_EQ(list.ItemData(0), 2147483647);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.NewIndex(), -1);
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
    for (const auto& [text, index] : {std::pair{"visual", 1}, std::pair{"VISUAL C", 2},
                                      std::pair{"v", 1}, std::pair{"Basic", -1}, std::pair{"", 0}})
        EXPECT_EQ(cboGetIndex(combo, text), index) << text;

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
    for (int id : {9, 0, 77}) {
        cboSearchByItemData(combo, id);
        EXPECT_EQ(combo.ListIndex(), 1) << id;
    }
    EXPECT_EQ(clicks, 1);
}

// Report lists.

namespace {

QStringList column(const ListView& list, int sub) {
    QStringList out;
    for (int i = 1; i <= list.ListItems.Count(); ++i)
        out << (sub == 0 ? list.ListItems(i).Text() : list.ListItems(i).SubItems(sub));
    return out;
}

class ListViewTest : public ::testing::Test {
protected:
    ListView list{"lvwRevisionHistory"};
    void SetUp() override {
        list.ColumnHeaders.Add("COLHEADER_REVISIONDATE", "Revision Date", 100);
        list.ColumnHeaders.Add("COLHEADER_REVISIONNUMBER", "Revision Number", 80);
        int n = 0;
        for (const auto& [date, number] :
             {std::pair{"03/01/2004", "1.0.10"}, std::pair{"01/15/2003", "1.0.2"},
              std::pair{"02/01/2004", "1.0.9"}})
            list.ListItems.Add(QString("KEY%1").arg(++n), date).setSubItems(1, number);
    }
};

} // namespace

TEST_F(ListViewTest, RowsHoldSubItemsTagsAndKeys) {
    EXPECT_EQ(list.ColumnHeaders.Count(), 2);
    EXPECT_EQ(list.ColumnHeaders(2).Text(), "Revision Number");
    EXPECT_EQ(list.ColumnHeaders("COLHEADER_REVISIONDATE").Index(), 1);
    EXPECT_EQ(list.ListItems.Count(), 3);
    EXPECT_EQ(list.ListItems("KEY2").SubItems(1), "1.0.2");
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

    // Without an order the sort toggles it.
    lvwSort(list, 2);
    EXPECT_EQ(list.SortOrder(), lvwDescending);
    lvwSort(list, 2);
    EXPECT_EQ(list.SortOrder(), lvwAscending);
    EXPECT_EQ(column(list, 1), QStringList({"1.0.0", "1.0.10", "1.0.2", "1.0.9"}));
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
    QList<int> previous;
    tabs.Click = [&](int p) { previous << p; };
    for (int tab : {2, 2, 0})
        tabs.setTab(tab);
    EXPECT_EQ(previous, QList<int>({0, 2}));
    EXPECT_EQ(tabs.Tab(), 0);
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

// A few buttons as the main tool bar has them: key, tag, tool tip and image differ.
void fill(Toolbar& bar) {
    bar.setImageList(&ImageList::instance());
    const struct {
        const char *key, *tag, *tip, *image;
    } rows[] = {{"Add Folder", "Add Folder", "Add Folder", "Folder"},
                {"Seperator2", "Seperator2", "", ""},
                {"Edit", "Edit", "Edit Source", "Edit"},
                {"ReName Item", "ReName", "Rename Node", "ReName2"},
                {"Find", "Find", "Find Item", "Find"}};
    for (const auto& r : rows) {
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
    EXPECT_EQ(bar.Buttons.Count(), 5);
    EXPECT_EQ(bar.Buttons("ReName Item").Tag(), "ReName");
    EXPECT_EQ(bar.Buttons("Find").ToolTipText(), "Find Item");
    EXPECT_EQ(bar.Buttons(2).Style(), tbrSeparator);
    EXPECT_EQ(bar.Buttons(5).Key(), "Find");
    EXPECT_FALSE(bar.Buttons("Edit").action()->icon().isNull());
    EXPECT_EQ(raised([&] { bar.Buttons("Rename"); }), 35601);
    EXPECT_EQ(raised([&] { bar.Buttons.Add("Edit"); }), 35602);
    Button& plain = bar.Buttons.Add("X");
    EXPECT_EQ(raised([&] { plain.setImage("NoSuchImage"); }), 35601);
    EXPECT_EQ(plain.Image(), "");

    QStringList tags;
    bar.ButtonClick = [&](Button& b) { tags << b.Tag(); };
    EXPECT_TRUE(bar.PerformClick("ReName Item"));
    bar.Buttons("Edit").setEnabled(false);
    EXPECT_FALSE(bar.PerformClick("Edit"));
    bar.Buttons("Find").setVisible(false);
    EXPECT_FALSE(bar.PerformClick("Find"));
    EXPECT_FALSE(bar.PerformClick("Seperator2"));
    EXPECT_EQ(tags, QStringList({"ReName"}));
}

TEST(Toolbar, MakeFlatTogglesTheLookOfEveryButton) {
    Toolbar bar("tbToolBar");
    fill(bar);
    EXPECT_FALSE(bar.Flat());
    for (const bool flat : {true, false}) {
        tbrMakeFlat(bar);
        EXPECT_EQ(bar.Flat(), flat);
        for (QToolButton* b : bar.findChildren<QToolButton*>())
            EXPECT_EQ(b->autoRaise(), flat);
    }
}

TEST(StatusBar, PanelsAreNumberedFromOne) {
    StatusBar bar("sbStatusBar", nullptr, 2);
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

// The image list: the trees and the tool bar reach it by key, exactly as written.
TEST(ImageList, EveryKeyHasItsOwnIconAndOtherKeysRaiseElementNotFound) {
    ImageList& list = ImageList::instance();
    ASSERT_GT(list.Count(), 30);
    QList<QImage> images;
    for (const QString& key : list.Keys()) {
        const QImage image = list.ListImages(key).pixmap(16, 16).toImage();
        EXPECT_FALSE(image.isNull()) << key.toStdString();
        EXPECT_FALSE(images.contains(image)) << key.toStdString() << " looks like another icon";
        images << image;
    }
    ASSERT_TRUE(list.Exists("ClosedFolder"));
    for (const char* key : {"closedfolder", ""})
        EXPECT_EQ(raised([&] { list.ListImages(key); }), 35601) << key;
}
