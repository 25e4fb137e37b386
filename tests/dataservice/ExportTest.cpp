#include "DataServiceFixture.h"
#include "ExportWriters.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>

using namespace qs;
using namespace qs::test;

namespace {

// The text pdftotext reads back from a PDF.
QString pdfText(const QString& pdftotext, QStringList arguments) {
    QProcess p;
    p.start(pdftotext, arguments << QStringLiteral("-"));
    EXPECT_TRUE(p.waitForFinished(60000));
    return QString::fromUtf8(p.readAllStandardOutput());
}

// One SourceItem as read back: its id and its fields, revisions as lists of fields.
struct ReadItem {
    QString id;
    QMap<QString, QString> fields;
    QVector<QMap<QString, QString>> revisions;
    bool hasRevisions = false;
};

// Parses an export with a real XML reader; a parse error fails the test.
QVector<ReadItem> parseExport(const QString& path) {
    QVector<ReadItem> items;
    QXmlStreamReader r(ReadFile(path));
    EXPECT_TRUE(r.readNextStartElement());
    EXPECT_EQ(r.name(), QLatin1String("SourceItems"));
    while (r.readNextStartElement()) {
        EXPECT_EQ(r.name(), QLatin1String("SourceItem"));
        ReadItem item;
        item.id = r.attributes().value(QLatin1String("SourceId")).toString();
        while (r.readNextStartElement()) {
            if (r.name() == QLatin1String("Revisions")) {
                item.hasRevisions = true;
                while (r.readNextStartElement()) {
                    QMap<QString, QString> rev;
                    while (r.readNextStartElement()) {
                        const QString name = r.name().toString();
                        rev[name] = r.readElementText();
                    }
                    item.revisions.append(rev);
                }
            } else {
                const QString name = r.name().toString();
                item.fields[name] = r.readElementText();
            }
        }
        items.append(item);
    }
    EXPECT_FALSE(r.hasError()) << r.errorString().toStdString();
    return items;
}

QStringList markerLines(const QString& path) {
    QStringList hits;
    for (const QByteArray& line : ReadFile(path).split('\n')) {
        if (line.contains("<SourceItem SourceId = "))
            hits << QString::fromUtf8(line.trimmed());
    }
    return hits;
}

const QString kNastyCode =
    QString::fromUtf8("If a < b And c > d Then s = \"x & y\" ' it's\r\n"
                      "\tDebug.Print \"\xe2\x82\xac \xc3\xbc \xe4\xb8\xad\"\r\n"
                      "</SourceItem> <SourceItem SourceId = \"9\">\r\n") +
    QChar(0x01) + QStringLiteral("End If");

class Export : public DataServiceTest {
protected:
    cSourceCode item(const QString& description, const QString& code, int revisions) {
        const int id = addCode(description);
        cSourceCode rec = cLibraryService(dbPath).GetSourceCode(id);
        rec.BeginEdit(0);
        rec.Code(code);
        rec.Notes(QStringLiteral("Notes with ]]> and &amp;"));
        for (int i = 0; i < revisions; ++i) {
            cRevision& r = rec.Revisions().Add(0);
            r.Version(QStringLiteral("1.0.%1").arg(i));
            r.Comment(QStringLiteral("Change <%1>").arg(i));
            r.DateRevised(QDateTime(QDate(2003, 5, 1 + i), QTime(9, 30)));
        }
        rec.Save();
        return cLibraryService(dbPath).GetSourceCode(id);
    }
};

} // namespace

