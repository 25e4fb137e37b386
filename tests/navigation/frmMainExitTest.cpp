// Leaving the main window, and events that close it while one of its handlers yields.

#include "TreeWindowFixture.h"

#include "FormBase.h"
#include "frmLogin.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QTimer>

using namespace qs;
using namespace qs::test;

namespace {

// An empty library that the settings name, holding the administrator "ada".
class MainExit : public TreeWindow {
protected:
    void SetUp() override {
        TreeWindow::SetUp();
        addUser(QStringLiteral("ada"));
    }
    void TearDown() override {
        Forms::setOnEmpty(nullptr);
        TreeWindow::TearDown();
    }

    // At the next yield, the main window's close box is pressed.
    void closeMainAtTheNextYield() {
        hostScript.runEventsAtYields(true);
        QTimer::singleShot(0, qApp, [] {
            if (frmMain* main = Forms::find<frmMain>()) {
                QCloseEvent event;
                QApplication::sendEvent(main, &event);
            }
        });
    }

    // The login still stands and nothing was reported.
    void expectTheLoginStandsAlone() {
        EXPECT_GE(hostScript.doEventsCount(), 1);
        EXPECT_EQ(Forms::find<frmMain>(), nullptr);
        EXPECT_FALSE(gobjLibrary) << "a service object was left behind";
        frmLogin* login = Forms::find<frmLogin>();
        ASSERT_NE(login, nullptr);
        EXPECT_TRUE(login->isVisible());
        EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
        EXPECT_EQ(hostScript.mousePointer(), vbDefault);
    }
};

TEST_F(MainExit, EscapeInATreeOrTheSearchBoxLeavesTheWindowAsItIs) {
    logIn();
    frmMain* main = Forms::find<frmMain>();
    ASSERT_NE(main, nullptr);
    for (QWidget* control : std::initializer_list<QWidget*>{main->tvwCategories, main->tvwMain,
                                                            main->txtSearchString}) {
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Escape);
        EXPECT_EQ(Forms::find<frmMain>(), main) << control->objectName().toStdString();
        EXPECT_TRUE(main->isVisible());
    }
    EXPECT_TRUE(gobjLibrary);
    EXPECT_FALSE(hostScript.ended());
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
}

TEST_F(MainExit, CloseBoxUnloadsTheWindowAndTheProgramEndsWithNoWindowLeft) {
    int ends = 0;
    Forms::setOnEmpty([&ends] { ++ends; });
    logIn();
    frmMain* main = Forms::find<frmMain>();
    ASSERT_NE(main, nullptr);
    QCloseEvent event;
    QApplication::sendEvent(main, &event);

    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_FALSE(gobjLibrary);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
    QElapsedTimer waited;
    waited.start();
    while (ends == 0 && waited.elapsed() < 500)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    EXPECT_EQ(ends, 1);
}

// ---------------------------------------------------------------------------------------------
// The main window closed while one of its handlers yields.

using MainReentry = MainExit;

TEST_F(MainReentry, WindowClosedWhileItsLoadYieldsLeavesTheLoginQuietly) {
    closeMainAtTheNextYield();
    logIn();
    expectTheLoginStandsAlone();
}

TEST_F(MainReentry, WindowClosedWhileALoginToAnotherDatabaseStartsItAgainLeavesTheLoginQuietly) {
    logIn();
    ASSERT_NE(Forms::find<frmMain>(), nullptr);
    gblnSwitchingDatabase = true;
    Forms::find<frmMain>()->Hide();
    hostScript.clearCalls();
    closeMainAtTheNextYield();
    logIn();
    expectTheLoginStandsAlone();
}

} // namespace
