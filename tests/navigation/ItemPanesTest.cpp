#include "PeImageBuilder.h"
#include "TreeWindowFixture.h"

#include "ListBox.h"
#include "ListView.h"
#include "ServiceErrors.h"
#include "cAuthor.h"
#include "cLibraryService.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QTabBar>

using namespace qs;
using namespace qs::test;

namespace {

// One revision line, written "yyyy-MM-dd version [author comment]": author 0 is the item's own,
// 1 (unless told) the reviser.
struct Line {
    QDate date;
    QString version;
    int author = 1;
    QString comment = QStringLiteral("changed");
    Line(const char* text) {
        const QStringList parts = QString::fromLatin1(text).split(QLatin1Char(' '));
        date = QDate::fromString(parts[0], Qt::ISODate);
        version = parts[1];
        if (parts.size() > 2) {
            author = parts[2].toInt();
            comment = parts.mid(3).join(QLatin1Char(' '));
        }
    }
};

// The four loaders and the revision list each fills.
struct Family {
    const char* name;
    bool file;
    void (frmMain::*load)(long);
    ListView* frmMain::*list;
};
const Family kFamilies[] = {
    {"GetCodeSnippet", false, &frmMain::GetCodeSnippet, &frmMain::lvwRevisionHistory},
    {"GetCodeSnippetBk", false, &frmMain::GetCodeSnippetBk, &frmMain::lvwRevisionHistory},
    {"GetCodeSnippetSrch", false, &frmMain::GetCodeSnippetSrch, &frmMain::lvwRevisionHistory},
    {"SourceFileInfoArtOrComp", true, &frmMain::SourceFileInfoArtOrComp,
     &frmMain::lstSrcFileRevHist},
};

// The rows of a list in display order, as "date version, ...".
std::string rows(const ListView* list) {
    QStringList out;
    for (int i = 1; i <= list->ListItems.Count(); ++i)
        out << list->ListItems(i).Text() + QLatin1Char(' ') + list->ListItems(i).SubItems(1);
    return out.join(QStringLiteral(", ")).toStdString();
}

// Shows the tab of the family's revision list, so that clicks land on a laid-out list.
ListView* showRevisions(frmMain& form, const Family& family) {
    form.SSTabSourceFile->setVisible(family.file);
    form.SSTabAboutCode->setVisible(!family.file);
    (family.file ? form.SSTabSourceFile : form.SSTabAboutCode)->setTab(1);
    QCoreApplication::processEvents();
    return form.*family.list;
}

void clickRow(ListView* list, int index) {
    const QRect rect = list->visualItemRect(list->ListItems(index).row());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rect.center());
}

void clickHeader(ListView* list, int column) {
    QHeaderView* header = list->header();
    const int section = column - 1;
    QTest::mouseClick(
        header->viewport(), Qt::LeftButton, {},
        QPoint(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
               header->height() / 2));
}

class ItemPanes : public TreeWindow {
protected:
    void SetUp() override {
        TreeWindow::SetUp();
        gstrAccessType = QStringLiteral("Admin");
        mAuthors[0] = addAuthor(QStringLiteral("Ada"), QStringLiteral("Lovelace"));
        mAuthors[1] = addAuthor(QStringLiteral("Tom"), QStringLiteral("Kell"));
    }

    int addAuthor(const QString& first, const QString& last) {
        cAuthor author(mDatabase);
        author.BeginEdit(0);
        author.FirstName(first);
        author.LastName(last);
        author.Save();
        return author.AuthorId();
    }

    template <class Record> void addLines(Record& item, const QVector<Line>& lines) {
        for (const Line& line : lines) {
            cRevision& revision = item.Revisions().Add(0);
            revision.AuthorId(mAuthors[line.author]);
            revision.Version(line.version);
            revision.Comment(line.comment);
            revision.DateRevised(QDateTime(line.date, QTime(0, 0)));
        }
    }

    // An item of the family with those revision lines; a stored file holds `bytes`.
    int add(bool file, const QVector<Line>& lines, const QByteArray& bytes = "plain text") {
        if (file) {
            const QString path = home->file(QStringLiteral("Quill.exe"));
            QFile out(path);
            EXPECT_TRUE(out.open(QIODevice::WriteOnly));
            out.write(bytes);
            out.close();
            cSourceFile item(mDatabase);
            item.LoadFile(path, mAuthors[0], 1, 102);
            item.BeginEdit(0);
            item.Description(QStringLiteral("Quill engine"));
            addLines(item, lines);
            return item.Save();
        }
        cSourceCode item(mDatabase);
        item.BeginEdit(0);
        item.CategoryId(1);
        item.CodeTypeId(201);
        item.Description(QStringLiteral("Split words"));
        item.Code(QStringLiteral("Public Sub Split()\r\nEnd Sub"));
        item.AuthorId(mAuthors[0]);
        addLines(item, lines);
        return item.Save();
    }

