#include "FormBase.h"

#include "EventWiring.h"
#include "Host.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace qs {

namespace {
QList<FormBase*>& loadedForms() {
    static QList<FormBase*> forms;
    return forms;
}
std::function<void()>& onEmpty() {
    static std::function<void()> callback;
    return callback;
}
// Forms unloaded while a handler yields, destroyed once the outermost yield is over.
QList<QPointer<FormBase>>& unloadedWhileYielding() {
    static QList<QPointer<FormBase>> forms;
    return forms;
}
int gYieldDepth = 0;
bool gEmptyCheckPending = false;
} // namespace

FormBase::FormBase(const QString& name, QWidget* parent) : QDialog(parent) {
    setObjectName(name);
    // Forms are top-level windows with the ordinary frame, not dialogs with a help button.
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
}

FormBase::~FormBase() {
    Forms::remove(this);
}

void FormBase::load() {
    mLoaded = true;
    Form_Load();
}

void FormBase::Show(int mode) {
    // An unloaded form stays gone, even for a handler that still holds it after a yield.
    if (mUnloading)
        return;
    if (mode == vbModal) {
        host().showModal(*this);
        return;
    }
    show();
    raise();
}

void FormBase::CenterOnScreen() {
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
}

bool FormBase::Unload() {
    if (mUnloading || !mLoaded)
        return true;
    int cancel = 0;
    Form_Unload(cancel);
    if (cancel != 0)
        return false;
    mUnloading = true;
    mLoaded = false;
    hide();
    if (QDialog::result() == 0 && isModal())
        done(0);
    Forms::remove(this);
    // A handler that yielded may still be running on this form; it finds it unloaded.
    if (gYieldDepth > 0)
        unloadedWhileYielding().append(this);
    else
        deleteLater();
    return true;
}

void FormBase::runExitCommand() {
    const ExitCommand command = exitCommand();
    if (command.run)
        RunHandler(this, command.handler, command.run);
    else
        RunHandler(this, "Form_Unload", [this] { Unload(); });
}

void FormBase::closeEvent(QCloseEvent* event) {
    if (mUnloading || !mLoaded) {
        event->accept();
        return;
    }
    runExitCommand();
    // The window goes only if the command unloaded it.
    if (mUnloading)
        event->accept();
    else
        event->ignore();
}

void FormBase::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Form_Activate();
}

void FormBase::reject() {
    // Escape is no close command in a window without an exit or cancel command.
    if (exitCommand().run)
        runExitCommand();
}

FormBase* Forms::findByName(const QString& name) {
    for (FormBase* f : loadedForms())
        if (f->objectName() == name)
            return f;
    return nullptr;
}

QList<FormBase*> Forms::all() {
    return loadedForms();
}

int Forms::count() {
    return loadedForms().size();
}

void Forms::setOnEmpty(std::function<void()> callback) {
    onEmpty() = std::move(callback);
}

void Forms::destroyAll() {
    const QList<FormBase*> forms = loadedForms();
    loadedForms().clear();
    for (FormBase* f : forms) {
        f->mUnloading = true;
        f->mLoaded = false;
        delete f;
    }
    const QList<QPointer<FormBase>> unloaded = unloadedWhileYielding();
    unloadedWhileYielding().clear();
    for (const QPointer<FormBase>& f : unloaded)
        delete f.data();
}

void Forms::add(FormBase* form) {
    loadedForms().append(form);
}

void Forms::remove(FormBase* form) {
    const bool wasThere = loadedForms().removeOne(form);
    // A handler that unloads every form usually shows another one next (back to the login), so
    // the end is decided later, once control is back in the event loop.
    if (wasThere && loadedForms().isEmpty() && onEmpty())
        scheduleEmptyCheck(0);
}

void Forms::scheduleEmptyCheck(int delayMs) {
    if (gEmptyCheckPending || !QCoreApplication::instance())
        return;
    gEmptyCheckPending = true;
    QTimer::singleShot(delayMs, QCoreApplication::instance(), [] {
        gEmptyCheckPending = false;
        if (!loadedForms().isEmpty() || !onEmpty())
            return;
        if (gYieldDepth > 0) {
            scheduleEmptyCheck(20);
            return;
        }
        onEmpty()();
    });
}

Forms::YieldScope::YieldScope() {
    ++gYieldDepth;
}

Forms::YieldScope::~YieldScope() {
    if (--gYieldDepth > 0)
        return;
    const QList<QPointer<FormBase>> unloaded = unloadedWhileYielding();
    unloadedWhileYielding().clear();
    for (const QPointer<FormBase>& f : unloaded)
        if (f)
            f->deleteLater();
}

} // namespace qs
