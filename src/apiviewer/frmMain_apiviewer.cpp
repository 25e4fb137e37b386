// The main window's command that opens the API viewer.

#include "frmApiViewer.h"
#include "frmMain.h"

#include "mErrorHandling.h"

namespace qs {

void frmMain::mnuApiViewer_Click() {
    try {
        setEnabled(false);
        frmApiViewer& viewer = Forms::get<frmApiViewer>();
        // A first start whose file dialog was cancelled has closed the viewer already.
        if (viewer.IsLoaded())
            viewer.Show(vbModal);
        setEnabled(true);
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuApiViewer_Click;");
    }
}

} // namespace qs