    int mAuthors[2] = {};
};

} // namespace

TEST_F(ItemPanes, NewestVersionIsTheLatestDateAfter2001AndTheLowerTextOnTheSameDate) {
    struct Case {
        const char* what;
        QVector<Line> lines;
        QString newest; // empty: no line counts, "1.0.0" stays and the globals stay 0
    };
    const Case cases[] = {
        {"no revisions", {}, ""},
        {"same date, lower text first", {"2024-03-04 1.0.10", "2024-03-04 1.0.9"}, "1.0.10"},
        {"same date, lower text last", {"2024-03-04 1.0.9", "2024-03-04 1.0.10"}, "1.0.10"},
        {"later date beats higher text", {"2024-03-04 2.0.0", "2024-03-05 1.0.1"}, "1.0.1"},
        {"before 2001 never counts", {"2000-12-31 3.0.0"}, ""},
        {"before 2001 beside a later one", {"2005-06-01 1.2.0", "1999-01-01 9.9.9"}, "1.2.0"},
    };
    frmMain& form = Forms::get<frmMain>();
    for (const Family& family : kFamilies) {
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(family.name) + ": " + c.what);
            const int id = add(family.file, c.lines);
            gstrCurrentVersion.clear();
            gintMajor = gintMinor = gintRevision = 0;
            (form.*family.load)(id);

            ListView* list = form.*family.list;
            ASSERT_EQ(list->ListItems.Count(), c.lines.size());
            if (!c.lines.isEmpty()) {
                EXPECT_EQ(list->ListItems(QStringLiteral("KEY1")).Text(),
                          c.lines.front().date.toString(QStringLiteral("MM/dd/yyyy")));
                // The last line of the history, whatever the newest is.
                EXPECT_EQ(gstrCurrentVersion, c.lines.back().version);
            }
            if (!family.file) {
                EXPECT_EQ(form.txtVersionNo->text(),
                          c.newest.isEmpty() ? QStringLiteral("1.0.0") : c.newest);
            }
            const QString globals =
                QStringLiteral("%1.%2.%3").arg(gintMajor).arg(gintMinor).arg(gintRevision);
            EXPECT_EQ(globals, c.newest.isEmpty() ? QStringLiteral("0.0.0") : c.newest);
        }
    }
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(ItemPanes, ClickingARevisionRowShowsItsAuthorAndComment) {
    frmMain& form = Forms::get<frmMain>();
    form.show();
    for (const Family& family : kFamilies) {
        SCOPED_TRACE(family.name);
        (form.*family.load)(add(family.file, {"2024-03-05 1.1.0 1 Faster split",
                                              "2024-03-04 1.0.0 0 Source Code Added"}));
        ListView* list = showRevisions(form, family);
        QLineEdit* author = family.file ? form.txtSFRevHistAuthor : form.txtRevisionAuthorSC;
        QPlainTextEdit* comment = family.file ? form.txtRevCommentsSF : form.txtChangesSC;

        // The load selects the top row of the list sorted by version, highest text first.
        EXPECT_EQ(rows(list), "03/05/2024 1.1.0, 03/04/2024 1.0.0");
        EXPECT_EQ(author->text(), QStringLiteral("Tom Kell"));
        EXPECT_EQ(comment->toPlainText(), QStringLiteral("Faster split"));
        clickRow(list, 2);
        EXPECT_EQ(author->text(), QStringLiteral("Ada Lovelace"));
        EXPECT_EQ(comment->toPlainText(), QStringLiteral("Source Code Added"));
    }
    EXPECT_EQ(form.RichTextBoxCode->Text(), QStringLiteral("Public Sub Split()\r\nEnd Sub"));
}

TEST_F(ItemPanes, ColumnClickTogglesTheSortOfThatColumn) {
    frmMain& form = Forms::get<frmMain>();
    form.show();
    for (const Family& family : {kFamilies[0], kFamilies[3]}) {
        SCOPED_TRACE(family.name);
        (form.*family.load)(
            add(family.file, {"2024-01-03 1.0.9", "2024-01-01 1.0.10", "2024-01-02 1.1.0"}));
        ListView* list = showRevisions(form, family);
        EXPECT_EQ(rows(list), "01/02/2024 1.1.0, 01/03/2024 1.0.9, 01/01/2024 1.0.10");
        clickHeader(list, 2);
        EXPECT_EQ(rows(list), "01/01/2024 1.0.10, 01/03/2024 1.0.9, 01/02/2024 1.1.0");
        clickHeader(list, 2);
        EXPECT_EQ(rows(list), "01/02/2024 1.1.0, 01/03/2024 1.0.9, 01/01/2024 1.0.10");
        clickHeader(list, 1);
        EXPECT_EQ(rows(list), "01/01/2024 1.0.10, 01/02/2024 1.1.0, 01/03/2024 1.0.9");
    }
}

