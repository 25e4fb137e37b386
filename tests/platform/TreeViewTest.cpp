#include "TreeView.h"
#include "ImageList.h"
#include "OleColor.h"
#include "Raised.h"
#include "mTreeview.h"

#include <QApplication>
#include <QDropEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <functional>
#include <gtest/gtest.h>

using namespace qs;

namespace {

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

// The shape of a tree as a person sees it: each node's key, an asterisk when expanded, its
// children in display order; the selected node last.
QString shape(const TreeView& tree) {
    const std::function<QString(const Node&)> node = [&](const Node& n) {
        QString text = n.Key() + (n.Expanded() ? "*" : "");
        QStringList children;
        for (Node c = n.Child(); c; c = c.Next())
            children << node(c);
        return children.isEmpty() ? text : text + "(" + children.join(' ') + ")";
    };
    QStringList top;
    for (Node n : tree.Nodes)
        if (n.Parent().isNothing())
            top << node(n);
    const Node selected = tree.SelectedItem();
    return top.join(' ') + " | " + (selected ? selected.Key() : QString("-"));
}

void sendKey(QWidget* to, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(to, &event);
}

class TreeViewTest : public ::testing::Test {
protected:
    TreeView tree{"tvwMain"};
    Node root;
    void SetUp() override {
        tree.setImageList(&ImageList::instance());
        root = tree.Nodes.Add("", tvwChild, "ROOT", "Tarnwick", "MainIco");
    }
    // Root expanded with one child "A", the tree shown.
    Node showWithChild() {
        Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
        root.setExpanded(true);
        tree.resize(200, 200);
        tree.show();
        return a;
    }
};

} // namespace

TEST_F(TreeViewTest, AddsByRelationshipFindsByKeyAndNavigates) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "SC12ClassUnTestedFolder", "a", "ClosedFolder");
    Node item = tree.Nodes.Add("ROOT", tvwChild, "SC57ClassUnTested", "cParser", "Class3");
    EXPECT_EQ(tree.Nodes("SC57ClassUnTested"), item);
    EXPECT_EQ(tree.Nodes.Item("SC57ClassUnTested").Text(), "cParser");
    EXPECT_EQ(tree.Nodes("SC57ClassUnTested").Image(), "Class3");
    EXPECT_EQ(item.Parent(), root);
    EXPECT_TRUE(root.Parent().isNothing());
    EXPECT_EQ(tree.Nodes(3), item);
    EXPECT_EQ(item.Index(), 3);

    Node c = tree.Nodes.Add("SC57ClassUnTested", tvwPrevious, "C", "c");
    Node d = tree.Nodes.Add("SC12ClassUnTestedFolder", tvwFirst, "D", "d");
    EXPECT_EQ(tree.Nodes.Count(), 5);
    EXPECT_EQ(root.Children(), 4);
    EXPECT_EQ(childTexts(root), QStringList({"d", "a", "c", "cParser"}));
    EXPECT_EQ(root.Child(), d);
    EXPECT_EQ(c.Next(), item);
    EXPECT_EQ(c.Previous(), a);
    EXPECT_TRUE(item.Next().isNothing());
    EXPECT_EQ(a.LastSibling(), item);
}

