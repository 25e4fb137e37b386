#include "cLibraryService.h"

#include "DatabaseLocation.h"
#include "RevisionStore.h"
#include "ServiceErrors.h"
#include "SqliteStore.h"
#include "cSecurityService.h"

#include <QHash>
#include <QSqlQuery>

namespace qs {

namespace {
const QStringList& lookupTables() {
    static const QStringList tables{QStringLiteral("AccessType"), QStringLiteral("Category"),
                                    QStringLiteral("CodeType"),   QStringLiteral("FileType"),
                                    QStringLiteral("CodeStatus"), QStringLiteral("Path")};
    return tables;
}
} // namespace

cLibraryService::cLibraryService() : mDatabasePath(ConfiguredDatabasePath()) {}

cLibraryService::cLibraryService(const QString& databasePath) : mDatabasePath(databasePath) {}

cLibraryService::~cLibraryService() = default;

SqliteStore& cLibraryService::store(const QString& source) {
    if (!mStore)
        mStore = SqliteStore::open(mDatabasePath, source);
    return *mStore;
}

cSourceCode cLibraryService::GetSourceCode(int lngId) {
    const QString source = QStringLiteral("cLibraryService:GetSourceCode;");
    SqliteStore& db = store(source);
    QSqlQuery query = db.run(
        QStringLiteral("SELECT s.Id, s.ParentId, s.CategoryId, s.CodeTypeId, s.Tested, "
                       "COALESCE(s.AuthorId, 0), s.IsFolder, s.Description, s.DateWritten, "
                       "s.DateEntered, s.Notes, s.Example, s.Code, COALESCE(a.FirstName, ''), "
                       "COALESCE(a.LastName, '') FROM SourceCode s LEFT JOIN Authors a ON "
                       "a.AuthorId = s.AuthorId WHERE s.Id = ?"),
        {lngId}, source);
    if (!query.next())
        RaiseServiceError(kErrRecordNotFound, source);
    cSourceCode record(mDatabasePath);
    record.mId = query.value(0).toInt();
    record.mParentId = query.value(1).toInt();
    record.mCategoryId = query.value(2).toInt();
    record.mCodeTypeId = query.value(3).toInt();
    record.mTested = query.value(4).toInt();
    record.mAuthorId = query.value(5).toInt();
    record.mIsFolder = query.value(6).toInt() != 0;
    record.mDescription = query.value(7).toString();
    record.mDateWritten = DateFromStored(query.value(8));
    record.mDateEntered = DateFromStored(query.value(9));
    record.mNotes = query.value(10).toString();
    record.mExample = query.value(11).toString();
    record.mCode = query.value(12).toString();
    record.mAuthorFirstName = query.value(13).toString();
    record.mAuthorLastName = query.value(14).toString();
    query.finish();
    RevisionStore(QStringLiteral("RevHist_SrcCode"), QStringLiteral("SourceCodeId"))
        .load(db, record.mId, record.mRevisions, source);
    return record;
}

cSourceFile cLibraryService::GetSourceFile(int lngId) {
    const QString source = QStringLiteral("cLibraryService:GetSourceFile;");
    SqliteStore& db = store(source);
    QSqlQuery query = db.run(
        QStringLiteral("SELECT s.Id, s.ParentId, s.CategoryId, s.FileTypeId, "
                       "COALESCE(s.AuthorId, 0), s.IsFolder, s.Description, s.DateEntered, "
                       "s.Notes, s.FileName, s.FullPath, s.DosName, s.FileTypeName, s.Size, "
                       "s.DateCreated, s.ReadOnly, s.Hidden, s.System, s.Archive, s.Temporary, "
                       "s.Compressed, s.Icon, s.VersionInfo, COALESCE(a.FirstName, ''), "
                       "COALESCE(a.LastName, '') FROM SourceFile s LEFT JOIN Authors a ON "
                       "a.AuthorId = s.AuthorId WHERE s.Id = ?"),
        {lngId}, source);
    if (!query.next())
        RaiseServiceError(kErrRecordNotFound, source);
    cSourceFile record(mDatabasePath);
    record.mId = query.value(0).toInt();
    record.mParentId = query.value(1).toInt();
    record.mCategoryId = query.value(2).toInt();
    record.mFileTypeId = query.value(3).toInt();
    record.mAuthorId = query.value(4).toInt();
    record.mIsFolder = query.value(5).toInt() != 0;
    record.mDescription = query.value(6).toString();
    record.mDateEntered = DateFromStored(query.value(7));
    record.mNotes = query.value(8).toString();
    SourceFileFacts& facts = record.mFacts;
    facts.FileName = query.value(9).toString();
    facts.FullPath = query.value(10).toString();
    facts.DosName = query.value(11).toString();
    facts.FileTypeName = query.value(12).toString();
    facts.Size = query.value(13).toLongLong();
    facts.DateCreated = DateFromStored(query.value(14));
    facts.ReadOnly = query.value(15).toInt() != 0;
    facts.Hidden = query.value(16).toInt() != 0;
    facts.System = query.value(17).toInt() != 0;
    facts.Archive = query.value(18).toInt() != 0;
    facts.Temporary = query.value(19).toInt() != 0;
    facts.Compressed = query.value(20).toInt() != 0;
    facts.IconPng = query.value(21).toByteArray();
    facts.VersionInfoJson = query.value(22).toString();
    record.mAuthorFirstName = query.value(23).toString();
    record.mAuthorLastName = query.value(24).toString();
    query.finish();
    RevisionStore(QStringLiteral("RevHist_SrcFile"), QStringLiteral("SourceFileId"))
        .load(db, record.mId, record.mRevisions, source);
    return record;
}

VbArray<LookupRow> cLibraryService::GetLookup(const QString& strTable, const QVariant&, bool,
                                              bool) {
    const QString source = QStringLiteral("cLibraryService:GetLookup;");
    // The table name is matched against the known lookups before it goes into any SQL.
    const int known = lookupTables().indexOf(strTable);
    if (known < 0)
        RaiseServiceError(kErrMissingParameters, source);
    QSqlQuery query =
        store(source).run(QStringLiteral("SELECT Id, Code, Description FROM %1 ORDER BY Id")
                              .arg(lookupTables().at(known)),
                          {}, source);
    VbArray<LookupRow> rows;
    while (query.next())
        rows.append(LookupRow{query.value(0).toString(), query.value(1).toString(),
                              query.value(2).toString()});
    return rows;
}

std::optional<cAuthor> cLibraryService::GetAuthor(int lngId) {
    const QString source = QStringLiteral("cLibraryService:GetAuthor;");
    QSqlQuery query = store(source).run(
        QStringLiteral("SELECT AuthorId, FirstName, LastName FROM Authors WHERE AuthorId = ?"),
        {lngId}, source);
    if (!query.next())
        return std::nullopt;
    cAuthor author(mDatabasePath);
    author.mAuthorId = query.value(0).toInt();
    author.mFirstName = query.value(1).toString();
    author.mLastName = query.value(2).toString();
    return author;
}

VbArray<UserRow> cLibraryService::GetUsers(bool) {
    const QString source = QStringLiteral("cLibraryService:GetUsers;");
    return cSecurityService::listUsers(store(source), source);
}

VbArray<AuthorRow> cLibraryService::GetAuthors(bool) {
    const QString source = QStringLiteral("cLibraryService:GetAuthors;");
    QSqlQuery query =
        store(source).run(QStringLiteral("SELECT AuthorId, FirstName, LastName FROM Authors "
                                         "ORDER BY LastName, FirstName, AuthorId"),
                          {}, source);
    VbArray<AuthorRow> rows;
    while (query.next())
        rows.append(AuthorRow{query.value(0).toInt(), query.value(1).toString(),
                              query.value(2).toString()});
    return rows;
}

ItemRow cLibraryService::itemRowFrom(const QSqlQuery& query) {
    ItemRow row;
    row.ParentId = query.value(0).toInt();
    row.Id = query.value(1).toInt();
    row.CategoryId = query.value(2).toInt();
    row.TypeId = query.value(3).toInt();
    row.Tested = query.value(4).toInt();
    row.Description = query.value(5).toString();
    row.IsFolder = query.value(6).toInt() != 0;
    return row;
}

void cLibraryService::orderParentsFirst(VbArray<ItemRow>& rows) {
    // Each row goes out after the chain of its parents that stand in the list; a chain that
    // loops is cut where it meets itself.
    const int count = rows.count();
    QHash<int, int> indexOfId;
    indexOfId.reserve(count);
    for (int i = 1; i <= count; ++i)
        indexOfId.insert(rows(i).Id, i);
    enum State : char { Waiting, Visiting, Done };
    QVector<char> state(count + 1, Waiting);
    VbArray<ItemRow> ordered;
    QVector<int> chain;
    for (int i = 1; i <= count; ++i) {
        chain.clear();
        int at = i;
        while (at != 0 && state[at] == Waiting) {
            state[at] = Visiting;
            chain.append(at);
            at = indexOfId.value(rows(at).ParentId, 0);
        }
        for (int k = chain.size() - 1; k >= 0; --k) {
            state[chain[k]] = Done;
            ordered.append(rows(chain[k]));
        }
    }
    rows = std::move(ordered);
}

} // namespace qs
