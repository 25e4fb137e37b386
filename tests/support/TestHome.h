#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace qs::test {

// A private home for the span of its life: XDG_CONFIG_HOME, XDG_DATA_HOME, XDG_RUNTIME_DIR and
// HOME point into a fresh temporary folder, and are put back when it goes.
class TestHome {
public:
    TestHome();
    ~TestHome();
    TestHome(const TestHome&) = delete;
    TestHome& operator=(const TestHome&) = delete;

    QString path() const { return mDir.path(); }
    // A path inside the home.
    QString file(const QString& relative) const;

private:
    QTemporaryDir mDir;
    QByteArray mOld[4];
};

} // namespace qs::test
