#include "EventWiring.h"

#include "Host.h"
#include "mErrorHandling.h"

#include <QVariant>

namespace qs {

void RunHandler(const QObject* owner, const char* handler, const std::function<void()>& body) {
    try {
        body();
    } catch (const ProcessEnded&) {
        // A scripted End: the host has recorded it, and the test reads it from there.
    } catch (...) {
        const QByteArray literal =
            (owner ? owner->objectName() : QString()).toLatin1() + ':' + handler + ';';
        try {
            HandleFailure(literal.constData());
        } catch (...) {
            // The report itself failed (the log could not be written); there is no one left
            // to tell.
        }
    }
}

QString WiredHandler(const QObject* sender) {
    return sender ? sender->property("qsHandler").toString() : QString();
}

} // namespace qs
