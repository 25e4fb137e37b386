#pragma once

struct sqlite3;
class QSqlDatabase;

namespace qs {

// The engine's own handle of an open connection, or null; Qt's driver is built on the same
// library this program links, so the handle takes the engine's calls directly.
sqlite3* SqliteHandleOf(const QSqlDatabase& db);

} // namespace qs
