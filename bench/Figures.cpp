#include "Figures.h"

#include "PlainScan.h"
#include "SqliteStore.h"
#include "SyntheticLibrary.h"
#include "SyntheticModule.h"
#include "cCodeParser.h"
#include "cLibraryService.h"
#include "cSourceFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSqlQuery>
#include <fstream>
#include <memory>
#include <string>

namespace qs::bench {

namespace {

QList<int> idsOf(const VbArray<ItemRow>& rows) {
    QList<int> ids;
    for (const ItemRow& row : rows)
        ids << row.Id;
    std::sort(ids.begin(), ids.end());
    return ids;
}

QString number(double value) {
    return QString::number(value, 'f', 3);
}

// A value of /proc/self/status in KiB, -1 where there is none.
qint64 statusKb(const char* field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind(field, 0) == 0)
            return std::stoll(line.substr(std::string(field).size()));
    return -1;
}

// Lets the peak of the resident set start again from the present size.
bool resetPeakMemory() {
    std::ofstream reset("/proc/self/clear_refs");
    reset << "5";
    return reset.good();
}

QByteArray fileHash(const QString& path) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (file.open(QIODevice::ReadOnly))
        hash.addData(&file);
    return hash.result();
}

} // namespace

void FigureGetItems(const BenchContext& context) {
    const auto& node = SyntheticLibrary::node(0);
    VbArray<ItemRow> rows;
    const double ms = MedianMs(context.runs, [&] {
        cLibraryService service(context.path);
        rows = service.GetItems(QStringLiteral("SourceCode"), 0, node.categoryId, node.codeTypeId,
                                0, 0, node.tested, 0);
    });
    QList<int> expected;
    PlainScan scan(context.path);
    const double baseline = MedianMs(context.baselineRuns, [&] {
        expected = scan.items(node.categoryId, node.codeTypeId, node.tested);
    });
    qint64 folders = 0;
    for (const ItemRow& row : rows)
        folders += row.IsFolder ? 1 : 0;
    PrintFigure(context, QStringLiteral("get_items_type_node"), ms, baseline, rows.count(),
                idsOf(rows) == expected, {{QStringLiteral("folders"), QString::number(folders)}});
}

void FigureGetSourceCode(const BenchContext& context) {
    QRandomGenerator random(7);
    // Ids from 1 to the item count all exist: folders and items are numbered without gaps.
    const int highest = context.items;
    QVector<int> ids;
    for (int i = 0; i < 51; ++i)
        ids << 1 + int(random.bounded(quint32(highest)));
    bool agree = true;
    int next = 0;
    QString code;
    const double ms = MedianMs(ids.size(), [&] {
        cLibraryService service(context.path);
        code = service.GetSourceCode(ids.at(next++)).Code();
    });
    PlainScan scan(context.path);
    next = 0;
    QString scanned;
    const double baseline =
        MedianMs(context.baselineRuns, [&] { scanned = scan.code(ids.at(next++)); });
    cLibraryService service(context.path);
    for (int i = 0; i < context.baselineRuns; ++i)
        agree = agree && service.GetSourceCode(ids.at(i)).Code() == scan.code(ids.at(i));
    PrintFigure(context, QStringLiteral("get_source_code"), ms, baseline, 1, agree,
                {{QStringLiteral("code_chars"), QString::number(code.size())}});
}

void FigureSearch(const BenchContext& context, const QString& name, int mode, const QString& text,
                  bool filtered) {
    const auto& node = SyntheticLibrary::node(0);
    const int categoryId = filtered ? node.categoryId : 0;
    const int status = filtered ? node.tested : 0;
    const int typeId = filtered ? node.codeTypeId : 0;
    VbArray<ItemRow> rows;
    const double ms = MedianMs(context.runs, [&] {
        cLibraryService service(context.path);
        rows = service.Search(mode, text, categoryId, status, typeId, 0, 0);
    });
    PlainScan scan(context.path);
    QList<int> expected;
    const double baseline = MedianMs(context.baselineRuns, [&] {
        expected = scan.search(mode, text, categoryId, status, typeId);
    });
    PrintFigure(context, name, ms, baseline, rows.count(), idsOf(rows) == expected,
                {{QStringLiteral("speedup"), number(baseline / qMax(ms, 0.001))}});
}

