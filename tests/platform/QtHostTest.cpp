#include "QtHost.h"
#include "FormBase.h"
#include "TestHome.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLockFile>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using namespace qs;

namespace {

// Runs `action` on the first modal dialog once it is up.
void whenModalShows(std::function<void(QWidget*)> action) {
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, action] {
        if (QWidget* w = QApplication::activeModalWidget()) {
            timer->stop();
            timer->deleteLater();
            action(w);
        }
    });
    timer->start();
}

void clickButton(QWidget* dialog, const QString& label) {
    for (QAbstractButton* b : dialog->findChildren<QAbstractButton*>())
        if (b->text() == label) {
            b->click();
            return;
        }
    ADD_FAILURE() << "no button " << label.toStdString();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

} // namespace

TEST(QtHostFilters, DescriptionPatternPairsBecomeNameFilters) {
    EXPECT_EQ(QtHost::nameFilters("All Files (*.*)|*.*|Text Files (*.txt)|*.txt"),
              (QStringList{"All Files (*.*) (*.*)", "Text Files (*.txt) (*.txt)"}));
    EXPECT_EQ(QtHost::nameFilters("Pictures|*.bmp;*.jpg:All (*.*)| *.*"),
              (QStringList{"Pictures (*.bmp *.jpg)", "All (*.*) (*.*)"}));
    EXPECT_TRUE(QtHost::nameFilters(QString()).isEmpty());
}

TEST(QtHostHelp, ContextPagesContentsAndSearchComeFromTheHelpFolder) {
    qs::test::TestHome home;
    const QString hlp = home.file("Quillstone.hlp");
    writeFile(home.file("1550.html"), "<p>Database</p>");
    writeFile(home.file("index.html"), "<p>Contents</p>");
    EXPECT_EQ(QtHost::helpPage(hlp, 1, 1550), home.file("1550.html"));
    EXPECT_EQ(QtHost::helpPage(hlp, 8, 1550), home.file("1550.html"));
    EXPECT_EQ(QtHost::helpPage(hlp, 1, 1370), QString());
    EXPECT_EQ(QtHost::helpPage(hlp, 15, 0), home.file("index.html"));
    EXPECT_EQ(QtHost::helpPage(hlp, 261, 0), home.file("index.html"));

    QtHost host;
    EXPECT_TRUE(host.showHelp(hlp, 1, 1550));
    QTextBrowser* window = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "HelpWindow" && w->isVisible())
            window = qobject_cast<QTextBrowser*>(w);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->toPlainText().contains("Database"));
    EXPECT_FALSE(host.showHelp(hlp, 1, 1370));
    EXPECT_TRUE(host.showHelp(hlp, 4, 0));
    EXPECT_FALSE(window->isVisible());
}

TEST(QtHostDialogs, MessageBoxReturnsTheClickedButtonAndHonoursTheDefault) {
    QtHost host;
    int defaultIsNo = 0;
    whenModalShows([&defaultIsNo](QWidget* box) {
        for (QAbstractButton* b : box->findChildren<QAbstractButton*>())
            if (b->text() == "&No")
                defaultIsNo = b->property("default").toBool() ? 1 : -1;
        clickButton(box, "&No");
    });
    EXPECT_EQ(host.msgBox("Delete?", vbYesNo | vbQuestion | vbDefaultButton2, "Delete"), vbNo);
    EXPECT_EQ(defaultIsNo, 1);

    whenModalShows([](QWidget* box) { clickButton(box, "Cancel"); });
    EXPECT_EQ(host.msgBox("Save?", vbYesNoCancel, QString()), vbCancel);

    whenModalShows([](QWidget* box) { clickButton(box, "&Retry"); });
    EXPECT_EQ(host.msgBox("Again?", vbAbortRetryIgnore, QString()), vbRetry);
}

TEST(QtHostDialogs, InputBoxGivesTheTextAndEmptyOnCancel) {
    QtHost host;
    whenModalShows([](QWidget* w) {
        auto* dialog = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(dialog, nullptr);
        dialog->setTextValue("Tips");
        dialog->accept();
    });
    EXPECT_EQ(host.inputBox("Name", QString(), QString()), "Tips");
    whenModalShows([](QWidget* w) { qobject_cast<QDialog*>(w)->reject(); });
    EXPECT_EQ(host.inputBox("Name", QString(), "x"), QString());
}

TEST(QtHostForms, ModalShowReturnsWhenTheFormIsHidden) {
    QtHost host;
    FormBase form("frmProbe");
    bool visibleInLoop = false;
    QTimer::singleShot(20, &form, [&] {
        visibleInLoop = form.isVisible();
        form.Hide();
    });
    host.showModal(form);
    EXPECT_TRUE(visibleInLoop);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.windowModality(), Qt::NonModal);
}

TEST(QtHostDesktop, PointerClipboardAndShellCodes) {
    qs::test::TestHome home;
    QtHost host;
    host.setMousePointer(vbHourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(host.mousePointer(), vbHourglass);
    host.setMousePointer(vbHourglass);
    host.setMousePointer(vbDefault);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(host.mousePointer(), vbDefault);

    host.clipboardSetText("Sub Main()\r\nEnd Sub");
    EXPECT_EQ(host.clipboardGetText(), "Sub Main()\r\nEnd Sub");

    EXPECT_EQ(host.shellExecute("open", home.file("none.txt"), QString(), QString(), 1), 2);
    EXPECT_EQ(host.shellExecute("open", home.file("no/folder/none.txt"), QString(), QString(), 1),
              3);
    EXPECT_EQ(host.shellExecute("open", QString(), QString(), QString(), 1), 2);
    writeFile(home.file("a.txt"), "x");
    EXPECT_EQ(host.shellExecute("open", "a.txt", QString(), home.file("missing"), 1), 3);
}

TEST(QtHostEnd, EndLeavesTheProcessAtOnceWithCodeZero) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            QtHost host;
            host.endProcess();
            std::abort();
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(QtHostInstance, SecondHostSeesThePreviousInstanceAndAStaleLockIsTakenOver) {
    qs::test::TestHome home;
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    {
        QtHost first;
        EXPECT_FALSE(first.previousInstance());
        QtHost second;
        EXPECT_TRUE(second.previousInstance());
    }
    // A lock whose process is gone does not count.
    const QString lockPath = QDir(runtime).filePath(QCoreApplication::applicationName() + ".lock");
    QFile::remove(lockPath);
    writeFile(lockPath, "999999999\nQuillstone\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    QtHost third;
    EXPECT_FALSE(third.previousInstance());
}
