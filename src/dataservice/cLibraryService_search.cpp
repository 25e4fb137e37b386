// Search: the rule of SearchMatcher over the text items and the stored files.
//
// Text items (SourceCode) are matched on Description, Code, Notes and Example, stored files
// (SourceFile) on Description and Notes.  Folders are rows like any other: a folder whose
// fields match, under the same filters, comes back with IsFolder set.  Filters: lngCategoryId
// the category; lngCodeTypeId the code type of a text item or the file type of a stored file
// (a type below 200 searches stored files only, one of 200 or more text items only);
// intStatus 1 tested, 2 untested text items (stored files have no such state and pass it, as
// in GetItems); 0 filters nothing.  Rows come in the order of their ids, text items first.
// Any match mode other than 0, 1 and 2 raises kErrMissingParameters.
#include "SearchMatcher.h"
#include "SearchSchema.h"
#include "ServiceErrors.h"
#include "SqliteStore.h"
#include "TokenCharacters.h"
#include "cLibraryService.h"

#include <QSet>
#include <QSqlQuery>

namespace qs {

namespace {

const char kItemColumns[] = "s.ParentId, s.Id, s.CategoryId, s.CodeTypeId, s.Tested, "
                            "s.Description, s.IsFolder";
// Beside the item columns, the fields the rule looks at, as the UTF-8 bytes they are stored
// in: turning every field of every candidate into text costs more than the rule itself.
const char kTextColumns[] = ", CAST(s.Description AS BLOB), CAST(s.Code AS BLOB), "
                            "CAST(s.Notes AS BLOB), CAST(s.Example AS BLOB)";

struct Filters {
    QString sql;
    QVariantList binds;
};

Filters codeFilters(int categoryId, int status, int codeTypeId) {
    Filters filters;
    if (categoryId != 0) {
        filters.sql += QStringLiteral(" AND s.CategoryId = ?");
        filters.binds << categoryId;
    }
    if (codeTypeId != 0) {
        filters.sql += QStringLiteral(" AND s.CodeTypeId = ?");
        filters.binds << codeTypeId;
    }
    if (status != 0) {
        filters.sql += QStringLiteral(" AND s.Tested = ?");
        filters.binds << status;
    }
    return filters;
}

QVector<QByteArray> codeFields(const QSqlQuery& query) {
    return {query.value(7).toByteArray(), query.value(8).toByteArray(),
            query.value(9).toByteArray(), query.value(10).toByteArray()};
}

} // namespace

VbArray<ItemRow> cLibraryService::Search(int intMatchMode, const QString& strText,
                                         int lngCategoryId, int intStatus, int lngCodeTypeId, int,
                                         int) {
    const QString source = QStringLiteral("cLibraryService:Search;");
    if (intMatchMode < 0 || intMatchMode > 2)
        RaiseServiceError(kErrMissingParameters, source);
    SqliteStore& db = store(source);
    QString indexSql;
    bool hasRowIndex = false;
    bool hasNodeIndex = false;
    {
        QSqlQuery schema =
            db.run(QStringLiteral("SELECT name, sql FROM sqlite_master WHERE name IN "
                                  "('SourceCodeSearch', ?, ?)"),
                   {QLatin1String(kSearchRowIndex), QLatin1String(kSearchNodeIndex)}, source);
        while (schema.next()) {
            const QString name = schema.value(0).toString();
            if (name == QLatin1String("SourceCodeSearch"))
                indexSql = schema.value(1).toString();
            else if (name == QLatin1String(kSearchRowIndex))
                hasRowIndex = true;
            else
                hasNodeIndex = true;
        }
    }
    TokenCharacters& tokens =
        TokenCharacters::forTokenizer(TokenCharacters::tokenizerOf(indexSql), source);
    const SearchMatcher matcher(intMatchMode, strText, tokens);
    VbArray<ItemRow> rows;
    if (matcher.isEmpty())
        return rows;

    QVector<const SearchMatcher::Piece*> byIndex;
    QVector<const SearchMatcher::Piece*> confirmed;
    bool allNarrowed = true;
    for (const auto& piece : matcher.pieces()) {
        (piece.answeredByIndex ? byIndex : confirmed).append(&piece);
        allNarrowed = allNarrowed && !piece.indexQuery.isEmpty();
    }

    const bool searchCode = lngCodeTypeId == 0 || lngCodeTypeId >= 200;
    const bool searchFiles = lngCodeTypeId < 200;
    if (searchCode) {
        const Filters filters = codeFilters(lngCategoryId, intStatus, lngCodeTypeId);
        // Rows of the index expression, with their text when the rule must confirm them; an
        // empty expression reads every row of the filters.
        const auto candidates = [&](const QString& expression, bool withText) {
            // Within a category the rows of the type node are walked in their covering index
            // and each is tested against the index's answer: a common word answers most of the
            // library, and looking each of those rows up costs more than the node holds.  With
            // no category, hits without text read their item rows from the dense covering index
            // by id, not from the wide table rows.
            const bool byNode = hasNodeIndex && lngCategoryId != 0 && !expression.isEmpty();
            const bool covered = hasRowIndex && !withText && !expression.isEmpty();
            const char* index = byNode ? kSearchNodeIndex : covered ? kSearchRowIndex : nullptr;
            QString sql =
                QStringLiteral("SELECT %1%2 FROM SourceCode s%3 WHERE 1")
                    .arg(QLatin1String(kItemColumns),
                         withText ? QLatin1String(kTextColumns) : QLatin1String(""),
                         index ? QStringLiteral(" INDEXED BY %1").arg(QLatin1String(index))
                               : QString());
            QVariantList binds;
            if (!expression.isEmpty()) {
                // The "+" keeps the test a filter, so the walk is not turned into lookups.
                sql += QStringLiteral(" AND %1s.Id IN (SELECT rowid FROM SourceCodeSearch WHERE "
                                      "SourceCodeSearch MATCH ?)")
                           .arg(byNode ? QStringLiteral("+") : QString());
                binds << expression;
            }
            sql += filters.sql + QStringLiteral(" ORDER BY s.Id");
            binds += filters.binds;
            return db.run(sql, binds, source);
        };
        const auto expressionOf = [](const QVector<const SearchMatcher::Piece*>& pieces,
                                     const QString& joiner) {
            QStringList parts;
            for (const auto* piece : pieces)
                parts << piece->indexQuery;
            return parts.join(joiner);
        };

        // Each query hands its rows out in id order; two are merged by id.
        QVector<ItemRow> answered;
        QVector<ItemRow> found;
        if (matcher.needsAll()) {
            // The index answers its pieces and narrows the others; the rule confirms those.
            QVector<const SearchMatcher::Piece*> narrowing = byIndex;
            for (const auto* piece : confirmed) {
                if (!piece->indexQuery.isEmpty())
                    narrowing.append(piece);
            }
            QSqlQuery query =
                candidates(expressionOf(narrowing, QStringLiteral(" AND ")), !confirmed.isEmpty());
            while (query.next()) {
                if (confirmed.isEmpty() || matcher.rowMatchesUtf8(confirmed, codeFields(query)))
                    found.append(itemRowFrom(query));
            }
        } else {
            QSet<int> answeredIds;
            if (!byIndex.isEmpty()) {
                QSqlQuery query = candidates(expressionOf(byIndex, QStringLiteral(" OR ")), false);
                while (query.next()) {
                    answered.append(itemRowFrom(query));
                    answeredIds.insert(answered.last().Id);
                }
            }
            if (!confirmed.isEmpty()) {
                const QString expression =
                    allNarrowed ? expressionOf(confirmed, QStringLiteral(" OR ")) : QString();
                QSqlQuery query = candidates(expression, true);
                while (query.next()) {
                    if (!answeredIds.contains(query.value(1).toInt()) &&
                        matcher.rowMatchesUtf8(confirmed, codeFields(query)))
                        found.append(itemRowFrom(query));
                }
            }
        }
        rows.reserve(answered.size() + found.size());
        auto a = answered.cbegin();
        auto f = found.cbegin();
        while (a != answered.cend() || f != found.cend()) {
            if (f == found.cend() || (a != answered.cend() && a->Id < f->Id))
                rows.append(*a++);
            else
                rows.append(*f++);
        }
    }

    if (searchFiles) {
        // Stored files have no index: their two short fields are scanned.
        QString sql = QStringLiteral("SELECT s.ParentId, s.Id, s.CategoryId, s.FileTypeId, 0, "
                                     "s.Description, s.IsFolder, s.Notes FROM SourceFile s "
                                     "WHERE 1");
        QVariantList binds;
        if (lngCategoryId != 0) {
            sql += QStringLiteral(" AND s.CategoryId = ?");
            binds << lngCategoryId;
        }
        if (lngCodeTypeId != 0) {
            sql += QStringLiteral(" AND s.FileTypeId = ?");
            binds << lngCodeTypeId;
        }
        QSqlQuery query = db.run(sql + QStringLiteral(" ORDER BY s.Id"), binds, source);
        while (query.next()) {
            if (matcher.rowMatches({query.value(5).toString(), query.value(7).toString()}))
                rows.append(itemRowFrom(query));
        }
    }
    return rows;
}

} // namespace qs
