#pragma once

#include "GalleryHost.h"

#include <QString>
#include <QStringList>
#include <functional>

class QTabWidget;
class QTreeWidgetItem;
class QWidget;

namespace qs {
class TreeView;
class frmMain;
} // namespace qs

namespace qs::gallery {

// What the shots share: the host, the main window once logged in, and the pictures saved.
class Gallery {
public:
    Gallery(GalleryHost& host, QString outDir, QString apiFile);

    // Logs in as the sample's administrator through the login window's own controls.
    frmMain* login();
    frmMain& main() { return *mMain; }
    GalleryHost& host() { return mHost; }
    // The sample API file shipped with the program.
    const QString& apiFile() const { return mApiFile; }

    // Saves a picture of the window as <name>.png.
    void save(QWidget& window, const QString& name);
    const QStringList& saved() const { return mSaved; }

    // The node reached by its texts from the top of the tree, its parents expanded on the way;
    // nullptr (and a notice) when there is none.
    QTreeWidgetItem* item(TreeView& tree, const QStringList& path);
    // A click of the left button on that node, on the tree's viewport.
    bool click(TreeView& tree, const QStringList& path);
    void expand(TreeView& tree, const QStringList& path);
    // A click on the tab of that caption.
    void clickTab(QTabWidget& tabs, const QString& caption);

    // Runs `trigger`, which is to show the form modally; `visit` runs while it is up.  False
    // (and a notice) when the form did not open.
    bool modal(const QString& formName, const std::function<void()>& trigger,
               const GalleryHost::Visit& visit);

private:
    GalleryHost& mHost;
    QString mOutDir;
    QString mApiFile;
    frmMain* mMain = nullptr;
    QStringList mSaved;
};

// Takes every shot of the table in GalleryShots.cpp; returns how many pictures are missing.
int TakeShots(Gallery& gallery);

} // namespace qs::gallery