TEST_F(Export, XmlItemStartsWithTheMarkerLineAndEscapesEveryField) {
    const cSourceCode rec = item(QStringLiteral("Compare <two> & \"more\""), kNastyCode, 0);
    // Without append whatever the file held is replaced.
    const QString path = WriteFile(home->file("out.xml"), "not xml at all");
    rec.ExportXml(path, false, false);
    EXPECT_EQ(markerLines(path),
              QStringList{QStringLiteral("<SourceItem SourceId = \"%1\">").arg(rec.Id())});
    const auto items = parseExport(path);
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].id, QString::number(rec.Id()));
    EXPECT_EQ(items[0].fields["Description"], "Compare <two> & \"more\"");
    // CR LF survive the reader; the control character XML can't carry is replaced.
    QString expected = kNastyCode;
    expected.replace(QChar(0x01), QChar(0xFFFD));
    EXPECT_EQ(items[0].fields["Code"], expected);
    EXPECT_EQ(items[0].fields["Notes"], "Notes with ]]> and &amp;");
    EXPECT_EQ(items[0].fields["CodeTypeId"], "201");
    EXPECT_FALSE(items[0].hasRevisions);
    EXPECT_TRUE(ReadFile(path).contains("\r\n</SourceItems>\r\n"));
}

TEST_F(Export, AppendingAddsItemsAndKeepsTheDocumentWellFormed) {
    const cSourceCode a = item(QStringLiteral("First"), QStringLiteral("a"), 1);
    const cSourceCode b = item(QStringLiteral("Second"), kNastyCode, 2);
    const QString path = home->file("many.xml");
    a.ExportXml(path, true, false); // append to a file that isn't there makes it
    b.ExportXml(path, true, true);
    a.ExportXml(path, true, true);
    const auto items = parseExport(path);
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0].fields["Description"], "First");
    EXPECT_FALSE(items[0].hasRevisions);
    EXPECT_EQ(items[1].fields["Description"], "Second");
    ASSERT_EQ(items[1].revisions.size(), 2);
    EXPECT_EQ(items[1].revisions[0]["Version"], "1.0.0");
    EXPECT_EQ(items[1].revisions[1]["Comment"], "Change <1>");
    EXPECT_EQ(items[1].revisions[1]["DateRevised"], "2003-05-02T09:30:00");
    EXPECT_EQ(items[2].id, QString::number(a.Id()));
    EXPECT_EQ(markerLines(path).size(), 3);
}