TEST_F(TreeViewTest, FailingCallsRaiseTheirErrorAndChangeNothing) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    Node a1 = tree.Nodes.Add("A", tvwChild, "A1", "a1");
    tree.Nodes.Add("ROOT", tvwChild, "TestedC1", "Tested");
    tree.Nodes.Add("ROOT", tvwChild, "testedC1", "lower");
    const QString before = shape(tree);
    const struct {
        const char* name;
        std::function<void()> call;
        long error;
    } cases[] = {
        {"absent key", [&] { tree.Nodes("C99"); }, 35601},
        {"empty key", [&] { tree.Nodes.Item(""); }, 35601},
        {"key in another case", [&] { tree.Nodes("TESTEDC1"); }, 35601},
        {"index 0", [&] { tree.Nodes(0); }, 35601},
        {"index past the end", [&] { tree.Nodes(6); }, 35601},
        {"absent relative", [&] { tree.Nodes.Add("NoSuchParent", tvwChild, "K", "k"); }, 35601},
        {"duplicate key", [&] { tree.Nodes.Add("ROOT", tvwChild, "A1", "Other"); }, 35602},
        {"unknown image", [&] { tree.Nodes.Add("ROOT", tvwChild, "X1", "x", "NoImage"); }, 35601},
        {"unknown image set", [&] { root.setImage("NoImage"); }, 35601},
        {"under its own child", [&] { a.setParent(a1); }, 35614},
        {"under itself", [&] { a.setParent(a); }, 35614},
        {"nothing", [] { Node().Text(); }, 91},
    };
    for (const auto& c : cases)
        EXPECT_EQ(raised(c.call), c.error) << c.name;
    EXPECT_EQ(shape(tree), before);
    EXPECT_EQ(tree.Nodes.Count(), 5);
    EXPECT_EQ(tree.Nodes("A1").Text(), "a1");
    EXPECT_EQ(tree.Nodes("testedC1").Text(), "lower");
    EXPECT_EQ(root.Image(), "MainIco");
    // The key of the refused add is free; a node without an image is fine.
    EXPECT_EQ(tree.Nodes.Add("ROOT", tvwChild, "X1", "x").Image(), "");
}

// ---- Nodes.MoveAll: many Parent assignments in one go ----

namespace {

int depthOf(Node n) {
    int depth = 0;
    for (; n.Parent(); n = n.Parent())
        ++depth;
    return depth;
}

// A fill's first pass: folders nested up to five deep and items, all added under the root in
// an order that is not the tree's, with texts that repeat so that sorted parents see ties.  A
// sorted folder holds children already, and one folder starts with an expanded subtree.
// Returns the second pass: every node to the folder its tag names, then a few moves again.
QVector<QPair<QString, QString>> fillFirstPass(TreeView& tree) {
    tree.Nodes.Add("", tvwChild, "ROOT", "Tarnwick");
    Node sorted = tree.Nodes.Add("ROOT", tvwChild, "S", "Sorted");
    for (const char* text : {"b", "d", "B"})
        tree.Nodes.Add("S", tvwChild, QString("S") + text, text);
    sorted.setSorted(true);
    // Folders F5 to F21 nest five deep; every other node goes under a folder made before it.
    const QHash<QString, QString> chain{{"F5", "ROOT"}, {"F9", "F5"},   {"F13", "F9"},
                                        {"F17", "F13"}, {"F21", "F17"}, {"I22", "F21"}};
    QVector<QPair<QString, QString>> moves;
    QStringList folders{"ROOT"};
    quint32 seed = 12345;
    const auto next = [&seed](int bound) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 8) % quint32(bound));
    };
    for (int i = 1; i <= 60; ++i) {
        const bool folder = i % 4 == 1;
        const QString key = QString(folder ? "F%1" : "I%1").arg(i);
        tree.Nodes.Add("ROOT", tvwChild, key, QString("abcde").mid(next(5), 1));
        moves.append({key, chain.value(key, folders.at(next(folders.size())))});
        if (folder)
            folders << key;
    }
    tree.Nodes.Add("F1", tvwChild, "F1a", "x");
    tree.Nodes.Add("F1a", tvwChild, "F1b", "y");
    tree.Nodes("F1").setExpanded(true);
    tree.Nodes("F1a").setExpanded(true);
    tree.setSelectedItem(tree.Nodes("I10"));
    // Moved twice: into the sorted folder with a tie and back to its parent; a folder with its
    // subtree into the sorted folder, and another into that subtree.
    tree.Nodes("I2").setText("a");
    tree.Nodes("I3").setText("B");
    tree.Nodes("F5").setText("c");
    const QString back = moves.at(2).second;
    return moves + QVector<QPair<QString, QString>>{
                       {"I2", "S"}, {"I3", "S"}, {"I3", back}, {"F5", "S"}, {"F1", "F9"}};
}

} // namespace

