#include "DataServiceFixture.h"
#include "SearchMatcher.h"
#include "SearchSchema.h"
#include "SearchTokenizer.h"
#include "TokenCharacters.h"
#include "cSourceCode.h"
#include "cSourceFile.h"

#include <QHash>
#include <QRandomGenerator>
#include <QSet>
#include <algorithm>
#include <gtest/gtest.h>

namespace qs {
namespace {

struct Item {
    int id = 0;
    int categoryId = 1;
    int codeTypeId = 201;
    int tested = 1;
    bool isFolder = false;
    QString description, code, notes, example;
};

class SearchTest : public test::DataServiceTest {
protected:
    void SetUp() override {
        DataServiceTest::SetUp();
        secondCategory = cLibraryService(dbPath).AddCategory(QStringLiteral("Second"));
    }

    int save(Item& item) {
        cSourceCode record(dbPath);
        record.BeginEdit(0);
        record.CategoryId(item.categoryId);
        record.CodeTypeId(item.codeTypeId);
        record.Tested(item.tested);
        record.IsFolder(item.isFolder);
        record.Description(item.description);
        record.Code(item.code);
        record.Notes(item.notes);
        record.Example(item.example);
        item.id = record.Save();
        items.append(item);
        return item.id;
    }
    int add(const QString& description, const QString& code = QString(),
            const QString& notes = QString(), const QString& example = QString()) {
        Item item;
        item.description = description;
        item.code = code;
        item.notes = notes;
        item.example = example;
        return save(item);
    }

    QList<int> ids(int mode, const QString& text, int categoryId = 0, int status = 0,
                   int typeId = 0) {
        const VbArray<ItemRow> rows =
            cLibraryService(dbPath).Search(mode, text, categoryId, status, typeId, 0, 0);
        QList<int> found;
        for (const ItemRow& row : rows)
            found << row.Id;
        return found;
    }

    void expectAgreementWithPlainScan();

