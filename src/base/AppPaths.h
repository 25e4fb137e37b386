#pragma once

#include <QString>

namespace qs {

// App.Path of the original design: the per-user application data folder
// (QStandardPaths::AppLocalDataLocation), in native separators, with no trailing separator.
// The folder is created when missing.  Database, Datafiles and HelpFiles live under it.
QString AppPath();

} // namespace qs
