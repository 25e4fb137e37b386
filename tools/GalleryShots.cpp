// The shots of the gallery, one function each, taken in the order of the table kShots.  A shot
// drives the main window through its controls and menus as a person does; a modal form is
// pictured by the visit given to Gallery::modal, after which the host closes it through its own
// exit or cancel command.
#include "Gallery.h"

#include "ComboBox.h"
#include "ListBox.h"
#include "SSTab.h"
#include "TextBox.h"
#include "TreeView.h"
#include "frmApiViewer.h"
#include "frmAuthor.h"
#include "frmMain.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <cstdio>

namespace qs::gallery {

namespace {

// Paths of texts in the two trees of the sample library.
const QString kCats = QStringLiteral("Tarnwick Categories");
const QString kItems = QStringLiteral("Tarnwick");
const QString kBasic = QStringLiteral("Visual Basic");

void mainCategory(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories,
            {kCats, kBasic, QStringLiteral("Tested"), QStringLiteral("Code Snippet")});
    g.expand(*m.tvwMain, {kItems, QStringLiteral("Files")});
    g.click(*m.tvwMain, {kItems, QStringLiteral("Center a form on the screen")});
    g.save(m, QStringLiteral("main-category"));
}

void mainClassModule(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories,
            {kCats, kBasic, QStringLiteral("Tested"), QStringLiteral("Class Module")});
    const QString module = QStringLiteral("cStopwatch - high resolution timer");
    g.click(*m.tvwMain, {kItems, module});
    // The outline of the module: its member groups under the item.
    g.expand(*m.tvwMain, {kItems, module});
    for (const char* group : {"Properties", "Subs"})
        g.expand(*m.tvwMain, {kItems, module, QString::fromLatin1(group)});
    g.save(m, QStringLiteral("main-class-module"));
    // The notes and the revision history.
    g.clickTab(*m.SSTabAboutCode, QStringLiteral("Description"));
    g.save(m, QStringLiteral("main-class-history"));
    g.clickTab(*m.SSTabAboutCode, QStringLiteral("Code"));
}

// The stored component: its file facts and version information.
void selectComponent(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories, {kCats, QStringLiteral("Windows API"), QStringLiteral("Component")});
    g.click(*m.tvwMain, {kItems, QStringLiteral("QSWatch.dll - stopwatch component")});
}

void mainStoredFile(Gallery& g) {
    selectComponent(g);
    g.save(g.main(), QStringLiteral("main-stored-file"));
}

void sourceFileUpdate(Gallery& g) {
    frmMain& m = g.main();
    selectComponent(g);
    g.modal(
        QStringLiteral("frmSourceFile"), [&m] { m.mnuEditSource->trigger(); },
        [&g](FormBase& f) { g.save(f, QStringLiteral("source-file-update")); });
}

// The article folder "Guides" of Visual Basic, selected.
void selectArticleFolder(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories, {kCats, kBasic, QStringLiteral("Article")});
    g.click(*m.tvwMain, {kItems, QStringLiteral("Guides")});
}

void sourceFileAdd(Gallery& g) {
    frmMain& m = g.main();
    selectArticleFolder(g);
    g.modal(
        QStringLiteral("frmSourceFile"), [&m] { m.mnuAddSourceFile->trigger(); },
        [&g](FormBase& f) { g.save(f, QStringLiteral("source-file-add")); });
}

void insert(Gallery& g) {
    frmMain& m = g.main();
    selectArticleFolder(g);
    g.modal(
        QStringLiteral("frmInsert"),
        [&m] {
            m.tvwMain->setFocus();
            QTest::keyClick(m.tvwMain, Qt::Key_Insert);
        },
        [&g](FormBase& f) { g.save(f, QStringLiteral("insert")); });
}

void folderType(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories, {kCats, QStringLiteral("Windows API"), QStringLiteral("Component")});
    g.click(*m.tvwMain, {kItems});
    g.modal(
        QStringLiteral("frmChooseFolderType"), [&m] { m.mnuAddFolder->trigger(); },
        [&g](FormBase& f) { g.save(f, QStringLiteral("folder-type")); });
}