    int secondCategory = 0;
    QVector<Item> items;
};

// --- the reference: the rule written out plainly, position by position ---------------------

// How the index's tokenizer treats the characters the generated texts use: 1 a word
// character, 0 a separator, 2 a combining mark, which runs on a begun word and else separates.
int referenceKind(char32_t c) {
    if (c < 0x80)
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ? 1 : 0;
    if (c == 0x0301)
        return 2;
    static const QSet<char32_t> separators{0x00A0, 0x2019, 0x201C, 0x201D, 0x2014, 0x1F600, 0xFFFD};
    return separators.contains(c) ? 0 : 1;
}

QVector<char32_t> codePoints(const QString& text) {
    QVector<char32_t> points;
    for (const char32_t c : text.toUcs4())
        points << c;
    return points;
}

bool referencePieceMatches(const QString& piece, const QString& field) {
    const QVector<char32_t> p = codePoints(piece);
    const QVector<char32_t> f = codePoints(field);
    for (int i = 0; i + p.size() <= f.size(); ++i) {
        const QVector<char32_t> slice = f.mid(i, p.size());
        const QString candidate = QString::fromUcs4(slice.constData(), slice.size());
        if (candidate.compare(piece, Qt::CaseInsensitive) != 0)
            continue;
        int before = i - 1;
        while (before >= 0 && referenceKind(f.at(before)) == 2)
            --before;
        if (referenceKind(p.first()) != 1 || before < 0 || referenceKind(f.at(before)) == 0)
            return true;
    }
    return false;
}

QList<int> referenceSearch(const QVector<Item>& items, int mode, const QString& text,
                           int categoryId, int status, int typeId) {
    QStringList pieces;
    if (mode == 0) {
        if (!text.trimmed().isEmpty())
            pieces << text.trimmed();
    } else {
        QString word;
        for (const QChar c : text + QLatin1Char(' ')) {
            if (!c.isSpace()) {
                word += c;
            } else if (!word.isEmpty()) {
                pieces << word;
                word.clear();
            }
        }
    }
    QList<int> found;
    for (const Item& item : items) {
        if ((categoryId && item.categoryId != categoryId) || (status && item.tested != status) ||
            (typeId && item.codeTypeId != typeId) || pieces.isEmpty())
            continue;
        int matched = 0;
        for (const QString& piece : pieces) {
            for (const QString& field : {item.description, item.code, item.notes, item.example}) {
                if (referencePieceMatches(piece, field)) {
                    ++matched;
                    break;
                }
            }
        }
        if (mode == 2 ? matched == pieces.size() : matched > 0)
            found << item.id;
    }
    std::sort(found.begin(), found.end());
    return found;
}

// --- modes ------------------------------------------------------------------------------

// The index holds the separators between words, so a phrase is found only with its own.
TEST_F(SearchTest, PunctuationBetweenWordsMatchesAsTyped) {
    const auto run = [](int length) { return QString(length, QLatin1Char('=')); };
    const int kept = kSearchSeparatorBytes;
    const struct {
        QString text;
        QString phrase;
        bool found;
    } cases[] = {
        {QStringLiteral("Set rs = New ADODB.Recordset"), QStringLiteral("New ADODB.Recordset"),
         true},
        {QStringLiteral("Set rs = New ADODB Recordset"), QStringLiteral("New ADODB.Recordset"),
         false},
        {QStringLiteral("x.NEW adodb.Recordsets"), QStringLiteral("New ADODB.Recordset"), true},
        {QStringLiteral("xNew ADODB.Recordset"), QStringLiteral("New ADODB.Recordset"), false},
        {QStringLiteral("a  b"), QStringLiteral("a b"), false},
        {QStringLiteral("a\tb"), QStringLiteral("a b"), false},
        {QStringLiteral("a\r\nb"), QStringLiteral("a\rb"), false},
        {QStringLiteral("Call foo()"), QStringLiteral("foo("), true},
        {QStringLiteral("Call foo (1)"), QStringLiteral("foo("), false},
        {QStringLiteral("a\x01\x01b"), QStringLiteral("a\x01b"), false},
        {QStringLiteral("a%1b").arg(run(kept)), QStringLiteral("a%1b").arg(run(kept)), true},
        {QStringLiteral("a%1b").arg(run(kept + 6)), QStringLiteral("a%1b").arg(run(kept + 6)),
         true},
        {QStringLiteral("a%1b").arg(run(kept + 6)), QStringLiteral("a%1b").arg(run(kept)), false},
        {QStringLiteral("a%1+b").arg(run(kept)), QStringLiteral("a%1").arg(run(kept)), true},
    };
    for (const auto& c : cases) {
        const int id = add(QString(), c.text);
        EXPECT_EQ(ids(0, c.phrase).contains(id), c.found)
            << "text [" << c.text.toStdString() << "] phrase [" << c.phrase.toStdString() << "]";
    }
}

// --- what matches ---------------------------------------------------------------------------

// Each case searches the rows its own items were saved to and expects, in id order, the items
// listed; an item is "description|code|notes|example".
TEST_F(SearchTest, WhatEachModeMatches) {
    const QStringList phrase{"Read the registry key", "key of the registry", "registry  key"};
    const QStringList fields{"alpha|||beta", "alpha only"};
    const QStringList starts{"Registry", "|x = (reg)", "|GetRegValue"};
    const QStringList punct{"50% done", "|my_var = 1", "|C:\\Temp\\x", "plain"};
    const QStringList dotted{"|Call foo.bar(1)", "|foo bar", "|foo-bar"};
    const QStringList quoted{"|MsgBox \"Don't\"", "|x = \"'; DROP TABLE SourceCode; --\"",
                             "NEAR(a b) OR c*"};
    const QStringList umlaut{"Ärger über Größe", "|ΣΟΦΊΑ", "Arger uber"};
    const QStringList other{"\uE000value", "\u201Cvalue\u201D", "a\u00A0value"};
    const struct {
        int mode;
        QString query;
        QStringList items;
        QList<int> hits;
    } cases[] = {
        {0, "Registry Key", phrase, {0}},
        {0, "  registry key  ", phrase, {0}},
        {1, "alpha beta", {"alpha", "|beta", "gamma"}, {0, 1}},
        {2, "beta alpha", fields, {0}},
        {2, "alpha", fields, {0, 1}},
        {2, "  alpha    beta  ", {"alpha beta"}, {0}},
        {1, "\talpha\r\n", {"alpha beta"}, {0}},
        {1, "NEEDLE", {"needle", "|x = needle", "||see needle", "|||needle()"}, {0, 1, 2, 3}},
        // A word matches at the start of a word only; punctuation starting a piece anywhere.
        {1, "reg", starts, {0, 1}},
        {1, "egistry", starts, {}},
        {1, "x", {"x marks", "Xml writer", "box"}, {0, 1}},
        {1, "%", punct, {0}},
        {1, "_", punct, {1}},
        {1, "\\temp\\", punct, {2}},
        {1, "_var", punct, {1}},
        {0, "a%c", {"abc", "a c"}, {}},
        {0, "a_c", {"abc", "a c"}, {}},
        {1, "foo.bar", dotted, {0}},
        {0, "foo.bar(1)", dotted, {0}},
        // Quotes and what looks like SQL or an index query are text.
        {0, "\"Don't\"", quoted, {0}},
        {0, "'; DROP TABLE SourceCode; --", quoted, {1}},
        {0, "NEAR(a b) OR c*", quoted, {2}},
        {1, "\" ' ; --", quoted, {0, 1}},
        {1, "OR", quoted, {2}},
        // Letters outside ASCII compare without case, but keep their marks and their length.
        {1, "ärger", umlaut, {0}},
        {0, "ÜBER GRÖSSE", umlaut, {}},
        {0, "ÜBER GRÖßE", umlaut, {0}},
        {1, "σοφ", umlaut, {1}},
        {1, "röße", umlaut, {}},
        {1, "angstrom", {"||Straße und Ångström"}, {}},
        {2, "ÅNGSTRÖM straße", {"||Straße und Ångström"}, {0}},
        {1, "kelvin", {"\u212Aelvin", "\u017Ftring"}, {0}},
        {1, "STRING", {"\u212Aelvin", "\u017Ftring"}, {1}},
        // A private-use character is a word character to the tokenizer; a curly quote and a
        // no-break space are not.
        {1, "value", other, {1, 2}},
        {1, "valué", other, {}},
    };
    QHash<QString, int> saved;
    const auto idOf = [&](const QString& item) {
        if (!saved.contains(item)) {
            const QStringList f = item.split(QLatin1Char('|'));
            saved[item] = add(f.value(0), f.value(1), f.value(2), f.value(3));
        }
        return saved.value(item);
    };
    for (const auto& c : cases) {
        QList<int> mine, expected;
        for (const QString& item : c.items)
            mine << idOf(item);
        for (const int hit : c.hits)
            expected << mine.at(hit);
        std::sort(expected.begin(), expected.end());
        QList<int> found;
        for (const int id : ids(c.mode, c.query))
            if (mine.contains(id))
                found << id;
        EXPECT_EQ(found, expected)
            << "mode " << c.mode << " query [" << c.query.toStdString() << "]";
    }
    EXPECT_EQ(cLibraryService(dbPath).GetSourceCode(idOf(quoted.at(1))).Code(),
              QStringLiteral("x = \"'; DROP TABLE SourceCode; --\""));
}

// The service reads its candidates as the UTF-8 bytes they are stored in and finds an ASCII
// piece there; the answers are those of the rule over the text, also at the characters where
// the bytes alone would mislead.
TEST_F(SearchTest, CandidatesReadAsStoredBytesAnswerAsTheirText) {
    const QStringList texts{
        QString::fromUtf8("\uFEFFvalue"),     QString::fromUtf8("e\u0301value"),
        QString::fromUtf8(" \u0301value"),    QString::fromUtf8("\u00E9value"),
        QString::fromUtf8("\U0001F600value"), QStringLiteral("xValue VALUE"),
        QString::fromUtf8("\u212Aey"),        QString::fromUtf8("a.\u017Ftring")};
    for (const QString& text : texts)
        add(QStringLiteral("item"), text);
    auto& tokens = TokenCharacters::forTokenizer(QStringLiteral("unicode61 remove_diacritics 0"),
                                                 QStringLiteral("test"));
    for (const char* query : {"value", "Value", "VALUE", "key", "a.string", ".STRING"}) {
        const SearchMatcher rule(0, QLatin1String(query), tokens);
        QList<int> expected;
        for (int i = 0; i < texts.size(); ++i)
            if (rule.rowMatches({QStringLiteral("item"), texts.at(i)}))
                expected << items.at(i).id;
        EXPECT_FALSE(expected.isEmpty()) << query;
        EXPECT_EQ(ids(0, QLatin1String(query)), expected) << query;
    }
}

TEST_F(SearchTest, BlankTextFindsNothingAndAnUnknownModeIsRefused) {
    add(QStringLiteral("anything"));
    for (int mode = 0; mode <= 2; ++mode) {
        for (const QString& text : {QString(), QStringLiteral("   "), QStringLiteral("\t\r\n")}) {
            const VbArray<ItemRow> rows = cLibraryService(dbPath).Search(mode, text, 0, 0, 0);
            EXPECT_EQ(rows.LBound(), 0);
            EXPECT_EQ(rows.UBound(), 0);
        }
    }
    EXPECT_THROW(ids(3, QStringLiteral("x")), QsError);
    EXPECT_THROW(ids(-1, QStringLiteral("x")), QsError);
}

// --- filters, folders and stored files ------------------------------------------------------

TEST_F(SearchTest, FiltersNarrowByCategoryStatusAndTypeAndZeroFiltersNothing) {
    Item a{0, 1, 201, 1, false, QStringLiteral("shared word"), {}, {}, {}};
    Item b{0, secondCategory, 201, 1, false, QStringLiteral("shared word"), {}, {}, {}};
    Item c{0, 1, 202, 2, false, QStringLiteral("shared word"), {}, {}, {}};
    save(a);
    save(b);
    save(c);
    EXPECT_EQ(ids(1, QStringLiteral("shared"), 0, 0, 0), (QList<int>{a.id, b.id, c.id}));
    EXPECT_EQ(ids(1, QStringLiteral("shared"), secondCategory), QList<int>{b.id});
    EXPECT_EQ(ids(1, QStringLiteral("shared"), 0, 2), QList<int>{c.id});
    EXPECT_EQ(ids(1, QStringLiteral("shared"), 0, 1, 201), (QList<int>{a.id, b.id}));
    EXPECT_EQ(ids(2, QStringLiteral("shared word"), 1, 1, 201), QList<int>{a.id});
    EXPECT_EQ(ids(0, QStringLiteral("shared word"), 1, 0, 202), QList<int>{c.id});
    // The confirmed path keeps the filters too.
    EXPECT_EQ(ids(0, QStringLiteral("d word"), 0, 0, 0), QList<int>{});
    EXPECT_EQ(ids(1, QStringLiteral("w%rd word"), secondCategory), QList<int>{b.id});
}

TEST_F(SearchTest, MatchingFoldersComeBackMarkedAsFolders) {
    Item folder{0, 1, 201, 1, true, QStringLiteral("Registry helpers"), {}, {}, {}};
    save(folder);
    Item child{0, 1, 201, 1, false, QStringLiteral("Read a registry value"), {}, {}, {}};
    save(child);
    const VbArray<ItemRow> rows =
        cLibraryService(dbPath).Search(1, QStringLiteral("registry"), 0, 0, 0);
    ASSERT_EQ(rows.UBound(), 2);
    EXPECT_EQ(rows(1).Id, folder.id);
    EXPECT_TRUE(rows(1).IsFolder);
    EXPECT_EQ(rows(1).TypeId, 201);
    EXPECT_EQ(rows(2).Id, child.id);
    EXPECT_FALSE(rows(2).IsFolder);
    EXPECT_EQ(rows(2).Tested, 1);
    EXPECT_EQ(rows(2).Description, QStringLiteral("Read a registry value"));
}

TEST_F(SearchTest, StoredFilesAreSearchedByDescriptionAndNotes) {
    add(QStringLiteral("winsock snippet"));
    cSourceFile file(dbPath);
    file.BeginEdit(0);
    file.CategoryId(1);
    file.FileTypeId(101);
    file.IsFolder(false);
    file.Description(QStringLiteral("Article"));
    file.Notes(QStringLiteral("All about Winsock"));
    const int fileId = file.Save();
    const VbArray<ItemRow> rows =
        cLibraryService(dbPath).Search(0, QStringLiteral("winsock"), 1, 0, 101);
    ASSERT_EQ(rows.UBound(), 1);
    EXPECT_EQ(rows(1).Id, fileId);
    EXPECT_EQ(rows(1).TypeId, 101);
    EXPECT_EQ(ids(1, QStringLiteral("winsock"), 0, 0, 201).size(), 1);
    EXPECT_EQ(ids(1, QStringLiteral("winsock"), 0, 0, 0).size(), 2);
    EXPECT_EQ(ids(1, QStringLiteral("winsock"), 0, 0, 102), QList<int>{});
}

// --- saves ------------------------------------------------------------------------------------

TEST_F(SearchTest, EverySaveIsSeenByTheNextSearch) {
    const int id = add(QStringLiteral("first"), QStringLiteral("Dim oldName"));
    EXPECT_EQ(ids(1, QStringLiteral("oldname")), QList<int>{id});

    cSourceCode record = cLibraryService(dbPath).GetSourceCode(id);
    record.BeginEdit(0);
    record.Description(QStringLiteral("Mergesort"));
    record.Code(QStringLiteral("Dim newName"));
    record.Notes(QStringLiteral("renamed %"));
    record.Save();
    EXPECT_EQ(ids(1, QStringLiteral("oldname first")), QList<int>{});
    EXPECT_EQ(ids(1, QStringLiteral("newname")), QList<int>{id});
    EXPECT_EQ(ids(1, QStringLiteral("mergesort")), QList<int>{id});
    EXPECT_EQ(ids(0, QStringLiteral("renamed %")), QList<int>{id});

    // A save of the description alone reaches the index too.
    record = cLibraryService(dbPath).GetSourceCode(id);
    record.BeginEdit(0);
    record.Description(QStringLiteral("Quicksort"));
    record.Save();
    EXPECT_EQ(ids(1, QStringLiteral("mergesort")), QList<int>{});
    EXPECT_EQ(ids(1, QStringLiteral("quicksort")), QList<int>{id});

    test::DeleteRecord(record);
    EXPECT_EQ(ids(1, QStringLiteral("newname quicksort")), QList<int>{});
    EXPECT_EQ(ids(0, QStringLiteral("renamed %")), QList<int>{});
}

// --- the index and the scan agree -------------------------------------------------------------

TEST(SearchTokenizer, WordCharactersAreLearntFromTheIndexTokenizer) {
    auto& tokens = TokenCharacters::forTokenizer(QStringLiteral("unicode61 remove_diacritics 0"),
                                                 QStringLiteral("test"));
    using Kind = TokenCharacters::Kind;
    const std::pair<char32_t, Kind> kinds[] = {{U'a', Kind::Word},
                                               {U'_', Kind::Separator},
                                               {U'\u00E9', Kind::Word},
                                               {U'\uE000', Kind::Word},
                                               {U'\U00010400', Kind::Word},
                                               {U'\u00A0', Kind::Separator},
                                               {U'\u201C', Kind::Separator},
                                               {U'\u0301', Kind::Mark},
                                               {U'\U0001F600', Kind::Separator}};
    for (const auto& [c, kind] : kinds)
        EXPECT_EQ(tokens.kind(c), kind) << "U+" << std::hex << quint32(c);
    // A mark runs on the word before it, but a mark after a separator begins nothing.
    EXPECT_FALSE(tokens.boundaryBefore(QStringLiteral("e\u0301value"), 2));
    EXPECT_TRUE(tokens.boundaryBefore(QStringLiteral(" \u0301value"), 2));
    EXPECT_TRUE(tokens.boundaryBefore(QStringLiteral("\u0301\u0301value"), 2));
    EXPECT_FALSE(tokens.boundaryBefore(QStringLiteral("\U00010400value"), 2));
    EXPECT_TRUE(tokens.boundaryBefore(QStringLiteral("\U0001F600value"), 2));
    EXPECT_EQ(TokenCharacters::tokenizerOf(
                  QStringLiteral("CREATE VIRTUAL TABLE t USING fts5 (a, tokenize = 'unicode61 "
                                 "tokenchars ''-''')")),
              QStringLiteral("unicode61 tokenchars '-'"));
    EXPECT_EQ(TokenCharacters::tokenizerOf(QStringLiteral("CREATE VIRTUAL TABLE t USING fts5(a)")),
              QStringLiteral("unicode61"));
    EXPECT_EQ(TokenCharacters::tokenizerOf(
                  QStringLiteral("CREATE VIRTUAL TABLE t USING fts5 (a, tokenize = '%1 "
                                 "remove_diacritics 0')")
                      .arg(QLatin1String(kSearchTokenizer))),
              QStringLiteral("unicode61 remove_diacritics 0"));
}

TEST(SearchPieces, TheIndexAloneAnswersAsciiPiecesThatBeginAWord) {
    auto& tokens = TokenCharacters::forTokenizer(QStringLiteral("unicode61 remove_diacritics 0"),
                                                 QStringLiteral("test"));
    const QString longRun(kSearchSeparatorBytes + 1, QLatin1Char('='));
    const struct {
        QString piece;
        bool answered;
        QString indexQuery;
    } cases[] = {
        {QStringLiteral("Dim"), true, QStringLiteral("\"Dim\"*")},
        {QStringLiteral("New ADODB.Recordset"), true, QStringLiteral("\"New ADODB.Recordset\"*")},
        {QStringLiteral("x(\"q\")\r\n\ty"), true, QStringLiteral("\"x(\"\"q\"\")\r\n\ty\"*")},
        {QStringLiteral("\"q\""), false, QStringLiteral("\"\"\"q\"\"\"*")},
        {QStringLiteral(".Recordset"), false, QStringLiteral("\".Recordset\"*")},
        {QStringLiteral("größe"), false, QStringLiteral("\"gr\"*")},
        {QStringLiteral("a") + longRun + QStringLiteral("b"), false,
         QStringLiteral("\"a%1b\"*").arg(longRun)},
        {QStringLiteral("a\x01b"), false, QStringLiteral("\"a\x01b\"*")},
        {QStringLiteral("%"), false, QString()},
    };
    for (const auto& c : cases) {
        const SearchMatcher matcher(0, c.piece, tokens);
        ASSERT_EQ(matcher.pieces().size(), 1);
        EXPECT_EQ(matcher.pieces()[0].answeredByIndex, c.answered) << c.piece.toStdString();
        EXPECT_EQ(matcher.pieces()[0].indexQuery, c.indexQuery) << c.piece.toStdString();
    }
}

// Texts built from words that meet at every kind of boundary, searched with pieces cut out of
// them: the service must answer as the plain reference scan does.
void SearchTest::expectAgreementWithPlainScan() {
    const QStringList words{
        QStringLiteral("reg"),        QStringLiteral("Registry"),    QStringLiteral("GetReg"),
        QStringLiteral("dim"),        QStringLiteral("DIM"),         QStringLiteral("x"),
        QStringLiteral("x_1"),        QStringLiteral("foo.bar"),     QStringLiteral("50%"),
        QStringLiteral("\\path"),     QStringLiteral("'q'"),         QStringLiteral("\"dq\""),
        QStringLiteral("über"),       QStringLiteral("ÜBER"),        QStringLiteral("naïve"),
        QStringLiteral("ΣΟΦΊΑ"),      QStringLiteral("σοφίας"),      QStringLiteral("straße"),
        QStringLiteral("STRAẞE"),     QStringLiteral("ſtring"),      QStringLiteral("string"),
        QStringLiteral("\u212Aey"),   QStringLiteral("key"),         QStringLiteral("\uE000tag"),
        QStringLiteral("tag"),        QStringLiteral("\u0378x"),     QStringLiteral("e\u0301t"),
        QStringLiteral("\U00010400"), QStringLiteral("\U00010428z"), QStringLiteral("\U0001F600ok"),
        QStringLiteral("OR"),         QStringLiteral("NEAR"),        QStringLiteral("*"),
        QStringLiteral("a"),          QStringLiteral("1"),           QStringLiteral("--"),
    };
    const QStringList glue{QStringLiteral(" "),
                           QStringLiteral("\r\n"),
                           QStringLiteral("."),
                           QStringLiteral("("),
                           QStringLiteral("\u201C"),
                           QStringLiteral("\u00A0"),
                           QStringLiteral("\u2014"),
                           QStringLiteral("_"),
                           QString(),
                           QStringLiteral("  "),
                           QStringLiteral(" = "),
                           QStringLiteral("\t"),
                           QStringLiteral("\x01"),
                           QString(kSearchSeparatorBytes + 2, QLatin1Char(' '))};
    QRandomGenerator random(20240501);
    const auto pick = [&](const QStringList& list) {
        return list.at(int(random.bounded(quint32(list.size()))));
    };
    const auto text = [&](int maxWords) {
        QString t;
        const int n = int(random.bounded(quint32(maxWords + 1)));
        for (int i = 0; i < n; ++i)
            t += pick(words) + pick(glue);
        return t;
    };
    for (int i = 0; i < 40; ++i) {
        Item item;
        item.categoryId = random.bounded(3) == 0 ? secondCategory : 1;
        item.codeTypeId = random.bounded(2) == 0 ? 201 : 202;
        item.tested = int(random.bounded(2)) + 1;
        item.isFolder = random.bounded(6) == 0;
        item.description = text(3);
        item.code = text(12);
        item.notes = text(4);
        item.example = text(2);
        save(item);
    }

    const auto cutFrom = [&](const QString& source, int longest) {
        const QVector<char32_t> points = codePoints(source);
        if (points.isEmpty())
            return QString();
        const int from = int(random.bounded(quint32(points.size())));
        const int length =
            1 + int(random.bounded(quint32(std::min<int>(longest, points.size() - from))));
        return QString::fromUcs4(points.constData() + from, length);
    };
    int queries = 0;
    int withHits = 0;
    for (int i = 0; i < 400; ++i) {
        QString query;
        switch (random.bounded(4)) {
        case 0:
            query = pick(words);
            break;
        case 1:
            query = cutFrom(items.at(int(random.bounded(quint32(items.size())))).code, 30);
            break;
        case 2:
            query = pick(words) + pick(glue) + pick(words);
            if (random.bounded(2) == 0)
                query += pick(glue) + pick(words).left(2);
            break;
        default:
            query = cutFrom(pick(words), 8) + QLatin1Char(' ') + cutFrom(pick(words), 8);
            break;
        }
        const int mode = int(random.bounded(3));
        const int categoryId = random.bounded(3) == 0 ? secondCategory : 0;
        const int status = random.bounded(3) == 0 ? 1 : 0;
        const int typeId = random.bounded(3) == 0 ? 202 : 0;
        const QList<int> expected = referenceSearch(items, mode, query, categoryId, status, typeId);
        EXPECT_EQ(ids(mode, query, categoryId, status, typeId), expected)
            << "mode " << mode << " query [" << query.toStdString() << "]";
        ++queries;
        withHits += expected.isEmpty() ? 0 : 1;
    }
    // The generated queries must exercise hits as well as misses.
    EXPECT_GT(withHits, queries / 4);
    EXPECT_LT(withHits, queries);
}

TEST_F(SearchTest, AnswersEqualAPlainScanForGeneratedTextsAndQueries) {
    expectAgreementWithPlainScan();
}

TEST_F(SearchTest, AnswersStayTheSameWhenItemRowsComeFromTheCoveringIndex) {
    {
        test::RawDb raw(dbPath);
        for (const QString& statement : SearchSchemaStatements())
            ASSERT_TRUE(raw.exec(statement)) << statement.toStdString();
    }
    expectAgreementWithPlainScan();
}

} // namespace
} // namespace qs
