// The main window's commands that open the text item window: add under a folder, and edit.

#include "frmMain.h"
#include "frmSourceCode.h"

#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "TreeView.h"
#include "mErrorHandling.h"

#include <QAction>

namespace qs {

void frmMain::connectSourceCode() {
    Wire(this, mnuAddSourceCode, &QAction::triggered, "mnuAddSourceCode_Click",
         [this] { mnuAddSourceCode_Click(); });
    Wire(this, mnuEditSource, &QAction::triggered, "mnuEditSource_Click",
         [this] { mnuEditSource_Click(); });
}

void frmMain::afterItemWindow() {
    setEnabled(true);
    // The focus may be refused (a hidden tree); that is no failure.
    try {
        tvwMain->setFocus(Qt::OtherFocusReason);
        if (Node selected = tvwMain->SelectedItem())
            selected.setSelected(true);
    } catch (...) {
    }
    host().setMousePointer(vbDefault);
}

void frmMain::mnuAddSourceCode_Click() {
    try {
        host().setMousePointer(vbHourglass);
        setEnabled(false);
        gstrMode = QStringLiteral("Add");
        ClearOriginalControls();
        ClearRevisionControls();
        ClearControlsSourceFileTab();
        // The entry is off on the root, so the first branch is a safeguard.
        const Node selected = tvwMain->SelectedItem();
        const QString key = selected ? selected.Key() : QString();
        glngParentId = key == QLatin1String("ROOT") ? 0 : NodeKeys::IdOf(key);
        Forms::get<frmSourceCode>().Show(vbModal);
        afterItemWindow();
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuAddSourceCode_Click;");
    }
}

void frmMain::mnuEditSource_Click() {
    try {
        const Node selected = tvwMain->SelectedItem();
        const QString key = selected ? selected.Key() : QString();
        if (!selected || key.contains(QLatin1String("Folder")) ||
            key.contains(QLatin1String("ROOT"))) {
            host().msgBox(QStringLiteral("Please make sure that you are on a ''Source Code'' or "
                                         "''Source File'' item to Edit."),
                          vbInformation, QStringLiteral("Edit Source?"));
            if (selected)
                tvwMain_NodeClick(selected);
            host().setMousePointer(vbDefault);
            return;
        }
        if (!key.contains(QLatin1String("SC"))) {
            // A stored file ("SF") is updated in the source file window.
            ShowSourceFile(QStringLiteral("Update"));
            return;
        }
        host().setMousePointer(vbHourglass);
        setEnabled(false);
        gstrMode = QStringLiteral("Update");
        Forms::get<frmSourceCode>().Show(vbModal);
        afterItemWindow();
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuEditSource_Click;");
    }
}

} // namespace qs
