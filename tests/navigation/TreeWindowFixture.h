#pragma once

#include "HostFixture.h"

// The window and the controls its tests drive.
#include "ComboBox.h"
#include "Globals.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "frmMain.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace qs::test {

// A library the settings name, filled through the data service, and the main window of a
// logged-in user, driven through its trees as a person does.
class TreeWindow : public HostFixture {
public:
    // The keys of the children of a node, in the order shown.
    static QStringList childKeys(TreeView& tree, const QString& key);
    // Names that library in the settings, as the login does.
    static void pointAt(const QString& path);
    // The tool bar's tree commands that are on, in the bar's order.
    static QStringList enabledButtons(frmMain& form);
    // The pop-up menus shown so far, each as "menu:entries shown", joined by "; ".
    std::string popups() const;

protected:
    void SetUp() override;

    // A text item or folder of category 1 unless told, its code "' code of " and the description
    // unless told; returns its id.
    int addCode(const QString& description, int typeId = 201, int tested = 1, int parentId = 0,
                bool folder = false, int categoryId = 1, const QString& code = QString());
    // A stored-file catalogue row (no bytes); returns its id.
    int addFile(const QString& description, int typeId = 101, int parentId = 0, bool folder = false,
                int categoryId = 1);
    int addCategory(const QString& name);
    // An administrator of the library, who may log in and keep bookmarks.
    static void addUser(const QString& id, const QString& password = QStringLiteral("pw"));

    // Shows the login and presses OK on it with ada's id and password.
    static void logIn();
    // Loads and shows the window for a user of that access type ("Admin", "User").
    frmMain& open(const QString& accessType = QStringLiteral("Admin"));
    // A real click on the node of that key, on the tree's viewport (its parents are expanded
    // first, as a person has to).
    static void click(TreeView& tree, const QString& key, Qt::MouseButton button = Qt::LeftButton);
    // Picks the category "Visual Basic" and the code type (none: as it stands) as a person does,
    // types the text into the search box and presses Enter.
    static void search(frmMain& form, const QString& text, const char* codeType = "Code Snippet");
    // A key pressed and released with the focus on the tree.
    static void press(TreeView& tree, Qt::Key key);
    QString mDatabase;
};

} // namespace qs::test
