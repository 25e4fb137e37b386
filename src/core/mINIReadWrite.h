#pragma once

#include "VbArray.h"

#include <QString>
#include <QVariant>

// The settings files in INI format.  A reader and writer with the behaviour of the platform's
// profile functions: section and key names match without regard to case, names and values are
// trimmed of blanks and tabs, a value in matching single or double quotes loses them, lines
// starting with ";" are comments, and results are cut to the caller's buffer less its
// terminator.  Writing keeps every other line of the file as it stands, adds a missing section at
// the end and a missing key after the last entry of its section, ends lines with CR LF and
// replaces the file atomically; a folder that does not exist is not created.
namespace qs {

// The system's own settings file (the profile functions without a file name):
// QStandardPaths::GenericConfigLocation + "/Tarnwick/win.ini".
QString SystemIniFile();

// GetPrivateProfileString: the value, or `defaultText` when the file, section or key is missing,
// cut to `bufferChars` - 1 characters.
QString ProfileGetString(const QString& section, const QString& key, const QString& defaultText,
                         int bufferChars, const QString& file);
// GetPrivateProfileInt: the leading digits of the value (after an optional sign); 0 when there
// are none or the number is negative, `defaultValue` when the value is missing or empty.
int ProfileGetInt(const QString& section, const QString& key, int defaultValue,
                  const QString& file);
// GetPrivateProfileSection: the section's entries ("name=value", comments and blank lines left
// out) as they fit a buffer of `bufferChars` that holds a terminator after each entry and one
// more at the end; an entry that does not fit whole is cut.
QStringList ProfileGetSection(const QString& section, int bufferChars, const QString& file);
// WritePrivateProfileString with a value: false when the file could not be written.
bool ProfileWriteString(const QString& section, const QString& key, const QString& value,
                        const QString& file);

// Writes a key; on failure shows the "Error" box and returns false.
bool File_WriteSpecificKeyNameAndSetting_ToSpecificFile(const QString& strSection,
                                                        const QString& strKey,
                                                        const QString& strValue,
                                                        const QString& strFile);
// Reads a key through a buffer of 255 characters, trimmed of blanks; empty when missing.
QString File_GetSpecificKeySetting_FromSpecificFile(const QString& strFile,
                                                    const QString& strSection,
                                                    const QString& strKey);
// Reads a key through a buffer of 256 characters as a string, or with `asInteger` as an integer
// (default 0); `fromSystemFile` reads SystemIniFile() instead of `file`.
QVariant iniGetKeyValue(const QString& section, const QString& key, const QString& file,
                        bool asInteger, bool fromSystemFile);
// Reads a section through a buffer of 4096 characters and returns it up to and including the
// first terminator: the first entry followed by a NUL, or a lone NUL for an empty section.
QString iniGetSectionKeys(const QString& section, const QString& file, bool fromSystemFile);
// The entries of a section, numbered from 1; bounds 0/0 for none.
VbArray<QString> iniEnumSectionValues(const QString& file, const QString& section);

} // namespace qs
