// Moving an item or folder of tvwMain onto a folder of its kind, or a folder onto the root, by
// dragging its node.  The drag carries the node's key in the private format "Tarnwick"; a drop
// moves the node and writes one thing, the new parent.  tmrDrag scrolls the tree near its edges
// and opens a folder the pointer rests on.

#include "frmMain.h"

#include "ClipboardFormats.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "Timer.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"

#include <QAction>
#include <QMimeData>

namespace qs {

using namespace NodeKeys;

namespace {

const QString kRoot = QStringLiteral("ROOT");
const QString kOpenFolder = QStringLiteral("OpenFolder");
const QString kClosedFolder = QStringLiteral("ClosedFolder");
constexpr int kLeftButton = 1;
constexpr int kDragInterval = 100;
constexpr int kHoverTicks = 10; // a folder opens on the tick after these
constexpr int kTwipsPerPixel = 15;
constexpr int kScrollUpZone = 300;   // twips below the top edge
constexpr int kScrollDownZone = 500; // twips above the bottom edge

bool isFolderImage(const QString& image) {
    return image == kOpenFolder || image == kClosedFolder;
}

// The kind of a dragged key; the last word that matches wins.
QString dragTypeOf(const QString& key) {
    QString type;
    for (const char* word : {"Article", "Component", "Code", "Tip", "Class", "Module"})
        if (key.contains(QLatin1String(word), Qt::CaseInsensitive))
            type = QLatin1String(word);
    return type;
}

} // namespace

void frmMain::connectDeleteAndDrag() {
    Wire(this, mnuDelete, &QAction::triggered, "mnuDelete_Click", [this] { mnuDelete_Click(); });
    TreeView* const items = tvwMain;
    items->setOLEDropMode(vbOLEDropManual);
    Wire(this, items->MouseMove, "tvwMain_MouseMove",
         [this](int button, int shift, int x, int y) { tvwMain_MouseMove(button, shift, x, y); });
    Wire(this, items->OLEStartDrag, "tvwMain_OLEStartDrag",
         [this](QMimeData& data, int& allowed) { tvwMain_OLEStartDrag(data, allowed); });
    Wire(this, items->OLEDragOver, "tvwMain_OLEDragOver",
         [this](const QMimeData& data, int& effect, int button, int shift, int x, int y,
                int state) { tvwMain_OLEDragOver(data, effect, button, shift, x, y, state); });
    Wire(this, items->OLEDragDrop, "tvwMain_OLEDragDrop",
         [this](const QMimeData& data, int& effect, int button, int shift, int x, int y) {
             tvwMain_OLEDragDrop(data, effect, button, shift, x, y);
         });
    Wire(this, items->OLECompleteDrag, "tvwMain_OLECompleteDrag",
         [this](int effect) { tvwMain_OLECompleteDrag(effect); });
    Wire(this, tmrDrag->OnTimer, "tmrDrag_Timer", [this] { tmrDrag_Timer(); });
}

bool frmMain::hasDragFormat(const QMimeData& data) const {
    const QString mime = ClipboardFormatMime(mintDragFormat);
    return !mime.isEmpty() && data.hasFormat(mime);
}

void frmMain::tvwMain_MouseMove(int Button, int Shift, int x, int y) {
    (void)Shift;
    (void)x;
    (void)y;
    try {
        if (!mnodMouseDown)
            return;
        if (Button != kLeftButton) {
            mnodMouseDown = Node();
            return;
        }
        // The root can't be dragged.
        if (mnodMouseDown.Key() == kRoot)
            return;
        tvwMain->setSelectedItem(mnodMouseDown);
        tmrDrag->setInterval(kDragInterval);
        tmrDrag->setEnabled(true);
        tvwMain->OLEDrag();
    } catch (...) {
        HandleFailure("frmMain:tvwMain_MouseMove;");
    }
}

void frmMain::tvwMain_OLEStartDrag(QMimeData& Data, int& AllowedEffects) {
    try {
        AllowedEffects = vbDropEffectMove;
        if (mnodMouseDown)
            Data.setData(ClipboardFormatMime(mintDragFormat), mnodMouseDown.Key().toLatin1());
    } catch (...) {
        HandleFailure("frmMain:tvwMain_OLEStartDrag;");
    }
}

void frmMain::tvwMain_OLEDragOver(const QMimeData& Data, int& Effect, int Button, int Shift, int x,
                                  int y, int State) {
    (void)Button;
    (void)Shift;
    (void)State;
    // A drag over the tree must never report: whatever fails here only refuses.
    try {
        TreeView& tree = *tvwMain;
        if (!hasDragFormat(Data) || !mnodMouseDown) {
            Effect = vbDropEffectNone;
            return;
        }
        const Node hit = tree.HitTest(x, y);
        if (!hit) {
            tree.setDropHighlight(Node());
            return;
        }
        const QString hitKey = hit.Key();
        const Node selected = tree.SelectedItem();
        if (selected && hitKey == selected.Key()) {
            tree.setDropHighlight(Node());
            return;
        }
        const QString dragKey = mnodMouseDown.Key();
        // Outline members never move, only folders go to the root, and items are no targets.
        if (IsModuleMember(dragKey) || (hitKey == kRoot && !isFolderImage(mnodMouseDown.Image())) ||
            (!isFolderImage(hit.Image()) && hit.Image() != QLatin1String("MainIco"))) {
            Effect = vbDropEffectNone;
            return;
        }
        // Kinds don't mix; the tested word of the key is not compared.
        mstrDragType = dragTypeOf(dragKey);
        if (hitKey != kRoot && !hitKey.contains(mstrDragType, Qt::CaseInsensitive)) {
            Effect = vbDropEffectNone;
            return;
        }
        if (hitKey == dragKey) {
            tree.setDropHighlight(Node());
            Effect = vbDropEffectNone;
        } else {
            tree.setDropHighlight(hit);
        }
        host().doEvents();
        const int twips = y * kTwipsPerPixel;
        const int height = tree.viewport()->height() * kTwipsPerPixel;
        if (twips > 0 && twips < kScrollUpZone)
            mintDragScroll = -1;
        else if (twips > height - kScrollDownZone && twips < height)
            mintDragScroll = 1;
        else
            mintDragScroll = 0;
    } catch (...) {
        Effect = vbDropEffectNone;
    }
}

void frmMain::tmrDrag_Timer() {
    try {
        if (!mnodMouseDown) {
            tmrDrag->setEnabled(false);
            return;
        }
        ++mlngDragTicks;
        if (mlngDragTicks > kHoverTicks) {
            Node target = tvwMain->DropHighlight();
            if (target) {
                if (!target.Expanded())
                    target.setExpanded(true);
                mlngDragTicks = 0;
                return;
            }
        }
        tvwMain->ScrollLine(mintDragScroll);
    } catch (...) {
        HandleFailure("frmMain:tmrDrag_Timer;");
    }
}

void frmMain::tvwMain_OLEDragDrop(const QMimeData& Data, int& Effect, int Button, int Shift, int x,
                                  int y) {
    (void)Button;
    (void)Shift;
    (void)x;
    (void)y;
    TreeView& tree = *tvwMain;
    bool format = false;
    try {
        format = hasDragFormat(Data);
    } catch (...) {
        format = false;
    }
    if (!format) {
        mnodMouseDown = Node();
        tree.setDropHighlight(Node());
        Effect = vbDropEffectNone;
        return;
    }
    try {
        if (!mnodMouseDown) {
            tree.setDropHighlight(Node());
            Effect = vbDropEffectNone;
            return;
        }
        Node target = tree.DropHighlight();
        if (!target) {
            mnodMouseDown = Node();
            tree.setDropHighlight(Node());
            Effect = vbDropEffectNone;
            return;
        }
        mblnFilling = true;
        Node moved = mnodMouseDown;
        Node oldParent = moved.Parent();
        // The subtree moves with the node.
        moved.setParent(target);
        if (oldParent && oldParent.Image() == kOpenFolder && oldParent.Children() == 0)
            oldParent.setImage(kClosedFolder);
        if (target.Image() == kClosedFolder)
            target.setImage(kOpenFolder);

        const QString key = moved.Key();
        if (key != kRoot)
            glngSelectedId = IdOf(key);
        glngParentId = moved.Parent().Key() == kRoot ? 0 : IdOf(target.Key());
        setSelectionType(key, true);

        // The family is read from the target: a folder dropped on the root takes the code path.
        const auto library = NewLibrary();
        host().doEvents();
        const QString targetKey = target.Key();
        const int id = static_cast<int>(glngSelectedId);
        if (!targetKey.contains(QLatin1String("Article")) &&
            !targetKey.contains(QLatin1String("Component"))) {
            cSourceCode code = library->GetSourceCode(id);
            code.BeginEdit(0);
            code.ParentId(static_cast<int>(glngParentId));
            code.Save();
        } else {
            cSourceFile file = library->GetSourceFile(id);
            file.BeginEdit(0);
            file.ParentId(static_cast<int>(glngParentId));
            file.Save();
        }

        tree.setDropHighlight(Node());
        mnodMouseDown = Node();
        tmrDrag->setEnabled(false);
        if (const Node selected = tree.SelectedItem())
            tvwMain_NodeClick(selected);
        mblnFilling = false;
    } catch (...) {
        // The node stays where it was dropped; the library keeps the old parent, and the tree
        // shows it again at its next fill.  The drag ends, so the tree's handlers run again.
        tree.setDropHighlight(Node());
        mnodMouseDown = Node();
        tmrDrag->setEnabled(false);
        mblnFilling = false;
        Effect = vbDropEffectNone;
        HandleFailure("frmMain:tvwMain_OLEDragDrop;");
    }
}

void frmMain::tvwMain_OLECompleteDrag(int Effect) {
    (void)Effect;
    try {
        host().setMousePointer(vbDefault);
        tmrDrag->setEnabled(false);
    } catch (...) {
        HandleFailure("frmMain:tvwMain_OLECompleteDrag;");
    }
}

} // namespace qs
