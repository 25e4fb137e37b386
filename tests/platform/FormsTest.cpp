#include "ExitWays.h"
#include "FormBase.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>
#include <gtest/gtest.h>

using qs::FormBase;
using qs::Forms;

namespace {

class frmOne : public FormBase {
public:
    frmOne() : FormBase("frmOne") {}
    int loads = 0;
    int cancelUnload = 0;

protected:
    void Form_Load() override { ++loads; }
    void Form_Unload(int& cancel) override { cancel = cancelUnload; }
};

class frmTwo : public FormBase {
public:
    frmTwo() : FormBase("frmTwo") {}
};

// A form whose exit command asks first, and unloads only when the answer is yes.
class frmAsk : public FormBase {
public:
    frmAsk() : FormBase("frmAsk") { box = new QLineEdit(this); }
    QLineEdit* box;
    int asked = 0;
    bool agree = false;
    void cmdExit_Click() {
        ++asked;
        if (agree)
            Unload();
    }

protected:
    qs::ExitCommand exitCommand() override {
        return {"cmdExit_Click", [this] { cmdExit_Click(); }};
    }
};

// Runs the event loop for a while so deferred checks get their turn.
void spin(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

class FormsCollection : public ::testing::Test {
protected:
    void SetUp() override {
        Forms::setOnEmpty([this] { ++ends; });
    }
    void TearDown() override {
        Forms::setOnEmpty(nullptr);
        Forms::destroyAll();
        spin(30);
    }
    int ends = 0;
};

} // namespace

TEST_F(FormsCollection, FirstUseLoadsOnceKeepsLoadOrderAndACancelledUnloadKeepsTheForm) {
    frmOne& one = Forms::get<frmOne>();
    Forms::get<frmTwo>();
    EXPECT_EQ(&Forms::get<frmOne>(), &one);
    EXPECT_EQ(one.loads, 1);
    ASSERT_EQ(Forms::count(), 2);
    EXPECT_EQ(Forms::all().at(0)->Name(), "frmOne");
    EXPECT_EQ(Forms::findByName("frmTwo"), Forms::find<frmTwo>());

    one.cancelUnload = 1;
    EXPECT_FALSE(one.Unload());
    EXPECT_EQ(Forms::count(), 2);
    one.cancelUnload = 0;
    EXPECT_TRUE(one.Unload());
    EXPECT_EQ(Forms::find<frmOne>(), nullptr);
}

TEST_F(FormsCollection, ProgramEndsOnceTheLastUnloadIsBackInTheEventLoopUnlessAFormIsShownAgain) {
    // Back to the login: every form is unloaded and the login form loaded again.
    Forms::get<frmOne>().Unload();
    Forms::get<frmTwo>();
    spin(50);
    EXPECT_EQ(ends, 0);
    Forms::get<frmTwo>().Unload();
    EXPECT_EQ(ends, 0) << "ended inside the handler that unloaded the form";
    spin(50);
    EXPECT_EQ(ends, 1);
}

TEST_F(FormsCollection, NoEndWhileAHandlerYieldsToTheEventLoop) {
    {
        const Forms::YieldScope yielding;
        Forms::get<frmOne>().Unload();
        spin(50); // DoEvents between the unload and the next form
        EXPECT_EQ(ends, 0);
        Forms::get<frmTwo>();
    }
    spin(80);
    EXPECT_EQ(ends, 0);
    Forms::get<frmTwo>().Unload();
    spin(80);
    EXPECT_EQ(ends, 1);
}

TEST_F(FormsCollection, EscapeAndTheCloseBoxRunTheExitCommandWhichDecidesWhetherTheWindowGoes) {
    using qs::test::Leave;
    frmAsk& ask = Forms::get<frmAsk>();
    ask.show();
    qs::test::leave(ask, Leave::Escape, nullptr, ask.box);
    EXPECT_FALSE(qs::test::leave(ask, Leave::CloseBox, nullptr, nullptr));
    EXPECT_EQ(ask.asked, 2);
    EXPECT_TRUE(ask.isVisible());
    ask.agree = true;
    EXPECT_TRUE(qs::test::leave(ask, Leave::CloseBox, nullptr, nullptr));
    EXPECT_EQ(Forms::find<frmAsk>(), nullptr);

    // Without an exit command Escape is no close command; the close box unloads.
    frmTwo& two = Forms::get<frmTwo>();
    two.show();
    QTest::keyClick(&two, Qt::Key_Escape);
    EXPECT_EQ(Forms::find<frmTwo>(), &two);
    EXPECT_TRUE(qs::test::leave(two, Leave::CloseBox, nullptr, nullptr));
    EXPECT_EQ(Forms::find<frmTwo>(), nullptr);
}

TEST_F(FormsCollection, FormUnloadedWhileAHandlerYieldsOutlivesTheYieldAndIsNotShownAgain) {
    QPointer<frmOne> one(&Forms::get<frmOne>());
    {
        const Forms::YieldScope yielding;
        QTimer::singleShot(0, [&one] { one->Unload(); });
        spin(30);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_FALSE(one.isNull()) << "destroyed under the handler that yielded";
        EXPECT_FALSE(one->IsLoaded());
        one->Show();
        EXPECT_FALSE(one->isVisible());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(one.isNull());
}
