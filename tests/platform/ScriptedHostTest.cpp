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
    frmProbe() : FormBase(QStringLiteral("frmProbe")) {
        txtName = new QLineEdit(this);
        txtName->setObjectName(QStringLiteral("txtName"));
        cmdOk = new QPushButton(QStringLiteral("OK"), this);
        cmdOk->setObjectName(QStringLiteral("cmdOk"));
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
    hostScript.expectMsgBox(QStringLiteral("Delete it?"), vbYes);
    hostScript.answerMsgBox(vbNo);
    EXPECT_EQ(host().msgBox(QStringLiteral("Delete it?"), vbYesNo | vbQuestion,
                            QStringLiteral("Delete?")),
              vbYes);
    EXPECT_EQ(host().msgBox(QStringLiteral("Really?\r\nSure?"), vbYesNo, QString()), vbNo);
    ASSERT_EQ(hostScript.msgBoxes().size(), 2);
    EXPECT_EQ(hostScript.msgBoxes()[0].icon(), vbQuestion);
    EXPECT_EQ(hostScript.msgBoxes()[0].buttons(), vbYesNo);
    EXPECT_EQ(hostScript.log(), QStringLiteral("MsgBox[36] \"Delete?\": Delete it? -> 6\n"
                                               "MsgBox[4]: Really?\\nSure? -> 7"));
}

TEST_F(ScriptedHostTest, UnscriptedMessageBoxFailsWithItsTextAndAnswersCancel) {
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(answer = host().msgBox(QStringLiteral("Save changes?"), vbYesNoCancel,
                                                   QStringLiteral("Save?")),
                            "Save changes?");
    EXPECT_EQ(answer, vbCancel);
    EXPECT_NONFATAL_FAILURE(answer = host().msgBox(QStringLiteral("Go on?"), vbYesNo, QString()),
                            "Unscripted message box");
    EXPECT_EQ(answer, vbNo);
}

TEST_F(ScriptedHostTest, MessageBoxWithOtherTextThanExpectedFails) {
    hostScript.expectMsgBox(QStringLiteral("Invalid login"), vbOK);
    EXPECT_NONFATAL_FAILURE(host().msgBox(QStringLiteral("Welcome"), vbOKOnly, QString()),
                            "Invalid login");
}

TEST_F(ScriptedHostTest, AnswerThatIsNoButtonOfTheBoxFails) {
    hostScript.answerMsgBox(vbYes);
    EXPECT_NONFATAL_FAILURE(host().msgBox(QStringLiteral("Done."), vbOKOnly, QString()),
                            "not a button");
}

TEST_F(ScriptedHostTest, UnscriptedInputFileAndPrinterPromptsFailAndAnswerCancel) {
    QString text = QStringLiteral("x");
    EXPECT_NONFATAL_FAILURE(
        text = host().inputBox(QStringLiteral("New name"), QStringLiteral("Rename"), QString()),
        "New name");
    EXPECT_TRUE(text.isEmpty());
    FileDialogRequest request;
    request.title = QStringLiteral("Open Module");
    QString path = QStringLiteral("x");
    EXPECT_NONFATAL_FAILURE(path = host().fileDialog(request), "Open Module");
    EXPECT_TRUE(path.isEmpty());
    PrinterChoice choice;
    choice.accepted = true;
    EXPECT_NONFATAL_FAILURE(choice = host().printerDialog(1), "printer dialog");
    EXPECT_FALSE(choice.accepted);
}

TEST_F(ScriptedHostTest, UnusedAnswersFailAtVerification) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost unused;
            unused.expectMsgBox(QStringLiteral("Saved."), vbOK);
        },
        "Saved.");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost unused;
            unused.answerInputBox(QStringLiteral("Tips"));
        },
        "Tips");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost unused;
            unused.answerFileDialog(QStringLiteral("/tmp/a.bas"));
        },
        "/tmp/a.bas");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost unused;
            unused.onModal(QStringLiteral("frmUser"), [](FormBase&) {});
        },
        "frmUser");
}

TEST_F(ScriptedHostTest, ModalHandlerFillsTheFormAndTheShowReturnsAfterItCloses) {
    frmProbe& form = Forms::get<frmProbe>();
    hostScript.onModal<frmProbe>(QStringLiteral("frmProbe"), [](frmProbe& f) {
        EXPECT_TRUE(f.isVisible());
        f.txtName->setText(QStringLiteral("Ada"));
        f.cmdOk->click();
    });
    QPointer<frmProbe> guard(&form);
    form.Show(vbModal);
    ASSERT_TRUE(guard);
    EXPECT_EQ(form.accepted, QStringLiteral("Ada"));
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_EQ(Forms::findByName(QStringLiteral("frmProbe")), nullptr);
    EXPECT_EQ(hostScript.log(), QStringLiteral("Modal: frmProbe"));
}

TEST_F(ScriptedHostTest, ModalHandlerThatLeavesTheFormShownFails) {
    frmProbe& form = Forms::get<frmProbe>();
    hostScript.onModal(QStringLiteral("frmProbe"), [](FormBase&) {});
    EXPECT_NONFATAL_FAILURE(form.Show(vbModal), "still shown");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(ScriptedHostTest, UnscriptedModalShowFails) {
    frmProbe& form = Forms::get<frmProbe>();
    EXPECT_NONFATAL_FAILURE(form.Show(vbModal), "Unscripted modal show of frmProbe");
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
    host().clipboardSetText(QStringLiteral("Dim a\r\n"));
    EXPECT_EQ(host().clipboardGetText(), QStringLiteral("Dim a\r\n"));
    host().clipboardClear();
    EXPECT_TRUE(hostScript.clipboardText().isEmpty());

    host().setMousePointer(vbHourglass);
    EXPECT_EQ(host().mousePointer(), vbHourglass);
    host().setMousePointer(vbDefault);
    EXPECT_EQ(hostScript.pointerHistory(), (QList<int>{vbHourglass, vbDefault}));

    hostScript.setShellResult(2);
    EXPECT_EQ(host().shellExecute(QStringLiteral("open"), QStringLiteral("/x/a.pdf"), QString(),
                                  QString(), 1),
              2);
    host().doEvents();
    host().doEvents();
    EXPECT_EQ(hostScript.doEventsCount(), 2);
    hostScript.setPreviousInstance(true);
    EXPECT_TRUE(host().previousInstance());
    EXPECT_EQ(hostScript.callsOf(QStringLiteral("Shell")).first().toString(),
              QStringLiteral("Shell[1] \"open\": /x/a.pdf -> 2"));
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
