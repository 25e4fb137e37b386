#pragma once

#include <QString>
#include <QVariant>

// The machine-wide key store.  On this platform it is one typed file store in the user's
// configuration folder; keys are created when opened and a value that is read but missing is
// written back with its default.  Empty is an invalid QVariant.
namespace qs {

enum RegRoot : long {
    HKEY_CLASSES_ROOT = 0x80000000L,
    HKEY_CURRENT_USER = 0x80000001L,
    HKEY_LOCAL_MACHINE = 0x80000002L,
};

// Access rights are kept for the callers; the file store has only read-and-write access.
enum RegAccess : long { KEY_READ = 0x20019, KEY_WRITE = 0x20006, KEY_ALL_ACCESS = 0xF003F };

using RegKeyHandle = long;

// Reads a value under HKEY_LOCAL_MACHINE; writes the default back when the value is missing.
QVariant GetRegSetting(const QString& keyText, const QString& valueName,
                       const QVariant& defaultValue = QVariant(), long access = KEY_ALL_ACCESS);
// Writes a value under HKEY_LOCAL_MACHINE by the variant's type (booleans are never written).
void SaveRegSetting(const QString& keyText, const QString& valueName, const QVariant& value,
                    long access = KEY_ALL_ACCESS);

QVariant GetValue(long root, const QString& keyText, const QString& valueName,
                  const QVariant& defaultValue = QVariant(), long access = KEY_ALL_ACCESS);
void SetValue(long root, const QString& keyText, const QString& valueName, const QVariant& value,
              long access = KEY_ALL_ACCESS);

// Opens (creating) a key; 0 on failure.
RegKeyHandle OpenRegKey(long root, const QString& keyText, long access = KEY_ALL_ACCESS);
void CloseRegKey(RegKeyHandle handle);

} // namespace qs
