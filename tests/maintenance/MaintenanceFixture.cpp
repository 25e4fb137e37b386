#include "MaintenanceFixture.h"

#include "Globals.h"
#include "ListView.h"
#include "Toolbar.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "frmMain.h"

#include <QFile>

namespace qs::test {

void Maintenance::SetUp() {
    TreeWindow::SetUp();
    mAuthorId = addAuthor(QStringLiteral("Ada"), QStringLiteral("Lovelace"));
    gstrUserName = QStringLiteral("Ada Lovelace");
}

int Maintenance::addAuthor(const QString& first, const QString& last) {
    cAuthor author(mDatabase);
    author.BeginEdit(0);
    author.FirstName(first);
    author.LastName(last);
    author.Save();
    return author.AuthorId();
}

QString Maintenance::writeFile(const QString& name, const QByteArray& bytes) const {
    const QString path = home->file(name);
    QFile out(path);
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
    return path;
}

bool Maintenance::toolBar(frmMain& form, const char* key) {
    return form.tbToolBar->PerformClick(QLatin1String(key));
}

QStringList Maintenance::versions(ListView& list) {
    QStringList out;
    for (int i = 1; i <= list.ListItems.Count(); ++i)
        out << list.ListItems(i).SubItems(1);
    out.sort();
    return out;
}

QStringList Maintenance::rows(const QString& table) const {
    QStringList out;
    for (const ItemRow& row : cLibraryService(mDatabase).GetItems(table, 0, 1, 0, 0, 0, 0, 0))
        out << QString::number(row.Id) + QLatin1Char(' ') + row.Description;
    return out;
}

} // namespace qs::test
