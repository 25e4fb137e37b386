#include "CloseLibraryFiles.h"

#include "SqliteStore.h"

namespace qs {

void CloseLibraryFiles() {
    SqliteStore::closeAll();
}

} // namespace qs
