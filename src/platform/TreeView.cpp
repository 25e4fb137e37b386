#include "TreeView.h"

#include "ImageList.h"
#include "OleColor.h"
#include "QsError.h"
#include "VbInput.h"

#include <QCursor>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace qs {

namespace {
constexpr int kDataRole = Qt::UserRole + 1;

// Expanded state of a subtree, kept across a take and re-insert, which forgets it.
void saveExpanded(QTreeWidgetItem* item, QVector<QPair<QTreeWidgetItem*, bool>>& out) {
    out.append({item, item->isExpanded()});
    for (int i = 0; i < item->childCount(); ++i)
        saveExpanded(item->child(i), out);
}
} // namespace

// Draws the drop highlight and hot tracking, and runs the label edit box.
class TreeViewDelegate : public QStyledItemDelegate {
public:
    explicit TreeViewDelegate(TreeView* tree) : QStyledItemDelegate(tree), mTree(tree) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem opt(option);
        const QTreeWidgetItem* item = mTree->itemFromIndex(index);
        if (item && item == mTree->mDropHighlight)
            opt.state |= QStyle::State_Selected;
        if (mTree->mTrackSelect && (opt.state & QStyle::State_MouseOver))
            opt.font.setUnderline(true);
        QStyledItemDelegate::paint(painter, opt, index);
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            mEditor = line;
            if (mTree->mEditLimit > 0)
                line->setMaxLength(mTree->mEditLimit);
        }
        return editor;
    }

    void setModelData(QWidget* editor, QAbstractItemModel*,
                      const QModelIndex& index) const override {
        auto* line = qobject_cast<QLineEdit*>(editor);
        QTreeWidgetItem* item = mTree->itemFromIndex(index);
        if (line && item)
            mTree->finishLabelEdit(item, line->text());
    }

    QLineEdit* editor() const { return mEditor.data(); }

private:
    TreeView* mTree;
    mutable QPointer<QLineEdit> mEditor;
};

TreeView::TreeView(const QString& name, QWidget* parent) : QTreeWidget(parent), Nodes(this) {
    setObjectName(name);
    setColumnCount(1);
    header()->hide();
    setSelectionMode(QAbstractItemView::SingleSelection);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    setItemDelegate(new TreeViewDelegate(this));
    setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* current, QTreeWidgetItem*) { onCurrentItemChanged(current); });
    // A node without children has nothing to show or hide: it raises neither event.
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
        if (Expand && !mQuiet && item->childCount() > 0)
            Expand(nodeOf(item));
    });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
        if (Collapse && !mQuiet && item->childCount() > 0)
            Collapse(nodeOf(item));
    });
    connect(itemDelegate(), &QAbstractItemDelegate::closeEditor, this, [this] { endLabelEdit(); });
}

TreeView::~TreeView() {
    // The event members go before the base widget, which may still signal while it dies.
    blockSignals(true);
    itemDelegate()->disconnect(this);
    // Handles held elsewhere must see the nodes as removed.
    for (const auto& n : Nodes.mNodes) {
        n->tree = nullptr;
        n->item = nullptr;
    }
}

NodeData* TreeView::dataOf(const QTreeWidgetItem* item) {
    if (!item)
        return nullptr;
    return reinterpret_cast<NodeData*>(item->data(0, kDataRole).value<quintptr>());
}

Node TreeView::nodeOf(const QTreeWidgetItem* item) const {
    NodeData* d = dataOf(item);
    return d ? Node(d->shared_from_this()) : Node();
}

QTreeWidgetItem* TreeView::newItem(const std::shared_ptr<NodeData>& data, const QString& text) {
    auto* item = new QTreeWidgetItem();
    item->setText(0, text);
    item->setData(0, kDataRole, QVariant::fromValue(reinterpret_cast<quintptr>(data.get())));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    data->item = item;
    return item;
}

namespace {
bool textBefore(const QString& a, const QString& b) {
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
}
} // namespace

