#pragma once

#include <QString>

namespace qs {

// One row of a lookup table as GetLookup hands it out: the row's id as text, its code and its
// description.  The fixed rows have an empty code.
struct LookupRow {
    QString Id;
    QString Code;
    QString Description;
};

} // namespace qs
