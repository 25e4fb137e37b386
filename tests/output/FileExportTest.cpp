// RTF, text and PDF export through the copy dialog, and the empty code pane every output command
// refuses.

#include "OutputFixture.h"

#include "AppPaths.h"
#include "Cp1252.h"
#include "Globals.h"
#include "RichTextBox.h"
#include "frmCopyDialog.h"
#include "frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

using FileExport = OutputWindow;

struct Kind {
    const char* name;
    QAction* frmMain::*command;
    const char* caption;
    const char* saveTitle;
    const char* filter;
    const char* ending;
    const char* launch;
    const char* chosen;  // in the save dialog
    const char* written; // the ending is added unless the name ends in exactly it
};
const Kind kKinds[] = {
    {"RTF", &frmMain::mnuRTF, "Export to RTF File", "Save RTF File", "RTF Files (*.rtf)|*.rtf",
     ".rtf", "Do you want to launch your rtf file?", "item", "item.rtf"},
    {"text", &frmMain::mnuTextFile, "Export to Text File", "Save Text File",
     "Text Files (*.txt)|*.txt", ".txt", "Do you want to launch your text file?", "item.TXT",
     "item.TXT.txt"},
    {"PDF", &frmMain::mnuPDF, "Export to PDF File", "Save PDF File", "PDF Files (*.pdf)|*.pdf",
     ".pdf", "Do you want to launch your pdf file?", "item.pdf", "item.pdf"},
};

// The dialog ticks author and description and is left with OK, or is cancelled.
void answerCopyDialog(ScriptedHost& host, bool ok, QString* caption = nullptr) {
    host.onModal<frmCopyDialog>(QStringLiteral("frmCopyDialog"), [=](frmCopyDialog& d) {
        if (caption)
            *caption = d.Caption();
        d.chkAuthor->setChecked(true);
        d.chkDescription->setChecked(true);
        (ok ? d.cmdOK : d.cmdCancel)->click();
    });
}

// What a file of each kind gives back through its reader.
QString readBack(const Kind& kind, const QString& path) {
    const QByteArray bytes = fileBytes(path);
    if (QLatin1String(kind.name) == QLatin1String("RTF")) {
        RichTextBox box(QStringLiteral("RichTextBoxRead"));
        box.setTextRTF(QString::fromLatin1(bytes));
        return box.Text();
    }
    if (QLatin1String(kind.name) == QLatin1String("text"))
        return FromCp1252(bytes);
    return pdfText(path);
}

} // namespace

TEST_F(FileExport, EachKindWritesTheDialogsTextToAFileItsReaderGivesBack) {
    // The test command installs it; a missing tool fails rather than hides the check.
    ASSERT_FALSE(toolPath(QStringLiteral("pdftotext")).isEmpty())
        << "pdftotext (poppler-utils) is not installed";
    selectTheItem();
    const QString text = "' AUTHOR:  \tADA LOVELACE\r\n' DESCRIPTION: \t" + kDescription.toUpper() +
                         "\r\n\r\n\r\n'Source Code\r\n" + kCode + "\r\n";
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        const QString chosen = QDir(oddFolder()).filePath(QString::fromLatin1(kind.chosen));
        const QString path = QDir(oddFolder()).filePath(QString::fromLatin1(kind.written));
        QString caption;
        answerCopyDialog(hostScript, true, &caption);
        hostScript.answerFileDialog(chosen);
        hostScript.expectMsgBox(QString::fromLatin1(kind.launch), vbYes);
        hostScript.clearCalls();
        (form().*kind.command)->trigger();

        EXPECT_EQ(caption, kind.caption);
        const FileDialogRequest& save = hostScript.lastFileDialog();
        EXPECT_EQ(save.title, kind.saveTitle);
        EXPECT_EQ(save.filter, kind.filter);
        EXPECT_EQ(save.filterIndex, 1);
        EXPECT_EQ(save.initDir, AppPath());
        EXPECT_TRUE(save.overwritePrompt);
        const QList<HostCall> shell = hostScript.callsOf(QStringLiteral("Shell"));
        ASSERT_EQ(shell.size(), 1);
        EXPECT_EQ(shell[0].text, path);
        const QString back = readBack(kind, path);
        if (QLatin1String(kind.name) == QLatin1String("PDF")) {
            EXPECT_TRUE(back.simplified().contains(text.simplified())) << back.toStdString();
        } else if (QLatin1String(kind.name) == QLatin1String("text")) {
            // CR LF throughout, and "?" for the letter the code page lacks.
            EXPECT_EQ(fileBytes(path), ToCp1252(text));
            EXPECT_EQ(back.toStdString(), QString(text).replace(QChar(0x03A9), '?').toStdString());
        } else {
            EXPECT_EQ(back.toStdString(), text.toStdString());
        }
        EXPECT_TRUE(gstrExportText.isEmpty());
        EXPECT_TRUE(form().isEnabled());
    }
}

