#include "HostFixture.h"
#include "QsError.h"
#include "mCommonDialog.h"
#include "mDriveInfo.h"
#include "mPathHelpers.h"
#include "mStrings.h"

#include <QDir>
#include <QFile>

using namespace qs;
using namespace qs::test;

// Without an occurrence the first marker is filled and carets stay; with one the n-th marker is
// filled, the others are kept, and every caret of the template or the value comes out as "?"
// (skipped markers other than "?" too); an occurrence beyond the markers changes nothing.
TEST(ValidateSSN, FillsTheFirstOrTheNthMarker) {
    struct Row {
        const char *text, *value, *marker;
        int occurrence;
        const char* expected;
    };
    const Row rows[] = {
        {"The AuthorId: ? is not not in the database.", "17", "?", 0,
         "The AuthorId: 17 is not not in the database."},
        {"? and ?", "A", "?", 0, "A and ?"},
        {"no marker", "A", "?", 0, "no marker"},
        {"2^3 = ?", "8", "?", 0, "2^3 = 8"},
        {"? and ? and ?", "B", "?", 2, "? and B and ?"},
        {"? and ? and ?", "C", "?", 3, "? and ? and C"},
        {"? then ?", "A", "?", 1, "A then ?"},
        {"2^3 = ?", "8", "?", 1, "2?3 = 8"},
        {"x ?", "a^b", "?", 1, "x a?b"},
        {"# and #", "Z", "#", 2, "? and Z"},
        {"only ?", "A", "?", 2, "only ?"},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.text) + " / " + r.value + " / " + std::to_string(r.occurrence));
        EXPECT_EQ(ValidateSSN(QString::fromUtf8(r.text), QString::fromUtf8(r.value),
                              QString::fromUtf8(r.marker), r.occurrence),
                  QString::fromUtf8(r.expected));
    }
    // The marker and the occurrence may be left out.
    EXPECT_EQ(ValidateSSN(QStringLiteral("? and ?"), QStringLiteral("A")),
              QStringLiteral("A and ?"));
}

TEST(Strings, FirstAlphaCharacterCountsInTheTrimmedText) {
    EXPECT_EQ(FirstAlphaCharacter(QStringLiteral("123SC")), 4);
    EXPECT_EQ(FirstAlphaCharacter(QStringLiteral("  12a")), 3);
    EXPECT_EQ(FirstAlphaCharacter(QStringLiteral("4711")), 0);
    EXPECT_EQ(FirstAlphaCharacter(QString()), 0);
    EXPECT_EQ(FirstAlphaCharacter(QStringLiteral("12\u00e9z")), 4);
}

TEST(Strings, IsAlphaAcceptsOnlyAsciiLetters) {
    EXPECT_TRUE(IsAlpha(QStringLiteral("AbcZz")));
    EXPECT_FALSE(IsAlpha(QStringLiteral("Ab c")));
    EXPECT_FALSE(IsAlpha(QStringLiteral("A1")));
    EXPECT_FALSE(IsAlpha(QStringLiteral("\u00c4")));
    EXPECT_FALSE(IsAlpha(QStringLiteral("[")));
    EXPECT_TRUE(IsAlpha(QString()));
}

TEST(Paths, FormatPathAppendsOneSeparator) {
    EXPECT_EQ(FormatPath(QStringLiteral("/home/a")), QStringLiteral("/home/a/"));
    EXPECT_EQ(FormatPath(QStringLiteral("/home/a/")), QStringLiteral("/home/a/"));
    EXPECT_EQ(FormatPath(QString()), QStringLiteral("/"));
    EXPECT_EQ(FormatPath(QStringLiteral("C:\\x")), QStringLiteral("C:\\x/"));
}

