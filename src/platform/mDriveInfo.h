#pragma once

#include <QString>

namespace qs {

// The path separator of this platform; the path helpers keep their rules with it.
inline constexpr QChar kPathSeparator = QLatin1Char('/');

// Appends the separator unless the path already ends in one (an empty path becomes "/").
QString FormatPath(const QString& strPath);

// Cuts at the first null character; a text with none is trimmed of blanks.
QString TrimNull(const QString& strText);

// The folder part of a path, with or without its closing separator; empty when the path has no
// separator.
QString ExtractFilePath(const QString& strPath, bool blnKeepSlash = true);

// True when the file or folder is there; wildcards ("*", "?") in the last part match any entry.
// A path ending in the separator gives false.
bool FileExists(const QString& strPath);

} // namespace qs
