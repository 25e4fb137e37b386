#pragma once

#include "SourceFileFacts.h"
#include "cFileVersionInfo.h"

#include <QByteArray>
#include <QDateTime>
#include <QImage>
#include <QString>

namespace qs {

// What was learned of a file when it was stored.  Read only.
class cFileInfo {
public:
    cFileInfo() = default;
    // The facts of the file at path, read now.  A missing file raises error 53, "File not found".
    static cFileInfo Capture(const QString& path);
    // The facts as a SourceFile row keeps them, and back.  The row keeps the extension, not the
    // type's name: that is worked out again from the file name.
    static cFileInfo FromFacts(const SourceFileFacts& facts);
    SourceFileFacts ToFacts() const;

    const cFileVersionInfo& VersionInfo() const { return mVersion; }
    QString DosName() const { return mDosName; }
    QString FullPath() const { return mFullPath; }
    QString FileName() const { return mFileName; }
    QString FileTypeName() const { return mTypeName; }
    qint64 Size() const { return mSize; }
    QDateTime DateCreated() const { return mCreated; }
    bool ReadOnly() const { return mReadOnly; }
    bool Hidden() const { return mHidden; }
    bool System() const { return mSystem; }
    bool Archive() const { return mArchive; }
    bool Temporary() const { return mTemporary; }
    bool Compressed() const { return mCompressed; }
    // The icon of the file's type, 32 by 32 pixels, drawn when the file was stored.  It stands
    // where a Windows icon handle stood, so the panes draw the image itself.
    QImage IconHandle() const;
    QByteArray IconPng() const { return mIconPng; }

    // "512 bytes", "1.50 KB (1,536 bytes)", "2.25 MB (2,359,296 bytes)".
    static QString FormatSize(qint64 size);
    // "Monday, March 04, 2024, 10:15:00 AM"; empty for an invalid date.
    static QString FormatDate(const QDateTime& value);

    // The 8.3 short form of a long name, made as Windows makes one: uppercase; blanks and all
    // dots but the last removed; characters not allowed in a short name (and any non-ASCII
    // character) become "_"; a name that doesn't fit 8.3 as it stands keeps 6 characters and
    // gets "~1", with at most 3 characters of extension.  Windows numbers "~2", "~3" ... when the
    // folder already holds the same short name; that can't be known from the name alone, so
    // the form is always "~1".
    static QString MakeDosName(const QString& fileName);
    // A page with a folded corner, coloured by the extension, with the extension written on it.
    static QImage DrawTypeIcon(const QString& extension);
    // The MIME database's name of the file's type, else "<EXT> File"; "File" for a name
    // without extension.  Only the name counts, not the content.
    static QString TypeNameOf(const QString& fileName);

private:
    cFileVersionInfo mVersion;
    QString mDosName;
    QString mFullPath;
    QString mFileName;
    QString mTypeName;
    qint64 mSize = 0;
    QDateTime mCreated;
    bool mReadOnly = false;
    bool mHidden = false;
    bool mSystem = false;
    bool mArchive = false;
    bool mTemporary = false;
    bool mCompressed = false;
    QByteArray mIconPng;
};

} // namespace qs
