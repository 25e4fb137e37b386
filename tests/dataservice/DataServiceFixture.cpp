#include "DataServiceFixture.h"

#include "DatabaseLocation.h"
#include "SearchTokenizer.h"
#include "cSecurityService.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSqlQuery>

namespace qs::test {

void DataServiceTest::SetUp() {
    home = std::make_unique<TestHome>();
    dbPath = ConfiguredDatabasePath();
    cLibraryService(dbPath).CreateDatabase(dbPath, home->file(QStringLiteral("Quillstone.ini")));
}

int DataServiceTest::addCode(const QString& description, int categoryId, int codeTypeId, int tested,
                             int parentId, bool isFolder, int authorId) {
    cSourceCode item(dbPath);
    item.BeginEdit(0);
    item.Description(description);
    item.CategoryId(categoryId);
    item.CodeTypeId(codeTypeId);
    item.Tested(tested);
    item.ParentId(parentId);
    item.IsFolder(isFolder);
    item.AuthorId(authorId);
    item.Code(QStringLiteral("code of ") + description);
    return item.Save();
}

int DataServiceTest::addFile(const QString& description, int categoryId, int fileTypeId,
                             int parentId, bool isFolder) {
    cSourceFile item(dbPath);
    item.BeginEdit(0);
    item.Description(description);
    item.CategoryId(categoryId);
    item.FileTypeId(fileTypeId);
    item.ParentId(parentId);
    item.IsFolder(isFolder);
    return item.Save();
}

void DataServiceTest::addUser(const QString& userId, const QString& password, short level) {
    cUser user(dbPath);
    user.BeginEdit(0);
    user.UserId(userId);
    user.Password(password);
    user.FirstName(QStringLiteral("First ") + userId);
    user.LastName(QStringLiteral("Last ") + userId);
    user.AccessLevel(level);
    user.Question(QStringLiteral("Pet?"));
    user.Answer(QStringLiteral("Rex"));
    // The first user needs no acting user; later ones are added by the first, an administrator.
    const auto users = cSecurityService(dbPath).GetUsers();
    user.Save(users.isEmpty() ? userId : users(1).UserId, 0);
}

int DataServiceTest::addAuthor(const QString& first, const QString& last) {
    cAuthor author(dbPath);
    author.BeginEdit(0);
    author.FirstName(first);
    author.LastName(last);
    author.Save();
    return author.AuthorId();
}

cSourceCode DataServiceTest::newCode(int codeTypeId) const {
    cSourceCode item(dbPath);
    item.BeginEdit(0);
    item.CategoryId(1);
    item.CodeTypeId(codeTypeId);
    return item;
}

int DataServiceTest::rows(const QString& table) const {
    return RawDb(dbPath).value(QStringLiteral("SELECT COUNT(*) FROM %1").arg(table)).toInt();
}

RawDb::RawDb(const QString& path) {
    static int counter = 0;
    mName = QStringLiteral("raw_%1").arg(++counter);
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), mName);
    db.setDatabaseName(path);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    // Raw writes to SourceCode reach the search index through its triggers.
    if (db.open())
        InstallSearchTokenizer(db);
}

RawDb::~RawDb() {
    {
        QSqlDatabase db = QSqlDatabase::database(mName, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(mName);
}

QVariant RawDb::value(const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(mName, false));
    if (!query.exec(sql) || !query.next())
        return QVariant();
    return query.value(0);
}

bool RawDb::exec(const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(mName, false));
    return query.exec(sql);
}

QByteArray FileHash(const QString& path) {
    // A missing file has no hash, so it never equals the hash of an empty one.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        ADD_FAILURE() << "cannot write " << path.toStdString();
    return path;
}

} // namespace qs::test
