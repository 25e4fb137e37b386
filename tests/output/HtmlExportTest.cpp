// Convert to HTML: the options handed to the converter, the title loop, the file an HTML parser
// reads back, and the ways the dialog stays open.

#include "OutputFixture.h"

#include "Globals.h"
#include "frmExportToHtmlFile.h"
#include "frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

using HtmlExport = OutputWindow;

// The text of the page's body as an HTML parser reads it.
QString bodyText(const QString& path) {
    return QString::fromUtf8(runTool(toolPath(QStringLiteral("xmllint")),
                                     {QStringLiteral("--html"), QStringLiteral("--xpath"),
                                      QStringLiteral("string(//body)"), path}));
}

} // namespace

TEST_F(HtmlExport, PageCarriesTheCodeUnderItsHeaderAndAnHtmlParserReadsItBack) {
    // The test command installs it; a missing tool fails rather than hides the check.
    ASSERT_FALSE(toolPath(QStringLiteral("xmllint")).isEmpty())
        << "xmllint (libxml2-utils) is not installed";
    selectTheItem();
    struct Case {
        const char* what;
        bool comments, h, g, cr, launch; // comments: the author line and the history block
    };
    const Case cases[] = {
        {"a fragment, the code alone", false, false, false, false, false},
        {"a page with the author line and the history", true, true, false, false, true},
        {"a page with generator and line ends", false, true, true, true, false},
    };
    int n = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString path = QDir(oddFolder()).filePath(QStringLiteral("page %1.html").arg(++n));
        hostScript.onModal<frmExportToHtmlFile>(QStringLiteral("frmExportToHtmlFile"),
                                                [&c](frmExportToHtmlFile& d) {
                                                    EXPECT_EQ(d.txtCommentSpec->text(), "'");
                                                    d.chkAuthor->setChecked(c.comments);
                                                    d.chkRevisionHistory->setChecked(c.comments);
                                                    d.chkH->setChecked(c.h);
                                                    d.chkG->setChecked(c.g);
                                                    d.chkCR->setChecked(c.cr);
                                                    d.cmdOk->click();
                                                    EXPECT_FALSE(d.IsLoaded());
                                                });
        hostScript.answerFileDialog(path);
        hostScript.expectMsgBox(
            QStringLiteral("Do you want to launch your html file in you default browser?"),
            c.launch ? vbYes : vbNo);
        hostScript.clearCalls();
        form().mnuHtml->trigger();

        EXPECT_EQ(hostScript.lastFileDialog().title, "Select a path to save html file");
        EXPECT_EQ(hostScript.lastFileDialog().filter, "HTML Files (*.html)|*.html");
        EXPECT_TRUE(hostScript.lastFileDialog().overwritePrompt);
        EXPECT_EQ(hostScript.callsOf(QStringLiteral("Shell")).size(), c.launch ? 1 : 0);
        const QByteArray page = fileBytes(path);
        EXPECT_EQ(page.startsWith("<!DOCTYPE"), c.h);
        EXPECT_EQ(page.contains("GENERATOR"), c.g);
        EXPECT_EQ(page.contains("<BR>\r\n"), c.cr);
        int exitCode = -1;
        QByteArray errors;
        runTool(toolPath(QStringLiteral("xmllint")),
                {QStringLiteral("--html"), QStringLiteral("--noout"), path}, &exitCode, &errors);
        EXPECT_EQ(exitCode, 0);
        EXPECT_EQ(errors.toStdString(), "");
        // The author line and the code join, with no "Source Code" line, and the history stands
        // behind the code.  Line breaks are tags, which the body's text doesn't show, so the
        // comparison leaves out all white space.
        const QString header = c.comments ? QStringLiteral("' AUTHOR: ADA LOVELACE") : QString();
        const QString history =
            c.comments ? QStringLiteral("' REVISION HISTORY ' =================") : QString();
        EXPECT_EQ(unspaced(bodyText(path)).toStdString(),
                  unspaced(header + kCode + history).toStdString());
        EXPECT_TRUE(gstrExportText.isEmpty());
        EXPECT_TRUE(form().isEnabled());
    }
}

