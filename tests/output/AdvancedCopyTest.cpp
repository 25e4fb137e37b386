// Advanced Copy: the comment header over the code on the clipboard, and the cancel flag.

#include "OutputFixture.h"

#include "Globals.h"
#include "frmCopyDialog.h"
#include "frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// The boxes a case ticks, in the dialog's order.
enum Box { Author = 1, Version = 2, CreateDate = 4, Description = 8, History = 16 };

void tick(frmCopyDialog& d, int boxes, const QString& spec) {
    d.chkAuthor->setChecked(boxes & Author);
    d.chkVersion->setChecked(boxes & Version);
    d.chkCreateDate->setChecked(boxes & CreateDate);
    d.chkDescription->setChecked(boxes & Description);
    d.chkRevisionHistory->setChecked(boxes & History);
    d.txtCommentSpec->setText(spec);
}

QString underSourceCode(const QString& header, const QString& spec) {
    return header + kCrLf + kCrLf + spec + QStringLiteral("Source Code") + kCrLf + kCode + kCrLf;
}

// The kinds of the dialog and clipboard calls, in order.
QStringList kinds(const ScriptedHost& host) {
    QStringList out;
    for (const HostCall& call : host.calls())
        if (call.kind == "Modal" || call.kind.startsWith(QLatin1String("Clipboard")))
            out << call.kind;
    return out;
}

using AdvancedCopy = OutputWindow;

} // namespace

TEST_F(AdvancedCopy, HeaderHoldsTheTickedLinesInOrderAboveTheCode) {
    const QString written = QLocale().toString(QDate(2024, 3, 4), QLocale::ShortFormat);
    const QString revised = QLocale().toString(QDate(2024, 5, 6), QLocale::ShortFormat);
    struct Case {
        const char* what;
        int boxes;
        QString spec;
        QVector<RevisionLine> revisions;
        QString header; // empty: the code alone, with no "Source Code" line
    };
    const Case cases[] = {
        {"no box", 0, "'", {}, ""},
        {"emptied specifier", Author, "   ", {}, " AUTHOR:  \tADA LOVELACE\r\n"},
        {"only revisions before 2001",
         Version,
         "'",
         {{{2000, 12, 31}, "3.0.0"}},
         "' VERSION: \t\r\n"},
        {"same date: greater text",
         Version,
         "'",
         {{{2024, 3, 4}, "1.9.0"}, {{2024, 3, 4}, "1.10.0"}},
         "' VERSION: \t1.9.0\r\n"},
        {"later date beats greater text",
         Version,
         "'",
         {{{2024, 3, 5}, "1.0.1"}, {{2024, 3, 4}, "2.0.0"}},
         "' VERSION: \t1.0.1\r\n"},
        {"all five, the date under the number label",
         Author | Version | CreateDate | Description | History,
         "'",
         {{{2024, 5, 6}, "1.0.1", "Fixed"}},
         "' AUTHOR:  \tADA LOVELACE\r\n' VERSION: \t1.0.1\r\n' CREATE DATE: \t" + written +
             "\r\n' DESCRIPTION: \t%D\r\n\r\n' REVISION HISTORY\r\n' =================\r\n\r\n"
             "' REV. AUTHOR: \tADA LOVELACE\r\n' REV. NUMBER: \t1.0.1\r\n' REV. NUMBER: \t" +
             revised.toUpper() + "\r\n' REV. DESCRIPTION: \tFIXED"},
    };
    int n = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString description = QStringLiteral("%1. ").arg(++n) + kDescription;
        addItem(description, kCode, c.revisions);
        const int boxes = c.boxes;
        const QString spec = c.spec;
        hostScript.onModal<frmCopyDialog>(QStringLiteral("frmCopyDialog"),
                                          [boxes, spec](frmCopyDialog& d) {
                                              EXPECT_EQ(d.txtCommentSpec->text(), "'");
                                              tick(d, boxes, spec);
                                              d.cmdOK->click();
                                          });
        selectItem(description);
        hostScript.clearCalls();
        form().mnuAdvancedCopy->trigger();
        QString header = c.header;
        header.replace(QStringLiteral("%D"), description.toUpper());
        EXPECT_EQ(hostScript.clipboardText().toStdString(),
                  (header.isEmpty() ? kCode + kCrLf : underSourceCode(header, spec.trimmed()))
                      .toStdString());
        EXPECT_EQ(kinds(hostScript), QStringList({"Modal", "ClipboardClear", "ClipboardSet"}));
        EXPECT_TRUE(form().isEnabled());
    }
}

TEST_F(AdvancedCopy, CancelRaisesTheFlagAndPutsTheTextLeftFromBeforeOnTheClipboardAgain) {
    selectTheItem();
    struct Step {
        const char* what;
        std::function<void(frmCopyDialog&)> answer;
        bool flag;
    };
    const Step steps[] = {
        {"OK with the author",
         [](frmCopyDialog& d) {
             d.chkAuthor->setChecked(true);
             d.cmdOK->click();
         },
         false},
        {"Cancel", [](frmCopyDialog& d) { d.cmdCancel->click(); }, true},
        {"the close box", [](frmCopyDialog& d) { d.close(); }, true},
    };
    const QString afterOk = underSourceCode("' AUTHOR:  \tADA LOVELACE\r\n", "'");
    for (const Step& s : steps) {
        SCOPED_TRACE(s.what);
        gblnExportCancelled = false;
        hostScript.onModal<frmCopyDialog>(QStringLiteral("frmCopyDialog"), s.answer);
        hostScript.setClipboardText(QStringLiteral("something else"));
        clickButton(QStringLiteral("AdvCopy"));
        EXPECT_EQ(hostScript.clipboardText().toStdString(), afterOk.toStdString());
        EXPECT_EQ(gblnExportCancelled, s.flag);
    }
}
