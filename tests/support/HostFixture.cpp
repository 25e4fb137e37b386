#include "HostFixture.h"

#include "FormBase.h"
#include "mErrorHandling.h"

#include <QCoreApplication>
#include <QEvent>
#include <vector>

namespace qs::test {

namespace {
struct Reset {
    std::string name;
    std::function<void()> fn;
};
std::vector<Reset>& resets() {
    static std::vector<Reset> list{{"mErrorHandling", [] {
                                        gstrLogFile.clear();
                                        gintLogFileNo = 0;
                                        glngLogMode = 0;
                                    }}};
    return list;
}
} // namespace

void addGlobalReset(std::function<void()> reset) {
    resets().push_back({std::string(), std::move(reset)});
}

void addGlobalReset(const std::string& name, std::function<void()> reset) {
    for (Reset& r : resets())
        if (!name.empty() && r.name == name) {
            r.fn = std::move(reset);
            return;
        }
    resets().push_back({name, std::move(reset)});
}

void runGlobalResets() {
    for (const Reset& r : resets())
        if (r.fn)
            r.fn();
}

void HostFixture::SetUp() {
    home = std::make_unique<TestHome>();
    setHost(&hostScript);
}

void HostFixture::TearDown() {
    Forms::destroyAll();
    // Forms unloaded during the test are deleted later; let that happen while the host stands.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    runGlobalResets();
    hostScript.verifyAllUsed();
    setHost(nullptr);
    home.reset();
}

} // namespace qs::test