TEST(TreeViewMoveAll, EndsAsOneAssignmentAtATimeDoes) {
    TreeView one("tvwMain"), batch("tvwMain");
    const auto moves = fillFirstPass(one);
    fillFirstPass(batch);
    ASSERT_EQ(shape(one), shape(batch));

    for (const auto& move : moves)
        one.Nodes(move.first).setParent(one.Nodes(move.second));
    batch.Nodes.MoveAll(moves);

    EXPECT_EQ(shape(batch), shape(one));
    EXPECT_EQ(keysInOrder(batch), keysInOrder(one));
    // The comparison means something: the tree is deep, and the sorted folder took arrivals.
    int deepest = 0;
    for (Node n : batch.Nodes)
        deepest = qMax(deepest, depthOf(n));
    EXPECT_GE(deepest, 5);
    EXPECT_EQ(childTexts(batch.Nodes("S")), QStringList({"a", "b", "B", "c", "d"}));
    EXPECT_EQ(batch.Nodes("F1b").Parent().Key(), "F1a");
    EXPECT_TRUE(batch.Nodes("F1a").Expanded());
    EXPECT_EQ(batch.SelectedItem().Key(), "I10");
}

// A pair that fails raises what Parent assignment raises there; the pairs before it are moved
// and none after, as with one assignment at a time.
TEST(TreeViewMoveAll, FailingPairRaisesThereWithThePairsBeforeItMoved) {
    const struct {
        const char* name;
        QPair<QString, QString> pair;
        long error;
    } cases[] = {
        {"absent parent", {"I7", "SC99CodeTestedFolder"}, 35601},
        {"absent node", {"I999", "ROOT"}, 35601},
        {"under its own subtree", {"F1", "F1b"}, 35614},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        TreeView one("tvwMain"), batch("tvwMain");
        auto moves = fillFirstPass(one);
        moves.insert(30, c.pair);
        fillFirstPass(batch);

        EXPECT_EQ(raised([&] {
                      for (const auto& move : moves)
                          one.Nodes(move.first).setParent(one.Nodes(move.second));
                  }),
                  c.error);
        EXPECT_EQ(raised([&] { batch.Nodes.MoveAll(moves); }), c.error);
        EXPECT_EQ(shape(batch), shape(one));
        EXPECT_EQ(batch.Nodes(moves.at(29).first).Parent().Key(), moves.at(29).second);
        int later = 31;
        while (moves.at(later).second == "ROOT")
            ++later;
        EXPECT_EQ(batch.Nodes(moves.at(later).first).Parent().Key(), "ROOT");
    }
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

    EXPECT_EQ(shape(tree), "ROOT*(A* B(A1*(A1x))) | A1x");
    EXPECT_EQ(a.Children(), 0);
    EXPECT_EQ(sub.Tag(), "tag of sub");
    EXPECT_EQ(sub.Image(), "OpenFolder");
    EXPECT_EQ(leaf.BackColor(), vbRed);
    EXPECT_EQ(tree.Nodes("A1x"), leaf);
    EXPECT_EQ(leaf.Root(), root);
    EXPECT_EQ(leaf.FullPath(), "Tarnwick\\Folder B\\Sub\\Leaf");

    // To the top level and back.
    sub.setParent(Node());
    EXPECT_TRUE(sub.Parent().isNothing());
    EXPECT_EQ(sub.Next(), Node());
    EXPECT_EQ(sub.Previous(), root);
}

