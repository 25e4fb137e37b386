#pragma once

#include "Node.h"

#include <QHash>
#include <QVector>

namespace qs {

class TreeView;

// Relationships of Nodes.Add.
enum TreeRelationship : int {
    tvwFirst = 0,
    tvwLast = 1,
    tvwNext = 2,
    tvwPrevious = 3,
    tvwChild = 4
};

// The Nodes collection of a tree: insertion order, keys in a hash.
//   Errors: an absent key or index raises 35601 "Element not found"; a duplicate key raises
//   35602 "Key is not unique in collection".  Keys are case-sensitive; an empty key is allowed
//   and is not looked up.
class TreeNodes {
public:
    static constexpr long kErrElementNotFound = 35601;
    static constexpr long kErrKeyNotUnique = 35602;
    static constexpr long kErrControlDeleted = 35605;
    static constexpr long kErrCycle = 35614;

    // An empty `relative` adds at the top level, after the others.
    Node Add(const QString& relative, int relationship, const QString& key, const QString& text,
             const QString& image = QString(), const QString& selectedImage = QString());
    Node Add(const Node& relative, int relationship, const QString& key, const QString& text,
             const QString& image = QString(), const QString& selectedImage = QString());
    // A node added with no relative at all.
    Node Add(const QString& key, const QString& text, const QString& image = QString());

    Node operator()(const QString& key) const { return Item(key); }
    Node operator()(int index) const { return Item(index); }
    Node Item(const QString& key) const;
    Node Item(int index) const; // 1-based, insertion order
    bool Exists(const QString& key) const { return mByKey.contains(key); }
    int Count() const { return mNodes.size(); }

    // Removes the node and its subtree.
    void Remove(const QString& key);
    void Remove(int index);
    void Remove(const Node& node);
    void Clear();

    // Moves many nodes, each with its subtree, under new parents in one go: the node of each
    // pair's first key goes under the node of its second, in list order.  The tree ends as that
    // many Parent assignments would leave it: the same parents, children in the same order (a
    // sorted parent puts each arrival in its place), the same expanded nodes and selection.  A
    // pair whose key or parent key is absent raises 35601, and a move under the node's own
    // subtree 35614, as Parent assignment does; the pairs before it are moved, none after.
    // The widget is rearranged once, at the end, so a fill's second pass is linear in the
    // number of nodes where one assignment at a time shifts the root's whole child list.
    void MoveAll(const QVector<QPair<QString, QString>>& keyToParentKey);

    // Iteration in insertion order (moves by Parent do not change it).
    class const_iterator {
    public:
        const_iterator(const TreeNodes* nodes, int i) : mNodes(nodes), mI(i) {}
        Node operator*() const { return Node(mNodes->mNodes.at(mI)); }
        const_iterator& operator++() {
            ++mI;
            return *this;
        }
        bool operator!=(const const_iterator& other) const { return mI < other.mI; }

    private:
        const TreeNodes* mNodes;
        int mI;
    };
    const_iterator begin() const { return const_iterator(this, 0); }
    const_iterator end() const { return const_iterator(this, mNodes.size()); }

private:
    friend class TreeView;
    explicit TreeNodes(TreeView* tree) : mTree(tree) {}
    TreeNodes(const TreeNodes&) = delete;
    TreeNodes& operator=(const TreeNodes&) = delete;
    void renumber();
    // The data of the node of that key; raises as Item does.
    NodeData* dataOf(const QString& key) const;

    TreeView* mTree;
    QVector<std::shared_ptr<NodeData>> mNodes;
    QHash<QString, std::shared_ptr<NodeData>> mByKey;
};

} // namespace qs
