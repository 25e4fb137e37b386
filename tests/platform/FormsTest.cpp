#include "FormBase.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

using qs::FormBase;
using qs::Forms;

namespace {

class frmOne : public FormBase {
public:
    frmOne() : FormBase(QStringLiteral("frmOne")) {}
    int loads = 0;
    int cancelUnload = 0;

protected:
    void Form_Load() override { ++loads; }
    void Form_Unload(int& cancel) override { cancel = cancelUnload; }
};

class frmTwo : public FormBase {
public:
    frmTwo() : FormBase(QStringLiteral("frmTwo")) {}
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

TEST_F(FormsCollection, FirstUseLoadsOnceAndKeepsLoadOrder) {
    frmOne& one = Forms::get<frmOne>();
    Forms::get<frmTwo>();
    EXPECT_EQ(&Forms::get<frmOne>(), &one);
    EXPECT_EQ(one.loads, 1);
    ASSERT_EQ(Forms::count(), 2);
    EXPECT_EQ(Forms::all().at(0)->Name(), QStringLiteral("frmOne"));
    EXPECT_EQ(Forms::findByName(QStringLiteral("frmTwo")), Forms::find<frmTwo>());
}

TEST_F(FormsCollection, CancelledUnloadKeepsTheForm) {
    frmOne& one = Forms::get<frmOne>();
    one.cancelUnload = 1;
    EXPECT_FALSE(one.Unload());
    EXPECT_EQ(Forms::count(), 1);
    one.cancelUnload = 0;
    EXPECT_TRUE(one.Unload());
    EXPECT_EQ(Forms::find<frmOne>(), nullptr);
}

TEST_F(FormsCollection, ProgramEndsOnlyOnceTheLastUnloadIsBackInTheEventLoop) {
    Forms::get<frmOne>().Unload();
    EXPECT_EQ(ends, 0) << "ended inside the handler that unloaded the form";
    spin(50);
    EXPECT_EQ(ends, 1);
}

TEST_F(FormsCollection, AFormShownAgainInTheSameHandlerKeepsTheProgramAlive) {
    // Back to the login: every form is unloaded and the login form loaded again.
    Forms::get<frmOne>().Unload();
    Forms::get<frmTwo>();
    spin(50);
    EXPECT_EQ(ends, 0);
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
