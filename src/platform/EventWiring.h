#pragma once

#include <QObject>
#include <functional>
#include <utility>

namespace qs {

// Runs one event handler of `owner` (a form).  This is the boundary between Qt's frames and the
// system's code: whatever escapes the handler is reported by the failure rules under
// "<owner>:<handler>;" and goes no further, since an exception unwinding through Qt's event
// dispatch ends the process.  A scripted End stops here; the host has recorded it.
void RunHandler(const QObject* owner, const char* handler, const std::function<void()>& body);

// The name of the handler a menu entry, button or other sender is wired to, empty when none.
QString WiredHandler(const QObject* sender);

// The one way a control event, menu action or button reaches its handler.
//
// A Qt signal:           Wire(this, cmdOk, &QPushButton::clicked, "cmdOk_Click",
//                             [this] { cmdOk_Click(); });
// A control's event:     Wire(this, tvwMain->NodeClick, "tvwMain_NodeClick",
//                             [this](Node node) { tvwMain_NodeClick(node); });
template <class Sender, class Signal, class Fn>
void Wire(QObject* owner, Sender* sender, Signal signal, const char* handler, Fn fn) {
    sender->setProperty("qsHandler", QString::fromLatin1(handler));
    QObject::connect(sender, signal, owner,
                     [owner, handler, fn = std::move(fn)] { RunHandler(owner, handler, fn); });
}

template <class... Args, class Fn>
void Wire(QObject* owner, std::function<void(Args...)>& event, const char* handler, Fn fn) {
    event = [owner, handler, fn = std::move(fn)](Args... args) {
        RunHandler(owner, handler, [&] { fn(std::forward<Args>(args)...); });
    };
}

} // namespace qs
