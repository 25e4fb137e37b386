#pragma once

#include "HostFixture.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

namespace qs {
class frmMain;
}

namespace qs::test {

// The item the output commands work on.  Its description holds what HTML and XML escape and a
// letter outside Windows-1252; its code holds markup characters, a tab, leading blanks and
// letters of the code page beyond ASCII.
inline const QString kDescription = QStringLiteral("Split <words> & \"quotes\" \u03A9mega");
inline const QString kCode = QStringLiteral("Public Sub Split(s As String)\r\n"
                                            "    If Len(s) < 3 And s <> \"a&b\" Then Exit Sub\r\n"
                                            "\tDebug.Print \"caf\u00E9 \u00BD\"\r\n"
                                            "End Sub");

// One revision line of the item.
struct RevisionLine {
    QDate date;
    QString version;
    QString comment = QStringLiteral("changed");
};

// A library with one author and the main window loaded, shown and active.  selectItem() clicks
// an item into the panes through the category tree and the item tree.
class OutputWindow : public HostFixture {
protected:
    void SetUp() override;

    frmMain& form();
    // A tested code snippet of category 1 by the fixture's author; returns its id.
    int addItem(const QString& description, const QString& code,
                const QVector<RevisionLine>& revisions = {});
    // Clicks "Visual Basic" > "Tested" > "Code Snippet" in the category tree, then the item of
    // that description in the item tree.
    void selectItem(const QString& description);
    // addItem and selectItem of the fixture's own item.
    int selectTheItem(const QVector<RevisionLine>& revisions = {});

    // A folder of the private home whose name holds "<", "&", quotes and a letter outside
    // Windows-1252; created.
    QString oddFolder();
    // Clicks the tool-bar button of that key.
    void clickButton(const QString& key);

    QString mDatabase;
    int mAuthorId = 0;
};

// The path of an installed tool; empty when it is not installed.
QString toolPath(const QString& name);
// Runs a tool; its standard output, its exit code in `exitCode` and what it wrote to its error
// channel in `errors`.
QByteArray runTool(const QString& program, const QStringList& args, int* exitCode = nullptr,
                   QByteArray* errors = nullptr);
// The text of a PDF by pdftotext.
QString pdfText(const QString& path);
QByteArray fileBytes(const QString& path);
// The text without blanks, tabs, line ends and no-break spaces.
QString unspaced(const QString& text);

} // namespace qs::test
