// Cut, Copy and Paste by the name of the focused control, Select All and the tool-bar Copy.

#include "OutputFixture.h"

#include "ComboBox.h"
#include "ListView.h"
#include "RichTextBox.h"
#include "TreeView.h"
#include "frmMain.h"
#include "mEditCommands.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace qs;
using namespace qs::test;

namespace {

using EditCommands = OutputWindow;

// Selects `length` characters from `start` of a line edit or text pane.
void select(QWidget* control, int start, int length) {
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        edit->setSelection(start, length);
    } else if (auto* box = qobject_cast<RichTextBox*>(control)) {
        box->setSelStart(start);
        box->setSelLength(length);
    } else if (auto* pane = qobject_cast<QPlainTextEdit*>(control)) {
        QTextCursor cursor = pane->textCursor();
        cursor.setPosition(start);
        cursor.setPosition(start + length, QTextCursor::KeepAnchor);
        pane->setTextCursor(cursor);
    }
}

QString textOf(QWidget* control) {
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        return edit->text();
    if (auto* pane = qobject_cast<QPlainTextEdit*>(control))
        return pane->toPlainText();
    return QString();
}

} // namespace

TEST_F(EditCommands, EachCommandWorksOnTheSelectionOfTheFocusedControlUnlessItsNameIsPassedOver) {
    selectTheItem();
    frmMain& f = form();
    const auto menuCopy = [&] { f.mnuCopy->trigger(); };
    const auto buttonCopy = [&] { clickButton(QStringLiteral("Copy")); };
    struct Case {
        const char* what;
        QWidget* control;
        QString text; // put into the control first, unless empty
        int start, length;
        std::function<void()> command;
        QString clipboard; // afterwards
        QString remaining; // the control's text afterwards, for edit fields
        QString failure;   // the literal of a failure report, empty for none
    };
    const Case cases[] = {
        {"menu Copy in the code pane", f.RichTextBoxCode, "", 7, 3, menuCopy, "Sub", "", ""},
        {"tool-bar Copy in the code pane", f.RichTextBoxCode, "", 11, 5, buttonCopy, "Split", "",
         ""},
        {"Copy across lines of the notes", f.txtNotes, "one\ntwo", 2, 3, menuCopy, "e\r\nt",
         "one\ntwo", ""},
        {"Copy passes over the item tree", f.tvwMain, "", 0, 0, menuCopy, "before", "", ""},
        {"Copy reaches a list, which has no selection text", f.lvwRevisionHistory, "", 0, 0,
         menuCopy, "", "", "frmCopyDialog:Copy;"},
        {"Cut in the search field", f.txtSearchString, "hello world", 6, 5, [] { Cut(); }, "world",
         "hello ", ""},
        {"Paste in the search field", f.txtSearchString, "hello world", 0, 5, [] { Paste(); },
         "before", "before world", ""},
        {"Cut reaches the item tree by its newer name", f.tvwMain, "", 0, 0, [] { Cut(); }, "", "",
         "frmCopyDialog:Cut;"},
        {"Paste passes over cboCodeType", f.cboCodeType, "", 0, 0, [] { Paste(); }, "before", "",
         ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        if (auto* edit = qobject_cast<QLineEdit*>(c.control); edit && !c.text.isEmpty())
            edit->setText(c.text);
        if (auto* pane = qobject_cast<QPlainTextEdit*>(c.control); pane && !c.text.isEmpty())
            pane->setPlainText(c.text);
        c.control->setFocus();
        select(c.control, c.start, c.length);
        hostScript.setClipboardText(QStringLiteral("before"));
        if (!c.failure.isEmpty())
            hostScript.expectMsgBox(c.failure + "\r\n\r\nError Number: 438");
        c.command();
        EXPECT_EQ(hostScript.clipboardText().toStdString(), c.clipboard.toStdString());
        if (!c.remaining.isEmpty()) {
            EXPECT_EQ(textOf(c.control).toStdString(), c.remaining.toStdString());
        }
    }
}

TEST_F(EditCommands, SelectAllSelectsTheWholeCodePaneAndGivesItTheFocus) {
    selectTheItem();
    frmMain& f = form();
    f.tvwMain->setFocus();
    f.mnuSelectAll->trigger();
    EXPECT_EQ(QApplication::focusWidget(), f.RichTextBoxCode);
    EXPECT_EQ(f.RichTextBoxCode->SelStart(), 0);
    EXPECT_EQ(f.RichTextBoxCode->SelText().toStdString(), kCode.toStdString());
}

TEST_F(EditCommands, CopyInTheSelectedItemsPaneTakesAllOfItAndLeavesNothingSelected) {
    FormBase window(QStringLiteral("frmApiViewer"));
    auto* pane = new RichTextBox(QStringLiteral("RTBoxSelItems"), &window);
    pane->setText(QStringLiteral("Declare Function A Lib \"a\" ()\r\nConst B = 1"));
    window.show();
    QApplication::setActiveWindow(&window);
    pane->setFocus();
    pane->setSelStart(3);
    Copy();
    EXPECT_EQ(hostScript.clipboardText().toStdString(), pane->Text().toStdString());
    EXPECT_EQ(pane->SelLength(), 0);
}
