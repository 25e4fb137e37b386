// bench: builds a synthetic library and prints one JSON line per figure.
//   bench [--items N] [--db path] [--reuse] [--runs R] [--stored-mb M] [--skip-library]
//         [--only prefix]
// --items  items in the library (default 100000)
// --db     library file (default: quillstone-bench-N.mdb in the temporary folder)
// --reuse  keep an existing file at --db instead of building it again
// --runs   timed runs of each operation; the median is printed (default 7)
// --stored-mb  size of the stored file added and written back (default 200; 0 leaves it out)
// --rtf-mb  size of the rich text converted to HTML (default 1; 0 leaves it out)
// --skip-library  leaves out the figures of the synthetic library, the parser and the converter;
//                 the tree and window figures remain
// --only   runs only the figures whose names start with this text (e.g. "api_", "backup"); the
//          library is built only when one of its figures is wanted
#include "Bench.h"
#include "Figures.h"
#include "PlainScan.h"
#include "PlainWindowFigures.h"
#include "SyntheticLibrary.h"
#include "TreeFigures.h"
#include "WindowFigures.h"
#include "WindowLibrary.h"

#include "QsError.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

using namespace qs::bench;

namespace {

// True when `figure` is wanted under --only: the figure's name starts with the prefix, or the
// prefix names one figure of a group.
bool wanted(const QString& only, const QString& figure) {
    return only.isEmpty() || figure.startsWith(only) || only.startsWith(figure);
}

void libraryFigures(const BenchContext& context, bool reuse, int storedMb, int rtfMb,
                    const QString& only) {
    const auto wants = [&only](const QString& figure) { return wanted(only, figure); };
    const bool needsLibrary = wants(QStringLiteral("file_size")) || wants(QStringLiteral("get_")) ||
                              wants(QStringLiteral("search_")) || wants(QStringLiteral("backup")) ||
                              wants(QStringLiteral("compact")) || wants(QStringLiteral("stored"));
    if (needsLibrary && (!reuse || !QFileInfo::exists(context.path))) {
        const double ms =
            MedianMs(1, [&] { SyntheticLibrary::build(context.path, context.items); });
        PrintFigure(context, QStringLiteral("build_library"), ms, -1,
                    PlainScan::itemCount(context.path), true,
                    {{QStringLiteral("db"), QStringLiteral("\"%1\"").arg(context.path)}});
    }
    if (wants(QStringLiteral("file_size")))
        FigureFileSize(context);
    if (wants(QStringLiteral("get_items")))
        FigureGetItems(context);
    if (wants(QStringLiteral("get_source_code")))
        FigureGetSourceCode(context);
    const QString common = QString::fromLatin1(SyntheticLibrary::kCommonWord);
    const QString rare = QString::fromLatin1(SyntheticLibrary::kRareWord);
    const auto search = [&](const QString& name, int mode, const QString& text, bool filtered) {
        if (wants(name))
            FigureSearch(context, name, mode, text, filtered);
    };
    const char* modes[] = {"phrase", "any", "all"};
    for (int mode = 0; mode < 3; ++mode) {
        for (bool filtered : {false, true}) {
            const QString tail =
                QLatin1String(modes[mode]) + (filtered ? QStringLiteral("_filtered") : QString());
            search(QStringLiteral("search_common_") + tail, mode, common, filtered);
            search(QStringLiteral("search_rare_") + tail, mode, rare, filtered);
        }
    }
    // Beyond single words: pieces the index only narrows and the rule confirms.
    search(QStringLiteral("search_two_words_rare_phrase"), 0, rare + QStringLiteral(" toolkit"),
           false);
    search(QStringLiteral("search_dotted_common_phrase"), 0, QStringLiteral("New ADODB.") + common,
           false);
    search(QStringLiteral("search_two_words_common_all"), 2, common + QStringLiteral(" Printer"),
           false);
    if (wants(QStringLiteral("search_fill_tree")))
        FigureSearchFill(context);
    if (wants(QStringLiteral("backup_database")))
        FigureBackup(context);
    if (wants(QStringLiteral("compact_database")))
        FigureCompact(context);
    if (wants(QStringLiteral("parse_module")))
        FigureParseModule(context);
    if (rtfMb > 0 && wants(QStringLiteral("rtf_to_html")))
        FigureRtfToHtml(context, rtfMb);
    if (storedMb > 0 && wants(QStringLiteral("stored_file")))
        FigureStoredFile(context, storedMb);
}

// The item tree on bare controls, then the window's own work beside its plain way.
void treeAndWindowFigures(const BenchContext& library, bool reuse) {
    BenchContext context = library;
    for (int items : {WindowLibrary::kSmallItems, WindowLibrary::kLargeItems}) {
        context.items = items;
        FigureTreeAdd(context, items);
        FigureTreeReparent(context, items);
        FigureTreeClear(context, items);
    }
    const QString path = QDir::temp().filePath(QStringLiteral("quillstone-bench-window.mdb"));
    context.items = WindowLibrary::kSmallItems + WindowLibrary::kLargeItems + 1;
    if (!reuse || !QFileInfo::exists(path)) {
        const double ms = MedianMs(1, [&] { WindowLibrary::build(path); });
        PrintFigure(context, QStringLiteral("build_window_library"), ms, -1,
                    PlainScan::itemCount(path), true,
                    {{QStringLiteral("db"), QStringLiteral("\"%1\"").arg(path)}});
    }
    PlainTimes plain;
    plain.categoryTree = FigureCategoryTreePlain(context, path);
    plain.small = FigureMainTreePlain(context, path, WindowLibrary::kSmallItems);
    plain.large = FigureMainTreePlain(context, path, WindowLibrary::kLargeItems);
    plain.itemLoad = FigureItemLoadPlain(context, path, WindowLibrary::bigItemId());
    if (WindowFiguresBuilt())
        FigureWindow(context, path, plain);
    else
        std::fprintf(stderr, "bench: the window's figures are not built here (they need "
                             "frmMain's fill procedures)\n");
}

} // namespace

