#include "Host.h"

#include "QsError.h"

namespace qs {

namespace {
Host* gHost = nullptr;
}

Host& host() {
    if (!gHost)
        throw QsError(91, QString::fromLatin1(kAppSource), QStringLiteral("No host is set"));
    return *gHost;
}

void setHost(Host* h) {
    gHost = h;
}

} // namespace qs
