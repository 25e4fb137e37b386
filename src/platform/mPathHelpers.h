#pragma once

#include <QString>

// Path procedures of the program's private module.
namespace qs {

// The trimmed path up to and including its last separator; empty for an empty path or one
// without a separator.
QString Get_FilePath_FromFilePathFileNameFileType(const QString& strPath);

// What stands behind the last separator (the whole text when there is none).
QString StripFileName(const QString& strPath);

// Opens a file or an address with the desktop's handler; the result of the shell (above 32 on
// success).
long StartURL(const QString& strTarget);

} // namespace qs
