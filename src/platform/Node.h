#pragma once

#include <QString>
#include <memory>

class QTreeWidgetItem;

namespace qs {

class TreeView;

// What a tree keeps of one node beside its widget item.  Owned by the tree; a Node handle shares
// it, so a handle to a removed node stays safe to hold and raises when used.
struct NodeData : std::enable_shared_from_this<NodeData> {
    TreeView* tree = nullptr; // null once the node is removed
    QTreeWidgetItem* item = nullptr;
    QString key;
    QString tag;
    QString image;
    QString selectedImage;
    long backColor = 0x80000005L;
    bool sorted = false;
    bool bold = false;
    int index = 0; // 1-based place in the collection, in insertion order
};

// A tree node, as the logic sees it: a light handle that can be copied, compared and be
// "Nothing".  Using a Nothing handle raises error 91; using the handle of a removed node raises
// 35605.
class Node {
public:
    Node() = default;

    bool isNothing() const { return !d; }
    explicit operator bool() const { return static_cast<bool>(d); }
    bool operator==(const Node& other) const { return d == other.d; }
    bool operator!=(const Node& other) const { return d != other.d; }

    QString Key() const;
    QString Text() const;
    void setText(const QString& text);
    QString Tag() const;
    void setTag(const QString& tag);
    // Image keys of the tree's image list; empty for none.
    QString Image() const;
    void setImage(const QString& imageKey);
    QString SelectedImage() const;
    void setSelectedImage(const QString& imageKey);

    // Nothing for a node at the top level.
    Node Parent() const;
    // Moves the node with its whole subtree under `newParent` (Nothing: to the top level).  Tag,
    // Image, Expanded and the rest travel with it; the collection order does not change.  A move
    // under the node itself or its own descendant raises 35614.
    void setParent(const Node& newParent);

    int Children() const;
    Node Child() const; // first child in display order, or Nothing
    Node Next() const;  // next sibling in display order, or Nothing
    Node Previous() const;
    Node FirstSibling() const;
    Node LastSibling() const;
    Node Root() const; // the top-level ancestor (the node itself at the top level)

    // True orders the children by text (case ignored) now and keeps later children in order.
    bool Sorted() const;
    void setSorted(bool sorted);
    bool Expanded() const;
    void setExpanded(bool expanded);
    bool Selected() const;
    void setSelected(bool selected);
    long BackColor() const;
    void setBackColor(long color);
    bool Bold() const;
    void setBold(bool bold);
    void EnsureVisible();
    // 1-based place in the tree's Nodes collection.
    int Index() const;
    // Texts from the top-level ancestor down to this node, joined by "\".
    QString FullPath() const;
    TreeView* Tree() const;

private:
    friend class TreeView;
    friend class TreeNodes;
    explicit Node(std::shared_ptr<NodeData> data) : d(std::move(data)) {}
    NodeData& live() const;
    std::shared_ptr<NodeData> d;
};

} // namespace qs