TEST_F(ItemPanes, VersionBlockListsOnlyEntriesWithAValueLinkedByTheirNumber) {
    const QString none = QStringLiteral("Information not available.");
    struct Case {
        const char* what;
        QByteArray bytes;
        QStringList fields; // txtFileVer, txtDescription, txtCopyright, then txtVerInfo
        QStringList rows;   // text=item data
        int click;
        QString clicked; // txtVerInfo after a click on that row
    };
    const Case cases[] = {
        {"no version block", "plain text", {none, none, none, none}, {none + "=0"}, 0, none},
        {"version block",
         PeImageBuilder::WithStrings({{"CompanyName", "Tarn Works"},
                                      {"FileDescription", "Quill engine"},
                                      {"LegalCopyright", "(c) Ovrin"},
                                      {"ProductName", "Quill"}}),
         {"2.3.4.5", "Quill engine", "(c) Ovrin", "Tarn Works"},
         {"Company Name=0", "Description=1", "File Version=2", "Language=7", "Legal Copyright=8",
          "Product Name=11", "Product Version=12", "File Type=14"},
         5,
         "Quill"},
    };
    frmMain& form = Forms::get<frmMain>();
    form.show();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        form.LoadVerInfoCbo(); // the nine fixed rows stand there until the load
        form.SourceFileInfoArtOrComp(add(true, {}, c.bytes));
        EXPECT_EQ(form.SSTabSourceFile->Tab(), 0);
        EXPECT_EQ(QStringList({form.txtFileVer->text(), form.txtDescription->text(),
                               form.txtCopyright->text(), form.txtVerInfo->toPlainText()}),
                  c.fields);
        QStringList rows;
        for (int i = 0; i < form.lboxVerInfo->ListCount(); ++i)
            rows << form.lboxVerInfo->List(i) + QLatin1Char('=') +
                        QString::number(form.lboxVerInfo->ItemData(i));
        EXPECT_EQ(rows, c.rows);
        EXPECT_EQ(form.txtFilename->text(), QStringLiteral("Quill.exe"));
        EXPECT_EQ(form.mstrFileName, QStringLiteral("Quill.exe"));
        EXPECT_EQ(form.txtAuthorName->text(), QStringLiteral("Lovelace, Ada"));
        EXPECT_EQ(form.picIcon->pixmap().size(), QSize(32, 32));

        showRevisions(form, kFamilies[3]);
        QTest::mouseClick(
            form.lboxVerInfo->viewport(), Qt::LeftButton, {},
            form.lboxVerInfo->visualItemRect(form.lboxVerInfo->item(c.click)).center());
        EXPECT_EQ(form.lboxVerInfo->ListIndex(), c.click);
        EXPECT_EQ(form.txtVerInfo->toPlainText(), c.clicked);
    }
}

TEST_F(ItemPanes, RecordAnotherUserDeletedLeavesEmptyPanesWithoutAReport) {
    frmMain& form = Forms::get<frmMain>();
    const auto erase = [](auto record) {
        record.BeginEdit(0);
        record.Deleted(true);
        record.Save();
    };
    for (const Family& family : kFamilies) {
        SCOPED_TRACE(family.name);
        const int id = add(family.file, {"2024-03-04 1.0.0"});
        (form.*family.load)(id);
        ASSERT_EQ((form.*family.list)->ListItems.Count(), 1);
        cLibraryService other(mDatabase);
        family.file ? erase(other.GetSourceFile(id)) : erase(other.GetSourceCode(id));

        (form.*family.load)(id);
        EXPECT_EQ((form.*family.list)->ListItems.Count(), 0);
        EXPECT_EQ(family.file ? bool(form.mobjSourceFile) : bool(form.mobjSourceCode), false);
        EXPECT_EQ((family.file ? form.txtFilename : form.txtVersionNo)->text(), QString());
        EXPECT_EQ((family.file ? form.txtSFRevHistAuthor : form.txtRevisionAuthorSC)->text(),
                  QString());
        EXPECT_TRUE(family.file || form.RichTextBoxCode->Text().isEmpty());
    }
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();

    // Any other failure of the service is reported, and no earlier record stays behind.
    const int id = add(false, {});
    form.GetCodeSnippet(id);
    ASSERT_TRUE(form.mobjSourceCode);
    pointAt(home->file(QStringLiteral("Elsewhere/Missing.mdb")));
    hostScript.expectMsgBox(QString::fromLatin1(kTextDatabaseNotFound));
    form.GetCodeSnippet(id);
    EXPECT_FALSE(form.mobjSourceCode);
}

