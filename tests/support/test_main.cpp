#include "TestHome.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Test discovery runs this binary at build time without the test environment, so the
    // platform is chosen here when nothing chose it.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QS_SOURCE_DIR"))
        qputenv("QS_SOURCE_DIR", QS_SOURCE_DIR_DEFAULT);
    // Nothing of the person running the tests is touched: every folder the program uses lies
    // under a private temporary home for the whole run; fixtures make a fresh one per test.
    qs::test::TestHome processHome;
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillstone"));
    QApplication::setOrganizationName(QStringLiteral("Tarnwick"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
