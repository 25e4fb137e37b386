// Nodes.MoveAll: many Parent assignments in one rearrangement of the widget.
//
// Moving one item at a time out of a child list of 100,000 costs time in proportion to that
// list (the widget finds an item's row by searching its parent's children), so a fill's second
// pass done by Parent assignments is quadratic.  Here the moves are
// first played on a model of the child lists: a list is copied once, when a move first touches
// it; a move marks the node's old entry dead (its stamp is no longer the node's) and adds a new
// entry at the end, or in text order under a sorted parent.  Then every list that changed is
// taken out of the widget and put back in its final order, once.

#include "QsError.h"
#include "TreeView.h"

#include <QSet>
#include <QSignalBlocker>
#include <exception>

namespace qs {

// The child lists as the moves leave them.  A node is known by its place in the collection
// (NodeData::index), so the plan's state lives in arrays; slot 0 stands for the top level.
class TreeMovePlan {
public:
    struct Entry {
        NodeData* node;
        quint64 stamp; // 0 for a child that was there before the moves
    };

    TreeMovePlan(int nodeCount, QTreeWidgetItem* root, bool rootSorted)
        : mParent(nodeCount + 1, nullptr), mStamp(nodeCount + 1, 0), mList(nodeCount + 1, -1),
          mRoot(root), mRootSorted(rootSorted) {}

    void move(NodeData* node, NodeData* target) {
        for (NodeData* up = target; up; up = parentOf(up))
            if (up == node)
                throw QsError(TreeNodes::kErrCycle, QString::fromLatin1(kAppSource),
                              QStringLiteral("This would introduce a cycle"));
        children(parentOf(node));
        QVector<Entry>& list = children(target);
        const quint64 stamp = ++mLastStamp;
        mStamp[node->index] = stamp;
        mParent[node->index] = target;
        int at = list.size();
        if (target ? target->sorted : mRootSorted) {
            // As TreeView::placeSorted: after the last child whose text is not above it.
            const QString text = node->item->text(0);
            while (at > 0 && (!live(list.at(at - 1)) ||
                              TreeView::textBefore(text, list.at(at - 1).node->item->text(0))))
                --at;
        }
        list.insert(at, {node, stamp});
    }

    // The widget items whose child lists changed, in the order they were first touched.
    QVector<QTreeWidgetItem*> changed() const {
        QVector<QTreeWidgetItem*> items;
        for (NodeData* owner : mOwners)
            items.append(itemOf(owner));
        return items;
    }

    // The final children of the i-th changed list, in order.
    QList<QTreeWidgetItem*> finalChildren(int i) const {
        QList<QTreeWidgetItem*> items;
        for (const Entry& e : mLists.at(i))
            if (live(e))
                items.append(e.node->item);
        return items;
    }

private:
    // The parent a node has after the moves so far; null at the top level.
    NodeData* parentOf(NodeData* node) const {
        return mStamp.at(node->index) ? mParent.at(node->index)
                                      : TreeView::dataOf(node->item->parent());
    }
    QTreeWidgetItem* itemOf(NodeData* node) const { return node ? node->item : mRoot; }
    bool live(const Entry& e) const { return mStamp.at(e.node->index) == e.stamp; }

    QVector<Entry>& children(NodeData* parent) {
        int& at = mList[parent ? parent->index : 0];
        if (at < 0) {
            const QTreeWidgetItem* item = itemOf(parent);
            QVector<Entry> list;
            list.reserve(item->childCount());
            for (int i = 0; i < item->childCount(); ++i)
                list.append({TreeView::dataOf(item->child(i)), 0});
            at = mLists.size();
            mLists.append(list);
            mOwners.append(parent);
        }
        return mLists[at];
    }

    QVector<NodeData*> mParent;
    QVector<quint64> mStamp; // the stamp of a node's live entry; 0 while it has not moved
    QVector<int> mList;      // the node's own child list in mLists; -1 while untouched
    QVector<QVector<Entry>> mLists;
    QVector<NodeData*> mOwners; // whose list each of mLists is; null for the top level
    QTreeWidgetItem* mRoot;
    bool mRootSorted;
    quint64 mLastStamp = 0;
};

void TreeView::moveAll(const QVector<QPair<QString, QString>>& keyToParentKey) {
    TreeMovePlan plan(Nodes.Count(), invisibleRootItem(), mSorted);
    // A failing pair stops the plan; the moves before it still happen, then it raises.
    std::exception_ptr failure;
    try {
        for (const auto& pair : keyToParentKey) {
            NodeData* node = Nodes.dataOf(pair.first);
            plan.move(node, Nodes.dataOf(pair.second));
        }
    } catch (...) {
        failure = std::current_exception();
    }

    const QVector<QTreeWidgetItem*> changed = plan.changed();
    if (!changed.isEmpty()) {
        // Taking items out collapses them and may move the current item: both are put back.
        const QVector<QTreeWidgetItem*> expanded = expandedUnder(changed);
        QTreeWidgetItem* current = currentItem();
        const bool quiet = mQuiet;
        mQuiet = true;
        {
            const QSignalBlocker block(this);
            for (QTreeWidgetItem* parent : changed)
                parent->takeChildren();
            // Lists of items outside the widget first: filling them raises nothing, and their
            // subtrees join the widget with them.
            for (bool inWidget : {false, true})
                for (int i = 0; i < changed.size(); ++i)
                    if ((changed.at(i)->treeWidget() != nullptr) == inWidget)
                        changed.at(i)->insertChildren(0, plan.finalChildren(i));
            for (QTreeWidgetItem* item : expanded)
                item->setExpanded(true);
            if (current)
                setCurrentItem(current);
        }
        mQuiet = quiet;
        viewport()->update();
    }
    if (failure)
        std::rethrow_exception(failure);
}

QVector<QTreeWidgetItem*> TreeView::expandedUnder(const QVector<QTreeWidgetItem*>& parents) const {
    // Walked by model index: an item asked for its own state looks its row up by a linear
    // search, which over a long child list would make this walk quadratic.
    const QSet<QTreeWidgetItem*> taken(parents.cbegin(), parents.cend());
    QSet<QTreeWidgetItem*> leads; // the parents and their ancestors: the way down to them
    for (QTreeWidgetItem* parent : parents)
        for (QTreeWidgetItem* up = parent; up; up = up->parent())
            leads.insert(up);
    QVector<QTreeWidgetItem*> expanded;
    const std::function<void(QTreeWidgetItem*, const QModelIndex&, bool)> walk =
        [&](QTreeWidgetItem* item, const QModelIndex& index, bool inside) {
            inside = inside || taken.contains(item);
            for (int row = 0; row < item->childCount(); ++row) {
                QTreeWidgetItem* child = item->child(row);
                if (!inside && !leads.contains(child))
                    continue;
                const QModelIndex childIndex = model()->index(row, 0, index);
                if (inside && isExpanded(childIndex))
                    expanded.append(child);
                walk(child, childIndex, inside);
            }
        };
    walk(invisibleRootItem(), QModelIndex(), false);
    return expanded;
}

} // namespace qs