TEST_F(TreeViewTest, SortedOrdersChildrenByTextIgnoringCaseNowAndLater) {
    Node folder = tree.Nodes.Add("ROOT", tvwChild, "F", "Folder");
    for (const char* text : {"beta", "Alpha", "gamma"})
        tree.Nodes.Add("F", tvwChild, QString("k") + text, text);
    Node other = tree.Nodes.Add("ROOT", tvwChild, "G", "Other");
    tree.Nodes.Add("G", tvwChild, "g1", "zeta");
    tree.Nodes.Add("G", tvwChild, "g2", "eta");

    folder.setSorted(true);
    EXPECT_EQ(childTexts(folder), QStringList({"Alpha", "beta", "gamma"}));
    tree.Nodes.Add(folder, tvwChild, "kDelta", "Delta");
    EXPECT_EQ(childTexts(folder), QStringList({"Alpha", "beta", "Delta", "gamma"}));
    // A node moved in takes its place too, and other nodes keep their order.
    tree.Nodes("g2").setParent(folder);
    EXPECT_EQ(childTexts(folder), QStringList({"Alpha", "beta", "Delta", "eta", "gamma"}));
    EXPECT_EQ(childTexts(other), QStringList({"zeta"}));
    EXPECT_EQ(folder.Child().FirstSibling().Text(), "Alpha");
    EXPECT_EQ(folder.Child().LastSibling().Text(), "gamma");
    // Collection order stays the order of adding.
    EXPECT_EQ(keysInOrder(tree),
              QStringList({"ROOT", "F", "kbeta", "kAlpha", "kgamma", "G", "g1", "g2", "kDelta"}));
}

TEST_F(TreeViewTest, SortingKeepsExpandedNodesAndTheSelectionWhereTheyAre) {
    Node b = tree.Nodes.Add("ROOT", tvwChild, "B", "beta");
    tree.Nodes.Add("ROOT", tvwChild, "A", "alpha");
    Node b1 = tree.Nodes.Add("B", tvwChild, "B1", "b1");
    tree.Nodes.Add("B1", tvwChild, "B1x", "leaf");
    root.setExpanded(true);
    b.setExpanded(true);
    b1.setExpanded(true);
    tree.setSelectedItem(b1);
    QStringList events;
    tree.Collapse = [&](Node n) { events << n.Key(); };

    root.setSorted(true);

    EXPECT_EQ(shape(tree), "ROOT*(A B*(B1*(B1x))) | B1");
    EXPECT_TRUE(events.isEmpty());

    // The tree's own Sorted orders the top level.
    tree.Nodes.Add("", tvwLast, "Z", "zulu");
    tree.Nodes.Add("", tvwLast, "A0", "alpha");
    tree.setSorted(true);
    EXPECT_EQ(tree.Nodes("A0").Next().Key(), "ROOT");
    EXPECT_EQ(tree.Nodes("ROOT").Next().Key(), "Z");
}