TEST_F(ItemPanes, FocusOnATabOrTheCodePaneTakesTheTreeCommandsAway) {
    frmMain& form = Forms::get<frmMain>();
    const QStringList buttons = {"Add Category", "Add Folder",  "Add SourceCode", "Add SourceFile",
                                 "DeleteNode",   "ReName Item", "Edit",           "BookMark"};
    const auto enableAll = [&] {
        form.mnuModify->setEnabled(true);
        for (const QString& key : buttons)
            form.tbToolBar->Buttons(key).setEnabled(true);
    };
    // A tab change by code: the first one of each tab control leaves the Modify menu alone.
    for (SSTab* tabs : {form.SSTabAboutCode, form.SSTabNavigate}) {
        SCOPED_TRACE(tabs->Name().toStdString());
        enableAll();
        tabs->setTab(1);
        EXPECT_TRUE(form.mnuModify->isEnabled());
        EXPECT_FALSE(form.tbToolBar->Buttons(QStringLiteral("BookMark")).Enabled());
        tabs->setTab(0);
        EXPECT_FALSE(form.mnuModify->isEnabled());
    }

    form.show();
    QApplication::setActiveWindow(&form);
    const auto clickTab = [](SSTab* tabs, int tab) {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {},
                          tabs->tabBar()->tabRect(tab).center());
    };
    const std::pair<std::function<void()>, bool> cases[] = {
        {[&] { clickTab(form.SSTabAboutCode, 1); }, true},
        {[&] { clickTab(form.SSTabNavigate, 1); }, true},
        {[&] { form.RichTextBoxCode->setFocus(); }, false}, // the code pane leaves the buttons
    };
    for (const auto& [act, buttonsOff] : cases) {
        form.tvwMain->setFocus();
        enableAll();
        act();
        EXPECT_FALSE(form.mnuModify->isEnabled());
        EXPECT_EQ(enabledButtons(form), buttonsOff ? QStringList() : buttons);
    }

    clickTab(form.SSTabNavigate, 2);
    EXPECT_EQ(QApplication::focusWidget(), form.txtSearchString);
}

TEST_F(ItemPanes, RightClickOnCodePopsTheEditMenuWithoutTheBookmarkPair) {
    frmMain& form = Forms::get<frmMain>();
    form.show();
    for (const QString& code : {QStringLiteral("Dim x"), QString()}) {
        SCOPED_TRACE(code.toStdString());
        hostScript.clearCalls();
        form.mnuBookMark->setVisible(true); // as a click on an item leaves it
        form.RichTextBoxCode->setText(code);
        QTest::mouseClick(form.RichTextBoxCode->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        EXPECT_EQ(popups(),
                  code.isEmpty() ? "" : "mnuEdit:mnuFind,mnuCopy,mnuAdvancedCopy,mnuSelectAll");
        EXPECT_TRUE(form.seperator3->isVisible() && form.mnuBookMark->isVisible());
    }
}

TEST(ItemPanesOutline, ModuleUnfoldsOnceOnItsFirstPlainSelectionInAVisualBasicCategory) {
    TreeView tree(QStringLiteral("tvwMain"));
    const Node cls = tree.Nodes.Add(QStringLiteral("SC57ClassUnTested"), QStringLiteral("Splitter"),
                                    QStringLiteral("Class3"));
    const Node mod =
        tree.Nodes.Add(QStringLiteral("SC8"), QStringLiteral("Helpers"), QStringLiteral("Module"));
    const Node tip = tree.Nodes.Add(QStringLiteral("SC9TipTested"), QStringLiteral("Tip"),
                                    QStringLiteral("Tip"));
    const Node unfolded = tree.Nodes.Add(QStringLiteral("SC12moduleTested"), QStringLiteral("Done"),
                                         QStringLiteral("Tip"));
    tree.Nodes.Add(unfolded, 4, QStringLiteral("12_SC12SubsNoDrag"), QStringLiteral("Subs"),
                   QStringLiteral("Sub"));
    struct Case {
        Node node;
        bool mainTree, childClick, visualBasic, expected;
    };
    const Case cases[] = {
        {cls, true, false, true, true},   {cls, false, false, true, true},
        {mod, true, false, true, false},  {mod, false, false, true, true},
        {tip, true, false, true, false},  {cls, true, true, true, false},
        {cls, true, false, false, false}, {unfolded, true, false, true, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.node.Key().toStdString());
        EXPECT_EQ(frmMain::ShouldParseModule(c.node, c.mainTree, c.childClick, c.visualBasic),
                  c.expected);
    }
}
