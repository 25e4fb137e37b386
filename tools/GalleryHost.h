#pragma once

#include "QtHost.h"

#include <QHash>
#include <QQueue>
#include <QStringList>
#include <functional>

namespace qs::gallery {

// The host of the gallery: the program's own host, except that nobody sits at the screen.  A
// modal form runs the visit registered for it (which takes its pictures) and is then closed
// through its own exit or cancel command; message boxes, file dialogs and input boxes answer
// from a script; nothing is launched, printed or opened in a browser.
class GalleryHost : public QtHost {
public:
    using Visit = std::function<void(FormBase&)>;

    // The next modal show of the form named so runs `visit`; the registration is used once.
    void onModal(const QString& formName, Visit visit);
    // The next file dialog answers with `path`; an unscripted dialog is cancelled.
    void answerFileDialog(const QString& path);
    // The forms shown modally so far, by name.
    const QStringList& modalsShown() const { return mShown; }

    int msgBox(const QString& prompt, int flags, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString fileDialog(const FileDialogRequest& request) override;
    void showModal(FormBase& form) override;
    void popupMenu(QMenu& menu) override;
    int shellExecute(const QString& verb, const QString& file, const QString& parameters,
                     const QString& folder, int show) override;
    bool showHelp(const QString& helpFile, int command, long context) override;
    PrinterChoice printerDialog(int copies) override;

private:
    QHash<QString, Visit> mVisits;
    QQueue<QString> mFileAnswers;
    QStringList mShown;
};

// Lets the windows lay themselves out and paint: events run for about `ms` milliseconds.
void settle(int ms = 150);

} // namespace qs::gallery
