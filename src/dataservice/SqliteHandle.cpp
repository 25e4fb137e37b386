#include "SqliteHandle.h"

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QVariant>

namespace qs {

sqlite3* SqliteHandleOf(const QSqlDatabase& db) {
    if (!db.isValid() || !db.driver())
        return nullptr;
    const QVariant handle = db.driver()->handle();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0)
        return nullptr;
    return *static_cast<sqlite3* const*>(handle.constData());
}

} // namespace qs
