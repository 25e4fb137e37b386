#include "TreeNodes.h"

#include "QsError.h"
#include "TreeView.h"

#include <QTreeWidgetItem>

namespace qs {

namespace {
[[noreturn]] void notFound() {
    throw QsError(TreeNodes::kErrElementNotFound, QString::fromLatin1(kAppSource),
                  QStringLiteral("Element not found"));
}
} // namespace

Node TreeNodes::Add(const QString& relative, int relationship, const QString& key,
                    const QString& text, const QString& image, const QString& selectedImage) {
    return Add(relative.isEmpty() ? Node() : Item(relative), relationship, key, text, image,
               selectedImage);
}

Node TreeNodes::Add(const QString& key, const QString& text, const QString& image) {
    return Add(Node(), tvwLast, key, text, image);
}

Node TreeNodes::Add(const Node& relative, int relationship, const QString& key, const QString& text,
                    const QString& image, const QString& selectedImage) {
    if (relative && relative.live().tree != mTree)
        notFound();
    if (relationship < tvwFirst || relationship > tvwChild)
        throw QsError(380, QString::fromLatin1(kAppSource),
                      QStringLiteral("Invalid property value"));
    if (!key.isEmpty() && mByKey.contains(key))
        throw QsError(kErrKeyNotUnique, QString::fromLatin1(kAppSource),
                      QStringLiteral("Key is not unique in collection"));

    auto data = std::make_shared<NodeData>();
    data->tree = mTree;
    data->key = key;
    data->image = image;
    data->selectedImage = selectedImage;
    QTreeWidgetItem* item = mTree->newItem(data, text);
    try {
        mTree->applyImage(*data);
    } catch (...) {
        delete item;
        throw;
    }

    QTreeWidgetItem* root = mTree->invisibleRootItem();
    if (!relative) {
        mTree->insertChild(root, item, relationship == tvwFirst ? 0 : -1);
    } else {
        QTreeWidgetItem* rel = relative.d->item;
        if (relationship == tvwChild) {
            mTree->insertChild(rel, item, -1);
        } else {
            QTreeWidgetItem* parent = rel->parent() ? rel->parent() : root;
            const int at = parent->indexOfChild(rel);
            const int position = relationship == tvwFirst  ? 0
                                 : relationship == tvwLast ? -1
                                 : relationship == tvwNext ? at + 1
                                                           : at;
            mTree->insertChild(parent, item, position);
        }
    }

    mNodes.append(data);
    data->index = mNodes.size();
    if (!key.isEmpty())
        mByKey.insert(key, data);
    return Node(data);
}

Node TreeNodes::Item(const QString& key) const {
    const auto it = mByKey.constFind(key);
    if (key.isEmpty() || it == mByKey.constEnd())
        notFound();
    return Node(it.value());
}

NodeData* TreeNodes::dataOf(const QString& key) const {
    const auto it = mByKey.constFind(key);
    if (key.isEmpty() || it == mByKey.constEnd())
        notFound();
    return it.value().get();
}

Node TreeNodes::Item(int index) const {
    if (index < 1 || index > mNodes.size())
        notFound();
    return Node(mNodes.at(index - 1));
}

void TreeNodes::Remove(const QString& key) {
    Remove(Item(key));
}
void TreeNodes::Remove(int index) {
    Remove(Item(index));
}

void TreeNodes::Remove(const Node& node) {
    NodeData& n = node.live();
    if (n.tree != mTree)
        notFound();
    mTree->detachSubtree(n.item);
}

void TreeNodes::MoveAll(const QVector<QPair<QString, QString>>& keyToParentKey) {
    mTree->moveAll(keyToParentKey);
}

void TreeNodes::Clear() {
    mTree->clearAll();
}

void TreeNodes::renumber() {
    for (int i = 0; i < mNodes.size(); ++i)
        mNodes[i]->index = i + 1;
}

} // namespace qs
