// Print: the selection or the whole code pane, one pass per copy, through the printer dialog.

#include "OutputFixture.h"

#include "RichTextBox.h"
#include "frmMain.h"

#include <QFileInfo>

using namespace qs;
using namespace qs::test;

namespace {
using Print = OutputWindow;
} // namespace

TEST_F(Print, EachCopyIsOnePassOfTheSelectionOrOfTheWholeCode) {
    selectTheItem();
    RichTextBox* code = form().RichTextBoxCode;
    struct Case {
        const char* what;
        int start, length;
        int copies;
        QString pass;
    };
    const Case cases[] = {
        {"whole code, one copy", 0, 0, 1, kCode},
        {"whole code, three copies", 0, 0, 3, kCode},
        {"a selection", 7, 9, 2, "Sub Split"},
        {"a selection of blanks", 31, 4, 1, "    "},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        code->setSelStart(c.start);
        code->setSelLength(c.length);
        hostScript.answerPrinter(true, QStringLiteral("Office"), c.copies);
        hostScript.clearCalls();
        clickButton(QStringLiteral("Print"));
        const QList<HostCall> printed = hostScript.callsOf(QStringLiteral("Print"));
        ASSERT_EQ(printed.size(), 1);
        EXPECT_EQ(printed[0].text.toStdString(),
                  (c.pass + "\r\n").repeated(c.copies).toStdString());
        EXPECT_EQ(printed[0].answer, "Office");
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    }
}

TEST_F(Print, PrintingToAPdfFileRunsTheRealPrintPath) {
    // The test command installs it; a missing tool fails rather than hides the check.
    ASSERT_FALSE(toolPath(QStringLiteral("pdftotext")).isEmpty())
        << "pdftotext (poppler-utils) is not installed";
    selectTheItem();
    const QString pdf = oddFolder() + QStringLiteral("/printed.pdf");
    hostScript.answerPrinter(true, QString(), 2, pdf);
    clickButton(QStringLiteral("Print"));
    ASSERT_TRUE(QFileInfo::exists(pdf));
    const QString text = pdfText(pdf).simplified();
    EXPECT_EQ(text.count(QStringLiteral("Public Sub Split")), 2) << text.toStdString();
    EXPECT_TRUE(text.contains(kCode.simplified())) << text.toStdString();
}

TEST_F(Print, CancelInThePrinterDialogIsReportedAndPrintsNothing) {
    selectTheItem();
    hostScript.answerPrinter(false);
    hostScript.expectMsgBox(
        QStringLiteral("mPrinterprntTextWithNumberOfPagesDialog;\r\n\r\nError Number: 32755"));
    clickButton(QStringLiteral("Print"));
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Print")).isEmpty());
    EXPECT_EQ(hostScript.mousePointer(), vbDefault);
}