TEST_F(TreeViewTest, RemoveTakesTheSubtreeAndItsHighlightAndClearsEmptyTheTree) {
    tree.Nodes.Add("ROOT", tvwChild, "A", "a");
    Node a1 = tree.Nodes.Add("A", tvwChild, "A1", "a1");
    tree.Nodes.Add("ROOT", tvwChild, "B", "b");
    tree.setDropHighlight(a1);
    EXPECT_EQ(tree.DropHighlight(), a1);

    tree.Nodes.Remove("A");

    EXPECT_EQ(tree.Nodes.Count(), 2);
    EXPECT_FALSE(tree.Nodes.Exists("A1"));
    EXPECT_TRUE(tree.DropHighlight().isNothing());
    EXPECT_EQ(tree.Nodes("B").Index(), 2);
    EXPECT_EQ(raised([&] { a1.Text(); }), 35605);
    // The key is free again.
    EXPECT_EQ(tree.Nodes.Add("ROOT", tvwChild, "A1", "again").Text(), "again");
    tree.Nodes.Remove(2);
    EXPECT_EQ(keysInOrder(tree), QStringList({"ROOT", "A1"}));

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

TEST_F(TreeViewTest, ArrowKeyClicksTheNodeItReachesUnlessKeyDownSwallowsIt) {
    showWithChild();
    tree.setSelectedItem(root);
    QStringList clicked;
    tree.NodeClick = [&](Node n) { clicked << n.Key(); };
    sendKey(&tree, Qt::Key_Down);
    EXPECT_EQ(clicked, QStringList({"A"}));
    EXPECT_EQ(tree.SelectedItem().Key(), "A");

    QList<int> codes;
    tree.KeyDown = [&](int& code, int) {
        codes << code;
        code = 0;
    };
    sendKey(&tree, Qt::Key_Delete);
    sendKey(&tree, Qt::Key_Up);
    EXPECT_EQ(codes, QList<int>({46, 38}));
    EXPECT_EQ(tree.SelectedItem().Key(), "A");
    EXPECT_EQ(clicked.size(), 1);
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

TEST_F(TreeViewTest, BoldAndBackColorReachTheDrawnItem) {
    tvwBoldTreeNode(tree, root, true);
    EXPECT_TRUE(tree.topLevelItem(0)->font(0).bold());
    root.setBackColor(vbBlue);
    EXPECT_EQ(tree.topLevelItem(0)->background(0).color(), QColor(0, 0, 255));
    root.setBackColor(vbWindowBackground);
    EXPECT_EQ(root.BackColor(), vbWindowBackground);
}

// Label editing.

TEST_F(TreeViewTest, LabelEditCancelledBeforeOrAfterKeepsTheOldText) {
    Node a = tree.Nodes.Add("ROOT", tvwChild, "A", "old");
    bool refuse = true;
    QStringList after;
    tree.BeforeLabelEdit = [&](bool& cancel) { cancel = refuse; };
    tree.AfterLabelEdit = [&](bool& cancel, const QString& newString) {
        after << newString;
        cancel = newString.isEmpty();
    };
    EXPECT_FALSE(tree.PerformLabelEdit(a, "new"));
    EXPECT_TRUE(after.isEmpty());
    refuse = false;
    EXPECT_FALSE(tree.PerformLabelEdit(a, ""));
    EXPECT_EQ(a.Text(), "old");
    EXPECT_TRUE(tree.PerformLabelEdit(a, "renamed"));
    EXPECT_EQ(after, QStringList({"", "renamed"}));
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
    Node a = showWithChild();
    tree.setSelectedItem(a);
    bool before = false;
    QString after;
    tree.BeforeLabelEdit = [&](bool&) {
        before = true;
        tvwSetEditBoxLimit(tree, 3);
    };
    tree.AfterLabelEdit = [&](bool&, const QString& s) { after = s; };
    tree.StartLabelEdit();
    ASSERT_TRUE(before);
    auto* editor = tree.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->maxLength(), 3);
    editor->setText("new");
    sendKey(editor, Qt::Key_Return);
    QApplication::processEvents(); // the commit is queued
    EXPECT_EQ(after, "new");
    EXPECT_EQ(a.Text(), "new");
    EXPECT_FALSE(tree.IsLabelEditing());
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

TEST_F(TreeViewTest, IndentationIsGivenInTwipsAndRedrawStopsUpdates) {
    for (const auto& [twips, pixels] : {std::pair{50, 16}, std::pair{450, 30}}) {
        tvwSetIndentation(tree, twips);
        EXPECT_EQ(tree.indentation(), pixels) << twips;
    }
    for (const bool on : {false, true}) {
        tvwRedraw(tree, on);
        EXPECT_EQ(tree.updatesEnabled(), on);
    }
}

// Dragging a node's key over the tree and dropping it.
TEST_F(TreeViewTest, ManualDropModeAsksTheHandlerForEachDragOverAndDrop) {
    Node folder = tree.Nodes.Add("ROOT", tvwChild, "SC12TipTestedFolder", "Tips", "ClosedFolder");
    root.setExpanded(true);
    tree.resize(200, 300);
    tree.show();
    tree.setOLEDropMode(vbOLEDropManual);
    EXPECT_TRUE(tree.viewport()->acceptDrops());
    EXPECT_TRUE(tree.HitTest(10, 290).isNothing());

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

TEST_F(TreeViewTest, AMenuPoppingUpOverTheTreeRaisesNoFocusEvents) {
    int got = 0;
    int lost = 0;
    tree.GotFocus = [&] { ++got; };
    tree.LostFocus = [&] { ++lost; };
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MouseFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&tree, &out);
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(&tree, &in);
    }
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 1);
}