void TreeView::insertChild(QTreeWidgetItem* parent, QTreeWidgetItem* item, int position) {
    const bool sorted = parent == invisibleRootItem() ? mSorted : dataOf(parent)->sorted;
    if (sorted) {
        placeSorted(parent, item);
        return;
    }
    if (position < 0 || position > parent->childCount())
        position = parent->childCount();
    parent->insertChild(position, item);
}

void TreeView::placeSorted(QTreeWidgetItem* parent, QTreeWidgetItem* item) {
    // After the last child whose text is not above the new one, so equal texts keep their order.
    int at = parent->childCount();
    while (at > 0 && textBefore(item->text(0), parent->child(at - 1)->text(0)))
        --at;
    parent->insertChild(at, item);
}

void TreeView::sortChildren(QTreeWidgetItem* parent) {
    if (parent->childCount() < 2)
        return;
    QList<QTreeWidgetItem*> children;
    for (int i = 0; i < parent->childCount(); ++i)
        children.append(parent->child(i));
    QList<QTreeWidgetItem*> ordered = children;
    std::stable_sort(ordered.begin(), ordered.end(), [](QTreeWidgetItem* a, QTreeWidgetItem* b) {
        return textBefore(a->text(0), b->text(0));
    });
    if (ordered == children)
        return;
    rearrangeQuietly(children, [&] {
        parent->takeChildren();
        parent->insertChildren(0, ordered);
    });
}

void TreeView::moveItem(NodeData& node, QTreeWidgetItem* newParent) {
    QTreeWidgetItem* item = node.item;
    QTreeWidgetItem* target = newParent ? newParent : invisibleRootItem();
    QTreeWidgetItem* oldParent = item->parent() ? item->parent() : invisibleRootItem();
    rearrangeQuietly({item}, [&] {
        oldParent->takeChild(oldParent->indexOfChild(item));
        insertChild(target, item, -1);
    });
}

void TreeView::rearrangeQuietly(const QList<QTreeWidgetItem*>& moved,
                                const std::function<void()>& change) {
    // Taking items out of the tree collapses them and may move the current item, so both are
    // put back once they are in their new place.
    QVector<QPair<QTreeWidgetItem*, bool>> expanded;
    for (QTreeWidgetItem* item : moved)
        saveExpanded(item, expanded);
    QTreeWidgetItem* current = currentItem();
    const bool quiet = mQuiet;
    mQuiet = true;
    {
        const QSignalBlocker block(this);
        change();
        for (const auto& e : expanded)
            e.first->setExpanded(e.second);
        if (current)
            setCurrentItem(current);
    }
    mQuiet = quiet;
    viewport()->update();
}

void TreeView::applyImage(NodeData& node) {
    if (!mImageList || node.image.isEmpty()) {
        node.item->setIcon(0, QIcon());
        return;
    }
    QIcon icon = mImageList->ListImages(node.image);
    if (!node.selectedImage.isEmpty()) {
        const QIcon selected = mImageList->ListImages(node.selectedImage);
        QIcon both;
        for (const QSize& size : icon.availableSizes())
            both.addPixmap(icon.pixmap(size), QIcon::Normal);
        for (const QSize& size : selected.availableSizes())
            both.addPixmap(selected.pixmap(size), QIcon::Selected);
        icon = both;
    }
    node.item->setIcon(0, icon);
}

void TreeView::applyBackColor(NodeData& node) {
    if (node.backColor == vbWindowBackground)
        node.item->setData(0, Qt::BackgroundRole, QVariant());
    else
        node.item->setBackground(0, QBrush(OleColorToQColor(node.backColor)));
}

void TreeView::applyBold(NodeData& node) {
    QFont f = font();
    f.setBold(node.bold);
    node.item->setFont(0, f);
}

void TreeView::setImageList(ImageList* list) {
    mImageList = list;
    for (const auto& n : Nodes.mNodes) {
        if (mImageList && !n->image.isEmpty() && !mImageList->Exists(n->image))
            continue;
        if (mImageList && !n->selectedImage.isEmpty() && !mImageList->Exists(n->selectedImage))
            continue;
        applyImage(*n);
    }
}

