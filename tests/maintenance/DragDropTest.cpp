// Moving nodes of the item tree by drag and drop.  A drag starts from a real press and move on
// the tree's viewport; the offscreen platform ends a drag at once with nothing dropped, so the
// drag over and the drop arrive as the drag events the platform would send to the viewport.
#include "TreeWindowFixture.h"

#include "ClipboardFormats.h"
#include "Globals.h"
#include "Timer.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "frmMain.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

using namespace qs;
using namespace qs::test;

namespace {

class DragDrop : public TreeWindow {
protected:
    // Tested code of category 1 listed whatever its type: snippet Alpha (1), folder Helpers (2)
    // holding Pad (3), empty folder Spare (4), tip folder Tips (5), module Mod (6).
    frmMain& openMixed() {
        addCode("Alpha");
        addCode("Helpers", 201, 1, 0, true);
        addCode("Pad", 201, 1, 2);
        addCode("Spare", 201, 1, 0, true);
        addCode("Tips", 202, 1, 0, true);
        addCode("Mod", 204, 1);
        return openBranch();
    }
    // The window with every tested text item of category 1 in tvwMain.
    frmMain& openBranch() {
        frmMain& form = open();
        click(*form.tvwCategories, "TestedC1");
        form.FillTreeViewMain(0, 1, "SourceCode");
        return form;
    }
    static QPoint at(TreeView& tree, const QString& key) {
        Node node = tree.Nodes(key);
        node.EnsureVisible();
        for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
            const QRect rect = tree.visualItemRect(*it);
            if (!rect.isEmpty() && tree.HitTest(rect.center().x(), rect.center().y()) == node)
                return rect.center();
        }
        ADD_FAILURE() << "the node " << key.toStdString() << " is not on show";
        return {};
    }
    // A press on the node and a move with the left button held: the drag starts, and here ends
    // at once.  The drag data is what the tree puts into a drag as it starts.
    static void startDrag(frmMain& form, const QString& key, QMimeData& data) {
        TreeView& tree = *form.tvwMain;
        const QPoint pos = at(tree, key);
        QTest::mousePress(tree.viewport(), Qt::LeftButton, {}, pos);
        QMouseEvent move(QEvent::MouseMove, QPointF(pos + QPoint(0, 12)),
                         tree.viewport()->mapToGlobal(QPointF(pos + QPoint(0, 12))), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &move);
        QTest::mouseRelease(tree.viewport(), Qt::LeftButton, {}, pos);
        int allowed = 0;
        tree.OLEStartDrag(data, allowed);
        EXPECT_EQ(allowed, vbDropEffectMove);
    }
    // A drag moving over the node; true when the tree takes it.
    static bool dragOver(TreeView& tree, const QPoint& pos, const QMimeData& data) {
        QDragEnterEvent enter(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &enter);
        QDragMoveEvent move(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &move);
        return move.isAccepted();
    }
    static bool drop(TreeView& tree, const QPoint& pos, const QMimeData& data) {
        QDropEvent event(QPointF(pos), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &event);
        return event.isAccepted();
    }
    int parentOf(int id) const { return cLibraryService(mDatabase).GetSourceCode(id).ParentId(); }
};

TEST_F(DragDrop, APressAndMoveStartsADragOfAnyNodeButTheRoot) {
    frmMain& form = openMixed();
    TreeView& tree = *form.tvwMain;
    QMimeData data;
    startDrag(form, "ROOT", data);
    EXPECT_EQ(form.tmrDrag->Interval(), 0);

    startDrag(form, "SC1CodeTested", data);
    EXPECT_EQ(tree.SelectedItem().Key(), "SC1CodeTested");
    EXPECT_EQ(form.tmrDrag->Interval(), 100);
    EXPECT_FALSE(form.tmrDrag->Enabled()); // the drag is over
    EXPECT_EQ(data.data(ClipboardFormatMime(form.mintDragFormat)), "SC1CodeTested");
    EXPECT_TRUE(ClipboardFormatMime(form.mintDragFormat).contains("\"Tarnwick\""));

    // A move with no button ends the pressed node's part in a drag.
    ASSERT_TRUE(form.mnodMouseDown);
    QMouseEvent hover(QEvent::MouseMove, QPointF(at(tree, "ROOT")),
                      tree.viewport()->mapToGlobal(QPointF(at(tree, "ROOT"))), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &hover);
    EXPECT_FALSE(form.mnodMouseDown);
}

