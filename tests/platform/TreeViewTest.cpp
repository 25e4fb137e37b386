#include "TreeView.h"
#include "ImageList.h"
#include "OleColor.h"
#include "QsError.h"
#include "mTreeview.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <gtest/gtest.h>

using namespace qs;

namespace {

// The number a call raised, or 0 when it raised nothing.
template <class F> long raised(F&& call) {
    try {
        call();
    } catch (const QsError& e) {
        return e.number();
    }
    return 0;
}

QStringList keysInOrder(const TreeView& tree) {
    QStringList keys;
    for (Node n : tree.Nodes)
        keys << n.Key();
    return keys;
}

QStringList childTexts(const Node& parent) {
    QStringList texts;
    for (Node c = parent.Child(); c; c = c.Next())
        texts << c.Text();
    return texts;
}

class TreeViewTest : public ::testing::Test {
protected:
    TreeView tree{"tvwMain"};
    Node root;
    void SetUp() override {
        tree.setImageList(&ImageList::instance());
        root = tree.Nodes.Add("", tvwChild, "ROOT", "Tarnwick", "MainIco");
    }
};

} // namespace

TEST_F(TreeViewTest, AddsUnderRelativeAndFindsByKey) {
    tree.Nodes.Add("ROOT", tvwChild, "SC12ClassUnTestedFolder", "Classes", "ClosedFolder");
    Node item = tree.Nodes.Add("ROOT", tvwChild, "SC57ClassUnTested", "cParser", "Class3");
    item.setTag("SC12ClassUnTested");

    EXPECT_EQ(tree.objectName(), "tvwMain");
    EXPECT_EQ(tree.Nodes.Count(), 3);
    EXPECT_EQ(tree.Nodes("SC57ClassUnTested"), item);
    EXPECT_EQ(tree.Nodes.Item("SC57ClassUnTested").Text(), "cParser");
    EXPECT_EQ(tree.Nodes("SC57ClassUnTested").Tag(), "SC12ClassUnTested");
    EXPECT_EQ(tree.Nodes("SC57ClassUnTested").Image(), "Class3");
    EXPECT_EQ(item.Parent(), root);
    EXPECT_TRUE(root.Parent().isNothing());
    EXPECT_EQ(root.Children(), 2);
    EXPECT_EQ(tree.Nodes(3), item);
    EXPECT_EQ(item.Index(), 3);
}

TEST_F(TreeViewTest, AbsentKeyOrIndexRaisesElementNotFound) {
    EXPECT_EQ(raised([&] { tree.Nodes("C99"); }), 35601);
    EXPECT_EQ(raised([&] { tree.Nodes.Item(""); }), 35601);
    EXPECT_EQ(raised([&] { tree.Nodes(0); }), 35601);
    EXPECT_EQ(raised([&] { tree.Nodes(2); }), 35601);
    EXPECT_EQ(raised([&] { tree.Nodes.Add("NoSuchParent", tvwChild, "K", "k"); }), 35601);
    EXPECT_EQ(tree.Nodes.Count(), 1);
}

TEST_F(TreeViewTest, DuplicateKeyRaisesAndAddsNothing) {
    tree.Nodes.Add("ROOT", tvwChild, "C1", "Visual Basic");
    EXPECT_EQ(raised([&] { tree.Nodes.Add("ROOT", tvwChild, "C1", "Other"); }), 35602);
    EXPECT_EQ(tree.Nodes.Count(), 2);
    EXPECT_EQ(root.Children(), 1);
    EXPECT_EQ(tree.Nodes("C1").Text(), "Visual Basic");
}

TEST_F(TreeViewTest, KeysAreCaseSensitive) {
    tree.Nodes.Add("ROOT", tvwChild, "TestedC1", "Tested");
    tree.Nodes.Add("ROOT", tvwChild, "testedC1", "lower");
    EXPECT_EQ(tree.Nodes("testedC1").Text(), "lower");
    EXPECT_EQ(raised([&] { tree.Nodes("TESTEDC1"); }), 35601);
}