TEST_F(FileExport, CancelSkipsTheSaveOnceAndACancelledSaveSkipsTheLaunchQuestion) {
    selectTheItem();
    frmMain& f = form();
    struct Step {
        const char* what;
        std::function<void()> command;
        bool ok;        // the copy dialog's answer
        bool saveAsked; // the save dialog comes up (and is cancelled)
    };
    const auto advancedCopy = [&] { f.mnuAdvancedCopy->trigger(); };
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        const auto exportCommand = [&] { (f.*kind.command)->trigger(); };
        const Step steps[] = {
            {"cancelled export", exportCommand, false, false},
            {"export after a cancelled export", exportCommand, true, true},
            {"cancelled Advanced Copy", advancedCopy, false, false},
            {"export after a cancelled Advanced Copy", exportCommand, true, false},
            {"the export after that", exportCommand, true, true},
        };
        for (const Step& s : steps) {
            SCOPED_TRACE(s.what);
            answerCopyDialog(hostScript, s.ok);
            if (s.saveAsked)
                hostScript.answerFileDialog(QString());
            hostScript.clearCalls();
            s.command();
            EXPECT_EQ(hostScript.callsOf(QStringLiteral("FileSave")).size(), s.saveAsked ? 1 : 0);
            EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
        }
        EXPECT_FALSE(gblnExportCancelled);
        EXPECT_TRUE(QDir(AppPath()).entryList({QStringLiteral("*") + kind.ending}).isEmpty());
    }
}

TEST_F(FileExport, EveryOutputCommandRefusesAnEmptyCodePane) {
    frmMain& f = form();
    const QString html = QStringLiteral("No code in the ''Code Window'' to convert to html");
    struct Case {
        const char* what;
        std::function<void()> command;
        QString message;
        QString title;
    };
    const Case cases[] = {
        {"HTML", [&] { f.mnuHtml->trigger(); }, html, "Convert To HTML?"},
        {"XML", [&] { f.mnuXml->trigger(); }, "No code in the ''Code Window'' to convert to XML",
         "Convert To XML?"},
        {"RTF", [&] { f.mnuRTF->trigger(); }, html, "Convert To HTML?"},
        {"text", [&] { f.mnuTextFile->trigger(); }, html, "Convert To HTML?"},
        {"PDF", [&] { f.mnuPDF->trigger(); }, html, "Convert To HTML?"},
        {"print", [&] { clickButton(QStringLiteral("Print")); }, "Nothing in code window to print.",
         "Print?"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        hostScript.expectMsgBox(c.message);
        hostScript.clearCalls();
        c.command();
        ASSERT_EQ(hostScript.msgBoxes().size(), 1);
        EXPECT_EQ(hostScript.msgBoxes()[0].title, c.title);
        EXPECT_EQ(hostScript.msgBoxes()[0].icon(), vbInformation);
        EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Modal")).isEmpty());
        EXPECT_TRUE(f.isEnabled());
    }
}