void TreeView::detachSubtree(QTreeWidgetItem* item) {
    QVector<QTreeWidgetItem*> all;
    all.append(item);
    for (int i = 0; i < all.size(); ++i)
        for (int c = 0; c < all[i]->childCount(); ++c)
            all.append(all[i]->child(c));
    for (QTreeWidgetItem* it : all) {
        NodeData* d = dataOf(it);
        if (!d)
            continue;
        if (!d->key.isEmpty())
            Nodes.mByKey.remove(d->key);
        d->tree = nullptr;
        d->item = nullptr;
        if (it == mDropHighlight)
            mDropHighlight = nullptr;
    }
    Nodes.mNodes.erase(std::remove_if(Nodes.mNodes.begin(), Nodes.mNodes.end(),
                                      [](const std::shared_ptr<NodeData>& d) { return !d->tree; }),
                       Nodes.mNodes.end());
    Nodes.renumber();
    const bool quiet = mQuiet;
    mQuiet = true;
    {
        const QSignalBlocker block(this);
        delete item;
    }
    mQuiet = quiet;
}

void TreeView::clearAll() {
    for (const auto& n : Nodes.mNodes) {
        n->tree = nullptr;
        n->item = nullptr;
    }
    Nodes.mNodes.clear();
    Nodes.mByKey.clear();
    mDropHighlight = nullptr;
    const bool quiet = mQuiet;
    mQuiet = true;
    {
        const QSignalBlocker block(this);
        clear();
    }
    mQuiet = quiet;
}

Node TreeView::SelectedItem() const {
    return nodeOf(currentItem());
}

void TreeView::setSelectedItem(const Node& node) {
    if (!node) {
        setCurrentItem(nullptr);
        return;
    }
    NodeData& n = node.live();
    if (n.tree != this)
        throw QsError(TreeNodes::kErrElementNotFound, QString::fromLatin1(kAppSource),
                      QStringLiteral("Element not found"));
    setCurrentItem(n.item);
    n.item->setSelected(true);
}

Node TreeView::HitTest(int x, int y) const {
    return nodeOf(itemAt(QPoint(x, y)));
}

Node TreeView::DropHighlight() const {
    return nodeOf(mDropHighlight);
}

void TreeView::setDropHighlight(const Node& node) {
    mDropHighlight = node ? node.live().item : nullptr;
    viewport()->update();
}

void TreeView::setSorted(bool sorted) {
    mSorted = sorted;
    if (sorted)
        sortChildren(invisibleRootItem());
}

void TreeView::setLabelEdit(int mode) {
    mLabelEdit = mode;
    setEditTriggers(mode == tvwAutomatic
                        ? (QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed)
                        : QAbstractItemView::NoEditTriggers);
}

void TreeView::StartLabelEdit() {
    // Called from AfterLabelEdit to edit again: that waits until the closing edit is over.
    if (mInAfterLabelEdit || state() == QAbstractItemView::EditingState) {
        QMetaObject::invokeMethod(
            this, [this] { StartLabelEdit(); }, Qt::QueuedConnection);
        return;
    }
    if (QTreeWidgetItem* item = currentItem())
        edit(indexFromItem(item), QAbstractItemView::AllEditTriggers, nullptr);
}

bool TreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool wanted = trigger == QAbstractItemView::AllEditTriggers || (editTriggers() & trigger);
    if (!wanted || !index.isValid() || state() == QAbstractItemView::EditingState)
        return QTreeWidget::edit(index, trigger, event);
    if (!beginLabelEdit())
        return false;
    const EditTriggers saved = editTriggers();
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    const bool started = QTreeWidget::edit(index, QAbstractItemView::AllEditTriggers, event);
    setEditTriggers(saved);
    if (!started)
        endLabelEdit();
    return started;
}

bool TreeView::beginLabelEdit() {
    mEditing = true;
    mEditLimit = 0;
    bool cancel = false;
    if (BeforeLabelEdit)
        BeforeLabelEdit(cancel);
    if (cancel)
        mEditing = false;
    return !cancel;
}

