#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

// The repository root: QS_SOURCE_DIR, or else two folders above this file.
QString sourceDir() {
    const QString fromEnv = qEnvironmentVariable("QS_SOURCE_DIR");
    if (!fromEnv.isEmpty())
        return fromEnv;
    QDir dir = QFileInfo(QString::fromUtf8(__FILE__)).absoluteDir();
    return dir.cdUp() && dir.cdUp() && dir.exists("src") ? dir.path() : QString();
}

QStringList sourceFiles(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    files.sort();
    return files;
}

QString readText(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

} // namespace

TEST(HostSeam, OnlyTheQtHostTouchesDialogsAndTheClipboard) {
    const QString root = sourceDir();
    ASSERT_FALSE(root.isEmpty()) << "the source folder is unknown";
    static const QRegularExpression leak(
        QStringLiteral("QMessageBox::|QInputDialog::|QFileDialog::|QPrintDialog|"
                       "QApplication::clipboard|QGuiApplication::clipboard"));
    QStringList scanned;
    for (const char* folder : {"src", "app"}) {
        for (const QString& file : sourceFiles(QDir(root).filePath(folder))) {
            const QString relative = QDir(root).relativeFilePath(file);
            scanned.append(relative);
            if (relative.startsWith("src/platform/QtHost."))
                continue;
            const QRegularExpressionMatch m = leak.match(readText(file));
            EXPECT_FALSE(m.hasMatch()) << relative.toStdString() << " uses "
                                       << m.captured().toStdString() << " outside the Qt host";
        }
    }
    EXPECT_TRUE(scanned.contains("src/platform/QtHost.cpp"));
}

TEST(HostSeam, DataServiceIncludesNoWidgetsHeader) {
    const QString root = sourceDir();
    ASSERT_FALSE(root.isEmpty()) << "the source folder is unknown";
    const QDir widgets(QLibraryInfo::path(QLibraryInfo::HeadersPath) + "/QtWidgets");
    ASSERT_TRUE(widgets.exists("QWidget")) << widgets.path().toStdString();
    static const QRegularExpression include("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]",
                                            QRegularExpression::MultilineOption);
    for (const QString& file : sourceFiles(QDir(root).filePath("src/dataservice"))) {
        auto it = include.globalMatch(readText(file));
        while (it.hasNext()) {
            const QString header = it.next().captured(1);
            const bool isWidgets = header.startsWith("QtWidgets") ||
                                   (header.startsWith(QLatin1Char('Q')) &&
                                    !header.contains(QLatin1Char('/')) && widgets.exists(header));
            EXPECT_FALSE(isWidgets) << QDir(root).relativeFilePath(file).toStdString()
                                    << " includes the widgets header " << header.toStdString();
        }
    }
}