int main(int argc, char* argv[]) {
    // The window figures run offscreen, and the settings and files they write go to a folder of
    // the bench's own, never to those of the person running it.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", settings.filePath(QStringLiteral("data")).toUtf8());
    QApplication app(argc, argv);
    BenchContext context;
    context.items = 100000;
    bool reuse = false;
    bool skipLibrary = false;
    int storedMb = 200;
    int rtfMb = 1;
    QString only;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--items") && hasValue) {
            context.items = args.at(++i).toInt();
        } else if (arg == QLatin1String("--db") && hasValue) {
            context.path = QFileInfo(args.at(++i)).absoluteFilePath();
        } else if (arg == QLatin1String("--runs") && hasValue) {
            context.runs = qMax(1, args.at(++i).toInt());
        } else if (arg == QLatin1String("--stored-mb") && hasValue) {
            storedMb = qMax(0, args.at(++i).toInt());
        } else if (arg == QLatin1String("--rtf-mb") && hasValue) {
            rtfMb = qMax(0, args.at(++i).toInt());
        } else if (arg == QLatin1String("--only") && hasValue) {
            only = args.at(++i);
        } else if (arg == QLatin1String("--reuse")) {
            reuse = true;
        } else if (arg == QLatin1String("--skip-library")) {
            skipLibrary = true;
        } else {
            std::fprintf(
                stderr, "usage: bench [--items N] [--db path] [--reuse] [--runs R] [--stored-mb M] "
                        "[--rtf-mb M] [--skip-library] [--only prefix]\n");
            return 2;
        }
    }
    if (context.items < 10) {
        std::fprintf(stderr, "bench: --items must be at least 10\n");
        return 2;
    }
    if (context.path.isEmpty())
        context.path =
            QDir::temp().filePath(QStringLiteral("quillstone-bench-%1.mdb").arg(context.items));

    try {
        if (!skipLibrary)
            libraryFigures(context, reuse, storedMb, rtfMb, only);
        if (wanted(only, QStringLiteral("api_load")))
            FigureApiLoad(context, settings.path(), 50000);
        if (wanted(only, QStringLiteral("api_typeahead")))
            FigureApiTypeAhead(context, settings.path(), 50000);
        bool windowFigures = false;
        for (const char* group : {"tree_", "fill_", "category_tree", "main_tree", "item_"})
            windowFigures = windowFigures || wanted(only, QLatin1String(group));
        if (windowFigures)
            treeAndWindowFigures(context, reuse);
    } catch (const qs::QsError& e) {
        std::fprintf(stderr, "bench: %s\n", qPrintable(e.description()));
        return 1;
    }
    return 0;
}
