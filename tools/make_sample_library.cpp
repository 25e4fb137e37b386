// make_sample_library: builds the sample library a newcomer can open.
//   make_sample_library [--replace] [path]
// path     the library file to make (default "data/Sample/Quillstone Sample.mdb")
// --replace  replaces a file that is there already; without it such a file is left alone
#include "QsError.h"
#include "SampleLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <cstdio>

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QString path = QStringLiteral("data/Sample/Quillstone Sample.mdb");
    bool replace = false;
    const QStringList args = app.arguments().mid(1);
    for (const QString& arg : args) {
        if (arg == QLatin1String("--replace")) {
            replace = true;
        } else if (arg.startsWith(QLatin1String("--"))) {
            std::fprintf(stderr, "usage: make_sample_library [--replace] [path]\n");
            return 2;
        } else {
            path = arg;
        }
    }
    try {
        const qs::sample::SampleReport report = qs::sample::SampleLibrary::Build(path, replace);
        std::printf("Sample library: %s\n", qPrintable(QDir::toNativeSeparators(report.path)));
        std::printf("  %d categories, %d folders, %d code items, %d stored files, %d revisions\n",
                    report.categories, report.folders, report.codeItems, report.storedFiles,
                    report.revisions);
        std::printf("Log in with  User id: %s  Password: %s\n", qPrintable(report.userId),
                    qPrintable(report.password));
    } catch (const qs::QsError& e) {
        std::fprintf(stderr, "make_sample_library: %s\n", qPrintable(e.description()));
        return 1;
    }
    return 0;
}