TEST(Paths, ExtractFilePathWithAndWithoutTheSeparator) {
    EXPECT_EQ(ExtractFilePath(QStringLiteral("/data/lib/a.mdb"), true),
              QStringLiteral("/data/lib/"));
    EXPECT_EQ(ExtractFilePath(QStringLiteral("/data/lib/a.mdb"), false),
              QStringLiteral("/data/lib"));
    EXPECT_EQ(ExtractFilePath(QStringLiteral("a.mdb"), true), QString());
    EXPECT_EQ(ExtractFilePath(QStringLiteral("/a.mdb"), false), QString());
    EXPECT_EQ(ExtractFilePath(QStringLiteral("/data/"), true), QStringLiteral("/data/"));
}

TEST(Paths, FilePathAndFileNameSplitAtTheLastSeparator) {
    EXPECT_EQ(Get_FilePath_FromFilePathFileNameFileType(QStringLiteral("  /d/e/f.txt  ")),
              QStringLiteral("/d/e/"));
    EXPECT_EQ(Get_FilePath_FromFilePathFileNameFileType(QString()), QString());
    EXPECT_EQ(Get_FilePath_FromFilePathFileNameFileType(QStringLiteral("f.txt")), QString());
    // Only blanks are trimmed: a tab in front stays part of the path.
    EXPECT_EQ(Get_FilePath_FromFilePathFileNameFileType(QStringLiteral("\t/d/f.txt ")),
              QStringLiteral("\t/d/"));
    EXPECT_EQ(StripFileName(QStringLiteral("/d/e/f.txt")), QStringLiteral("f.txt"));
    EXPECT_EQ(StripFileName(QStringLiteral("f.txt")), QStringLiteral("f.txt"));
    EXPECT_EQ(StripFileName(QStringLiteral("/d/e/")), QString());
}

TEST(Paths, TrimNullCutsAtTheNullOrTrims) {
    EXPECT_EQ(TrimNull(QStringLiteral("abc") + QChar(0) + QStringLiteral("junk ")),
              QStringLiteral("abc"));
    EXPECT_EQ(TrimNull(QStringLiteral("  abc  ")), QStringLiteral("abc"));
    EXPECT_EQ(TrimNull(QStringLiteral(" a") + QChar(0)), QStringLiteral(" a"));
    EXPECT_EQ(StrZToStr(QStringLiteral("x") + QChar(0) + QStringLiteral("y")), QStringLiteral("x"));
    EXPECT_EQ(StrZToStr(QStringLiteral(" x ")), QStringLiteral(" x "));
}

TEST(Paths, FileExistsForFilesFoldersAndPatterns) {
    TestHome home;
    const QString file = home.file(QStringLiteral("a.bas"));
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_TRUE(FileExists(file));
    EXPECT_TRUE(FileExists(home.path()));
    // A path that ends in the separator names no entry, not even the folder itself.
    EXPECT_FALSE(FileExists(FormatPath(home.path())));
    EXPECT_TRUE(FileExists(home.file(QStringLiteral("*.bas"))));
    EXPECT_FALSE(FileExists(home.file(QStringLiteral("*.cls"))));
    EXPECT_FALSE(FileExists(home.file(QStringLiteral("b.bas"))));
    EXPECT_FALSE(FileExists(QString()));
}

TEST(Filters, FilterLookupGivesThePatternOfTheNthPair) {
    const QString filter = QStringLiteral("All Files (*.*)|*.*|VB Mod Files (*.bas)|*.bas");
    EXPECT_EQ(FilterLookup(filter, 1), QStringLiteral("*.*"));
    EXPECT_EQ(FilterLookup(filter, 2), QStringLiteral("*.bas"));
    EXPECT_EQ(FilterLookup(filter, 3), QString());
    EXPECT_EQ(FilterLookup(filter, 0), QString());
    EXPECT_EQ(FilterLookup(QString::fromLatin1(kFilterAll), 1), QStringLiteral(" *.*"));
}

namespace {
using FileDialogs = HostFixture;
}