TEST_F(HtmlExport, TitleLoopAsksUntilATitleWithoutBackQuoteOrUntilTheUserGivesUp) {
    selectTheItem();
    const QString backQuote = QStringLiteral("Title cannot have the character ~");
    const QString none = QStringLiteral("No Title was entered, Do you want a title");
    struct Case {
        const char* what;
        QStringList typed;
        QVector<QPair<QString, int>> questions; // the Title Error questions and their answers
        QString title;                          // empty: no title, and chkT cleared
    };
    const Case cases[] = {
        {"a tilde passes", {"Splitter ~ notes"}, {}, "Splitter ~ notes"},
        {"back-quote, then another", {"a`b", "Good"}, {{backQuote, vbYes}}, "Good"},
        {"back-quote, then give up", {"a`b"}, {{backQuote, vbNo}}, ""},
        {"nothing, then one", {"", "T"}, {{none, vbYes}}, "T"},
        {"nothing, then give up", {""}, {{none, vbNo}}, ""},
    };
    int n = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString path = home->file(QStringLiteral("title %1.html").arg(++n));
        bool titleLeftTicked = false;
        hostScript.onModal<frmExportToHtmlFile>(QStringLiteral("frmExportToHtmlFile"),
                                                [&](frmExportToHtmlFile& d) {
                                                    d.chkH->setChecked(true);
                                                    d.chkT->setChecked(true);
                                                    d.cmdOk->click();
                                                    titleLeftTicked = d.chkT->isChecked();
                                                });
        for (const QString& typed : c.typed)
            hostScript.answerInputBox(typed);
        for (const auto& question : c.questions)
            hostScript.expectMsgBox(question.first, question.second);
        hostScript.answerFileDialog(path);
        hostScript.expectMsgBox(QStringLiteral("launch"), vbNo);
        hostScript.clearCalls();
        form().mnuHtml->trigger();

        const QList<HostCall> asked = hostScript.callsOf(QStringLiteral("InputBox"));
        ASSERT_EQ(asked.size(), c.typed.size());
        EXPECT_EQ(asked[0].title, "HTML Title");
        EXPECT_EQ(asked[0].text, "Please enter a ''Title''");
        for (const HostCall& box : hostScript.msgBoxes().mid(0, c.questions.size()))
            EXPECT_EQ(box.title, "Title Error");
        EXPECT_EQ(titleLeftTicked, !c.title.isEmpty());
        const QByteArray page = fileBytes(path);
        EXPECT_TRUE(page.contains("<TITLE>" + c.title.toLatin1() + "</TITLE>"));
        // A title turns on the option that keeps the text's markup live.
        EXPECT_EQ(page.contains("Len(s) < 3"), !c.title.isEmpty());
        EXPECT_EQ(page.contains("Len(s) &lt; 3"), c.title.isEmpty());
    }
}

TEST_F(HtmlExport, DialogStaysOpenForATitleWithoutHeaderAndAfterACancelledSave) {
    selectTheItem();
    struct Case {
        const char* what;
        bool title;
        QString message; // the message the dialog stays open with
        int icon;
    };
    const Case cases[] = {
        {"title without header", true,
         "You have to check ''Header and Footer'' to add a ''Title''.", vbInformation},
        {"cancelled save", false,
         "frmExportToHtml:cmdOk_Click;\r\n\r\nError Number: 75\r\nError Description: "
         "Path/File access error",
         vbCritical},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        bool stayed = false;
        hostScript.onModal<frmExportToHtmlFile>(QStringLiteral("frmExportToHtmlFile"),
                                                [&](frmExportToHtmlFile& d) {
                                                    d.chkT->setChecked(c.title);
                                                    d.cmdOk->click();
                                                    stayed = d.isVisible();
                                                    d.cmdCancel->click();
                                                });
        if (!c.title)
            hostScript.answerFileDialog(QString());
        hostScript.expectMsgBox(c.message);
        hostScript.clearCalls();
        form().mnuHtml->trigger();
        EXPECT_TRUE(stayed);
        EXPECT_EQ(hostScript.msgBoxes().size(), 1);
        EXPECT_EQ(hostScript.msgBoxes().value(0).icon(), c.icon);
        EXPECT_EQ(hostScript.callsOf(QStringLiteral("FileSave")).size(), c.title ? 0 : 1);
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
        EXPECT_TRUE(form().isEnabled());
    }
}
