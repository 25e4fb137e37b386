#pragma once

#include "Node.h"
#include "TreeNodes.h"

#include <QMimeData>
#include <QTreeWidget>
#include <functional>

namespace qs {

class ImageList;
class TreeMovePlan;

// Drag effects, drag-over states and drop modes.
enum OLEDropEffect : int { vbDropEffectNone = 0, vbDropEffectCopy = 1, vbDropEffectMove = 2 };
enum OLEDragOverState : int { vbEnter = 0, vbLeave = 1, vbOver = 2 };
enum OLEDropModeValue : int { vbOLEDropNone = 0, vbOLEDropManual = 1 };

// LabelEdit values.
enum TreeLabelEdit : int { tvwAutomatic = 0, tvwManual = 1 };

// A tree control over QTreeWidget, with the operations and rules the logic relies on.  Its object
// name is the design name ("tvwMain").  Coordinates (HitTest, mouse events) are pixels of the
// tree's viewport.
class TreeView : public QTreeWidget {
    Q_OBJECT
public:
    explicit TreeView(const QString& name, QWidget* parent = nullptr);
    ~TreeView() override;

    TreeNodes Nodes;

    QString Name() const { return objectName(); }

    // The selected node, Nothing when none; setting it selects without any event.
    Node SelectedItem() const;
    void setSelectedItem(const Node& node);
    // The node at a point of the viewport, or Nothing.
    Node HitTest(int x, int y) const;
    // The drop-target highlight of a drag; Nothing clears it.
    Node DropHighlight() const;
    void setDropHighlight(const Node& node);

    // True orders the top-level nodes by text (case ignored), now and for later ones.
    bool Sorted() const { return mSorted; }
    // The order of sorted children: true when text a comes before b (case ignored).
    static bool textBefore(const QString& a, const QString& b);
    void setSorted(bool sorted);

    // tvwAutomatic: a click on the selected node or F2 starts editing; tvwManual: only
    // StartLabelEdit does.
    int LabelEdit() const { return mLabelEdit; }
    void setLabelEdit(int mode);
    // Starts editing the selected node's text (BeforeLabelEdit may cancel).  Called from
    // AfterLabelEdit, it starts once the closing edit is over.
    void StartLabelEdit();
    // Runs a label edit of `node` to its end with `newText`, as a person typing and pressing
    // Enter does: BeforeLabelEdit, then AfterLabelEdit; the text changes unless either cancels.
    // Returns true when the new text was taken.
    bool PerformLabelEdit(const Node& node, const QString& newText);
    // Selects the node and raises NodeClick as a click of the left button does.
    void PerformClick(const Node& node);
    // True while a label edit of this tree is under way.
    bool IsLabelEditing() const { return mEditing; }
    // Maximum length of the label being edited; 0 for none.  Only an edit under way takes it.
    void setEditBoxLimit(int limit);
    int EditBoxLimit() const { return mEditLimit; }

    // The image list the keys of Image and SelectedImage refer to; nullptr for none.
    void setImageList(ImageList* list);
    ImageList* imageList() const { return mImageList; }

    // Hot tracking: the node under the pointer is underlined.
    bool TrackSelect() const { return mTrackSelect; }
    void setTrackSelect(bool on);
    // Drawing on or off (a fill of many nodes turns it off).
    void setRedraw(bool on);
    bool Redraw() const { return mRedraw; }
    // Scrolls one line up (-1) or down (1).
    void ScrollLine(int direction);

    // Dragging.  OLEDrag starts a drag whose data OLEStartDrag fills; the drop effect comes back
    // through OLECompleteDrag.  With the drop mode manual, drags over the tree raise OLEDragOver
    // (the handler sets the effect; 0 refuses) and a drop raises OLEDragDrop.
    void OLEDrag();
    int OLEDropMode() const { return mOLEDropMode; }
    void setOLEDropMode(int mode);

    // Events, in the design's names.  Cancel arguments are set true to refuse.
    std::function<void(Node)> NodeClick;
    std::function<void(Node)> Expand;
    std::function<void(Node)> Collapse;
    std::function<void(bool& cancel)> BeforeLabelEdit;
    std::function<void(bool& cancel, const QString& newString)> AfterLabelEdit;
    // button: 1 left, 2 right, 4 middle; shift: 1 Shift, 2 Ctrl, 4 Alt.
    std::function<void(int button, int shift, int x, int y)> MouseDown;
    std::function<void(int button, int shift, int x, int y)> MouseUp;
    std::function<void(int button, int shift, int x, int y)> MouseMove;
    std::function<void(int& keyCode, int shift)> KeyDown;
    std::function<void(int& keyCode, int shift)> KeyUp;
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void()> DblClick;
    std::function<void(QMimeData& data, int& allowedEffects)> OLEStartDrag;
    std::function<void(const QMimeData& data, int& effect, int button, int shift, int x, int y,
                       int state)>
        OLEDragOver;
    std::function<void(const QMimeData& data, int& effect, int button, int shift, int x, int y)>
        OLEDragDrop;
    std::function<void(int effect)> OLECompleteDrag;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    friend class Node;
    friend class TreeNodes;
    friend class TreeViewDelegate;
    friend class TreeMovePlan;

    static NodeData* dataOf(const QTreeWidgetItem* item);
    Node nodeOf(const QTreeWidgetItem* item) const;
    QTreeWidgetItem* newItem(const std::shared_ptr<NodeData>& data, const QString& text);
    void insertChild(QTreeWidgetItem* parent, QTreeWidgetItem* item, int position);
    void placeSorted(QTreeWidgetItem* parent, QTreeWidgetItem* item);
    void sortChildren(QTreeWidgetItem* parent);
    void moveItem(NodeData& node, QTreeWidgetItem* newParent);
    // Nodes.MoveAll: plans every move on a model of the child lists, then rebuilds the child
    // lists that changed (TreeViewMoves.cpp).
    void moveAll(const QVector<QPair<QString, QString>>& keyToParentKey);
    // The expanded items in the subtrees below these parents.
    QVector<QTreeWidgetItem*> expandedUnder(const QVector<QTreeWidgetItem*>& parents) const;
    // Runs change, which takes the moved items out and puts them back, with no events.
    void rearrangeQuietly(const QList<QTreeWidgetItem*>& moved,
                          const std::function<void()>& change);
    void applyImage(NodeData& node);
    void applyBackColor(NodeData& node);
    void applyBold(NodeData& node);
    void detachSubtree(QTreeWidgetItem* item);
    void clearAll();
    bool beginLabelEdit();
    bool finishLabelEdit(QTreeWidgetItem* item, const QString& newText);
    void endLabelEdit();
    void onCurrentItemChanged(QTreeWidgetItem* current);

    ImageList* mImageList = nullptr;
    QTreeWidgetItem* mDropHighlight = nullptr;
    bool mSorted = false;
    int mLabelEdit = tvwAutomatic;
    bool dragOver(QDropEvent* event, int state);
    int mOLEDropMode = vbOLEDropNone;
    bool mEditing = false;
    bool mInAfterLabelEdit = false;
    int mEditLimit = 0;
    bool mTrackSelect = false;
    bool mRedraw = true;
    bool mKeySelecting = false;
    bool mQuiet = false; // no Expand/Collapse/NodeClick while the tree rearranges itself
};

} // namespace qs