TEST_F(TreeViewTest, UnknownImageKeyRaisesAndLeavesTheKeyFree) {
    EXPECT_EQ(raised([&] { tree.Nodes.Add("ROOT", tvwChild, "X1", "x", "NoSuchImage"); }), 35601);
    EXPECT_EQ(tree.Nodes.Count(), 1);
    EXPECT_FALSE(tree.Nodes.Exists("X1"));
    EXPECT_EQ(raised([&] { root.setImage("NoSuchImage"); }), 35601);
    EXPECT_EQ(root.Image(), "MainIco");
    // A node without an image is fine.
    EXPECT_EQ(tree.Nodes.Add("ROOT", tvwChild, "X1", "x").Image(), "");
}

// The second pass of a tree fill: nodes added under the root in row order, then each moved
// under the node its tag names.
TEST_F(TreeViewTest, ParentAssignmentBuildsTheTreeAndKeepsInsertionOrder) {
    struct Row {
        QString key, tag, text, image;
    };
    const QList<Row> rows = {
        {"SC57ClassUnTested", "SC12ClassUnTested", "cParser", "Class3"},
        {"SC12ClassUnTestedFolder", "SC0ClassUnTested", "Parsers", "ClosedFolder"},
        {"SC13ClassUnTestedFolder", "SC12ClassUnTested", "Inner", "ClosedFolder"},
        {"SC58ClassUnTested", "SC13ClassUnTested", "cLexer", "Class3"},
    };
    for (const Row& r : rows)
        tree.Nodes.Add("ROOT", tvwChild, r.key, r.text, r.image).setTag(r.tag);
    const QStringList before = keysInOrder(tree);

    for (Node n : tree.Nodes) {
        QString tag = n.Tag();
        if (tag.isEmpty())
            continue;
        if (tag.left(3) == "SC0")
            tag = "ROOT";
        else if (!tag.contains("Folder"))
            tag += "Folder";
        n.setParent(tree.Nodes(tag));
    }

    EXPECT_EQ(keysInOrder(tree), before);
    EXPECT_EQ(tree.Nodes("SC57ClassUnTested").Parent().Key(), "SC12ClassUnTestedFolder");
    EXPECT_EQ(tree.Nodes("SC58ClassUnTested").Parent().Key(), "SC13ClassUnTestedFolder");
    EXPECT_EQ(tree.Nodes("SC13ClassUnTestedFolder").Parent().Key(), "SC12ClassUnTestedFolder");
    EXPECT_EQ(tree.Nodes("SC12ClassUnTestedFolder").Parent(), root);
    EXPECT_EQ(root.Children(), 1);
    EXPECT_EQ(tree.Nodes("SC58ClassUnTested").Root(), root);
    EXPECT_EQ(tree.Nodes("SC58ClassUnTested").FullPath(), "Tarnwick\\Parsers\\Inner\\cLexer");
}

TEST_F(TreeViewTest, ParentMoveCarriesTheWholeSubtreeWithItsState) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "Folder A", "ClosedFolder");
    Node b = tree.Nodes.Add("ROOT", tvwChild, "B", "Folder B", "ClosedFolder");
    Node sub = tree.Nodes.Add("A", tvwChild, "A1", "Sub", "OpenFolder");
    Node leaf = tree.Nodes.Add("A1", tvwChild, "A1x", "Leaf", "Tip");
    sub.setTag("tag of sub");
    leaf.setBackColor(vbRed);
    root.setExpanded(true);
    a.setExpanded(true);
    sub.setExpanded(true);
    tree.setSelectedItem(leaf);

    sub.setParent(b);

    EXPECT_EQ(sub.Parent(), b);
    EXPECT_EQ(leaf.Parent(), sub);
    EXPECT_EQ(a.Children(), 0);
    EXPECT_EQ(b.Children(), 1);
    EXPECT_EQ(sub.Tag(), "tag of sub");
    EXPECT_EQ(sub.Image(), "OpenFolder");
    EXPECT_TRUE(sub.Expanded());
    EXPECT_EQ(leaf.BackColor(), vbRed);
    EXPECT_EQ(tree.SelectedItem(), leaf);
    EXPECT_EQ(tree.Nodes("A1x"), leaf);

    // To the top level and back.
    sub.setParent(Node());
    EXPECT_TRUE(sub.Parent().isNothing());
    EXPECT_EQ(sub.Next(), Node());
    EXPECT_EQ(sub.Previous(), root);
}

