#pragma once

#include "VbArray.h"

#include <QMap>
#include <QString>

namespace qs {

// Reads a text file of API declarations of the kind the API viewer browses.  Not tied to the
// database.
//
// Grammar, one statement per logical line, keywords in any case:
//   [Public|Private|Global] Const NAME[type char] [As TYPE] = value
//   [Public|Private|Global] Declare Function|Sub NAME Lib "lib" [Alias "x"] (args) [As TYPE]
//   [Public|Private|Global] Type NAME
//       member lines
//   End Type
// A line ending in " _" goes on in the next line; the pieces are joined with one blank.
// Comment lines (' or Rem) and blank lines are skipped, inside a Type too.  A line that fits
// none of these, a Type without its End Type, and a second item of a name already read (case
// ignored) are skipped: a damaged line never stops the load.
//
// The collections are keyed by the item's name as written and hold its text without the scope
// word, since the viewer puts the scope the user chose in front: a Type's text is its lines
// joined by CR LF from "Type NAME" to "End Type".  The name arrays count from 1, sorted with
// case ignored; empty arrays have bounds 0/0.  The file is read as Windows-1252 unless it starts
// with a UTF-8 byte order mark.
class cApiLoader {
public:
    const QMap<QString, QString>& Types() const { return mTypes; }
    const QMap<QString, QString>& Constants() const { return mConstants; }
    const QMap<QString, QString>& Declares() const { return mDeclares; }
    const VbArray<QString>& DeclareNames() const { return mDeclareNames; }
    const VbArray<QString>& ConstantNames() const { return mConstantNames; }
    const VbArray<QString>& TypeNames() const { return mTypeNames; }

    // Reads and parses the file, replacing what an earlier load read.  A missing or unreadable
    // file raises error 53, "File not found", and a file holding a null byte, which no text file
    // does, raises 321, "Invalid file format"; either leaves the object empty.
    void LoadFile(const QString& strPath);

private:
    void clear();

    QMap<QString, QString> mTypes;
    QMap<QString, QString> mConstants;
    QMap<QString, QString> mDeclares;
    VbArray<QString> mDeclareNames;
    VbArray<QString> mConstantNames;
    VbArray<QString> mTypeNames;
};

} // namespace qs