TEST_F(DragDrop, OnlyAFolderOfTheSameKindOrForAFolderTheRootTakesADrop) {
    frmMain& form = openMixed();
    TreeView& tree = *form.tvwMain;
    tree.Nodes.Add("SC6ModuleTested", tvwChild, "6_SC6ModuleTestedSubsNoDrag", "Subs", "Sub");
    struct Case {
        const char* dragged;
        const char* target;
        bool formatted;
        bool taken;
        const char* highlight;
    };
    const Case cases[] = {
        {"SC1CodeTested", "SC2CodeTestedFolder", true, true, "SC2CodeTestedFolder"},
        {"SC1CodeTested", "SC2CodeTestedFolder", false, false, ""},
        {"SC1CodeTested", "SC5TipTestedFolder", true, false, ""},
        {"SC1CodeTested", "ROOT", true, false, ""},
        {"SC1CodeTested", "SC6ModuleTested", true, false, ""},
        {"SC4CodeTestedFolder", "ROOT", true, true, "ROOT"},
        {"SC4CodeTestedFolder", "SC2CodeTestedFolder", true, true, "SC2CodeTestedFolder"},
        {"6_SC6ModuleTestedSubsNoDrag", "SC2CodeTestedFolder", true, false, ""},
        // Over the dragged node itself nothing is highlighted, so a drop there does nothing.
        {"SC2CodeTestedFolder", "SC2CodeTestedFolder", true, true, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.dragged) + " over " + c.target);
        tree.Nodes("SC6ModuleTested").setExpanded(true);
        QMimeData data;
        startDrag(form, c.dragged, data);
        QMimeData plain;
        plain.setText(c.dragged);
        tree.setDropHighlight(Node());
        EXPECT_EQ(dragOver(tree, at(tree, c.target), c.formatted ? data : plain), c.taken);
        const Node lit = tree.DropHighlight();
        EXPECT_EQ(lit ? lit.Key() : QString(), c.highlight);
    }
}

TEST_F(DragDrop, ADropMovesTheNodeSwapsTheFolderImagesAndStoresOnlyTheNewParentUnlessRefused) {
    frmMain& form = openMixed();
    TreeView& tree = *form.tvwMain;
    tree.Nodes("SC2CodeTestedFolder").setExpanded(true);
    ASSERT_EQ(tree.Nodes("SC2CodeTestedFolder").Image(), "OpenFolder");
    const QString before = cLibraryService(mDatabase).GetSourceCode(3).Code();

    struct Case {
        const char* dragged;
        int id;
        const char* target;
        int parent;              // stored afterwards
        const char* targetImage; // afterwards
        const char* leftImage;   // of the folder it left, afterwards; "" for the root
        bool refused = false;    // by the library, which keeps what it had
    };
    const Case cases[] = {
        {"SC3CodeTested", 3, "SC4CodeTestedFolder", 4, "OpenFolder", "ClosedFolder"},
        {"SC1CodeTested", 1, "SC2CodeTestedFolder", 2, "OpenFolder", ""},
        {"SC4CodeTestedFolder", 4, "SC2CodeTestedFolder", 2, "OpenFolder", ""},
        {"SC4CodeTestedFolder", 4, "ROOT", 0, "MainIco", "OpenFolder"},
        // Meanwhile another user has put Helpers into Spare; this tree still shows both at the
        // top.  The tree shows the move until its next fill.
        {"SC4CodeTestedFolder", 4, "SC2CodeTestedFolder", 0, nullptr, "", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.dragged) + " on " + c.target);
        Node moved = tree.Nodes(QLatin1String(c.dragged));
        const Node left = moved.Parent();
        if (c.refused) {
            cSourceCode helpers = cLibraryService(mDatabase).GetSourceCode(2);
            helpers.BeginEdit(0);
            helpers.ParentId(4);
            helpers.Save();
            hostScript.expectMsgBox("lies inside");
        }
        QMimeData data;
        startDrag(form, c.dragged, data);
        ASSERT_TRUE(dragOver(tree, at(tree, c.target), data));
        EXPECT_EQ(drop(tree, at(tree, c.target), data), !c.refused);
        EXPECT_EQ(moved.Parent().Key(), c.target);
        EXPECT_EQ(parentOf(c.id), c.parent);
        if (c.targetImage) {
            EXPECT_EQ(moved.Parent().Image(), c.targetImage);
        }
        if (*c.leftImage) {
            EXPECT_EQ(left.Image(), c.leftImage);
        }
        EXPECT_FALSE(tree.DropHighlight());
        EXPECT_FALSE(form.mnodMouseDown);
        EXPECT_FALSE(form.mblnFilling);
    }
    EXPECT_EQ(parentOf(2), 4);
    EXPECT_EQ(cLibraryService(mDatabase).GetSourceCode(3).Code(), before);
}

