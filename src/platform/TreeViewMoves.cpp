// Nodes.MoveAll: many Parent assignments in one rearrangement of the widget.
//
// Moving one item out of a child list of 100,000 shifts that list and makes the widget look
// every later row up again, so moving each node by itself is quadratic.  Here the moves are
// first played on a model of the child lists: a list is copied once, when a move first touches
// it; a move marks the node's old entry dead (its stamp is no longer the node's) and adds a new
// entry at the end, or in text order under a sorted parent.  Then every list that changed is
// taken out of the widget and put back in its final order, once.

#include "QsError.h"
#include "TreeView.h"

#include <QHash>
#include <QSet>
#include <QSignalBlocker>
#include <exception>

namespace qs {

namespace {

struct Entry {
    QTreeWidgetItem* item;
    quint64 stamp; // 0 for a child that was there before the moves
};

class MovePlan {
public:
    MovePlan(QTreeWidgetItem* root, std::function<bool(QTreeWidgetItem*)> sorted)
        : mRoot(root), mSorted(std::move(sorted)) {}

    // The parent an item has after the moves so far; the root for a top-level item.
    QTreeWidgetItem* parentOf(QTreeWidgetItem* item) const {
        const auto found = mParent.constFind(item);
        if (found != mParent.constEnd())
            return *found;
        return item->parent() ? item->parent() : mRoot;
    }

    void move(QTreeWidgetItem* item, QTreeWidgetItem* target) {
        for (QTreeWidgetItem* up = target; up && up != mRoot; up = parentOf(up))
            if (up == item)
                throw QsError(TreeNodes::kErrCycle, QString::fromLatin1(kAppSource),
                              QStringLiteral("This would introduce a cycle"));
        children(parentOf(item));
        QVector<Entry>& list = children(target);
        const quint64 stamp = ++mLastStamp;
        mStamp.insert(item, stamp);
        mParent.insert(item, target);
        int at = list.size();
        if (mSorted(target)) {
            // As TreeView::placeSorted: after the last child whose text is not above it.
            while (at > 0 && (!live(list.at(at - 1)) ||
                              TreeView::textBefore(item->text(0), list.at(at - 1).item->text(0))))
                --at;
        }
        list.insert(at, {item, stamp});
    }

    // The child lists that changed, in the order they were first touched.
    const QVector<QTreeWidgetItem*>& changed() const { return mOrder; }

    // The final children of a changed parent, in order.
    QList<QTreeWidgetItem*> finalChildren(QTreeWidgetItem* parent) const {
        QList<QTreeWidgetItem*> items;
        for (const Entry& e : mChildren.value(parent))
            if (live(e))
                items.append(e.item);
        return items;
    }

private:
    bool live(const Entry& e) const { return mStamp.value(e.item, 0) == e.stamp; }

    QVector<Entry>& children(QTreeWidgetItem* parent) {
        auto found = mChildren.find(parent);
        if (found == mChildren.end()) {
            QVector<Entry> list;
            list.reserve(parent->childCount());
            for (int i = 0; i < parent->childCount(); ++i)
                list.append({parent->child(i), 0});
            found = mChildren.insert(parent, list);
            mOrder.append(parent);
        }
        return *found;
    }

    QTreeWidgetItem* mRoot;
    std::function<bool(QTreeWidgetItem*)> mSorted;
    QHash<QTreeWidgetItem*, QTreeWidgetItem*> mParent;
    QHash<QTreeWidgetItem*, quint64> mStamp;
    QHash<QTreeWidgetItem*, QVector<Entry>> mChildren;
    QVector<QTreeWidgetItem*> mOrder;
    quint64 mLastStamp = 0;
};

} // namespace

void TreeView::moveAll(const QVector<QPair<QString, QString>>& keyToParentKey) {
    QTreeWidgetItem* root = invisibleRootItem();
    MovePlan plan(root, [this, root](QTreeWidgetItem* parent) {
        return parent == root ? mSorted : dataOf(parent)->sorted;
    });
    // A failing pair stops the plan; the moves before it still happen, then it raises.
    std::exception_ptr failure;
    try {
        for (const auto& pair : keyToParentKey) {
            NodeData& node = Nodes.Item(pair.first).live();
            NodeData& parent = Nodes.Item(pair.second).live();
            plan.move(node.item, parent.item);
        }
    } catch (...) {
        failure = std::current_exception();
    }

    const QVector<QTreeWidgetItem*>& changed = plan.changed();
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
                for (QTreeWidgetItem* parent : changed)
                    if ((parent->treeWidget() != nullptr) == inWidget)
                        parent->insertChildren(0, plan.finalChildren(parent));
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
