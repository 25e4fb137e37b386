// bench: builds a synthetic library and prints one JSON line per figure.
//   bench [--items N] [--db path] [--reuse] [--runs R]
// --items  items in the library (default 100000)
// --db     library file (default: quillstone-bench-N.mdb in the temporary folder)
// --reuse  keep an existing file at --db instead of building it again
// --runs   timed runs of each operation; the median is printed (default 7)
// --stored-mb  size of the stored file added and written back (default 200; 0 leaves it out)
// --only   runs only the figures whose names start with this text (e.g. "api_", "backup")
#include "Bench.h"
#include "Figures.h"
#include "PlainScan.h"
#include "SyntheticLibrary.h"

#include "QsError.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

using namespace qs::bench;

int main(int argc, char* argv[]) {
    // The window figures run without a display; their settings and files go to a private folder.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", settings.filePath(QStringLiteral("data")).toUtf8());
    QApplication app(argc, argv);
    BenchContext context;
    context.items = 100000;
    bool reuse = false;
    int storedMb = 200;
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
        } else if (arg == QLatin1String("--only") && hasValue) {
            only = args.at(++i);
        } else if (arg == QLatin1String("--reuse")) {
            reuse = true;
        } else {
            std::fprintf(
                stderr, "usage: bench [--items N] [--db path] [--reuse] [--runs R] [--stored-mb M] "
                        "[--only PREFIX]\n");
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

    const auto want = [&only](const char* figure) {
        const QString name = QString::fromLatin1(figure);
        return only.isEmpty() || name.startsWith(only) || only.startsWith(name);
    };
    const bool libraryFigures =
        want("file_size") || want("get_") || want("search_") || want("backup") || want("compact");
    try {
        if (libraryFigures && (!reuse || !QFileInfo::exists(context.path))) {
            const double ms =
                MedianMs(1, [&] { SyntheticLibrary::build(context.path, context.items); });
            PrintFigure(context, QStringLiteral("build_library"), ms, -1,
                        PlainScan::itemCount(context.path), true,
                        {{QStringLiteral("db"), QStringLiteral("\"%1\"").arg(context.path)}});
        }
        if (want("file_size"))
            FigureFileSize(context);
        if (want("get_")) {
            FigureGetItems(context);
            FigureGetSourceCode(context);
        }
        if (want("search_")) {
            const QString common = QString::fromLatin1(SyntheticLibrary::kCommonWord);
            const QString rare = QString::fromLatin1(SyntheticLibrary::kRareWord);
            const char* modes[] = {"phrase", "any", "all"};
            for (int mode = 0; mode < 3; ++mode) {
                for (bool filtered : {false, true}) {
                    const QString tail = QLatin1String(modes[mode]) +
                                         (filtered ? QStringLiteral("_filtered") : QString());
                    FigureSearch(context, QStringLiteral("search_common_") + tail, mode, common,
                                 filtered);
                    FigureSearch(context, QStringLiteral("search_rare_") + tail, mode, rare,
                                 filtered);
                }
            }
            // Beyond single words: pieces the index only narrows and the rule confirms.
            FigureSearch(context, QStringLiteral("search_two_words_rare_phrase"), 0,
                         rare + QStringLiteral(" toolkit"), false);
            FigureSearch(context, QStringLiteral("search_dotted_common_phrase"), 0,
                         QStringLiteral("New ADODB.") + common, false);
            FigureSearch(context, QStringLiteral("search_two_words_common_all"), 2,
                         common + QStringLiteral(" Printer"), false);
        }
        if (want("backup"))
            FigureBackup(context);
        if (want("compact"))
            FigureCompact(context);
        if (want("parse_module"))
            FigureParseModule(context);
        if (want("api_load"))
            FigureApiLoad(context, settings.path(), 50000);
        if (want("api_typeahead"))
            FigureApiTypeAhead(context, settings.path(), 50000);
        if (storedMb > 0 && want("stored_file"))
            FigureStoredFile(context, storedMb);
    } catch (const qs::QsError& e) {
        std::fprintf(stderr, "bench: %s\n", qPrintable(e.description()));
        return 1;
    }
    return 0;
}
