#pragma once

#include <QString>
#include <QVariant>

// The machine-wide key store.  On this platform it is one typed file store in the user's
// configuration folder:
//     QStandardPaths::GenericConfigLocation + "/Tarnwick/Quillstone System.json"
// (with XDG: $XDG_CONFIG_HOME/Tarnwick/Quillstone System.json).  The path is worked out at every
// call, and the file is read afresh at every call, so two programs see each other's values and a
// changed environment takes effect at once.  It holds keys ("HKEY_LOCAL_MACHINE\SOFTWARE\...",
// matched without regard to case, as are value names) and typed values: REG_SZ (1), REG_BINARY
// (3) and REG_DWORD (4).  Every change rewrites the file atomically.
//
// Rules kept from the registry:
// - A key is created when opened.  A store that cannot be written keeps nothing and says nothing:
//   the open still succeeds, reads give their defaults and writes are lost.
// - A store file that cannot be read (corrupt, truncated) counts as empty.  Opening a key does not
//   replace it; the next value written does.
// - Strings are read through a buffer of 2048 characters that holds the terminator too, so at most
//   2047 characters come back; the text is cut at its first NUL, or trimmed of blanks when it has
//   none (values are stored without a terminator, so a read string comes back trimmed).
// - A binary value comes back as the bytes written; its upper bound, counted from 0, is the
//   reported length less one.
// - A value that is missing and read with a default gives the default and is written with it
//   through the writer; a boolean default is therefore never written.  Every other failure gives
//   Empty, an invalid QVariant.
// - The writer stores 16- and 32-bit integers as REG_DWORD, strings as REG_SZ and byte arrays as
//   REG_BINARY; a Null variant (one holding nullptr) and every other type (booleans among them)
//   write nothing.  An empty value name writes the key's default value as a string.
// Access rights are accepted for the callers; the file store grants read and write together.
namespace qs {

enum RegRoot : long {
    HKEY_CLASSES_ROOT = 0x80000000L,
    HKEY_CURRENT_USER = 0x80000001L,
    HKEY_LOCAL_MACHINE = 0x80000002L,
};

// Access rights are kept for the callers; the file store has only read-and-write access.
enum RegAccess : long { KEY_READ = 0x20019, KEY_WRITE = 0x20006, KEY_ALL_ACCESS = 0xF003F };

// Value types the store keeps.
enum RegType : int { REG_SZ = 1, REG_BINARY = 3, REG_DWORD = 4 };

using RegKeyHandle = long;

// Reads a value under HKEY_LOCAL_MACHINE; writes the default back when the value is missing.
QVariant GetRegSetting(const QString& keyText, const QString& valueName,
                       const QVariant& defaultValue = QVariant(), long access = KEY_ALL_ACCESS);
// Writes a value under HKEY_LOCAL_MACHINE by the variant's type (booleans are never written).
void SaveRegSetting(const QString& keyText, const QString& valueName, const QVariant& value,
                    long access = KEY_ALL_ACCESS);

// Reads a value; an invalid `defaultValue` means none was given.
QVariant GetValue(long root, const QString& keyText, const QString& valueName,
                  const QVariant& defaultValue = QVariant(), long access = KEY_ALL_ACCESS);
// The writer behind SaveRegSetting.
void SetValue(long root, const QString& keyText, const QString& valueName, const QVariant& value,
              long access = KEY_ALL_ACCESS);

// Opens (creating) a key; 0 on failure (an unknown root).
RegKeyHandle OpenRegKey(long root, const QString& keyText, long access = KEY_ALL_ACCESS);
void CloseRegKey(RegKeyHandle handle);

// The store file as worked out from the environment now.
QString RegStoreFile();

} // namespace qs