TEST_F(TreeViewTest, MoveUnderItsOwnDescendantRaisesAndChangesNothing) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    Node a1 = tree.Nodes.Add("A", tvwChild, "A1", "a1");
    EXPECT_EQ(raised([&] { a.setParent(a1); }), 35614);
    EXPECT_EQ(raised([&] { a.setParent(a); }), 35614);
    EXPECT_EQ(a.Parent(), root);
    EXPECT_EQ(a1.Parent(), a);
}

TEST_F(TreeViewTest, SortedOrdersChildrenByTextIgnoringCaseNowAndLater) {
    Node folder = tree.Nodes.Add("ROOT", tvwChild, "F", "Folder");
    tree.Nodes.Add("F", tvwChild, "k1", "beta");
    tree.Nodes.Add("F", tvwChild, "k2", "Alpha");
    tree.Nodes.Add("F", tvwChild, "k3", "gamma");
    Node other = tree.Nodes.Add("ROOT", tvwChild, "G", "Other");
    tree.Nodes.Add("G", tvwChild, "g1", "zeta");
    tree.Nodes.Add("G", tvwChild, "g2", "eta");

    folder.setSorted(true);
    EXPECT_EQ(childTexts(folder), QStringList({"Alpha", "beta", "gamma"}));
    tree.Nodes.Add("F", tvwChild, "k4", "Delta");
    EXPECT_EQ(childTexts(folder), QStringList({"Alpha", "beta", "Delta", "gamma"}));
    // A node moved in takes its place too, and other nodes keep their order.
    tree.Nodes("g2").setParent(folder);
    EXPECT_EQ(childTexts(folder), QStringList({"Alpha", "beta", "Delta", "eta", "gamma"}));
    EXPECT_EQ(childTexts(other), QStringList({"zeta"}));
    EXPECT_EQ(folder.Child().FirstSibling().Text(), "Alpha");
    EXPECT_EQ(folder.Child().LastSibling().Text(), "gamma");
    // Collection order stays the order of adding.
    EXPECT_EQ(keysInOrder(tree),
              QStringList({"ROOT", "F", "k1", "k2", "k3", "G", "g1", "g2", "k4"}));
}

TEST_F(TreeViewTest, SortedSetBeforeAddingKeepsMembersInOrder) {
    Node group = tree.Nodes.Add("ROOT", tvwChild, "57_SC57ModuleTestedSubsNoDrag", "Subs", "Sub");
    group.setSorted(true);
    for (const char* name : {"Main", "cleanUp", "Load"})
        tree.Nodes.Add(group, tvwChild, QString("57_SC57ModuleTestedSubNoDrag") + name, name,
                       "Sub");
    EXPECT_EQ(childTexts(group), QStringList({"cleanUp", "Load", "Main"}));
}

TEST_F(TreeViewTest, TreeSortedOrdersTopLevelNodes) {
    tree.Nodes.Add("", tvwLast, "Z", "zulu");
    tree.Nodes.Add("", tvwLast, "A", "alpha");
    tree.setSorted(true);
    EXPECT_EQ(tree.Nodes("A").Next().Key(), "ROOT");
    EXPECT_EQ(tree.Nodes("ROOT").Next().Key(), "Z");
}

TEST_F(TreeViewTest, RemoveTakesTheSubtreeAndRenumbers) {
    tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    Node a1 = tree.Nodes.Add("A", tvwChild, "A1", "a1");
    tree.Nodes.Add("ROOT", tvwChild, "B", "b");

    tree.Nodes.Remove("A");

    EXPECT_EQ(tree.Nodes.Count(), 2);
    EXPECT_FALSE(tree.Nodes.Exists("A1"));
    EXPECT_EQ(tree.Nodes("B").Index(), 2);
    EXPECT_EQ(raised([&] { a1.Text(); }), 35605);
    // The key is free again.
    EXPECT_EQ(tree.Nodes.Add("ROOT", tvwChild, "A1", "again").Text(), "again");
    tree.Nodes.Remove(2);
    EXPECT_EQ(keysInOrder(tree), QStringList({"ROOT", "A1"}));
}

