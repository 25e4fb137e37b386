// The main window's stored-file commands: add, the update window for the Edit command, run the
// file, and write the stored copy out.

#include "frmMain.h"

#include "AppPaths.h"
#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "TreeView.h"
#include "cSourceFile.h"
#include "frmSourceFile.h"
#include "mCommonDialog.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mLaunchAppsAndProcesses.h"

#include <QLineEdit>
#include <QPointer>
#include <atomic>
#include <chrono>
#include <exception>
#include <thread>

namespace qs {

namespace {

// Runs `work` on a thread of its own and lets the window's events run until it is done, so a
// long write neither freezes the window nor holds more than the service's chunk in memory.
// What `work` throws is thrown here.
void runYielding(const std::function<void()>& work) {
    std::atomic<bool> done{false};
    std::exception_ptr failure;
    std::thread worker([&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        done = true;
    });
    do {
        host().doEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(15));
    } while (!done);
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace

void frmMain::ShowSourceFile(const QString& strMode) {
    host().setMousePointer(vbHourglass);
    const QPointer<frmMain> self(this);
    setEnabled(false);
    gstrMode = strMode;
    if (strMode != QLatin1String("Update")) {
        ClearOriginalControls();
        ClearRevisionControls();
        ClearControlsSourceFileTab();
        const Node selected = tvwMain->SelectedItem();
        glngParentId = !selected || selected.Key() == QLatin1String("ROOT")
                           ? 0
                           : NodeKeys::IdOf(selected.Key());
    }
    Forms::get<frmSourceFile>().Show(vbModal);
    if (!self)
        return;
    setEnabled(true);
    // Failures here are of no account: the tree only takes the focus back.
    try {
        tvwMain->setFocus();
        if (Node selected = tvwMain->SelectedItem())
            tvwMain->setSelectedItem(selected);
    } catch (const QsError&) {
    }
    host().setMousePointer(vbDefault);
}

void frmMain::mnuAddSourceFile_Click() {
    try {
        ShowSourceFile(QStringLiteral("Add"));
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuAddSourceFile_Click;");
    }
}

void frmMain::cmdOpenFile_Click() {
    try {
        const Node item = tvwMain->SelectedItem();
        const Node bookmark = tvwBookMarks->SelectedItem();
        if (!(item && NodeKeys::IsSourceFileImage(item.Image())) &&
            !(bookmark && NodeKeys::IsSourceFileImage(bookmark.Image())))
            return;
        host().setMousePointer(vbHourglass);
        // The file at its recorded place, not the stored copy.
        const QString failure = extRunFile(mstrFileFullPath);
        if (!failure.isEmpty())
            host().msgBox(failure, vbOKOnly, QString::fromLatin1(APP_TITLE));
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:cmdOpenFile_Click;");
    }
}

void frmMain::cmdSaveFile_Click() {
    const QPointer<frmMain> self(this);
    try {
        const QString name = txtFilename->text();
        const QString extension = name.right(3);
        FileNameDialog dialog;
        dialog.filter = QStringLiteral("File (*.") + extension + QStringLiteral(")|*.") + extension;
        dialog.dlgTitle = QStringLiteral("Save File");
        dialog.fileName = name;
        dialog.initDir = AppPath();
        if (!VBGetSaveFileName(dialog) || !mobjSourceFile)
            return;
        // The record is held here: a click meanwhile may load another.
        const std::shared_ptr<cSourceFile> record = mobjSourceFile;
        const QString path = dialog.fileName;
        host().setMousePointer(vbHourglass);
        setEnabled(false);
        runYielding([record, path] { record->SaveToDisk(path); });
        if (self)
            setEnabled(true);
        host().setMousePointer(vbDefault);
    } catch (...) {
        if (self)
            setEnabled(true);
        HandleFailure("frmMain:cmdSaveFile_Click;");
    }
}

} // namespace qs
