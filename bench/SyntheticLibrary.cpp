#include "SyntheticLibrary.h"

#include "SqliteStore.h"

#include <QDateTime>
#include <QFile>
#include <QRandomGenerator>
#include <QSqlQuery>
#include <QVector>

namespace qs::bench {

namespace {

const QString kSource = QStringLiteral("bench:SyntheticLibrary;");

const QStringList kVerbs{"Get",   "Set",   "Read",  "Write", "Find",  "Load",   "Save",
                         "Parse", "Build", "Check", "Open",  "Close", "Count",  "Format",
                         "Copy",  "Move",  "Sort",  "Fill",  "Clear", "Convert"};
const QStringList kNouns{"Value",  "Key",     "File",    "Path",   "Name",   "Window",
                         "Item",   "List",    "Buffer",  "Handle", "Text",   "Date",
                         "Record", "Field",   "Printer", "Font",   "Color",  "Registry",
                         "Socket", "Process", "Folder",  "Node",   "Column", "Index"};
const QStringList kSentences{
    "This routine was written for the old reporting module and kept because it works.",
    "Call it once at start-up; later calls return the cached value.",
    "The API returns zero on failure, so check Err.LastDllError afterwards.",
    "Handles long paths by falling back to the short name when needed.",
    "Tested on the usual office machines with large and small fonts.",
    "Remember to release the handle, or the file stays locked until the program ends.",
    "The second argument is optional and defaults to the current folder.",
    "Strings are passed by value so the caller's buffer is never changed.",
    "See the example for a typical call from a form's load event."};

QString identifier(QRandomGenerator& random) {
    return kVerbs.at(random.bounded(kVerbs.size())) + kNouns.at(random.bounded(kNouns.size()));
}

QString noun(QRandomGenerator& random) {
    return kNouns.at(random.bounded(kNouns.size()));
}

QString procedure(QRandomGenerator& random, bool common) {
    const QString name = identifier(random);
    const QString a = noun(random);
    const QString b = noun(random);
    QString code;
    code += QStringLiteral("Public Function %1(ByVal str%2 As String, ByRef lng%3 As Long) As "
                           "Boolean\r\n")
                .arg(name, a, b);
    code += QStringLiteral("    ' %1 the %2 and report how it went.\r\n")
                .arg(kVerbs.at(random.bounded(kVerbs.size())), a.toLower());
    code += QStringLiteral("    On Error GoTo ErrHandler\r\n    Dim strResult As String\r\n"
                           "    Dim lngIndex As Long\r\n    Dim intCount As Integer\r\n");
    if (common)
        code += QStringLiteral("    Dim rs As ADODB.Recordset\r\n    Set rs = New "
                               "ADODB.Recordset\r\n");
    const int statements = 6 + random.bounded(10);
    for (int i = 0; i < statements; ++i) {
        switch (random.bounded(5)) {
        case 0:
            code += QStringLiteral("    If lng%1 > %2 Then\r\n        strResult = Left$(str%3, "
                                   "lng%1) & \"%4\"\r\n    End If\r\n")
                        .arg(b)
                        .arg(random.bounded(100))
                        .arg(a, noun(random));
            break;
        case 1:
            code += QStringLiteral("    For lngIndex = 1 To lng%1\r\n        intCount = intCount "
                                   "+ %2(str%3, lngIndex)\r\n    Next lngIndex\r\n")
                        .arg(b, identifier(random), a);
            break;
        case 2:
            code += QStringLiteral("    str%1 = Trim$(Mid$(str%1, %2, Len(str%1) - %3))\r\n")
                        .arg(a)
                        .arg(random.bounded(10) + 1)
                        .arg(random.bounded(5));
            break;
        case 3:
            code += QStringLiteral("    Select Case lng%1\r\n        Case %2\r\n            %3 "
                                   "str%4\r\n        Case Else\r\n            lng%1 = 0\r\n"
                                   "    End Select\r\n")
                        .arg(b)
                        .arg(random.bounded(20))
                        .arg(identifier(random), a);
            break;
        default:
            code += QStringLiteral("    Debug.Print \"%1: \" & str%2 & \" (\" & CStr(lng%3) & "
                                   "\")\"\r\n")
                        .arg(identifier(random), a, b);
            break;
        }
    }
    code += QStringLiteral("    %1 = True\r\n    Exit Function\r\nErrHandler:\r\n    %1 = False\r\n"
                           "    MsgBox Err.Description, vbExclamation, \"%1\"\r\nEnd Function\r\n"
                           "\r\n")
                .arg(name);
    return code;
}

QString sentences(QRandomGenerator& random, int count) {
    QStringList chosen;
    for (int i = 0; i < count; ++i)
        chosen << kSentences.at(random.bounded(kSentences.size()));
    return chosen.join(QLatin1Char(' '));
}

void removeFile(const QString& path) {
    for (const char* suffix : {"", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(suffix));
}

} // namespace

const SyntheticLibrary::Node& SyntheticLibrary::node(int index) {
    static const Node nodes[kNodeCount] = {{1, 201, 1}, {1, 202, 1}, {1, 203, 2}, {1, 204, 1},
                                           {2, 201, 2}, {2, 203, 1}, {3, 201, 1}, {3, 204, 2},
                                           {4, 202, 2}, {5, 203, 1}};
    return nodes[index];
}

void SyntheticLibrary::build(const QString& path, int items, quint32 seed) {
    removeFile(path);
    SqliteStore::create(path, QString(), kSource);
    auto store = SqliteStore::open(path, kSource);
    store->run(QStringLiteral("PRAGMA synchronous = OFF"), {}, kSource);
    QRandomGenerator random(seed);

    {
        SqliteStore::Transaction transaction(*store, kSource);
        for (const char* name : {"Windows API", "Database", "Strings", "Forms"})
            store->run(QStringLiteral("INSERT INTO Category (Description) VALUES (?)"),
                       {QString::fromLatin1(name)}, kSource);
        for (int i = 0; i < 20; ++i)
            store->run(QStringLiteral("INSERT INTO Authors (FirstName, LastName) VALUES (?, ?)"),
                       {QStringLiteral("First%1").arg(i), QStringLiteral("Last%1").arg(i)},
                       kSource);
        transaction.commit();
    }

    QSqlQuery insert = store->prepare(
        QStringLiteral("INSERT INTO SourceCode (ParentId, CategoryId, CodeTypeId, Tested, "
                       "AuthorId, IsFolder, Description, DateWritten, DateEntered, Notes, "
                       "Example, Code) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        kSource);
    QSqlQuery revision = store->prepare(
        QStringLiteral("INSERT INTO RevHist_SrcCode (SourceCodeId, Seq, AuthorId, Version, "
                       "Comment, DateRevised) VALUES (?, ?, ?, ?, ?, ?)"),
        kSource);
    const QDateTime start(QDate(2001, 1, 1), QTime(9, 0));
    const auto addRow = [&](int parentId, const Node& where, bool folder,
                            const QString& description, const QString& notes,
                            const QString& example, const QString& code, int dayOffset) {
        const QVariant date = StoredDate(start.addDays(dayOffset));
        const QVariantList values{parentId,
                                  where.categoryId,
                                  where.codeTypeId,
                                  where.tested,
                                  1 + random.bounded(20),
                                  folder ? 1 : 0,
                                  description,
                                  date,
                                  date,
                                  notes,
                                  example,
                                  code};
        for (int i = 0; i < values.size(); ++i)
            insert.bindValue(i, values.at(i));
        store->exec(insert, kSource);
        return insert.lastInsertId().toInt();
    };

    // Folders first, three levels deep in every node.
    SqliteStore::Transaction folders(*store, kSource);
    QVector<QVector<int>> folderIds(kNodeCount);
    const int topFolders = qBound(2, items / 2500, 40);
    for (int n = 0; n < kNodeCount; ++n) {
        for (int t = 0; t < topFolders; ++t) {
            const int top =
                addRow(0, node(n), true, QStringLiteral("%1 routines %2").arg(noun(random)).arg(t),
                       QString(), QString(), QString(), t);
            folderIds[n] << top;
            for (int s = 0; s < 3; ++s) {
                const int sub =
                    addRow(top, node(n), true, QStringLiteral("%1 helpers").arg(identifier(random)),
                           QString(), QString(), QString(), t);
                const int subSub = addRow(sub, node(n), true, QStringLiteral("Older versions"),
                                          QString(), QString(), QString(), t);
                folderIds[n] << sub << subSub;
            }
        }
    }
    folders.commit();

    // The rare word goes into items spread over the library.
    QVector<int> rareAt;
    for (int i = 0; i < kRareCount; ++i) {
        const int spread = (items / (kRareCount + 1)) * (i + 1);
        rareAt << spread - spread % kNodeCount + (i * 3) % kNodeCount;
    }

    constexpr int kBatch = 5000;
    for (int first = 0; first < items; first += kBatch) {
        SqliteStore::Transaction transaction(*store, kSource);
        for (int i = first; i < qMin(items, first + kBatch); ++i) {
            const int n = i % kNodeCount;
            const bool common = random.bounded(10) == 0;
            const int parent =
                random.bounded(10) < 7 ? folderIds[n].at(random.bounded(folderIds[n].size())) : 0;
            QString code;
            const int procedures = 2 + random.bounded(3);
            for (int p = 0; p < procedures; ++p)
                code += procedure(random, common && p == 0);
            QString notes = sentences(random, 2 + random.bounded(4));
            if (rareAt.contains(i))
                notes +=
                    QStringLiteral(" Ported from the %1 toolkit.").arg(QLatin1String(kRareWord));
            const QString name = identifier(random);
            const QString example =
                QStringLiteral("Dim blnOk As Boolean\r\nblnOk = %1(\"C:\\Temp\\%2.txt\", 0)\r\n")
                    .arg(name, noun(random).toLower());
            const int id = addRow(parent, node(n), false, QStringLiteral("%1 %2").arg(name).arg(i),
                                  notes, example, code, i % 7000);
            const int lines = 1 + random.bounded(3);
            for (int r = 0; r < lines; ++r) {
                const QVariantList values{id,
                                          r + 1,
                                          1 + random.bounded(20),
                                          QStringLiteral("1.%1.0").arg(r),
                                          r == 0 ? QStringLiteral("Initial entry")
                                                 : QStringLiteral("Fixed a boundary case"),
                                          StoredDate(start.addDays(i % 7000 + r))};
                for (int v = 0; v < values.size(); ++v)
                    revision.bindValue(v, values.at(v));
                store->exec(revision, kSource);
            }
        }
        transaction.commit();
    }
    insert.finish();
    revision.finish();
    store->run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"), {}, kSource);
}

} // namespace qs::bench
