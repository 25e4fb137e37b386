#include "TestHome.h"

#include <QDir>

namespace qs::test {

namespace {
const char* const kVars[4] = {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "HOME"};
const char* const kSubdirs[4] = {"config", "data", "runtime", "home"};
} // namespace

TestHome::TestHome() {
    for (int i = 0; i < 4; ++i) {
        mOld[i] = qgetenv(kVars[i]);
        const QString sub = mDir.filePath(QString::fromLatin1(kSubdirs[i]));
        QDir().mkpath(sub);
        QFile::setPermissions(sub, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                       QFileDevice::ExeOwner);
        qputenv(kVars[i], sub.toLocal8Bit());
    }
}

TestHome::~TestHome() {
    for (int i = 0; i < 4; ++i)
        qputenv(kVars[i], mOld[i]);
}

QString TestHome::file(const QString& relative) const {
    return mDir.filePath(relative);
}

} // namespace qs::test