TEST_F(DragDrop, TheTimerScrollsNearTheEdgesAndOpensAFolderHeldOverForElevenTicks) {
    addCode("Zulu");
    for (int i = 0; i < 40; ++i)
        addCode(QStringLiteral("Folder %1").arg(i, 2, 10, QLatin1Char('0')), 201, 1, 0, true);
    addCode("Inner", 201, 1, 2);
    frmMain& form = openBranch();
    TreeView& tree = *form.tvwMain;
    form.resize(700, 420);
    QApplication::processEvents();
    QScrollBar* bar = tree.verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);

    QMimeData data;
    startDrag(form, "SC1CodeTested", data);
    bar->setValue(0);
    const int height = tree.viewport()->height();
    struct Case {
        int y;
        int scroll;
    };
    // Within 500 twips of the bottom the tree scrolls down (15 twips to a pixel).
    const Case cases[] = {{height / 2, 0}, {height - 2, 1}, {height - 40, 0}, {height - 30, 1}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.y);
        ASSERT_TRUE(tree.HitTest(40, c.y));
        dragOver(tree, QPoint(40, c.y), data);
        EXPECT_EQ(form.mintDragScroll, c.scroll);
    }
    for (int tick = 1; tick <= 3; ++tick)
        form.tmrDrag->OnTimer();
    const int down = bar->value();
    EXPECT_EQ(down, 3 * bar->singleStep());
    // Within 300 twips of the top it scrolls up, one line a tick.
    ASSERT_TRUE(tree.HitTest(40, 10));
    dragOver(tree, QPoint(40, 10), data);
    EXPECT_EQ(form.mintDragScroll, -1);
    form.tmrDrag->OnTimer();
    EXPECT_EQ(bar->value(), down - bar->singleStep());

    // Held over a closed folder with something in it, the folder opens on the eleventh tick.
    // The count of ticks goes on from the scrolling ones.
    Node helpers = tree.Nodes("SC2CodeTestedFolder");
    ASSERT_TRUE(dragOver(tree, at(tree, "SC2CodeTestedFolder"), data));
    for (long tick = form.mlngDragTicks + 1; tick <= 10; ++tick)
        form.tmrDrag->OnTimer();
    EXPECT_FALSE(helpers.Expanded());
    form.tmrDrag->OnTimer();
    EXPECT_TRUE(helpers.Expanded());
    EXPECT_EQ(helpers.Image(), "OpenFolder");
    EXPECT_EQ(form.mlngDragTicks, 0);

    // With no drag under way the timer stops itself.
    form.mnodMouseDown = Node();
    form.tmrDrag->setEnabled(true);
    form.tmrDrag->OnTimer();
    EXPECT_FALSE(form.tmrDrag->Enabled());
}

} // namespace
