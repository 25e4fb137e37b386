#pragma once

#include <QString>
#include <QStringList>

class QMenu;

namespace qs {

class FormBase;

// Message box flags and answers, with the values the logic compares against.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton1 = 0,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};
enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7
};

// Screen pointer values.
enum MousePointer : int { vbDefault = 0, vbHourglass = 11 };

// What a file dialog is asked for.  `filter` uses the "Description|pattern|..." form; ":" is
// accepted as a separator too.  An empty answer means Cancel.
struct FileDialogRequest {
    QString title;
    QString filter;
    int filterIndex = 1;
    QString initDir;
    QString fileName;
    QString defaultExt;
    bool forSave = false;
    bool overwritePrompt = false;
    bool mustExist = false;
};

// What the printer dialog gives back; `accepted` false on Cancel.
struct PrinterChoice {
    bool accepted = false;
    QString printerName;
    int copies = 1;
};

// What a scripted End throws in tests, so that the flow stops there as the real End stops the
// process.  It is no std::exception and HandleFailure lets it through; nothing else catches it.
struct ProcessEnded {};

// The one door through which the logic reaches a person or the desktop.  QtHost does it for real;
// tests install a scripted host that answers from queues and records every call.
class Host {
public:
    virtual ~Host() = default;

    // MsgBox: returns one of MsgBoxResult.
    virtual int msgBox(const QString& prompt, int flags, const QString& title) = 0;
    // InputBox: the typed text, empty on Cancel.
    virtual QString inputBox(const QString& prompt, const QString& title,
                             const QString& defaultText) = 0;
    // Open or save dialog: the chosen full path, empty on Cancel.
    virtual QString fileDialog(const FileDialogRequest& request) = 0;
    // Shows a form modally and returns when it is hidden or unloaded.
    virtual void showModal(FormBase& form) = 0;
    // PopupMenu: shows the menu at the pointer and returns once it closes; an entry chosen there
    // runs its command through its own wiring.
    virtual void popupMenu(QMenu& menu) = 0;

    virtual void clipboardClear() = 0;
    virtual void clipboardSetText(const QString& text) = 0;
    virtual QString clipboardGetText() = 0;

    // Opens or prints a file or address with the desktop's handler.  Returns a value above 32 on
    // success, otherwise one of the launch failure codes (0, 2, 3, 5, 8, 11, 31, ...).
    virtual int shellExecute(const QString& verb, const QString& file, const QString& parameters,
                             const QString& folder, int show) = 0;
    // Help: `command` is the help command (1 context, 8 pop-up context, 15 contents, 261 keyword
    // search, 4 quit); returns false when the help could not be shown.
    virtual bool showHelp(const QString& helpFile, int command, long context) = 0;

    virtual PrinterChoice printerDialog(int copies) = 0;
    // Prints plain text on the chosen printer; returns false when nothing could be printed.
    virtual bool printText(const PrinterChoice& printer, const QString& documentName,
                           const QString& text) = 0;

    virtual void setMousePointer(int pointer) = 0;
    virtual int mousePointer() const = 0;

    // App.PrevInstance: true when another copy of the program already runs.
    virtual bool previousInstance() = 0;
    // DoEvents: lets pending events run.
    virtual void doEvents() = 0;
    // End: stops the program at once.
    virtual void endProcess() = 0;
};

// The host in force.  Set once at start (the program) or per test (the fixture).
Host& host();
void setHost(Host* host);

} // namespace qs
