#include "ScriptedHost.h"

#include <QMenu>
#include <QPointer>
#include <gtest/gtest.h>

namespace qs::test {

namespace {

QString oneLine(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\\n"));
    text.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    text.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
    return text;
}

std::string utf8(const QString& s) {
    return s.toStdString();
}

// The buttons a message box offers, by its flags.
QList<int> offered(int flags) {
    switch (flags & 0x7) {
    case vbOKCancel:
        return {vbOK, vbCancel};
    case vbAbortRetryIgnore:
        return {vbAbort, vbRetry, vbIgnore};
    case vbYesNoCancel:
        return {vbYes, vbNo, vbCancel};
    case vbYesNo:
        return {vbYes, vbNo};
    case vbRetryCancel:
        return {vbRetry, vbCancel};
    default:
        return {vbOK};
    }
}

// The answer that does least harm when nothing was scripted.
int harmless(int flags) {
    const QList<int> b = offered(flags);
    if (b.contains(vbCancel))
        return vbCancel;
    if (b.contains(vbNo))
        return vbNo;
    if (b.contains(vbIgnore))
        return vbIgnore;
    return vbOK;
}

} // namespace

QString HostCall::toString() const {
    QString line = kind;
    if (flags != 0)
        line += QStringLiteral("[%1]").arg(flags);
    if (!title.isEmpty())
        line += QStringLiteral(" \"%1\"").arg(oneLine(title));
    if (!text.isEmpty())
        line += QStringLiteral(": %1").arg(oneLine(text));
    if (!answer.isEmpty())
        line += QStringLiteral(" -> %1").arg(oneLine(answer));
    return line;
}

ScriptedHost::ScriptedHost() = default;

ScriptedHost::~ScriptedHost() {
    verifyAllUsed();
}

HostCall& ScriptedHost::record(const QString& kind, const QString& title, const QString& text,
                               int flags) {
    HostCall call;
    call.kind = kind;
    call.title = title;
    call.text = text;
    call.flags = flags;
    mCalls.append(call);
    return mCalls.last();
}

void ScriptedHost::answerMsgBox(int answer) {
    mMsgAnswers.push_back({QString(), answer});
}

void ScriptedHost::expectMsgBox(const QString& textContains, int answer) {
    mMsgAnswers.push_back({textContains, answer});
}

void ScriptedHost::answerInputBox(const QString& text) {
    mInputAnswers.push_back(text);
}

void ScriptedHost::answerFileDialog(const QString& path) {
    mFileAnswers.push_back(path);
}

void ScriptedHost::answerPrinter(bool accepted, const QString& printerName, int copies) {
    PrinterChoice c;
    c.accepted = accepted;
    c.printerName = printerName;
    c.copies = copies;
    mPrinterAnswers.push_back(c);
}

void ScriptedHost::onModal(const QString& formName, std::function<void(FormBase&)> handler) {
    for (auto& h : mModalHandlers)
        if (h.first == formName) {
            h.second = std::move(handler);
            return;
        }
    mModalHandlers.append({formName, std::move(handler)});
}

QList<HostCall> ScriptedHost::callsOf(const QString& kind) const {
    QList<HostCall> result;
    for (const HostCall& c : mCalls)
        if (c.kind == kind)
            result.append(c);
    return result;
}

QString ScriptedHost::log(const QStringList& kinds) const {
    QStringList lines;
    for (const HostCall& c : mCalls)
        if (kinds.isEmpty() || kinds.contains(c.kind))
            lines.append(c.toString());
    return lines.join(QLatin1Char('\n'));
}

bool ScriptedHost::runToEnd(const std::function<void()>& body) {
    try {
        body();
    } catch (const ProcessEnded&) {
        return true;
    }
    return false;
}

void ScriptedHost::verifyAllUsed() {
    for (const MsgAnswer& a : mMsgAnswers)
        ADD_FAILURE() << "A scripted message box answer was never asked for: " << a.answer
                      << (a.textContains.isEmpty()
                              ? std::string()
                              : " (expected text \"" + utf8(a.textContains) + "\")");
    for (const QString& a : mInputAnswers)
        ADD_FAILURE() << "A scripted input box answer was never asked for: \"" << utf8(a) << "\"";
    for (const QString& a : mFileAnswers)
        ADD_FAILURE() << "A scripted file dialog answer was never asked for: \"" << utf8(a) << "\"";
    for (const PrinterChoice& a : mPrinterAnswers)
        ADD_FAILURE() << "A scripted printer answer was never asked for: \"" << utf8(a.printerName)
                      << "\"";
    for (const auto& h : mModalHandlers)
        if (!mModalShown.contains(h.first))
            ADD_FAILURE() << "The form " << utf8(h.first)
                          << " has a modal handler but was never shown modally";
    mMsgAnswers.clear();
    mInputAnswers.clear();
    mFileAnswers.clear();
    mPrinterAnswers.clear();
    mModalHandlers.clear();
    mModalShown.clear();
}

int ScriptedHost::msgBox(const QString& prompt, int flags, const QString& title) {
    HostCall& call = record(QStringLiteral("MsgBox"), title, prompt, flags);
    int answer = harmless(flags);
    if (mMsgAnswers.empty()) {
        ADD_FAILURE() << "Unscripted message box \"" << utf8(title) << "\": " << utf8(prompt);
    } else {
        const MsgAnswer scripted = mMsgAnswers.front();
        mMsgAnswers.pop_front();
        if (!prompt.contains(scripted.textContains))
            ADD_FAILURE() << "Expected a message box containing \"" << utf8(scripted.textContains)
                          << "\" but got \"" << utf8(title) << "\": " << utf8(prompt);
        if (!offered(flags).contains(scripted.answer))
            ADD_FAILURE() << "The scripted answer " << scripted.answer
                          << " is not a button of the message box: " << utf8(prompt);
        answer = scripted.answer;
    }
    call.answer = QString::number(answer);
    return answer;
}

QString ScriptedHost::inputBox(const QString& prompt, const QString& title,
                               const QString& defaultText) {
    HostCall& call = record(QStringLiteral("InputBox"), title, prompt, 0);
    (void)defaultText;
    if (mInputAnswers.empty()) {
        ADD_FAILURE() << "Unscripted input box \"" << utf8(title) << "\": " << utf8(prompt);
        return QString();
    }
    const QString answer = mInputAnswers.front();
    mInputAnswers.pop_front();
    call.answer = answer;
    return answer;
}

QString ScriptedHost::fileDialog(const FileDialogRequest& request) {
    mLastFileDialog = request;
    const QString kind = request.forSave ? QStringLiteral("FileSave") : QStringLiteral("FileOpen");
    HostCall& call = record(kind, request.title, request.filter, 0);
    if (mFileAnswers.empty()) {
        ADD_FAILURE() << "Unscripted file dialog \"" << utf8(request.title) << "\" with filter "
                      << utf8(request.filter);
        return QString();
    }
    const QString answer = mFileAnswers.front();
    mFileAnswers.pop_front();
    call.answer = answer;
    return answer;
}

void ScriptedHost::showModal(FormBase& form) {
    const QString name = form.Name();
    record(QStringLiteral("Modal"), QString(), name, 0);
    std::function<void(FormBase&)> handler;
    for (const auto& h : mModalHandlers)
        if (h.first == name)
            handler = h.second;
    if (!handler) {
        ADD_FAILURE() << "Unscripted modal show of " << utf8(name);
        return;
    }
    mModalShown.append(name);
    QPointer<FormBase> guard(&form);
    form.show();
    handler(form);
    if (guard && guard->IsLoaded() && guard->isVisible()) {
        ADD_FAILURE() << "The modal handler of " << utf8(name)
                      << " returned with the form still shown; it is hidden now";
        guard->hide();
    }
}

void ScriptedHost::clipboardClear() {
    record(QStringLiteral("ClipboardClear"), QString(), QString(), 0);
    mClipboard.clear();
}

void ScriptedHost::clipboardSetText(const QString& text) {
    record(QStringLiteral("ClipboardSet"), QString(), text, 0);
    mClipboard = text;
}

QString ScriptedHost::clipboardGetText() {
    record(QStringLiteral("ClipboardGet"), QString(), QString(), 0).answer = mClipboard;
    return mClipboard;
}

int ScriptedHost::shellExecute(const QString& verb, const QString& file, const QString& parameters,
                               const QString& folder, int show) {
    QString text = file;
    if (!parameters.isEmpty())
        text += QStringLiteral(" ") + parameters;
    if (!folder.isEmpty())
        text += QStringLiteral(" (in ") + folder + QStringLiteral(")");
    record(QStringLiteral("Shell"), verb, text, show).answer = QString::number(mShellResult);
    return mShellResult;
}

void ScriptedHost::popupMenu(QMenu& menu) {
    QStringList shown;
    for (const QAction* entry : menu.actions())
        if (entry->isVisible())
            shown << entry->objectName();
    record(QStringLiteral("PopupMenu"), shown.join(QLatin1Char(',')), menu.objectName(), 0);
}

bool ScriptedHost::showHelp(const QString& helpFile, int command, long context) {
    record(QStringLiteral("Help"), helpFile, QString::number(context), command).answer =
        mHelpResult ? QStringLiteral("shown") : QStringLiteral("failed");
    return mHelpResult;
}

PrinterChoice ScriptedHost::printerDialog(int copies) {
    HostCall& call = record(QStringLiteral("PrinterDialog"), QString(), QString(), copies);
    if (mPrinterAnswers.empty()) {
        ADD_FAILURE() << "Unscripted printer dialog";
        return PrinterChoice();
    }
    const PrinterChoice answer = mPrinterAnswers.front();
    mPrinterAnswers.pop_front();
    call.answer = answer.accepted ? answer.printerName : QStringLiteral("Cancel");
    return answer;
}

bool ScriptedHost::printText(const PrinterChoice& printer, const QString& documentName,
                             const QString& text) {
    record(QStringLiteral("Print"), documentName, text, printer.copies).answer =
        mPrintResult ? printer.printerName : QStringLiteral("failed");
    if (mPrintResult)
        mPrinted.append(text);
    return mPrintResult;
}

void ScriptedHost::setMousePointer(int pointer) {
    record(QStringLiteral("Pointer"), QString(), QString(), pointer);
    mPointer = pointer;
    mPointerHistory.append(pointer);
}

bool ScriptedHost::previousInstance() {
    record(QStringLiteral("PrevInstance"), QString(), QString(), 0).answer =
        mPreviousInstance ? QStringLiteral("true") : QStringLiteral("false");
    return mPreviousInstance;
}

void ScriptedHost::doEvents() {
    ++mDoEvents;
}

void ScriptedHost::endProcess() {
    record(QStringLiteral("End"), QString(), QString(), 0);
    mEnded = true;
    throw ProcessEnded();
}

} // namespace qs::test
