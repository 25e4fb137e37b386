#include "FormBase.h"
#include "HostFixture.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <gtest/gtest-spi.h>
#include <memory>

using namespace qs;
using namespace qs::test;

namespace {

// A small window with a text field and an OK button that stores the text and unloads.
class frmProbe : public FormBase {
public:
    frmProbe() : FormBase("frmProbe") {
        txtName = new QLineEdit(this);
        cmdOk = new QPushButton("OK", this);
        connect(cmdOk, &QPushButton::clicked, this, [this] {
            accepted = txtName->text();
            Unload();
        });
    }
    QLineEdit* txtName;
    QPushButton* cmdOk;
    QString accepted;
};

using ScriptedHostTest = HostFixture;

} // namespace

TEST_F(ScriptedHostTest, AnswersMessageBoxesInOrderAndLogsThem) {
    hostScript.expectMsgBox("Delete it?", vbYes);
    hostScript.answerMsgBox(vbNo);
    EXPECT_EQ(host().msgBox("Delete it?", vbYesNo | vbQuestion, "Delete?"), vbYes);
    EXPECT_EQ(host().msgBox("Really?\r\nSure?", vbYesNo, QString()), vbNo);
    ASSERT_EQ(hostScript.msgBoxes().size(), 2);
    EXPECT_EQ(hostScript.msgBoxes()[0].icon(), vbQuestion);
    EXPECT_EQ(hostScript.msgBoxes()[0].buttons(), vbYesNo);
    EXPECT_EQ(hostScript.log(), "MsgBox[36] \"Delete?\": Delete it? -> 6\n"
                                "MsgBox[4]: Really?\\nSure? -> 7");
}

// A box nobody scripted, one with other text than expected, and an answer the box has no
// button for each fail the test with the text; an unscripted box answers its cancel.
TEST_F(ScriptedHostTest, MessageBoxOutsideTheScriptFails) {
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(answer = host().msgBox("Save changes?", vbYesNoCancel, "Save?"),
                            "Save changes?");
    EXPECT_EQ(answer, vbCancel);
    EXPECT_NONFATAL_FAILURE(answer = host().msgBox("Go on?", vbYesNo, QString()),
                            "Unscripted message box");
    EXPECT_EQ(answer, vbNo);
    hostScript.expectMsgBox("Invalid login", vbOK);
    EXPECT_NONFATAL_FAILURE(host().msgBox("Welcome", vbOKOnly, QString()), "Invalid login");
    hostScript.answerMsgBox(vbYes);
    EXPECT_NONFATAL_FAILURE(host().msgBox("Done.", vbOKOnly, QString()), "not a button");
}

TEST_F(ScriptedHostTest, UnscriptedInputFileAndPrinterPromptsFailAndAnswerCancel) {
    QString text = "x";
    EXPECT_NONFATAL_FAILURE(text = host().inputBox("New name", "Rename", QString()), "New name");
    EXPECT_TRUE(text.isEmpty());
    FileDialogRequest request;
    request.title = "Open Module";
    QString path = "x";
    EXPECT_NONFATAL_FAILURE(path = host().fileDialog(request), "Open Module");
    EXPECT_TRUE(path.isEmpty());
    PrinterChoice choice;
    choice.accepted = true;
    EXPECT_NONFATAL_FAILURE(choice = host().printerDialog(1), "printer dialog");
    EXPECT_FALSE(choice.accepted);
}

TEST_F(ScriptedHostTest, UnusedAnswersFailAtVerification) {
    const struct {
        std::function<void(ScriptedHost&)> script;
        std::string text;
    } cases[] = {
        {[](ScriptedHost& s) { s.expectMsgBox("Saved.", vbOK); }, "Saved."},
        {[](ScriptedHost& s) { s.answerInputBox("Tips"); }, "Tips"},
        {[](ScriptedHost& s) { s.answerFileDialog("/tmp/a.bas"); }, "/tmp/a.bas"},
        {[](ScriptedHost& s) { s.onModal("frmUser", [](FormBase&) {}); }, "frmUser"},
    };
    for (const auto& c : cases)
        EXPECT_NONFATAL_FAILURE(
            {
                ScriptedHost unused;
                c.script(unused);
            },
            c.text);
}

TEST_F(ScriptedHostTest, ModalHandlerFillsTheFormAndTheShowReturnsAfterItCloses) {
    frmProbe& form = Forms::get<frmProbe>();
    hostScript.onModal<frmProbe>("frmProbe", [](frmProbe& f) {
        EXPECT_TRUE(f.isVisible());
        f.txtName->setText("Ada");
        f.cmdOk->click();
    });
    QPointer<frmProbe> guard(&form);
    form.Show(vbModal);
    ASSERT_TRUE(guard);
    EXPECT_EQ(form.accepted, "Ada");
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(Forms::findByName("frmProbe"), nullptr);
    EXPECT_EQ(hostScript.log(), "Modal: frmProbe");
}

TEST_F(ScriptedHostTest, ModalShowThatIsUnscriptedOrLeftShownFails) {
    frmProbe& form = Forms::get<frmProbe>();
    EXPECT_NONFATAL_FAILURE(form.Show(vbModal), "Unscripted modal show of frmProbe");
    hostScript.onModal("frmProbe", [](FormBase&) {});
    EXPECT_NONFATAL_FAILURE(form.Show(vbModal), "still shown");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(ScriptedHostTest, EndStopsTheFlowAndIsRecorded) {
    bool after = false;
    EXPECT_TRUE(hostScript.runToEnd([&] {
        host().endProcess();
        after = true;
    }));
    EXPECT_FALSE(after);
    EXPECT_TRUE(hostScript.ended());
    EXPECT_FALSE(hostScript.runToEnd([] {}));
}

TEST_F(ScriptedHostTest, KeepsClipboardPointerShellAndDoEventsState) {
    host().clipboardSetText("Dim a\r\n");
    EXPECT_EQ(host().clipboardGetText(), "Dim a\r\n");
    host().clipboardClear();
    EXPECT_TRUE(hostScript.clipboardText().isEmpty());

    host().setMousePointer(vbHourglass);
    EXPECT_EQ(host().mousePointer(), vbHourglass);
    host().setMousePointer(vbDefault);
    EXPECT_EQ(hostScript.pointerHistory(), (QList<int>{vbHourglass, vbDefault}));

    hostScript.setShellResult(2);
    EXPECT_EQ(host().shellExecute("open", "/x/a.pdf", QString(), QString(), 1), 2);
    EXPECT_EQ(hostScript.callsOf("Shell").first().toString(), "Shell[1] \"open\": /x/a.pdf -> 2");
    host().doEvents();
    host().doEvents();
    EXPECT_EQ(hostScript.doEventsCount(), 2);
    hostScript.setPreviousInstance(true);
    EXPECT_TRUE(host().previousInstance());
}

TEST(GlobalResets, RegisteredResetRunsAndNamedOneIsReplaced) {
    auto plain = std::make_shared<int>(0);
    auto named = std::make_shared<int>(0);
    addGlobalReset([plain] { ++*plain; });
    addGlobalReset("probe", [named] { *named += 1; });
    addGlobalReset("probe", [named] { *named += 10; });
    runGlobalResets();
    EXPECT_EQ(*plain, 1);
    EXPECT_EQ(*named, 10);
}
