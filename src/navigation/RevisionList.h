#pragma once

#include <QString>

namespace qs {

class ListView;
class cRevisions;

// Fills a revision list from an item's history, one row per line ("KEY" & n, the date as
// "MM/dd/yyyy", the version), and leaves gstrCurrentVersion at the version of the last line.
// Returns the newest version: the line with the latest DateRevised after 01/01/2001, and among
// lines of that same date the lowest version as text; empty when no line is that recent.
QString FillRevisionList(ListView& list, const cRevisions& revisions);

// Splits "major.minor.revision" into gintMajor, gintMinor and gintRevision.  A version without
// three parts raises 9, a part that is no number 13.
void SplitVersion(const QString& version);

} // namespace qs