void FigureBackup(const BenchContext& context) {
    const QString folder = QFileInfo(context.path).absoluteDir().filePath(QStringLiteral("Backup"));
    // The program holds the library open while it backs it up.
    cLibraryService live(context.path);
    live.GetLookup(QStringLiteral("Category"));
    // Each backup is checked and removed before the next, so a large library needs room for
    // one copy only; backups and plain copies take turns, so both meet the same machine.
    const QString copy = context.path + QStringLiteral(".copy");
    QVector<double> times;
    QVector<double> copies;
    const qint64 items = PlainScan::itemCount(context.path);
    bool agree = true;
    for (int run = 0; run < context.runs; ++run) {
        QString made;
        times << MedianMs(
            1, [&] { made = cLibraryService(context.path).BackupDatabase(context.path); });
        agree = agree && PlainScan::itemCount(made) == items;
        QFile::remove(made);
        QFile::remove(copy);
        copies << MedianMs(1, [&] { QFile::copy(context.path, copy); });
    }
    std::sort(times.begin(), times.end());
    std::sort(copies.begin(), copies.end());
    const double ms = times.at(times.size() / 2);
    const double baseline = copies.at(copies.size() / 2);
    QFile::remove(copy);
    QDir().rmdir(folder);
    PrintFigure(context, QStringLiteral("backup_database"), ms, baseline, items, agree,
                {{QStringLiteral("bytes"), QString::number(QFileInfo(context.path).size())},
                 {QStringLiteral("ratio"), number(baseline > 0 ? ms / baseline : 0)},
                 {QStringLiteral("baseline"), QStringLiteral("\"plain file copy\"")}});
}

void FigureCompact(const BenchContext& context) {
    const qint64 before = PlainScan::itemCount(context.path);
    const double ms =
        MedianMs(3, [&] { cLibraryService(context.path).CompactDatabase(context.path); });
    const QString copy = context.path + QStringLiteral(".copy");
    const double baseline = MedianMs(3, [&] {
        QFile::remove(copy);
        QFile::copy(context.path, copy);
    });
    QFile::remove(copy);
    const qint64 after = PlainScan::itemCount(context.path);
    PrintFigure(context, QStringLiteral("compact_database"), ms, baseline, after, before == after,
                {{QStringLiteral("baseline"), QStringLiteral("\"plain file copy\"")}});
}

void FigureFileSize(const BenchContext& context) {
    const QString source = QStringLiteral("bench:FileSize;");
    // A compacted copy, then the same copy without the search index and its triggers.
    const QString copy = context.path + QStringLiteral(".noindex");
    QFile::remove(copy);
    qint64 textBytes = 0;
    {
        auto store = SqliteStore::open(context.path, source);
        store->run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"), {}, source);
        textBytes = store
                        ->scalar(QStringLiteral("SELECT sum(length(CAST(Description AS BLOB)) + "
                                                "length(CAST(Code AS BLOB)) + length(CAST(Notes "
                                                "AS BLOB)) + length(CAST(Example AS BLOB))) FROM "
                                                "SourceCode"),
                                 {}, source)
                        .toLongLong();
        store->run(QStringLiteral("VACUUM INTO ?"), {copy}, source);
    }
    const qint64 withIndex = QFileInfo(copy).size();
    {
        auto store = SqliteStore::open(copy, source);
        for (const char* trigger :
             {"SourceCode_SearchInsert", "SourceCode_SearchDelete", "SourceCode_SearchUpdate"})
            store->run(QStringLiteral("DROP TRIGGER %1").arg(QLatin1String(trigger)), {}, source);
        store->run(QStringLiteral("DROP TABLE SourceCodeSearch"), {}, source);
        store->run(QStringLiteral("VACUUM"), {}, source);
    }
    const qint64 withoutIndex = QFileInfo(copy).size();
    for (const char* suffix : {"", "-wal", "-shm"})
        QFile::remove(copy + QLatin1String(suffix));
    const qint64 indexBytes = withIndex - withoutIndex;
    PrintFigure(context, QStringLiteral("file_size"), 0, -1, context.items, indexBytes <= textBytes,
                {{QStringLiteral("bytes_with_index"), QString::number(withIndex)},
                 {QStringLiteral("bytes_without_index"), QString::number(withoutIndex)},
                 {QStringLiteral("index_bytes"), QString::number(indexBytes)},
                 {QStringLiteral("indexed_text_bytes"), QString::number(textBytes)},
                 {QStringLiteral("index_to_text"),
                  number(double(indexBytes) / double(qMax<qint64>(textBytes, 1)))}});
}

