#pragma once

#include <QDateTime>
#include <QString>

namespace qs {

class cRevisions;
class cSourceCode;

// The comment header that Advanced Copy and the HTML export put in front of the code.  Each line
// is the specifier, a label, a tab and the value, with a line end.

// The specifier of the box: the trimmed box, so that an emptied box gives no specifier at all.
QString CommentSpecifier(const QString& strBox);

QString AuthorLine(const QString& strSpec, const cSourceCode& item);
QString VersionLine(const QString& strSpec, const QString& strVersion);
QString CreateDateLine(const QString& strSpec, const cSourceCode& item);
QString DescriptionLine(const QString& strSpec, const cSourceCode& item);

// The version the header shows: the revision with the latest date after 01/01/2001 and, among
// those of that date, the greatest version as text (so "1.9.0" beats "1.10.0").  Empty when no
// revision is later than 01/01/2001 and none is of that day.
QString HeaderVersion(const cRevisions& revisions);

// The history block: a line end, the title and its rule, then for each revision two line ends
// and its author, version, date and comment lines.  The date line carries the version's label,
// and the block ends without a line end.
QString RevisionHistoryBlock(const QString& strSpec, const cRevisions& revisions);

// A date as text: the short date, with the time behind it unless it is midnight.
QString GeneralDate(const QDateTime& value);

} // namespace qs
