#pragma once

#include "Host.h"

#include <QPointer>
#include <QStringList>
#include <memory>

class QLockFile;
class QTextBrowser;

namespace qs {

// The host of the running program: Qt's dialogs, clipboard, desktop services and cursor.
class QtHost : public Host {
public:
    QtHost();
    ~QtHost() override;
    QtHost(const QtHost&) = delete;
    QtHost& operator=(const QtHost&) = delete;

    int msgBox(const QString& prompt, int flags, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString fileDialog(const FileDialogRequest& request) override;
    void showModal(FormBase& form) override;
    void popupMenu(QMenu& menu) override;

    void clipboardClear() override;
    void clipboardSetText(const QString& text) override;
    QString clipboardGetText() override;

    int shellExecute(const QString& verb, const QString& file, const QString& parameters,
                     const QString& folder, int show) override;
    // The help file's folder holds one HTML page per context id ("<context>.html"), an
    // "index.html" for the contents and, optionally, a "search.html".
    bool showHelp(const QString& helpFile, int command, long context) override;

    PrinterChoice printerDialog(int copies) override;
    bool printText(const PrinterChoice& printer, const QString& documentName,
                   const QString& text) override;

    void setMousePointer(int pointer) override;
    int mousePointer() const override;

    // Holds a lock file in the user's runtime folder for the life of the process; a lock left
    // by a crashed copy is stale by its process id and is taken over.
    bool previousInstance() override;
    void doEvents() override;
    // Frees the instance lock, flushes the standard streams and leaves with std::exit(0), so
    // that nothing after End runs, even before the event loop has started.
    void endProcess() override;

    // "Desc|pattern|Desc|pattern" (or ":" between the entries) as Qt name filters.
    static QStringList nameFilters(const QString& filter);
    // The help page a help command opens; empty when there is none.
    static QString helpPage(const QString& helpFile, int command, long context);

private:
    std::unique_ptr<QLockFile> mInstanceLock;
    int mPreviousInstance = -1;
    int mPointer = 0;
    bool mCursorPushed = false;
    QPointer<QTextBrowser> mHelpWindow;
};

} // namespace qs
