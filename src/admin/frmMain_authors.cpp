// The main window's way to author maintenance.

#include "frmMain.h"

#include "frmAuthor.h"
#include "mErrorHandling.h"

namespace qs {

void frmMain::mnuAuthor_Click() {
    try {
        showInsteadOfMain(Forms::get<frmAuthor>());
    } catch (...) {
        HandleFailure("frmMain:mnuAuthor_Click;");
    }
}

} // namespace qs
