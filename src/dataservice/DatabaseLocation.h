#pragma once

#include <QString>

namespace qs {

// The database file the settings name now: values Path (default "Database") and FileName
// (default "Quillstone.mdb") of the key "SOFTWARE\Tarnwick\Quillstone System\Database".  A
// relative Path is taken under AppPath().  Read afresh at every call; the defaults are written
// back when the values are missing, as every settings read does.
QString ConfiguredDatabasePath();

} // namespace qs