TEST_F(TreeViewTest, ClearAndFastClearEmptyTheTree) {
    tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    tree.Nodes.Clear();
    EXPECT_EQ(tree.Nodes.Count(), 0);
    EXPECT_EQ(tree.topLevelItemCount(), 0);
    EXPECT_EQ(raised([&] { root.Key(); }), 35605);

    root = tree.Nodes.Add("", tvwChild, "ROOT", "Tarnwick", "MainIco");
    for (int i = 0; i < 50; ++i)
        tree.Nodes.Add("ROOT", tvwChild, QString("SC%1Tip").arg(i + 1), "t");
    tvwClear(tree);
    EXPECT_EQ(tree.Nodes.Count(), 0);
    EXPECT_TRUE(tree.SelectedItem().isNothing());
    EXPECT_TRUE(tree.Redraw());
    EXPECT_EQ(tree.Nodes.Add("", tvwChild, "ROOT", "Tarnwick").Index(), 1);
}

TEST_F(TreeViewTest, NothingHandleRaisesObjectNotSet) {
    Node none;
    EXPECT_TRUE(none.isNothing());
    EXPECT_EQ(raised([&] { none.Text(); }), 91);
    EXPECT_TRUE(root.Child().isNothing());
}

TEST_F(TreeViewTest, SiblingNavigation) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    Node b = tree.Nodes.Add("ROOT", tvwChild, "B", "b");
    Node c = tree.Nodes.Add("B", tvwPrevious, "C", "c");
    Node d = tree.Nodes.Add("A", tvwFirst, "D", "d");
    EXPECT_EQ(childTexts(root), QStringList({"d", "a", "c", "b"}));
    EXPECT_EQ(root.Child(), d);
    EXPECT_EQ(c.Next(), b);
    EXPECT_EQ(c.Previous(), a);
    EXPECT_TRUE(b.Next().isNothing());
    EXPECT_EQ(a.LastSibling(), b);
}

TEST_F(TreeViewTest, SelectingInCodeRaisesNoClickButAUserClickDoes) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    QStringList clicked;
    tree.NodeClick = [&](Node n) { clicked << n.Key(); };
    tree.setSelectedItem(a);
    EXPECT_TRUE(a.Selected());
    EXPECT_TRUE(clicked.isEmpty());
    tree.PerformClick(root);
    EXPECT_EQ(clicked, QStringList({"ROOT"}));
    EXPECT_EQ(tree.SelectedItem(), root);
}

TEST_F(TreeViewTest, ArrowKeyMoveClicksTheNodeItReaches) {
    tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    root.setExpanded(true);
    tree.setSelectedItem(root);
    QStringList clicked;
    tree.NodeClick = [&](Node n) { clicked << n.Key(); };
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&tree, &down);
    EXPECT_EQ(clicked, QStringList({"A"}));
    EXPECT_EQ(tree.SelectedItem().Key(), "A");
}

TEST_F(TreeViewTest, KeyDownSeesKeyCodesAndCanSwallowTheKey) {
    tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    root.setExpanded(true);
    tree.setSelectedItem(root);
    QList<int> codes;
    tree.KeyDown = [&](int& code, int) {
        codes << code;
        code = 0;
    };
    QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&tree, &del);
    QApplication::sendEvent(&tree, &down);
    EXPECT_EQ(codes, QList<int>({46, 40}));
    EXPECT_EQ(tree.SelectedItem(), root);
}

TEST_F(TreeViewTest, ExpandEventsFollowCodeButNotAMoveNorALeaf) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a", "ClosedFolder");
    tree.Nodes.Add("A", tvwChild, "A1", "a1");
    Node b = tree.Nodes.Add("ROOT", tvwChild, "B", "b");
    QStringList events;
    tree.Expand = [&](Node n) { events << "+" + n.Key(); };
    tree.Collapse = [&](Node n) { events << "-" + n.Key(); };
    a.setExpanded(true);
    a.setParent(b);
    a.setExpanded(false);
    // A leaf has nothing to expand: no event.
    Node leaf = tree.Nodes.Add("ROOT", tvwChild, "C", "c");
    leaf.setExpanded(true);
    leaf.setExpanded(false);
    EXPECT_EQ(events, QStringList({"+A", "-A"}));
}

TEST_F(TreeViewTest, HitTestFindsTheNodeUnderAPoint) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    root.setExpanded(true);
    tree.resize(200, 300);
    tree.show();
    QTreeWidgetItem* second = tree.topLevelItem(0)->child(0);
    const QPoint centre = tree.visualItemRect(second).center();
    EXPECT_EQ(tree.HitTest(centre.x(), centre.y()), a);
    EXPECT_TRUE(tree.HitTest(10, 290).isNothing());
}

