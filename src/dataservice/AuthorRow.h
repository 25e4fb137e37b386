#pragma once

#include <QString>

namespace qs {

// One row of GetAuthors.
struct AuthorRow {
    int AuthorId = 0;
    QString FirstName;
    QString LastName;
};

} // namespace qs
