#pragma once

#include "FormBase.h"
#include "Host.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>

namespace qs::test {

// One call that reached the host, as the log shows it.
struct HostCall {
    QString kind;  // "MsgBox", "InputBox", "FileOpen", "FileSave", "Modal", "ClipboardClear",
                   // "PopupMenu", "ClipboardSet", "ClipboardGet", "Shell", "Help", "PrinterDialog",
                   // "Print", "Pointer", "PrevInstance", "End"
    QString title; // title of a prompt, verb of a shell call, help file of a help call, the
                   // entries a pop-up shows (names, joined by ",")
    QString text;  // prompt text, form name, file, clipboard text, printed text
    int flags = 0; // message box flags, help command, pointer value, shell show value
    QString answer; // what the host answered

    int icon() const { return flags & 0x70; }
    int buttons() const { return flags & 0x7; }
    // One line: kind, flags, title, text (line ends shown as "\n") and the answer.
    QString toString() const;
};

// The host of the tests: answers from queues the test fills, records every call in order, and
// fails the test when something asks that was not scripted or when a scripted answer is left.
//
// End: endProcess records the call, sets ended() and throws qs::ProcessEnded, which stops the
// current flow as the real End stops the process.  HandleFailure lets it through; run the code
// under test with runToEnd() (or catch qs::ProcessEnded) to assert that the program ended.
class ScriptedHost : public Host {
public:
    ScriptedHost();
    ~ScriptedHost() override; // verifies that every scripted answer was used
    ScriptedHost(const ScriptedHost&) = delete;
    ScriptedHost& operator=(const ScriptedHost&) = delete;

    // --- scripting ---------------------------------------------------------------------------
    // The next message box, whatever it says, is answered with `answer`.
    void answerMsgBox(int answer);
    // The next message box must contain `textContains` in its prompt; it is answered with
    // `answer`.
    void expectMsgBox(const QString& textContains, int answer = vbOK);
    // The next input box is answered with `text` (empty = Cancel).
    void answerInputBox(const QString& text);
    // The next open or save dialog returns `path` (empty = Cancel).
    void answerFileDialog(const QString& path);
    // The next printer dialog.
    void answerPrinter(bool accepted, const QString& printerName = QString(), int copies = 1);
    // Runs `handler` each time the form of that name is shown modally.  The form is shown (so
    // Form_Activate runs), the handler fills controls and clicks buttons; when it returns the
    // form must be hidden or unloaded, and the modal show returns.
    void onModal(const QString& formName, std::function<void(FormBase&)> handler);
    template <class T> void onModal(const QString& formName, std::function<void(T&)> handler) {
        onModal(formName, [handler](FormBase& f) { handler(dynamic_cast<T&>(f)); });
    }
    // Results of later shell, help and print calls (default 42, true, true).
    void setShellResult(int code) { mShellResult = code; }
    void setHelpResult(bool shown) { mHelpResult = shown; }
    void setPrintResult(bool printed) { mPrintResult = printed; }
    void setPreviousInstance(bool running) { mPreviousInstance = running; }
    void setClipboardText(const QString& text) { mClipboard = text; }

    // --- observing ---------------------------------------------------------------------------
    const QList<HostCall>& calls() const { return mCalls; }
    QList<HostCall> callsOf(const QString& kind) const;
    // Every call as lines, or only those of the given kinds.
    QString log(const QStringList& kinds = QStringList()) const;
    // The message boxes shown, in order.
    QList<HostCall> msgBoxes() const { return callsOf(QStringLiteral("MsgBox")); }
    void clearCalls() { mCalls.clear(); }

    QString clipboardText() const { return mClipboard; }
    QList<int> pointerHistory() const { return mPointerHistory; }
    int doEventsCount() const { return mDoEvents; }
    bool ended() const { return mEnded; }
    QStringList printedTexts() const { return mPrinted; }

    // Runs `body`; true when it ended the program.
    bool runToEnd(const std::function<void()>& body);

    // Fails the test for every scripted answer that was never asked for, and forgets them.
    void verifyAllUsed();

    // --- Host --------------------------------------------------------------------------------
    int msgBox(const QString& prompt, int flags, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString fileDialog(const FileDialogRequest& request) override;
    void showModal(FormBase& form) override;
    // Records the pop-up by the menu's name, with the entries it shows; it closes with nothing
    // chosen.
    void popupMenu(QMenu& menu) override;
    void clipboardClear() override;
    void clipboardSetText(const QString& text) override;
    QString clipboardGetText() override;
    int shellExecute(const QString& verb, const QString& file, const QString& parameters,
                     const QString& folder, int show) override;
    bool showHelp(const QString& helpFile, int command, long context) override;
    PrinterChoice printerDialog(int copies) override;
    bool printText(const PrinterChoice& printer, const QString& documentName,
                   const QString& text) override;
    void setMousePointer(int pointer) override;
    int mousePointer() const override { return mPointer; }
    bool previousInstance() override;
    void doEvents() override;
    void endProcess() override;

    // The last file dialog request, for asserting on its title, filter and flags.
    const FileDialogRequest& lastFileDialog() const { return mLastFileDialog; }

private:
    struct MsgAnswer {
        QString textContains; // empty: any text
        int answer;
    };
    HostCall& record(const QString& kind, const QString& title, const QString& text, int flags);

    QList<HostCall> mCalls;
    std::deque<MsgAnswer> mMsgAnswers;
    std::deque<QString> mInputAnswers;
    std::deque<QString> mFileAnswers;
    std::deque<PrinterChoice> mPrinterAnswers;
    QList<QPair<QString, std::function<void(FormBase&)>>> mModalHandlers;
    QStringList mModalShown;
    QString mClipboard;
    QList<int> mPointerHistory;
    QStringList mPrinted;
    FileDialogRequest mLastFileDialog;
    int mShellResult = 42;
    bool mHelpResult = true;
    bool mPrintResult = true;
    bool mPreviousInstance = false;
    int mPointer = 0;
    int mDoEvents = 0;
    bool mEnded = false;
};

} // namespace qs::test