TEST_F(FileDialogs, OpenDialogPassesItsRequestAndReturnsNameTitleAndFlags) {
    hostScript.answerFileDialog(QStringLiteral("/src/Module1.bas"));
    FileNameDialog d;
    d.filter = QStringLiteral("All Files (*.*)|*.*:VB Mod Files (*.bas)|*.bas");
    d.dlgTitle = QStringLiteral("Open Module");
    d.initDir = QStringLiteral("/src");
    d.defaultExt = QStringLiteral("bas");
    ASSERT_TRUE(VBGetOpenFileName(d));
    EXPECT_EQ(d.fileName, QStringLiteral("/src/Module1.bas"));
    EXPECT_EQ(d.fileTitle, QStringLiteral("Module1.bas"));
    EXPECT_EQ(d.flags & cdlOFNFileMustExist, cdlOFNFileMustExist);
    EXPECT_EQ(d.flags & cdlOFNExtensionDifferent, 0);
    const FileDialogRequest& r = hostScript.lastFileDialog();
    EXPECT_FALSE(r.forSave);
    EXPECT_TRUE(r.mustExist);
    EXPECT_EQ(r.title, QStringLiteral("Open Module"));
    EXPECT_EQ(r.filter, d.filter);
    EXPECT_EQ(r.initDir, QStringLiteral("/src"));
}

TEST_F(FileDialogs, SaveDialogAsksForOverwriteAndCancelGivesFalse) {
    hostScript.answerFileDialog(QString());
    FileNameDialog d;
    d.fileName = QStringLiteral("Proposal.txt");
    EXPECT_FALSE(VBGetSaveFileName(d));
    EXPECT_EQ(d.fileName, QStringLiteral("Proposal.txt"));
    EXPECT_TRUE(hostScript.lastFileDialog().forSave);
    EXPECT_TRUE(hostScript.lastFileDialog().overwritePrompt);
    EXPECT_EQ(hostScript.lastFileDialog().fileName, QStringLiteral("Proposal.txt"));
}

TEST_F(FileDialogs, GetFileNameDefaultsToTheHomeFolderAndCancelGivesEmpty) {
    CommonDialog dialog;
    hostScript.answerFileDialog(QString());
    EXPECT_EQ(GetFileName(dialog, QString::fromLatin1(kFilterHtml)), QString());
    EXPECT_EQ(hostScript.lastFileDialog().initDir, QDir::homePath());
    EXPECT_TRUE(hostScript.lastFileDialog().title.isEmpty());
    EXPECT_TRUE(hostScript.lastFileDialog().mustExist);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());

    hostScript.answerFileDialog(QStringLiteral("/out/page.html"));
    EXPECT_EQ(GetFileName(dialog, QString::fromLatin1(kFilterHtml), QStringLiteral("Save"),
                          QStringLiteral("page.html"), QStringLiteral("/out"), true),
              QStringLiteral("/out/page.html"));
    EXPECT_TRUE(hostScript.lastFileDialog().overwritePrompt);
    EXPECT_EQ(hostScript.lastFileDialog().fileName, QStringLiteral("page.html"));
    EXPECT_EQ(dialog.FileTitle, QStringLiteral("page.html"));
}

TEST_F(FileDialogs, CancelErrorRaisesCancelWasSelected) {
    CommonDialog dialog;
    dialog.CancelError = true;
    hostScript.answerPrinter(false);
    try {
        dialog.ShowPrinter();
        ADD_FAILURE() << "no error on Cancel";
    } catch (const QsError& e) {
        EXPECT_EQ(e.number(), cdlCancel);
        EXPECT_EQ(e.description(), QStringLiteral("Cancel was selected."));
    }
    dialog.CancelError = false;
    dialog.FileName = QStringLiteral("kept");
    hostScript.answerFileDialog(QString());
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, QStringLiteral("kept"));
    hostScript.answerPrinter(true, QStringLiteral("Office"), 3);
    dialog.ShowPrinter();
    EXPECT_EQ(dialog.Copies, 3);
    EXPECT_EQ(dialog.PrinterName, QStringLiteral("Office"));
}
