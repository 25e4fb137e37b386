#pragma once

#include "TreeWindowFixture.h"

#include <QByteArray>
#include <QStringList>

namespace qs {
class ListView;
} // namespace qs

namespace qs::test {

// The main window of an administrator who is also the author "Ada Lovelace", over a library
// filled through the data service.
class Maintenance : public TreeWindow {
protected:
    void SetUp() override;

    int addAuthor(const QString& first, const QString& last);
    // A file of the test's home with those bytes; returns its path.
    QString writeFile(const QString& name, const QByteArray& bytes) const;
    // A tool-bar button pressed as a click does; false when it is off.
    static bool toolBar(frmMain& form, const char* key);
    // The versions a revision list shows, in text order.
    static QStringList versions(ListView& list);
    // The ids and descriptions of a table's rows of category 1, as "id description".
    QStringList rows(const QString& table) const;

    int mAuthorId = 0;
};

} // namespace qs::test
