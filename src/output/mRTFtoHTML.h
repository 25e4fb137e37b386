#pragma once

#include <QString>

namespace qs {

// Turns the rich text of the code pane (the layout the rich text box writes) into an HTML 3.2
// fragment, or a whole page.  `strOptions` holds any of the markers "+H" (a complete page),
// "+G" (the generator tag in its head), "+T" (a title between the first two back-quotes, as in
// "+T=`Title`"), "+CR" (a line end behind line-break tags and closed alignment tables) and "+I"
// (keep "<" and ">" of the text, so HTML in it stays live).  A failure is reported and gives an
// empty string.
QString RTF2HTML(const QString& strRTF, const QString& strOptions);

} // namespace qs
