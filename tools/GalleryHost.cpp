#include "GalleryHost.h"

#include "FormBase.h"

#include <QPointer>
#include <QTest>
#include <cstdio>

namespace qs::gallery {

namespace {

void note(const char* what, const QString& text) {
    std::fprintf(stderr, "gallery: %s: %s\n", what, qPrintable(text.simplified()));
}

} // namespace

void settle(int ms) {
    QTest::qWait(ms);
}

void GalleryHost::onModal(const QString& formName, Visit visit) {
    mVisits.insert(formName, std::move(visit));
}

void GalleryHost::answerFileDialog(const QString& path) {
    mFileAnswers.enqueue(path);
}

// The first button answers: OK, Yes, Abort or Retry.
int GalleryHost::msgBox(const QString& prompt, int flags, const QString& title) {
    note("message box", title + QStringLiteral(" | ") + prompt);
    switch (flags & 0x7) {
    case vbAbortRetryIgnore:
        return vbAbort;
    case vbYesNoCancel:
    case vbYesNo:
        return vbYes;
    case vbRetryCancel:
        return vbRetry;
    default:
        return vbOK;
    }
}

QString GalleryHost::inputBox(const QString& prompt, const QString& title,
                              const QString& defaultText) {
    note("input box", title + QStringLiteral(" | ") + prompt);
    return defaultText;
}

QString GalleryHost::fileDialog(const FileDialogRequest& request) {
    const QString answer = mFileAnswers.isEmpty() ? QString() : mFileAnswers.dequeue();
    note("file dialog", request.title + QStringLiteral(" -> ") +
                            (answer.isEmpty() ? QStringLiteral("(cancelled)") : answer));
    return answer;
}

void GalleryHost::showModal(FormBase& form) {
    const QString name = form.Name();
    mShown << name;
    const Visit visit = mVisits.take(name);
    if (!visit)
        note("modal form with no visit, closed", name);
    QPointer<FormBase> guard(&form);
    form.show();
    form.raise();
    form.activateWindow();
    settle();
    if (visit && guard)
        visit(*guard);
    // Closing runs the form's own exit or cancel command, as the close box does.
    if (guard && guard->isVisible())
        guard->close();
    settle(50);
    if (guard && guard->isVisible()) {
        note("modal form refused to close, hidden", name);
        guard->hide();
    }
}

void GalleryHost::popupMenu(QMenu& menu) {
    (void)menu;
    note("pop-up menu", QStringLiteral("not shown"));
}

int GalleryHost::shellExecute(const QString& verb, const QString& file, const QString& parameters,
                              const QString& folder, int show) {
    (void)parameters;
    (void)folder;
    (void)show;
    note("shell", verb + QLatin1Char(' ') + file);
    return 0;
}

bool GalleryHost::showHelp(const QString& helpFile, int command, long context) {
    (void)command;
    (void)context;
    note("help", helpFile);
    return false;
}

PrinterChoice GalleryHost::printerDialog(int copies) {
    (void)copies;
    return {};
}

} // namespace qs::gallery
