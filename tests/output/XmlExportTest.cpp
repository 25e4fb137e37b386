// Convert to XML: appends that keep the file well-formed, the loose duplicate test, launching.

#include "OutputFixture.h"

#include "frmExportToXMLFile.h"
#include "frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

using XmlExport = OutputWindow;

const QString kLaunch =
    QStringLiteral("Do you want to launch your XML file in you default browser?");

// The value of an XPath expression over the file, without the line end xmllint puts behind it.
std::string xpath(const QString& path, const QString& expression) {
    QByteArray value =
        runTool(toolPath(QStringLiteral("xmllint")), {QStringLiteral("--xpath"), expression, path});
    if (value.endsWith('\n'))
        value.chop(1);
    return value.toStdString();
}

void answerDialog(ScriptedHost& host, bool append, bool history, bool* stayed = nullptr) {
    host.onModal<frmExportToXMLFile>(QStringLiteral("frmExportToXMLFile"),
                                     [=](frmExportToXMLFile& d) {
                                         d.chkAppentoFile->setChecked(append);
                                         d.chkInclVersHist->setChecked(history);
                                         d.cmdOk->click();
                                         if (stayed)
                                             *stayed = d.isVisible();
                                         if (d.isVisible())
                                             d.cmdCancel->click();
                                     });
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

TEST_F(XmlExport, ItemAfterItemAppendsToAFileThatStaysWellFormed) {
    // The test command installs it; a missing tool fails rather than hides the check.
    ASSERT_FALSE(toolPath(QStringLiteral("xmllint")).isEmpty())
        << "xmllint (libxml2-utils) is not installed";
    const QString path = QDir(oddFolder()).filePath(QStringLiteral("items.xml"));
    const QString descriptions[] = {kDescription, QStringLiteral("Second & <last>"),
                                    QStringLiteral("Third \"one\"")};
    int n = 0;
    for (const QString& description : descriptions) {
        SCOPED_TRACE(n);
        const int id = addItem(description, kCode, {{{2024, 5, 6}, "1.0.1"}});
        selectItem(description);
        // The first append finds no file and makes it; the history comes along every other time.
        const bool history = n % 2 == 0;
        answerDialog(hostScript, true, history);
        hostScript.answerFileDialog(path);
        hostScript.expectMsgBox(kLaunch, vbNo);
        form().mnuXml->trigger();
        ++n;

        int exitCode = -1;
        QByteArray errors;
        runTool(toolPath(QStringLiteral("xmllint")), {QStringLiteral("--noout"), path}, &exitCode,
                &errors);
        EXPECT_EQ(exitCode, 0) << errors.toStdString();
        EXPECT_EQ(xpath(path, QStringLiteral("count(//SourceItem)")), std::to_string(n));
        const QString item = QStringLiteral("//SourceItem[@SourceId=\"%1\"]").arg(id);
        EXPECT_EQ(xpath(path, "string(" + item + "/Description)"), description.toStdString());
        EXPECT_EQ(xpath(path, "count(" + item + "/Revisions/Revision)"), history ? "1" : "0");
    }
    EXPECT_EQ(hostScript.lastFileDialog().title, "Select a path to save XML file");
    EXPECT_EQ(hostScript.lastFileDialog().filter, "XML Files (*.xml)|*.xml");
}

TEST_F(XmlExport, AppendRefusesAFileWithALineOfTheMarkerAndTheIdsDigits) {
    const int id = selectTheItem();
    ASSERT_EQ(id, 1);
    const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<SourceItems>\r\n";
    const QByteArray tail = "</SourceItem>\r\n</SourceItems>\r\n";
    struct Case {
        const char* what;
        QByteArray marker;
        bool append;
        bool refused;
    };
    const Case cases[] = {
        {"the same id", "<SourceItem SourceId = \"1\">", true, true},
        {"another id holding the digit", "<SourceItem SourceId = \"10\">", true, true},
        {"case ignored", "<sourceitem sourceid = \"1\">", true, true},
        {"another id", "<SourceItem SourceId = \"2\">", true, false},
        {"no test without append", "<SourceItem SourceId = \"10\">", false, false},
    };
    int n = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString path = home->file(QStringLiteral("dup%1.xml").arg(++n));
        const QByteArray before = head + c.marker + "\r\n" + tail;
        writeFile(path, before);
        bool stayed = false;
        answerDialog(hostScript, c.append, false, &stayed);
        hostScript.answerFileDialog(path);
        if (c.refused)
            hostScript.expectMsgBox(QStringLiteral(
                "The file you selected already has the code information you requested.\r\n"
                "Either ''Cancel Out'', ''Select Another File'', or ''Enter a New File''."));
        else
            hostScript.expectMsgBox(kLaunch, vbNo);
        hostScript.clearCalls();
        form().mnuXml->trigger();

        EXPECT_EQ(stayed, c.refused);
        const QByteArray after = fileBytes(path);
        EXPECT_EQ(after == before, c.refused);
        if (!c.refused) {
            EXPECT_EQ(after.count("<SourceItem SourceId = \"1\">"), 1);
            EXPECT_EQ(after.contains(c.marker), c.append);
        }
    }
}

TEST_F(XmlExport, LaunchOpensTheFileOrShowsItsPathAndACancelledSaveIsReported) {
    selectTheItem();
    struct Case {
        const char* what;
        QString answer; // the save dialog's
        int shellResult;
        QString message; // after the launch question, or the failure; empty for none
    };
    const QString path = home->file(QStringLiteral("launch.xml"));
    const Case cases[] = {
        {"launched", path, 42, ""},
        {"not launched", path, 2,
         "Did not launch successfully in you default browser. \r\nPlease try to launch it "
         "manually or in a different browser.\r\nHere is the path you selected: \r\n" +
             path},
        // The service writes nothing for an empty path; the command tells the user.
        {"save cancelled", "", 42, "You did not choose to save file."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        answerDialog(hostScript, false, false);
        hostScript.answerFileDialog(c.answer);
        hostScript.setShellResult(c.shellResult);
        if (!c.answer.isEmpty())
            hostScript.expectMsgBox(kLaunch, vbYes);
        if (!c.message.isEmpty())
            hostScript.expectMsgBox(c.message);
        hostScript.clearCalls();
        form().mnuXml->trigger();
        EXPECT_EQ(hostScript.callsOf(QStringLiteral("Shell")).size(), c.answer.isEmpty() ? 0 : 1);
        if (c.shellResult != 42) {
            EXPECT_EQ(hostScript.msgBoxes().last().title, "Did Not Launch In Default Browser?");
        }
        EXPECT_TRUE(form().isEnabled());
    }
}
