#pragma once

#include "TreeWindowFixture.h"

#include <QByteArray>
#include <QStringList>
#include <functional>

namespace qs {
class ListView;
class cSourceCode;
class frmSourceCode;
} // namespace qs

namespace qs::test {

// The main window of an administrator who is also the author "Ada Lovelace" (a second author,
// "Grace Murray", is listed after her), over a library filled through the data service.
class Maintenance : public TreeWindow {
protected:
    void SetUp() override;

    // The window opened on that category-tree node and item-tree node, as a person clicks.
    frmMain& openAt(const QString& typeNode, const QString& itemNode);
    // Runs `command` with `fill` acting in the text item window once it shows.
    void inWindow(const std::function<void()>& command,
                  const std::function<void(frmSourceCode&)>& fill);
    // Another user removes the record meanwhile.
    void removeElsewhere(int id, bool file = false) const;
    // A file of the test's home with those bytes; returns its path.
    QString writeFile(const QString& name, const QByteArray& bytes) const;
    // A tool-bar button pressed as a click does; false when it is off.
    static bool toolBar(frmMain& form, const char* key);
    // The versions a revision list shows, in text order.
    static QStringList versions(ListView& list);
    // The ids and descriptions of a table's rows of category 1, as "id description".
    QStringList rows(const QString& table) const;
    cSourceCode stored(int id) const;

    int mAda = 0;
    int mGrace = 0;
};

} // namespace qs::test