bool TreeView::finishLabelEdit(QTreeWidgetItem* item, const QString& newText) {
    bool cancel = false;
    mInAfterLabelEdit = true;
    try {
        if (AfterLabelEdit)
            AfterLabelEdit(cancel, newText);
    } catch (...) {
        mInAfterLabelEdit = false;
        throw;
    }
    mInAfterLabelEdit = false;
    // The handler may have cleared the tree.
    if (!cancel && dataOf(item) && dataOf(item)->item == item)
        item->setText(0, newText);
    return !cancel;
}

void TreeView::endLabelEdit() {
    mEditing = false;
    mEditLimit = 0;
}

void TreeView::setEditBoxLimit(int limit) {
    if (!mEditing)
        return;
    mEditLimit = limit > 0 ? limit : 0;
    if (QLineEdit* line = static_cast<TreeViewDelegate*>(itemDelegate())->editor())
        line->setMaxLength(mEditLimit > 0 ? mEditLimit : 32767);
}

bool TreeView::PerformLabelEdit(const Node& node, const QString& newText) {
    NodeData& n = node.live();
    setSelectedItem(node);
    if (!beginLabelEdit())
        return false;
    const QString typed = mEditLimit > 0 ? newText.left(mEditLimit) : newText;
    const bool taken = finishLabelEdit(n.item, typed);
    endLabelEdit();
    return taken;
}

void TreeView::PerformClick(const Node& node) {
    setSelectedItem(node);
    if (NodeClick)
        NodeClick(node);
}

void TreeView::setTrackSelect(bool on) {
    mTrackSelect = on;
    viewport()->update();
}

void TreeView::setRedraw(bool on) {
    mRedraw = on;
    setUpdatesEnabled(on);
}

void TreeView::ScrollLine(int direction) {
    if (direction < 0)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (direction > 0)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

void TreeView::onCurrentItemChanged(QTreeWidgetItem* current) {
    // Keyboard moves click the node they arrive at; mouse clicks raise NodeClick themselves and
    // the logic's own selections raise nothing.
    if (mKeySelecting && current && NodeClick && !mQuiet)
        NodeClick(nodeOf(current));
}

void TreeView::mousePressEvent(QMouseEvent* event) {
    const QPoint pos = event->position().toPoint();
    const int button = VbButton(event->button());
    // The right button does not move the selection.
    if (event->button() != Qt::RightButton)
        QTreeWidget::mousePressEvent(event);
    if (MouseDown)
        MouseDown(button, VbShift(event->modifiers()), pos.x(), pos.y());
    if (event->button() == Qt::LeftButton && NodeClick) {
        QTreeWidgetItem* hit = itemAt(pos);
        if (hit && hit == currentItem())
            NodeClick(nodeOf(hit));
    }
}

void TreeView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    const QPoint pos = event->position().toPoint();
    if (MouseUp)
        MouseUp(VbButton(event->button()), VbShift(event->modifiers()), pos.x(), pos.y());
}

void TreeView::mouseMoveEvent(QMouseEvent* event) {
    QTreeWidget::mouseMoveEvent(event);
    const QPoint pos = event->position().toPoint();
    if (MouseMove)
        MouseMove(VbButton(event->buttons()), VbShift(event->modifiers()), pos.x(), pos.y());
}

void TreeView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    if (DblClick)
        DblClick();
}

void TreeView::keyPressEvent(QKeyEvent* event) {
    int code = VbKeyCode(event->key());
    if (KeyDown) {
        KeyDown(code, VbShift(event->modifiers()));
        if (code == 0) {
            event->accept();
            return;
        }
    }
    mKeySelecting = true;
    QTreeWidget::keyPressEvent(event);
    mKeySelecting = false;
}

void TreeView::keyReleaseEvent(QKeyEvent* event) {
    QTreeWidget::keyReleaseEvent(event);
    int code = VbKeyCode(event->key());
    if (KeyUp)
        KeyUp(code, VbShift(event->modifiers()));
}

void TreeView::focusInEvent(QFocusEvent* event) {
    QTreeWidget::focusInEvent(event);
    if (GotFocus)
        GotFocus();
}

