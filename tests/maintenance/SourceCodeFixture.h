#pragma once

#include "TreeWindowFixture.h"

#include "FormBase.h"
#include "Globals.h"
#include "TreeView.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "frmSourceCode.h"

#include <QAction>
#include <functional>

namespace qs::test {

// The main window of an administrator who is also an author, over a library filled through the
// data service, with the text item window scripted as the person fills it.
class SourceCodeWindow : public TreeWindow {
protected:
    void SetUp() override {
        TreeWindow::SetUp();
        gstrUserName = QStringLiteral("Ada Byron");
        mAda = addAuthor(QStringLiteral("Ada"), QStringLiteral("Byron"));
        mGrace = addAuthor(QStringLiteral("Grace"), QStringLiteral("Hopper"));
    }

    int addAuthor(const QString& first, const QString& last) {
        cAuthor author(mDatabase);
        author.BeginEdit(0);
        author.FirstName(first);
        author.LastName(last);
        author.Save();
        return author.AuthorId();
    }

    cSourceCode stored(int id) { return cLibraryService(mDatabase).GetSourceCode(id); }
    int itemCount() {
        return cLibraryService(mDatabase)
            .GetItems(QStringLiteral("SourceCode"), 0, 1, 0, 0, 0, 0, 0)
            .count();
    }

    // The window opens on that category-tree type node and item-tree node, as a person clicks.
    frmMain& openAt(const QString& typeNode, const QString& itemNode) {
        frmMain& form = open();
        click(*form.tvwCategories, typeNode);
        click(*form.tvwMain, itemNode);
        return form;
    }

    // Runs `command` with `fill` acting in the text item window once it shows.
    void inWindow(const std::function<void()>& command,
                  const std::function<void(frmSourceCode&)> fill) {
        hostScript.onModal<frmSourceCode>(QStringLiteral("frmSourceCode"), fill);
        command();
    }

    int mAda = 0;
    int mGrace = 0;
};

} // namespace qs::test