void author(Gallery& g) {
    frmMain& m = g.main();
    g.modal(
        QStringLiteral("frmAuthor"), [&m] { m.mnuAuthor->trigger(); },
        [&g](FormBase& f) {
            auto& w = static_cast<frmAuthor&>(f);
            g.save(w, QStringLiteral("author"));
            QTest::mouseClick(w.cmdAuthorAdd, Qt::LeftButton);
            settle();
            QTest::keyClicks(w.txtAuthorFName, QStringLiteral("Grace"));
            QTest::keyClicks(w.txtAuthorLName, QStringLiteral("Whitfield"));
            g.save(w, QStringLiteral("author-add"));
        });
}

void apiViewer(Gallery& g) {
    frmMain& m = g.main();
    // On its first start the viewer asks for the API file.
    g.host().answerFileDialog(g.apiFile());
    g.modal(
        QStringLiteral("frmApiViewer"), [&m] { m.mnuApiViewer->trigger(); },
        [&g](FormBase& f) {
            auto& w = static_cast<frmApiViewer&>(f);
            for (const char* name : {"GetWindowText", "SendMessage"}) {
                // Search as you type finds it; a click picks it and Add collects it.
                w.txtSearch->setFocus();
                w.txtSearch->selectAll();
                QTest::keyClicks(w.txtSearch, QString::fromLatin1(name));
                settle();
                const auto found =
                    w.lstAvailItems->findItems(QString::fromLatin1(name), Qt::MatchExactly);
                if (found.isEmpty())
                    continue;
                w.lstAvailItems->scrollToItem(found.first());
                QTest::mouseClick(w.lstAvailItems->viewport(), Qt::LeftButton, {},
                                  w.lstAvailItems->visualItemRect(found.first()).center());
                QTest::mouseClick(w.cmdAdd, Qt::LeftButton);
                settle();
            }
            g.save(w, QStringLiteral("api-viewer"));
        });
}

// ---- frmSourceCode ----
// The code item window opens from Admin > Modify > Add SourceCode on a code folder and from
// Admin > Modify > Edit on a code item.
void sourceCodeAdd(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories,
            {kCats, kBasic, QStringLiteral("Tested"), QStringLiteral("Code Snippet")});
    g.click(*m.tvwMain, {kItems, QStringLiteral("Files")});
    g.modal(
        QStringLiteral("frmSourceCode"), [&m] { m.mnuAddSourceCode->trigger(); },
        [&g](FormBase& f) { g.save(f, QStringLiteral("source-code-add")); });
}

void sourceCodeUpdate(Gallery& g) {
    frmMain& m = g.main();
    g.click(*m.tvwCategories,
            {kCats, kBasic, QStringLiteral("Tested"), QStringLiteral("Code Snippet")});
    g.click(*m.tvwMain,
            {kItems, QStringLiteral("Files"), QStringLiteral("Read a whole text file")});
    g.modal(
        QStringLiteral("frmSourceCode"), [&m] { m.mnuEditSource->trigger(); },
        [&g](FormBase& f) { g.save(f, QStringLiteral("source-code-update")); });
}

struct Shot {
    QStringList pictures; // what it saves, without ".png"
    void (*take)(Gallery&);
};

const Shot kShots[] = {
    {{QStringLiteral("main-category")}, mainCategory},
    {{QStringLiteral("main-class-module"), QStringLiteral("main-class-history")}, mainClassModule},
    {{QStringLiteral("main-stored-file")}, mainStoredFile},
    {{QStringLiteral("source-file-update")}, sourceFileUpdate},
    {{QStringLiteral("source-file-add")}, sourceFileAdd},
    {{QStringLiteral("insert")}, insert},
    {{QStringLiteral("folder-type")}, folderType},
    {{QStringLiteral("author"), QStringLiteral("author-add")}, author},
    {{QStringLiteral("api-viewer")}, apiViewer},
    {{QStringLiteral("source-code-add")}, sourceCodeAdd},
    {{QStringLiteral("source-code-update")}, sourceCodeUpdate},
};

} // namespace

int TakeShots(Gallery& g) {
    int missing = 0;
    for (const Shot& shot : kShots) {
        shot.take(g);
        settle();
        for (const QString& picture : shot.pictures) {
            if (g.saved().contains(picture))
                continue;
            std::fprintf(stderr, "gallery: MISSING %s\n", qPrintable(picture));
            ++missing;
        }
    }
    return missing;
}

} // namespace qs::gallery