TEST_F(TreeViewTest, DropHighlightHoldsOneNode) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    tree.setDropHighlight(a);
    EXPECT_EQ(tree.DropHighlight(), a);
    tree.Nodes.Remove("A");
    EXPECT_TRUE(tree.DropHighlight().isNothing());
}

TEST_F(TreeViewTest, BoldAndBackColorStayOnTheNode) {
    tvwBoldTreeNode(tree, root, true);
    EXPECT_TRUE(root.Bold());
    EXPECT_TRUE(tree.topLevelItem(0)->font(0).bold());
    root.setBackColor(vbBlue);
    EXPECT_EQ(root.BackColor(), vbBlue);
    EXPECT_EQ(tree.topLevelItem(0)->background(0).color(), QColor(0, 0, 255));
    root.setBackColor(vbWindowBackground);
    EXPECT_EQ(root.BackColor(), vbWindowBackground);
}

// Label editing.

TEST_F(TreeViewTest, BeforeLabelEditCancelKeepsTheTextAndSkipsAfter) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    bool afterCalled = false;
    tree.BeforeLabelEdit = [](bool& cancel) { cancel = true; };
    tree.AfterLabelEdit = [&](bool&, const QString&) { afterCalled = true; };
    EXPECT_FALSE(tree.PerformLabelEdit(a, "new"));
    EXPECT_EQ(a.Text(), "old");
    EXPECT_FALSE(afterCalled);
}

TEST_F(TreeViewTest, AfterLabelEditCancelKeepsTheOldText) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    QString seen;
    tree.AfterLabelEdit = [&](bool& cancel, const QString& newString) {
        seen = newString;
        cancel = newString.isEmpty();
    };
    EXPECT_FALSE(tree.PerformLabelEdit(a, ""));
    EXPECT_EQ(a.Text(), "old");
    EXPECT_TRUE(tree.PerformLabelEdit(a, "renamed"));
    EXPECT_EQ(seen, "renamed");
    EXPECT_EQ(a.Text(), "renamed");
    EXPECT_FALSE(tree.IsLabelEditing());
}

TEST_F(TreeViewTest, EditBoxLimitAppliesOnlyToTheTreeBeingEdited) {
    TreeView other("tvwCategories");
    Node c = other.Nodes.Add("", tvwChild, "C1", "Visual Basic");
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    // As the category tree does: the limit call names the other tree, which is not editing.
    other.BeforeLabelEdit = [&](bool&) { tvwSetEditBoxLimit(tree, 40); };
    tree.BeforeLabelEdit = [&](bool&) { tvwSetEditBoxLimit(tree, 5); };
    const QString longName(60, QChar('x'));
    EXPECT_TRUE(other.PerformLabelEdit(c, longName));
    EXPECT_EQ(c.Text(), longName);
    EXPECT_TRUE(tree.PerformLabelEdit(a, "abcdefgh"));
    EXPECT_EQ(a.Text(), "abcde");
    EXPECT_EQ(tree.EditBoxLimit(), 0);
}

TEST_F(TreeViewTest, EditorCommitRunsAfterLabelEdit) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    tree.resize(200, 200);
    tree.show();
    tree.setSelectedItem(a);
    bool before = false;
    QString after;
    tree.BeforeLabelEdit = [&](bool&) {
        before = true;
        tvwSetEditBoxLimit(tree, 3);
    };
    tree.AfterLabelEdit = [&](bool&, const QString& s) { after = s; };
    root.setExpanded(true);
    tree.StartLabelEdit();
    ASSERT_TRUE(before);
    auto* editor = tree.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->maxLength(), 3);
    editor->setText("new");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(editor, &enter);
    QApplication::processEvents(); // the commit is queued
    EXPECT_EQ(after, "new");
    EXPECT_EQ(a.Text(), "new");
    EXPECT_FALSE(tree.IsLabelEditing());
}

TEST_F(TreeViewTest, EditStartedAgainFromAfterLabelEditOpensOnceTheOldOneCloses) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    root.setExpanded(true);
    tree.resize(200, 200);
    tree.show();
    int before = 0;
    tree.BeforeLabelEdit = [&](bool&) { ++before; };
    tree.AfterLabelEdit = [&](bool& cancel, const QString& s) {
        if (s.isEmpty()) {
            cancel = true;
            tree.StartLabelEdit();
        }
    };
    EXPECT_FALSE(tree.PerformLabelEdit(a, ""));
    EXPECT_FALSE(tree.IsLabelEditing());
    QApplication::processEvents();
    EXPECT_EQ(before, 2);
    EXPECT_TRUE(tree.IsLabelEditing());
    ASSERT_NE(tree.viewport()->findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(a.Text(), "old");
}

