#pragma once

namespace qs {

// The data service's part of the way out: every connection this process holds to a library file
// puts its commits into the file itself and closes, so that the file alone, copied without the
// files beside it, holds everything saved.  A service object that held a connection raises at
// its next call; a record, or an object made afterwards, opens the file afresh.
void CloseLibraryFiles();

} // namespace qs