TEST_F(Export, AppendingToAFileThatIsNoExportRaisesAndLeavesItAlone) {
    const cSourceCode rec = item(QStringLiteral("Item"), QStringLiteral("a"), 0);
    const QList<QByteArray> strangers = {
        "just some text\r\n",
        "<?xml version=\"1.0\"?>\r\n<Other><SourceItem SourceId = \"1\"/></Other>\r\n",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<SourceItems>\r\n<SourceItem SourceId = "
        "\"1\">\r\n",
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<SourceItems>\r\n</SourceItems>\r\n"};
    for (const QByteArray& bytes : strangers) {
        const QString path = home->file("stranger.xml");
        WriteFile(path, bytes);
        const QsError e = Raised([&] { rec.ExportXml(path, true, false); });
        EXPECT_EQ(e.source(), "cSourceCode:ExportXml;");
        EXPECT_EQ(ReadFile(path), bytes);
    }
}

TEST_F(Export, XmlToAnEmptyPathWritesNothingAndRaisesNothing) {
    // The XML command looks at the path only after the call.
    const cSourceCode rec = item(QStringLiteral("Nowhere"), QStringLiteral("a"), 1);
    const QDir here = QDir::current();
    const QStringList before = here.entryList(QDir::Files);
    EXPECT_NO_THROW(rec.ExportXml(QString(), false, true));
    EXPECT_NO_THROW(rec.ExportXml(QString(), true, false));
    EXPECT_EQ(here.entryList(QDir::Files), before);
}

TEST_F(Export, TextIsWindows1252WithCrLfLineEndsAndAMissingFolderRaises) {
    const cSourceCode rec = item(QStringLiteral("Text"), QStringLiteral("a"), 0);
    const QString path = home->file("out.txt");
    rec.ExportText(path, QString::fromUtf8("one\ntwo\r\nthree\rfour \xe2\x82\xac\xc3\xa9\xc3\xbc"
                                           "\xe2\x80\x94\xe2\x80\x9cq\xe2\x80\x9d\xe4\xb8\xad"
                                           "\xf0\x9f\x98\x80."));
    EXPECT_EQ(ReadFile(path),
              QByteArray("one\r\ntwo\r\nthree\r\nfour \x80\xe9\xfc\x97\x93q\x94??."));
    const QsError e = Raised([&] { rec.ExportText(home->file("no/such/dir/x.txt"), "a"); });
    EXPECT_EQ(e.source(), "cSourceCode:ExportText;");
}

TEST_F(Export, PdfTextComesBackPaginatedWithPageNumbersAndEmptyTextIsOnePage) {
    const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    ASSERT_FALSE(pdftotext.isEmpty()) << "pdftotext (poppler-utils) is not installed";
    QStringList lines;
    for (int i = 1; i <= 150; ++i)
        lines << QStringLiteral("Line%1 Dim x%1 As Long").arg(i, 3, 10, QLatin1Char('0'));
    lines << QStringLiteral("Tail") + QString(300, QLatin1Char('w')) + QStringLiteral("End");
    const cSourceCode rec = item(QStringLiteral("Pdf"), QStringLiteral("a"), 0);
    const QString path = home->file("out.pdf");
    rec.ExportPdf(path, lines.join(QStringLiteral("\r\n")));
    ASSERT_TRUE(ReadFile(path).startsWith("%PDF-"));

    const QString text = pdfText(pdftotext, {QStringLiteral("-layout"), path});
    int pages = 0;
    for (int n = 1; n < 10; ++n) {
        if (text.contains(QStringLiteral("Page %1 of").arg(n)))
            pages = n;
    }
    ASSERT_GE(pages, 2);
    EXPECT_TRUE(text.contains(QStringLiteral("Page %1 of %1").arg(pages)));
    EXPECT_EQ(text.count(QLatin1Char('\f')), pages);
    int from = 0;
    for (int i = 0; i < 150; ++i) {
        // Each line comes back whole and in order.
        const int at = text.indexOf(lines[i], from);
        ASSERT_GE(at, 0) << lines[i].toStdString();
        from = at;
    }
    // The long line is wrapped, not cut.
    const QString flat = QString(text).remove(QRegularExpression(QStringLiteral("\\s")));
    EXPECT_TRUE(flat.contains(QStringLiteral("Tail") + QString(300, QLatin1Char('w')) +
                              QStringLiteral("End")));
    // Empty text is one numbered page.
    rec.ExportPdf(path, QString());
    EXPECT_EQ(pdfText(pdftotext, {path}).trimmed(), "Page 1 of 1");
}

TEST(PdfLines, WrapFallsBetweenCharactersNeverInsideOne) {
    const QString x90(90, QLatin1Char('x'));
    const QString emoji = QString::fromUtf8("\xf0\x9f\x98\x80");
    const QString accented = QStringLiteral("e") + QChar(0x0301);
    const QString family = QString::fromUtf8("\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x91\xa7");
    const struct {
        QString text;
        int columns;
        QStringList lines;
    } cases[] = {
        {QStringLiteral("abcdefghij"), 4, {"abcd", "efgh", "ij"}},
        {x90 + emoji, 91, {x90 + emoji}},
        {x90 + emoji + QStringLiteral("y"), 90, {x90, emoji + QStringLiteral("y")}},
        {QStringLiteral("abc") + emoji + QStringLiteral("de"),
         4,
         {QStringLiteral("abc") + emoji, QStringLiteral("de")}},
        {QStringLiteral("abc") + accented + QStringLiteral("fg"),
         4,
         {QStringLiteral("abc") + accented, QStringLiteral("fg")}},
        {QStringLiteral("ab") + family + QStringLiteral("cde"),
         3,
         {QStringLiteral("ab") + family, QStringLiteral("cde")}},
        {emoji + QStringLiteral("\tz"), 8, {emoji + QStringLiteral("   z")}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        EXPECT_EQ(WrapPdfLines(c.text, c.columns), c.lines);
    }
}
