#include "MaintenanceFixture.h"

#include "Globals.h"
#include "ListView.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "cSourceFile.h"
#include "frmMain.h"
#include "frmSourceCode.h"

#include <QFile>

namespace qs::test {

void Maintenance::SetUp() {
    TreeWindow::SetUp();
    const auto addAuthor = [this](const char* first, const char* last) {
        cAuthor author(mDatabase);
        author.BeginEdit(0);
        author.FirstName(QLatin1String(first));
        author.LastName(QLatin1String(last));
        author.Save();
        return author.AuthorId();
    };
    mAda = addAuthor("Ada", "Lovelace");
    mGrace = addAuthor("Grace", "Murray");
    gstrUserName = "Ada Lovelace";
}

frmMain& Maintenance::openAt(const QString& typeNode, const QString& itemNode) {
    frmMain& form = open();
    click(*form.tvwCategories, typeNode);
    click(*form.tvwMain, itemNode);
    return form;
}

void Maintenance::inWindow(const std::function<void()>& command,
                           const std::function<void(frmSourceCode&)>& fill) {
    hostScript.onModal<frmSourceCode>("frmSourceCode", fill);
    command();
}

namespace {
template <class Record> void markDeleted(Record record) {
    record.BeginEdit(0);
    record.Deleted(true);
    record.Save();
}
} // namespace

void Maintenance::removeElsewhere(int id, bool file) const {
    cLibraryService library(mDatabase);
    file ? markDeleted(library.GetSourceFile(id)) : markDeleted(library.GetSourceCode(id));
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

cSourceCode Maintenance::stored(int id) const {
    return cLibraryService(mDatabase).GetSourceCode(id);
}

} // namespace qs::test