void FigureStoredFile(const BenchContext& context, int megabytes) {
    const QString in = context.path + QStringLiteral(".stored-in.bin");
    const QString out = context.path + QStringLiteral(".stored-out.bin");
    {
        QFile file(in);
        if (!file.open(QIODevice::WriteOnly))
            return;
        QByteArray block(1024 * 1024, Qt::Uninitialized);
        QRandomGenerator random(20261123);
        for (int i = 0; i < megabytes; ++i) {
            random.fillRange(reinterpret_cast<quint32*>(block.data()), block.size() / 4);
            file.write(block);
        }
    }
    const bool peakKnown = resetPeakMemory();
    const qint64 rssBefore = statusKb("VmRSS:");
    int id = 0;
    const double addMs = MedianMs(1, [&] {
        cSourceFile item(context.path);
        item.LoadFile(in, 0, 1, 102);
        item.BeginEdit(0);
        item.Description(QStringLiteral("Large stored file"));
        id = item.Save();
    });
    const double writeMs =
        MedianMs(1, [&] { cLibraryService(context.path).GetSourceFile(id).SaveToDisk(out); });
    const qint64 peakRise = peakKnown ? statusKb("VmHWM:") - rssBefore : -1;
    const bool agree = fileHash(in) == fileHash(out);
    const double copyMs = MedianMs(1, [&] {
        QFile::remove(out);
        QFile::copy(in, out);
    });
    {
        cSourceFile item = cLibraryService(context.path).GetSourceFile(id);
        item.BeginEdit(0);
        item.Deleted(true);
        item.Save();
    }
    QFile::remove(in);
    QFile::remove(out);
    PrintFigure(context, QStringLiteral("stored_file_add_and_write_back"), addMs + writeMs, copyMs,
                1, agree,
                {{QStringLiteral("megabytes"), QString::number(megabytes)},
                 {QStringLiteral("add_ms"), number(addMs)},
                 {QStringLiteral("write_back_ms"), number(writeMs)},
                 {QStringLiteral("peak_memory_rise_mb"),
                  peakRise < 0 ? QStringLiteral("null") : number(peakRise / 1024.0)},
                 {QStringLiteral("baseline"), QStringLiteral("\"plain file copy\"")}});
}

void FigureParseModule(const BenchContext& context) {
    const SyntheticModule module = SyntheticModule::build(1 << 20);
    std::unique_ptr<cCodeParser> parser;
    const double ms = MedianMs(context.runs, [&] {
        parser = std::make_unique<cCodeParser>();
        parser->ParseSourceCode(module.text);
    });
    qint64 lines = 0;
    const double baseline =
        MedianMs(context.runs, [&] { lines = module.text.split(QStringLiteral("\r\n")).size(); });
    qint64 members = 0;
    qint64 memberLines = 0;
    for (const MemberList& list :
         {parser->Functions(), parser->Subs(), parser->APIDeclares(), parser->Types(),
          parser->Enums(), parser->Constants(), parser->ModuleVars(), parser->Properties()}) {
        if (list.LBound() == 0)
            continue;
        members += list.UBound();
        for (const QString& element : list.elements())
            memberLines += element.count(QLatin1String("\r\n"));
    }
    PrintFigure(context, QStringLiteral("parse_module_1mb"), ms, baseline, members,
                members == module.members && memberLines == module.memberLines &&
                    lines == module.lines,
                {{QStringLiteral("chars"), QString::number(module.text.size())},
                 {QStringLiteral("lines"), QString::number(lines)}});
}

} // namespace qs::bench
