#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>
#include <functional>

namespace qs {

// Show modes.
enum FormShowMode : int { vbModeless = 0, vbModal = 1 };

// A form's own exit or cancel command: the name it reports failures under, and the member.
struct ExitCommand {
    const char* handler = nullptr;
    std::function<void()> run;
};

// A window of the system.  Its object name is its design name ("frmMain"), and it lives in the
// process-wide collection of loaded forms from its load to its unload, like the forms of the
// original design: `Forms::get<frmLogin>()` loads the form on first use.
class FormBase : public QDialog {
    Q_OBJECT
public:
    explicit FormBase(const QString& name, QWidget* parent = nullptr);
    ~FormBase() override;

    QString Name() const { return objectName(); }
    QString Caption() const { return windowTitle(); }
    void setCaption(const QString& caption) { setWindowTitle(caption); }

    // Shows the form; modal showing goes through the host so tests can script it.
    void Show(int mode = vbModeless);
    void Hide() { hide(); }
    bool Visible() const { return isVisible(); }
    // Centres the window on the screen.
    void CenterOnScreen();

    // Runs Form_Unload and, unless it cancels, hides the form, takes it out of the collection and
    // destroys it once control returns to the event loop.  Returns false when cancelled.
    bool Unload();
    bool IsLoaded() const { return mLoaded; }

    // Runs Form_Activate; the window's show event calls it too.
    void Activate() { Form_Activate(); }

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload(int& cancel) { (void)cancel; }
    // The command that Escape and the close box both run, through the handler boundary: the
    // form's own exit or cancel command, which decides whether the window goes (it may ask
    // first, and stay on No).  A form without one ignores Escape, and its close box unloads it.
    virtual ExitCommand exitCommand() { return {}; }

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // Escape, as the dialog base class delivers it.
    void reject() override;

private:
    friend class Forms;
    void load();
    void runExitCommand();
    bool mLoaded = false;
    bool mUnloading = false;
};

// The collection of loaded forms, in load order.
class Forms {
public:
    template <class T> static T& get() {
        if (T* f = find<T>())
            return *f;
        T* form = new T();
        add(form);
        form->load();
        return *form;
    }
    template <class T> static T* find() {
        for (FormBase* f : all())
            if (T* t = dynamic_cast<T*>(f))
                return t;
        return nullptr;
    }
    static FormBase* findByName(const QString& name);
    static QList<FormBase*> all();
    static int count();

    // Called once the last form is unloaded and no handler is running any more (the check waits
    // for the event loop at top level); the program quits there.
    static void setOnEmpty(std::function<void()> callback);

    // Marks code that runs a nested event loop (DoEvents, a modal show): the program does not end
    // under it, since the handler that yields is still running, and a form unloaded meanwhile is
    // destroyed only once the outermost yield is over, so the handlers below still reach it and
    // find it unloaded.
    class YieldScope {
    public:
        YieldScope();
        ~YieldScope();
        YieldScope(const YieldScope&) = delete;
        YieldScope& operator=(const YieldScope&) = delete;
    };
    // Unloads every form without asking them (tests between cases).
    static void destroyAll();

private:
    friend class FormBase;
    static void add(FormBase* form);
    static void remove(FormBase* form);
    static void scheduleEmptyCheck(int delayMs);
};

// After a yield: true when the form still stands and is loaded.  A handler that yields holds its
// form in a QPointer and leaves quietly when this is false.
template <class T> bool StillLoaded(const QPointer<T>& form) {
    return form && form->IsLoaded();
}

} // namespace qs
