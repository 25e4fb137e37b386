#include "SearchSchema.h"

#include "SearchTokenizer.h"

namespace qs {

namespace {

const char* const kSearchTriggers[] = {"SourceCode_SearchInsert", "SourceCode_SearchDelete",
                                       "SourceCode_SearchUpdate"};

} // namespace

QStringList SearchIndexStatements(const QString& tokenize) {
    return {
        QStringLiteral("CREATE VIRTUAL TABLE SourceCodeSearch USING fts5 (Description, Code, "
                       "Notes, Example, content='SourceCode', content_rowid='Id', "
                       "tokenize='%1')")
            .arg(tokenize),
        QStringLiteral("CREATE TRIGGER %1 AFTER INSERT ON SourceCode BEGIN "
                       "INSERT INTO SourceCodeSearch (rowid, Description, Code, Notes, Example) "
                       "VALUES (new.Id, new.Description, new.Code, new.Notes, new.Example); "
                       "END")
            .arg(QLatin1String(kSearchTriggers[0])),
        QStringLiteral("CREATE TRIGGER %1 AFTER DELETE ON SourceCode BEGIN "
                       "INSERT INTO SourceCodeSearch (SourceCodeSearch, rowid, Description, "
                       "Code, Notes, Example) VALUES ('delete', old.Id, old.Description, "
                       "old.Code, old.Notes, old.Example); END")
            .arg(QLatin1String(kSearchTriggers[1])),
        QStringLiteral("CREATE TRIGGER %1 AFTER UPDATE OF Description, "
                       "Code, Notes, Example ON SourceCode BEGIN "
                       "INSERT INTO SourceCodeSearch (SourceCodeSearch, rowid, Description, "
                       "Code, Notes, Example) VALUES ('delete', old.Id, old.Description, "
                       "old.Code, old.Notes, old.Example); "
                       "INSERT INTO SourceCodeSearch (rowid, Description, Code, Notes, Example) "
                       "VALUES (new.Id, new.Description, new.Code, new.Notes, new.Example); "
                       "END")
            .arg(QLatin1String(kSearchTriggers[2])),
    };
}

QStringList SearchSchemaStatements() {
    return {
        QStringLiteral("CREATE INDEX IF NOT EXISTS SourceCode_Rows ON SourceCode (Id, ParentId, "
                       "CategoryId, CodeTypeId, Tested, IsFolder, Description)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS SourceCode_Node ON SourceCode (CategoryId, "
                       "CodeTypeId, Tested, Id, ParentId, IsFolder, Description)"),
    };
}

QStringList SearchPiecesStatements() {
    QStringList statements;
    for (const char* trigger : kSearchTriggers)
        statements << QStringLiteral("DROP TRIGGER IF EXISTS %1").arg(QLatin1String(trigger));
    statements << QStringLiteral("DROP TABLE IF EXISTS SourceCodeSearch");
    statements += SearchIndexStatements(
        QStringLiteral("%1 remove_diacritics 0").arg(QLatin1String(kSearchTokenizer)));
    statements << QStringLiteral(
        "INSERT INTO SourceCodeSearch (SourceCodeSearch) VALUES ('rebuild')");
    return statements;
}

} // namespace qs
