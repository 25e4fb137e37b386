// gallery: takes the README's pictures of the program at work on the sample library.
//   gallery <library> <api file> <output folder>
// It runs the program's own windows in a private home whose settings name the library, logs in
// through the login window, drives the windows through their controls and saves each picture as
// <output folder>/<name>.png.  Modal forms are visited by the gallery's host (GalleryHost).
// The pictures are taken in the order of the table kShots in GalleryShots.cpp.
#include "Gallery.h"

#include "GalleryHost.h"
#include "QtHost.h"
#include "TreeView.h"
#include "frmLogin.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidgetItem>
#include <cstdio>

namespace qs::gallery {

Gallery::Gallery(GalleryHost& host, QString outDir, QString apiFile)
    : mHost(host), mOutDir(std::move(outDir)), mApiFile(std::move(apiFile)) {}

void Gallery::save(QWidget& window, const QString& name) {
    settle();
    const QString path = QDir(mOutDir).filePath(name + QStringLiteral(".png"));
    if (window.grab().save(path)) {
        mSaved << name;
        std::printf("saved %s\n", qPrintable(path));
    } else {
        std::fprintf(stderr, "gallery: could not write %s\n", qPrintable(path));
    }
}

QTreeWidgetItem* Gallery::item(TreeView& tree, const QStringList& path) {
    QTreeWidgetItem* parent = tree.invisibleRootItem();
    for (const QString& text : path) {
        QTreeWidgetItem* found = nullptr;
        for (int i = 0; i < parent->childCount() && !found; ++i)
            if (parent->child(i)->text(0) == text)
                found = parent->child(i);
        if (!found) {
            std::fprintf(stderr, "gallery: no node \"%s\" in %s\n", qPrintable(path.join(" > ")),
                         qPrintable(tree.objectName()));
            return nullptr;
        }
        if (parent != tree.invisibleRootItem() && !parent->isExpanded()) {
            parent->setExpanded(true);
            settle(50);
        }
        parent = found;
    }
    return parent;
}

bool Gallery::click(TreeView& tree, const QStringList& path) {
    QTreeWidgetItem* node = item(tree, path);
    if (!node)
        return false;
    tree.scrollToItem(node);
    settle(50);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(node).center());
    settle();
    return true;
}

void Gallery::expand(TreeView& tree, const QStringList& path) {
    if (QTreeWidgetItem* node = item(tree, path)) {
        node->setExpanded(true);
        settle(50);
    }
}

void Gallery::clickTab(QTabWidget& tabs, const QString& caption) {
    QTabBar* bar = tabs.tabBar();
    for (int i = 0; i < bar->count(); ++i)
        if (bar->tabText(i) == caption) {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(i).center());
            settle();
            return;
        }
    std::fprintf(stderr, "gallery: no tab \"%s\" in %s\n", qPrintable(caption),
                 qPrintable(tabs.objectName()));
}

bool Gallery::modal(const QString& formName, const std::function<void()>& trigger,
                    const GalleryHost::Visit& visit) {
    const int before = int(mHost.modalsShown().size());
    mHost.onModal(formName, visit);
    trigger();
    settle();
    const QStringList& shown = mHost.modalsShown();
    if (shown.mid(before).contains(formName))
        return true;
    std::fprintf(stderr, "gallery: %s did not open\n", qPrintable(formName));
    mHost.onModal(formName, {});
    return false;
}

frmMain* Gallery::login() {
    frmLogin* form = Forms::find<frmLogin>();
    if (!form) {
        std::fprintf(stderr, "gallery: the login window did not open\n");
        return nullptr;
    }
    settle();
    form->txtUserId->clear();
    QTest::keyClicks(form->txtUserId, QStringLiteral("admin"));
    form->txtPassword->clear();
    QTest::keyClicks(form->txtPassword, QStringLiteral("quillstone"));
    QTest::mouseClick(form->cmdOk, Qt::LeftButton);
    settle(400);
    mMain = Forms::find<frmMain>();
    if (!mMain || !mMain->isVisible()) {
        std::fprintf(stderr, "gallery: the main window did not open\n");
        return nullptr;
    }
    // Roomier than its first size, and the panes' divider moved to the left, as a person does,
    // so that no field of the panes is cut short.
    mMain->resize(1150, 720);
    settle(50);
    if (auto* split = mMain->findChild<QSplitter*>(QStringLiteral("splitMain")))
        split->setSizes({400, 750});
    if (auto* split = mMain->findChild<QSplitter*>(QStringLiteral("splitLeft")))
        split->setSizes({290, 400});
    QApplication::setActiveWindow(mMain);
    settle(300);
    return mMain;
}

} // namespace qs::gallery

namespace {

// HOME and the XDG folders point into `home`, so that the settings and the program's folder are
// the gallery's own.
void usePrivateHome(const QString& home) {
    const QPair<const char*, const char*> folders[] = {{"HOME", ""},
                                                       {"XDG_CONFIG_HOME", "/config"},
                                                       {"XDG_DATA_HOME", "/data"},
                                                       {"XDG_CACHE_HOME", "/cache"},
                                                       {"XDG_RUNTIME_DIR", "/run"}};
    for (const auto& folder : folders) {
        const QString path = home + QLatin1String(folder.second);
        QDir().mkpath(path);
        qputenv(folder.first, QFile::encodeName(path));
    }
    QFile::setPermissions(home + QStringLiteral("/run"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: gallery <library> <api file> <output folder>\n");
        return 2;
    }
    QTemporaryDir home;
    if (!home.isValid())
        return 1;
    usePrivateHome(home.path());

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillstone"));
    QApplication::setOrganizationName(QStringLiteral("Tarnwick"));
    QApplication::setQuitOnLastWindowClosed(false);
    const QString library = QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath();
    const QString apiFile = QFileInfo(QString::fromLocal8Bit(argv[2])).absoluteFilePath();
    const QString outDir = QFileInfo(QString::fromLocal8Bit(argv[3])).absoluteFilePath();
    if (!QFileInfo::exists(library)) {
        std::fprintf(stderr, "gallery: no library at %s\n", qPrintable(library));
        return 1;
    }
    QDir().mkpath(outDir);

    const QString key = QString::fromLatin1(qs::REG_KEY_DATABASE);
    qs::SaveRegSetting(key, QString::fromLatin1(qs::REG_VAL_DATABASE_PATH),
                       QFileInfo(library).absolutePath());
    qs::SaveRegSetting(key, QString::fromLatin1(qs::REG_VAL_DATABASE_FILENAME),
                       QFileInfo(library).fileName());

    qs::gallery::GalleryHost host;
    qs::setHost(&host);
    qs::Main();

    int missing = 0;
    {
        qs::gallery::Gallery gallery(host, outDir, apiFile);
        if (gallery.login())
            missing = qs::gallery::TakeShots(gallery);
        else
            missing = 1;
    }

    qs::Forms::destroyAll();
    qs::CloseLibrary();
    qs::setHost(nullptr);
    return missing == 0 ? 0 : 1;
}
