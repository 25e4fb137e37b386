#include "OutputFixture.h"

#include "Globals.h"
#include "RichTextBox.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "cRevision.h"
#include "cSourceCode.h"
#include "frmMain.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTreeWidgetItemIterator>

namespace qs::test {

namespace {

void pointAt(const QString& path) {
    const QFileInfo file(path);
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH), file.absolutePath());
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file.fileName());
}

// The item of the tree whose texts from the top down are `path`.
QTreeWidgetItem* itemAt(QTreeWidget* tree, const QStringList& path) {
    for (QTreeWidgetItemIterator it(tree); *it; ++it) {
        QStringList texts;
        for (QTreeWidgetItem* i = *it; i; i = i->parent())
            texts.prepend(i->text(0));
        if (texts.mid(texts.size() - path.size()) == path)
            return *it;
    }
    return nullptr;
}

void click(QTreeWidget* tree, QTreeWidgetItem* item) {
    for (QTreeWidgetItem* p = item->parent(); p; p = p->parent())
        p->setExpanded(true);
    tree->scrollToItem(item);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
}

} // namespace

void OutputWindow::SetUp() {
    HostFixture::SetUp();
    addGlobalReset("core", [] { ResetGlobals(); });
    mDatabase = home->file(QStringLiteral("Libraries/Quillstone.mdb"));
    cLibraryService(mDatabase).CreateDatabase(mDatabase, QString());
    pointAt(mDatabase);
    gstrUserId = QStringLiteral("ada");
    gstrAccessType = QStringLiteral("Admin");
    cAuthor author(mDatabase);
    author.BeginEdit(0);
    author.FirstName(QStringLiteral("Ada"));
    author.LastName(QStringLiteral("Lovelace"));
    author.Save();
    mAuthorId = author.AuthorId();
}

frmMain& OutputWindow::form() {
    frmMain& f = Forms::get<frmMain>();
    if (!f.isVisible()) {
        f.show();
        QApplication::setActiveWindow(&f);
    }
    return f;
}

int OutputWindow::addItem(const QString& description, const QString& code,
                          const QVector<RevisionLine>& revisions) {
    cSourceCode item(mDatabase);
    item.BeginEdit(0);
    item.CategoryId(1);
    item.CodeTypeId(201);
    item.Tested(1);
    item.Description(description);
    item.Code(code);
    item.AuthorId(mAuthorId);
    item.DateWritten(QDateTime(QDate(2024, 3, 4), QTime(0, 0)));
    for (const RevisionLine& line : revisions) {
        cRevision& revision = item.Revisions().Add(0);
        revision.AuthorId(mAuthorId);
        revision.Version(line.version);
        revision.Comment(line.comment);
        revision.DateRevised(QDateTime(line.date, QTime(0, 0)));
    }
    return item.Save();
}

void OutputWindow::selectItem(const QString& description) {
    frmMain& f = form();
    QTreeWidgetItem* type =
        itemAt(f.tvwCategories, {QStringLiteral("Visual Basic"), QStringLiteral("Tested"),
                                 QStringLiteral("Code Snippet")});
    ASSERT_NE(type, nullptr) << "no type node in the category tree";
    click(f.tvwCategories, type);
    QTreeWidgetItem* item = itemAt(f.tvwMain, {description});
    ASSERT_NE(item, nullptr) << "the item is not in the item tree";
    click(f.tvwMain, item);
    ASSERT_FALSE(f.RichTextBoxCode->toPlainText().isEmpty()) << "the click loaded no code";
}

int OutputWindow::selectTheItem(const QVector<RevisionLine>& revisions) {
    const int id = addItem(kDescription, kCode, revisions);
    selectItem(kDescription);
    return id;
}

QString OutputWindow::oddFolder() {
    const QString path = home->file(QStringLiteral("out <&\"'\u03A9>"));
    QDir().mkpath(path);
    return path;
}

void OutputWindow::clickButton(const QString& key) {
    Toolbar* bar = form().tbToolBar;
    QTest::mouseClick(bar->widgetForAction(bar->Buttons(key).action()), Qt::LeftButton);
}

QString toolPath(const QString& name) {
    return QStandardPaths::findExecutable(name);
}

QByteArray runTool(const QString& program, const QStringList& args, int* exitCode,
                   QByteArray* errors) {
    QProcess process;
    process.start(program, args);
    process.waitForFinished(60000);
    if (exitCode)
        *exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    if (errors)
        *errors = process.readAllStandardError();
    return process.readAllStandardOutput();
}

QString pdfText(const QString& path) {
    return QString::fromUtf8(
        runTool(toolPath(QStringLiteral("pdftotext")),
                {QStringLiteral("-enc"), QStringLiteral("UTF-8"), path, QStringLiteral("-")}));
}

QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString unspaced(const QString& text) {
    return text.simplified().remove(QLatin1Char(' '));
}

} // namespace qs::test