void TreeView::focusOutEvent(QFocusEvent* event) {
    QTreeWidget::focusOutEvent(event);
    if (LostFocus)
        LostFocus();
}

namespace {
Qt::DropActions toActions(int effects) {
    Qt::DropActions actions;
    if (effects & vbDropEffectCopy)
        actions |= Qt::CopyAction;
    if (effects & vbDropEffectMove)
        actions |= Qt::MoveAction;
    return actions;
}

int toEffect(Qt::DropAction action) {
    switch (action) {
    case Qt::CopyAction:
        return vbDropEffectCopy;
    case Qt::MoveAction:
        return vbDropEffectMove;
    default:
        return vbDropEffectNone;
    }
}

Qt::DropAction preferred(int effect) {
    if (effect & vbDropEffectMove)
        return Qt::MoveAction;
    if (effect & vbDropEffectCopy)
        return Qt::CopyAction;
    return Qt::IgnoreAction;
}
} // namespace

void TreeView::OLEDrag() {
    auto* data = new QMimeData();
    int allowed = vbDropEffectCopy | vbDropEffectMove;
    if (OLEStartDrag)
        OLEStartDrag(*data, allowed);
    if (allowed == vbDropEffectNone) {
        delete data;
        return;
    }
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    const int effect = toEffect(drag->exec(toActions(allowed), preferred(allowed)));
    if (OLECompleteDrag)
        OLECompleteDrag(effect);
}

void TreeView::setOLEDropMode(int mode) {
    mOLEDropMode = mode;
    setAcceptDrops(mode == vbOLEDropManual);
    viewport()->setAcceptDrops(mode == vbOLEDropManual);
}

// Raises OLEDragOver and answers the drag with the effect the handler chose.
bool TreeView::dragOver(QDropEvent* event, int state) {
    const QPoint pos = event->position().toPoint();
    int effect = toEffect(event->proposedAction());
    if (effect == vbDropEffectNone)
        effect = vbDropEffectMove;
    if (OLEDragOver)
        OLEDragOver(*event->mimeData(), effect, VbButton(event->buttons()),
                    VbShift(event->modifiers()), pos.x(), pos.y(), state);
    if (effect == vbDropEffectNone || !(toActions(effect) & event->possibleActions())) {
        event->ignore();
        return false;
    }
    event->setDropAction(preferred(effect));
    event->accept();
    return true;
}

void TreeView::dragEnterEvent(QDragEnterEvent* event) {
    if (mOLEDropMode != vbOLEDropManual) {
        QTreeWidget::dragEnterEvent(event);
        return;
    }
    // The enter is always taken, so that moves over the tree keep asking.
    dragOver(event, vbEnter);
    event->accept();
}

void TreeView::dragMoveEvent(QDragMoveEvent* event) {
    if (mOLEDropMode != vbOLEDropManual) {
        QTreeWidget::dragMoveEvent(event);
        return;
    }
    dragOver(event, vbOver);
}

void TreeView::dragLeaveEvent(QDragLeaveEvent* event) {
    QTreeWidget::dragLeaveEvent(event);
    if (mOLEDropMode == vbOLEDropManual && OLEDragOver) {
        QMimeData none;
        int effect = vbDropEffectNone;
        const QPoint pos = viewport()->mapFromGlobal(QCursor::pos());
        OLEDragOver(none, effect, 0, 0, pos.x(), pos.y(), vbLeave);
    }
}

void TreeView::dropEvent(QDropEvent* event) {
    if (mOLEDropMode != vbOLEDropManual) {
        QTreeWidget::dropEvent(event);
        return;
    }
    const QPoint pos = event->position().toPoint();
    int effect = toEffect(event->dropAction());
    if (OLEDragDrop)
        OLEDragDrop(*event->mimeData(), effect, VbButton(event->buttons()),
                    VbShift(event->modifiers()), pos.x(), pos.y());
    if (effect == vbDropEffectNone) {
        event->ignore();
        return;
    }
    event->setDropAction(preferred(effect));
    event->accept();
}

} // namespace qs
