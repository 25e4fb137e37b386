// Routes of the window that are not menu entries: context help on F1, the pop-up menus, and the
// tool bar's steps through the trees and its delete and add commands.

#include "frmMain.h"

#include "ComboBox.h"
#include "EventWiring.h"
#include "Host.h"
#include "ListBox.h"
#include "ListView.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "TreeView.h"
#include "VbInput.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

namespace qs {

namespace {
constexpr int kKeyF1 = 112;
constexpr long kTopicNotes = 1420;
} // namespace

void frmMain::keyPressEvent(QKeyEvent* event) {
    // Keys the control with the focus leaves alone arrive here.
    int code = VbKeyCode(event->key());
    const int shift = VbShift(event->modifiers());
    RunHandler(this, "Form_KeyDown", [&] { Form_KeyDown(code, shift); });
    if (code == 0) {
        event->accept();
        return;
    }
    FormBase::keyPressEvent(event);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtNotes && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        int code = VbKeyCode(key->key());
        const int shift = VbShift(key->modifiers());
        RunHandler(this, "txtNotes_KeyDown", [&] { txtNotes_KeyDown(code, shift); });
        if (code == 0)
            return true;
    }
    return FormBase::eventFilter(watched, event);
}

void frmMain::Form_KeyDown(int& KeyCode, int Shift) {
    (void)Shift;
    try {
        if (KeyCode != kKeyF1)
            return;
        const QHash<QWidget*, long> topics = {
            {tvwMain, 1370},
            {tvwBookMarks, 1380},
            {tvwSearchResults, 1390},
            {tvwCategories, 1400},
            {RichTextBoxCode, 1410},
            {txtNotes, kTopicNotes},
            {txtFileNotes, kTopicNotes},
            {lvwRevisionHistory, 1430},
            {lstSrcFileRevHist, 1430},
            {txtRevisionAuthorSC, 1440},
            {txtSFRevHistAuthor, 1440},
            {txtChangesSC, 1450},
            {txtRevCommentsSF, 1450},
            {txtVersionNo, 1460},
            {txtSourceAuthor, 1470},
            {txtDateWritten, 1480},
            {txtDateEntered, 1490},
            {txtExample, 1500},
            {lboxVerInfo, 1510},
            {cboCategory, 1610},
            {cboCodeType, 1620},
            {cboTestedOrUntested, 1630},
            {txtSearchString, 1640},
        };
        // The control with the focus, or the one it belongs to (a combo's edit box).
        for (QWidget* w = focusWidget(); w && w != this; w = w->parentWidget()) {
            const auto found = topics.constFind(w);
            if (found != topics.constEnd()) {
                KeyCode = 0;
                ShowHelpTopic(*found, true);
                return;
            }
        }
        KeyCode = 0;
        ShowHelpContents();
    } catch (...) {
        HandleFailure("frmMain:Form_KeyDown;");
    }
}

void frmMain::txtNotes_KeyDown(int& KeyCode, int Shift) {
    (void)Shift;
    try {
        if (KeyCode != kKeyF1)
            return;
        KeyCode = 0;
        ShowHelpTopic(kTopicNotes, true);
    } catch (...) {
        HandleFailure("frmMain:txtNotes_KeyDown;");
    }
}

void frmMain::mnuHelpOnHelp_Click() {
    try {
        // The help is a set of linked pages, and its contents page is where one learns to find
        // one's way through them: help on the help opens there.
        ShowHelpContents();
    } catch (...) {
        HandleFailure("frmMain:mnuHelpOnHelp_Click;");
    }
}

void frmMain::stepInTree(bool forward) {
    const bool cats = mstrActiveTree == QLatin1String("Cats");
    TreeView& tree = cats ? *tvwCategories : *tvwMain;
    const Node selected = tree.SelectedItem();
    if (!selected)
        return;
    // The original also sent the tree a selection message here whose flag selects nothing;
    // it has no effect to keep.
    Node target = forward ? selected.Next() : selected.Previous();
    if (!target)
        target = forward ? selected.Child() : selected.Parent();
    if (!target)
        return;
    target.setExpanded(true);
    target.setSelected(true);
    tree.setSelectedItem(target);
    if (cats)
        tvwCategories_NodeClick(target);
    else
        tvwMain_NodeClick(target);
}

void frmMain::DeleteNodeCommand() {
    if (mstrActiveTree == QLatin1String("BookMarks")) {
        mnuDelBookmark->trigger();
        return;
    }
    const Node selected = tvwMain->SelectedItem();
    if (!selected)
        return;
    if (selected.Key().contains(QLatin1String("ROOT"))) {
        host().msgBox(QStringLiteral("The ''Root'' directory cannot be deleted. Click on any "
                                     "other node to delete it"),
                      vbOKOnly, QString::fromLatin1(APP_TITLE));
        tvwMain_NodeClick(selected);
        host().setMousePointer(vbDefault);
        return;
    }
    tvwMain_NodeClick(selected);
    mnuDelete->trigger();
}

void frmMain::AddItemCommand() {
    // No button carries this tag; the route stays for a command that names it.
    if (mstrActiveTree == QLatin1String("Cats")) {
        const Node selected = tvwCategories->SelectedItem();
        if (selected && selected.Text() != QLatin1String("Tarnwick Categories"))
            host().msgBox(
                QStringLiteral("You can only add ''Categories'' to this tree view.\r\n"
                               "Either click on the root and then click on the ''Add'' button\r\n"
                               "Or right click on the root: ''Tarnwick Categories''."),
                vbInformation, QString::fromLatin1(APP_TITLE));
    } else if (mstrActiveTree == QLatin1String("Main")) {
        SSTabNavigate->setTab(0);
    }
}

} // namespace qs
