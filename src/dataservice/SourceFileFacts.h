#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace qs {

// What was learned of a stored file when it was loaded, as the SourceFile row keeps it.
// cSourceFile carries one; cFileInfo and cFileVersionInfo are built from it.
struct SourceFileFacts {
    QString FileName;
    QString FullPath;
    QString DosName;
    QString FileTypeName; // the file name's extension
    qint64 Size = 0;
    QDateTime DateCreated;
    bool ReadOnly = false;
    bool Hidden = false;
    bool System = false;
    bool Archive = false;
    bool Temporary = false;
    bool Compressed = false;
    QByteArray IconPng;      // the icon of the file's type, PNG bytes; empty when none
    QString VersionInfoJson; // the version block; its layout is cFileVersionInfo's
};

} // namespace qs