TEST_F(TreeViewTest, ManualLabelEditStartsOnlyFromCode) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    tree.setLabelEdit(tvwManual);
    EXPECT_EQ(tree.editTriggers(), QAbstractItemView::NoEditTriggers);
    int before = 0;
    tree.BeforeLabelEdit = [&](bool& cancel) {
        ++before;
        cancel = true;
    };
    tree.setSelectedItem(a);
    tree.StartLabelEdit();
    EXPECT_EQ(before, 1);
    EXPECT_FALSE(tree.IsLabelEditing());
}

TEST_F(TreeViewTest, IndentationIsGivenInTwips) {
    tvwSetIndentation(tree, 50);
    EXPECT_EQ(tree.indentation(), 16);
    tvwSetIndentation(tree, 450);
    EXPECT_EQ(tree.indentation(), 30);
    tvwTrackSelected(tree, true);
    EXPECT_TRUE(tree.TrackSelect());
    tvwRedraw(tree, false);
    EXPECT_FALSE(tree.updatesEnabled());
    tvwRedraw(tree, true);
    EXPECT_TRUE(tree.updatesEnabled());
}

// Dragging a node's key over the tree and dropping it.
TEST_F(TreeViewTest, ManualDropModeAsksTheHandlerForEachDragOverAndDrop) {
    Node folder = tree.Nodes.Add("ROOT", tvwChild, "SC12TipTestedFolder", "Tips", "ClosedFolder");
    root.setExpanded(true);
    tree.resize(200, 300);
    tree.show();
    tree.setOLEDropMode(vbOLEDropManual);
    EXPECT_TRUE(tree.viewport()->acceptDrops());

    QStringList over;
    tree.OLEDragOver = [&](const QMimeData& data, int& effect, int, int, int x, int y, int state) {
        Node hit = tree.HitTest(x, y);
        over << QString("%1:%2").arg(state).arg(hit ? hit.Key() : "none");
        if (!data.hasFormat("application/x-tarnwick") || !hit || hit.Image() != "ClosedFolder")
            effect = vbDropEffectNone;
    };
    QString dropped;
    tree.OLEDragDrop = [&](const QMimeData& data, int& effect, int, int, int x, int y) {
        dropped = QString::fromLatin1(data.data("application/x-tarnwick")) + " on " +
                  tree.HitTest(x, y).Key();
        effect = vbDropEffectMove;
    };

    QMimeData data;
    data.setData("application/x-tarnwick", "SC7TipTested");
    const QPoint onFolder = tree.visualItemRect(tree.topLevelItem(0)->child(0)).center();
    const QPoint onRoot = tree.visualItemRect(tree.topLevelItem(0)).center();
    const Qt::DropActions actions = Qt::MoveAction;

    QDragEnterEvent enter(onRoot, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDragMoveEvent refused(onRoot, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &refused);
    EXPECT_FALSE(refused.isAccepted());
    QDragMoveEvent taken(onFolder, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &taken);
    EXPECT_TRUE(taken.isAccepted());
    EXPECT_EQ(taken.dropAction(), Qt::MoveAction);
    EXPECT_EQ(over, QStringList({"0:ROOT", "2:ROOT", "2:SC12TipTestedFolder"}));

    QDropEvent drop(QPointF(onFolder), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(dropped, "SC7TipTested on SC12TipTestedFolder");
    EXPECT_EQ(folder.Children(), 0); // the handler moves nodes, not the tree
}

TEST_F(TreeViewTest, ScrollLineMovesOneLineEitherWay) {
    for (int i = 1; i <= 100; ++i)
        tree.Nodes.Add("ROOT", tvwChild, QString("SC%1Tip").arg(i), "tip");
    root.setExpanded(true);
    tree.resize(200, 150);
    tree.show();
    QScrollBar* bar = tree.verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    tree.ScrollLine(1);
    EXPECT_EQ(bar->value(), bar->singleStep());
    tree.ScrollLine(-1);
    tree.ScrollLine(-1);
    EXPECT_EQ(bar->value(), 0);
}
