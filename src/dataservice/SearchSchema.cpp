#include "SearchSchema.h"

namespace qs {

QStringList SearchSchemaStatements() {
    return {
        QStringLiteral("CREATE INDEX IF NOT EXISTS SourceCode_Rows ON SourceCode (Id, ParentId, "
                       "CategoryId, CodeTypeId, Tested, IsFolder, Description)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS SourceCode_Node ON SourceCode (CategoryId, "
                       "CodeTypeId, Tested, Id, ParentId, IsFolder, Description)"),
    };
}

} // namespace qs
