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
    const struct {
        const char *text, *value, *marker;
        int occurrence;
        const char* expected;
    } rows[] = {
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
    for (const auto& r : rows)
        EXPECT_EQ(ValidateSSN(r.text, r.value, r.marker, r.occurrence), r.expected)
            << r.text << " / " << r.value << " / " << r.occurrence;
    // The marker and the occurrence may be left out.
    EXPECT_EQ(ValidateSSN("? and ?", "A"), "A and ?");
}

// Each row is one call and the text it must give.
TEST(Strings, TextAndPathHelpersKeepTheirRules) {
    const QString nul(QChar(0));
    const struct {
        const char* call;
        QString got, expected;
    } rows[] = {
        // Letters counted in the trimmed text, from 1; 0 for none.
        {"FirstAlpha 123SC", QString::number(FirstAlphaCharacter("123SC")), "4"},
        {"FirstAlpha blanks", QString::number(FirstAlphaCharacter("  12a")), "3"},
        {"FirstAlpha digits", QString::number(FirstAlphaCharacter("4711")), "0"},
        {"FirstAlpha empty", QString::number(FirstAlphaCharacter(QString())), "0"},
        {"FirstAlpha accent", QString::number(FirstAlphaCharacter("12\u00e9z")), "4"},
        // One separator appended, whatever the other separators.
        {"FormatPath", FormatPath("/home/a"), "/home/a/"},
        {"FormatPath ending", FormatPath("/home/a/"), "/home/a/"},
        {"FormatPath empty", FormatPath(QString()), "/"},
        {"FormatPath backslash", FormatPath("C:\\x"), "C:\\x/"},
        {"ExtractFilePath keep", ExtractFilePath("/data/lib/a.mdb", true), "/data/lib/"},
        {"ExtractFilePath drop", ExtractFilePath("/data/lib/a.mdb", false), "/data/lib"},
        {"ExtractFilePath bare", ExtractFilePath("a.mdb", true), ""},
        {"ExtractFilePath top", ExtractFilePath("/a.mdb", false), ""},
        {"ExtractFilePath folder", ExtractFilePath("/data/", true), "/data/"},
        // Split at the last separator; only blanks are trimmed, a tab in front stays.
        {"FilePath", Get_FilePath_FromFilePathFileNameFileType("  /d/e/f.txt  "), "/d/e/"},
        {"FilePath empty", Get_FilePath_FromFilePathFileNameFileType(QString()), ""},
        {"FilePath bare", Get_FilePath_FromFilePathFileNameFileType("f.txt"), ""},
        {"FilePath tab", Get_FilePath_FromFilePathFileNameFileType("\t/d/f.txt "), "\t/d/"},
        {"StripFileName", StripFileName("/d/e/f.txt"), "f.txt"},
        {"StripFileName bare", StripFileName("f.txt"), "f.txt"},
        {"StripFileName folder", StripFileName("/d/e/"), ""},
        // Cut at the first NUL, or else trimmed (TrimNull) or kept (StrZToStr).
        {"TrimNull", TrimNull("abc" + nul + "junk "), "abc"},
        {"TrimNull blanks", TrimNull("  abc  "), "abc"},
        {"TrimNull both", TrimNull(" a" + nul), " a"},
        {"StrZToStr", StrZToStr("x" + nul + "y"), "x"},
        {"StrZToStr blanks", StrZToStr(" x "), " x "},
        // The pattern of the n-th description and pattern pair.
        {"FilterLookup 1", FilterLookup("All Files (*.*)|*.*|VB Mod Files (*.bas)|*.bas", 1),
         "*.*"},
        {"FilterLookup 2", FilterLookup("All Files (*.*)|*.*|VB Mod Files (*.bas)|*.bas", 2),
         "*.bas"},
        {"FilterLookup 3", FilterLookup("All Files (*.*)|*.*|VB Mod Files (*.bas)|*.bas", 3), ""},
        {"FilterLookup 0", FilterLookup("All Files (*.*)|*.*", 0), ""},
        {"FilterLookup all", FilterLookup(kFilterAll, 1), " *.*"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(r.got, r.expected) << r.call;

    for (const auto& [text, alpha] :
         {std::pair{"AbcZz", true}, std::pair{"Ab c", false}, std::pair{"A1", false},
          std::pair{"\u00c4", false}, std::pair{"[", false}, std::pair{"", true}})
        EXPECT_EQ(IsAlpha(text), alpha) << text;
}

TEST(Paths, FileExistsForFilesFoldersAndPatterns) {
    TestHome home;
    const QString file = home.file("a.bas");
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_TRUE(FileExists(file));
    EXPECT_TRUE(FileExists(home.path()));
    // A path that ends in the separator names no entry, not even the folder itself.
    EXPECT_FALSE(FileExists(FormatPath(home.path())));
    EXPECT_TRUE(FileExists(home.file("*.bas")));
    EXPECT_FALSE(FileExists(home.file("*.cls")));
    EXPECT_FALSE(FileExists(home.file("b.bas")));
    EXPECT_FALSE(FileExists(QString()));
}

namespace {
using FileDialogs = HostFixture;
}

TEST_F(FileDialogs, OpenDialogPassesItsRequestAndReturnsNameTitleAndFlags) {
    hostScript.answerFileDialog("/src/Module1.bas");
    FileNameDialog d;
    d.filter = "All Files (*.*)|*.*:VB Mod Files (*.bas)|*.bas";
    d.dlgTitle = "Open Module";
    d.initDir = "/src";
    d.defaultExt = "bas";
    ASSERT_TRUE(VBGetOpenFileName(d));
    EXPECT_EQ(d.fileName, "/src/Module1.bas");
    EXPECT_EQ(d.fileTitle, "Module1.bas");
    EXPECT_EQ(d.flags & cdlOFNFileMustExist, cdlOFNFileMustExist);
    EXPECT_EQ(d.flags & cdlOFNExtensionDifferent, 0);
    const FileDialogRequest& r = hostScript.lastFileDialog();
    EXPECT_FALSE(r.forSave);
    EXPECT_TRUE(r.mustExist);
    EXPECT_EQ(r.title, "Open Module");
    EXPECT_EQ(r.filter, d.filter);
    EXPECT_EQ(r.initDir, "/src");
}

TEST_F(FileDialogs, SaveDialogAsksForOverwriteAndCancelGivesFalse) {
    hostScript.answerFileDialog(QString());
    FileNameDialog d;
    d.fileName = "Proposal.txt";
    EXPECT_FALSE(VBGetSaveFileName(d));
    EXPECT_EQ(d.fileName, "Proposal.txt");
    EXPECT_TRUE(hostScript.lastFileDialog().forSave);
    EXPECT_TRUE(hostScript.lastFileDialog().overwritePrompt);
    EXPECT_EQ(hostScript.lastFileDialog().fileName, "Proposal.txt");
}

TEST_F(FileDialogs, GetFileNameDefaultsToTheHomeFolderAndCancelGivesEmpty) {
    CommonDialog dialog;
    hostScript.answerFileDialog(QString());
    EXPECT_EQ(GetFileName(dialog, kFilterHtml), QString());
    EXPECT_EQ(hostScript.lastFileDialog().initDir, QDir::homePath());
    EXPECT_TRUE(hostScript.lastFileDialog().title.isEmpty());
    EXPECT_TRUE(hostScript.lastFileDialog().mustExist);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());

    hostScript.answerFileDialog("/out/page.html");
    EXPECT_EQ(GetFileName(dialog, kFilterHtml, "Save", "page.html", "/out", true),
              "/out/page.html");
    EXPECT_TRUE(hostScript.lastFileDialog().overwritePrompt);
    EXPECT_EQ(hostScript.lastFileDialog().fileName, "page.html");
    EXPECT_EQ(dialog.FileTitle, "page.html");
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
        EXPECT_EQ(e.description(), "Cancel was selected.");
    }
    dialog.CancelError = false;
    dialog.FileName = "kept";
    hostScript.answerFileDialog(QString());
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "kept");
    hostScript.answerPrinter(true, "Office", 3);
    dialog.ShowPrinter();
    EXPECT_EQ(dialog.Copies, 3);
    EXPECT_EQ(dialog.PrinterName, "Office");
}
