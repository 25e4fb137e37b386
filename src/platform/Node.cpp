#include "Node.h"

#include "OleColor.h"
#include "QsError.h"
#include "TreeNodes.h"
#include "TreeView.h"

#include <QTreeWidgetItem>

namespace qs {

NodeData& Node::live() const {
    if (!d)
        throw QsError(91, QString::fromLatin1(kAppSource),
                      QStringLiteral("Object variable or With block variable not set"));
    if (!d->tree || !d->item)
        throw QsError(TreeNodes::kErrControlDeleted, QString::fromLatin1(kAppSource),
                      QStringLiteral("Control has been deleted"));
    return *d;
}

QString Node::Key() const {
    return live().key;
}
QString Node::Text() const {
    return live().item->text(0);
}
void Node::setText(const QString& text) {
    live().item->setText(0, text);
}
QString Node::Tag() const {
    return live().tag;
}
void Node::setTag(const QString& tag) {
    live().tag = tag;
}
QString Node::Image() const {
    return live().image;
}
QString Node::SelectedImage() const {
    return live().selectedImage;
}
TreeView* Node::Tree() const {
    return live().tree;
}

void Node::setImage(const QString& imageKey) {
    NodeData& n = live();
    const QString old = n.image;
    n.image = imageKey;
    try {
        n.tree->applyImage(n);
    } catch (...) {
        n.image = old;
        throw;
    }
}

void Node::setSelectedImage(const QString& imageKey) {
    NodeData& n = live();
    const QString old = n.selectedImage;
    n.selectedImage = imageKey;
    try {
        n.tree->applyImage(n);
    } catch (...) {
        n.selectedImage = old;
        throw;
    }
}

Node Node::Parent() const {
    NodeData& n = live();
    return n.tree->nodeOf(n.item->parent());
}

void Node::setParent(const Node& newParent) {
    NodeData& n = live();
    QTreeWidgetItem* target = nullptr;
    if (newParent) {
        NodeData& p = newParent.live();
        if (p.tree != n.tree)
            throw QsError(TreeNodes::kErrElementNotFound, QString::fromLatin1(kAppSource),
                          QStringLiteral("Element not found"));
        for (QTreeWidgetItem* up = p.item; up; up = up->parent())
            if (up == n.item)
                throw QsError(TreeNodes::kErrCycle, QString::fromLatin1(kAppSource),
                              QStringLiteral("This would introduce a cycle"));
        target = p.item;
    }
    n.tree->moveItem(n, target);
}

int Node::Children() const {
    return live().item->childCount();
}

Node Node::Child() const {
    NodeData& n = live();
    return n.tree->nodeOf(n.item->childCount() ? n.item->child(0) : nullptr);
}

namespace {
QTreeWidgetItem* container(QTreeWidgetItem* item) {
    return item->parent() ? item->parent() : item->treeWidget()->invisibleRootItem();
}
} // namespace

Node Node::Next() const {
    NodeData& n = live();
    QTreeWidgetItem* c = container(n.item);
    const int i = c->indexOfChild(n.item);
    return n.tree->nodeOf(i + 1 < c->childCount() ? c->child(i + 1) : nullptr);
}

Node Node::Previous() const {
    NodeData& n = live();
    QTreeWidgetItem* c = container(n.item);
    const int i = c->indexOfChild(n.item);
    return n.tree->nodeOf(i > 0 ? c->child(i - 1) : nullptr);
}

Node Node::FirstSibling() const {
    NodeData& n = live();
    return n.tree->nodeOf(container(n.item)->child(0));
}

Node Node::LastSibling() const {
    NodeData& n = live();
    QTreeWidgetItem* c = container(n.item);
    return n.tree->nodeOf(c->child(c->childCount() - 1));
}

Node Node::Root() const {
    NodeData& n = live();
    QTreeWidgetItem* item = n.item;
    while (item->parent())
        item = item->parent();
    return n.tree->nodeOf(item);
}

bool Node::Sorted() const {
    return live().sorted;
}

void Node::setSorted(bool sorted) {
    NodeData& n = live();
    n.sorted = sorted;
    if (sorted)
        n.tree->sortChildren(n.item);
}

bool Node::Expanded() const {
    return live().item->isExpanded();
}
void Node::setExpanded(bool expanded) {
    live().item->setExpanded(expanded);
}

bool Node::Selected() const {
    NodeData& n = live();
    return n.item->isSelected();
}

void Node::setSelected(bool selected) {
    NodeData& n = live();
    if (selected) {
        n.tree->setSelectedItem(*this);
    } else if (n.item->isSelected()) {
        n.item->setSelected(false);
    }
}

long Node::BackColor() const {
    return live().backColor;
}

void Node::setBackColor(long color) {
    NodeData& n = live();
    // The item shows the colour already; a fill sets it on every node.
    if (color == n.backColor)
        return;
    n.backColor = color;
    n.tree->applyBackColor(n);
}

bool Node::Bold() const {
    return live().bold;
}

void Node::setBold(bool bold) {
    NodeData& n = live();
    n.bold = bold;
    n.tree->applyBold(n);
}

void Node::EnsureVisible() {
    NodeData& n = live();
    for (QTreeWidgetItem* up = n.item->parent(); up; up = up->parent())
        up->setExpanded(true);
    n.tree->scrollToItem(n.item);
}

int Node::Index() const {
    return live().index;
}

QString Node::FullPath() const {
    NodeData& n = live();
    QStringList parts;
    for (QTreeWidgetItem* item = n.item; item; item = item->parent())
        parts.prepend(item->text(0));
    return parts.join(QLatin1Char('\\'));
}

} // namespace qs
