#pragma once

#include <QString>

namespace qs {

// One row of GetItems, GetBookmarks and Search: an item or a folder of SourceCode or
// SourceFile.
struct ItemRow {
    int ParentId = 0;   // parent folder's id, 0 at the top level
    int Id = 0;         // the row's own id in its table
    int CategoryId = 0; // the place the program leaves unread
    int TypeId = 0;     // 101, 102 for files; 201 to 204 for code
    int Tested = 0;     // 1 tested, 2 untested; 0 for stored files, which have no such state
    QString Description;
    bool IsFolder = false;
};

} // namespace qs
