#include "AppPaths.h"
#include "FormBase.h"
#include "QtHost.h"
#include "quillstone_private.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

// The program's version, as the About window and the platform show it.
constexpr const char kVersion[] = QS_VERSION;

// Files shipped beside the executable (help pages, the sample API file) are
// copied into the program's folder, keeping their sub-folders, when they are
// not there yet.  A file the user has changed there is never overwritten.
void InstallShippedFiles() {
    const QDir shipped(QCoreApplication::applicationDirPath() + QStringLiteral("/data"));
    if (!shipped.exists())
        return;
    const QDir target(qs::AppPath());
    QDirIterator it(shipped.path(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString destination = target.filePath(shipped.relativeFilePath(source));
        if (QFileInfo::exists(destination))
            continue;
        QDir().mkpath(QFileInfo(destination).absolutePath());
        QFile::copy(source, destination);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillstone"));
    QApplication::setOrganizationName(QStringLiteral("Tarnwick"));
    QApplication::setApplicationVersion(QString::fromLatin1(kVersion));

    InstallShippedFiles();

    qs::QtHost host;
    qs::setHost(&host);

    // The process ends when the last window is unloaded, not when the last one is
    // hidden: the main window lies hidden during a login to another database.
    QApplication::setQuitOnLastWindowClosed(false);
    qs::Forms::setOnEmpty([] { QCoreApplication::quit(); });

    qs::Main();

    int code = 0;
    if (qs::Forms::count() > 0)
        code = QApplication::exec();

    qs::Forms::setOnEmpty(nullptr);
    qs::Forms::destroyAll();
    // The last window has gone: the library file is left holding every commit, as End leaves it.
    qs::CloseLibrary();
    qs::setHost(nullptr);
    return code;
}
