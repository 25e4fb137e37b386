#include "frmAbout.h"
#include "ExitWays.h"
#include "HostFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

class About : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        mOldPath = qgetenv("PATH");
        mOldVersion = QCoreApplication::applicationVersion();
        QDir().mkpath(home->file("bin"));
        qputenv("PATH", home->file("bin").toLocal8Bit());
    }
    void TearDown() override {
        qputenv("PATH", mOldPath);
        QCoreApplication::setApplicationVersion(mOldVersion);
        HostFixture::TearDown();
    }
    QString installTool(const QString& name) {
        const QString path = home->file("bin/" + name);
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("#!/bin/sh\n");
        f.close();
        f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        return path;
    }

private:
    QByteArray mOldPath;
    QString mOldVersion;
};

} // namespace

TEST_F(About, ShowsTheThreePartVersionAndOkEscapeAndTheCloseBoxCloseIt) {
    QCoreApplication::setApplicationVersion("2.5.7");
    for (const Leave way : {Leave::Button, Leave::Escape, Leave::CloseBox}) {
        frmAbout& form = Forms::get<frmAbout>();
        EXPECT_EQ(form.lblVersion->text(), "Version 2.5.7");
        form.show();
        EXPECT_TRUE(leave(form, way, form.cmdOK, form.cmdSysInfo));
        EXPECT_EQ(Forms::find<frmAbout>(), nullptr) << wayName(way);
    }
}

TEST_F(About, SystemInfoStartsTheFirstToolFoundOnThePathOrSaysThereIsNone) {
    hostScript.expectMsgBox("System Information Is Unavailable At This Time", vbOK);
    Forms::get<frmAbout>().cmdSysInfo->click();
    EXPECT_TRUE(hostScript.callsOf("Shell").isEmpty());

    installTool("kinfocenter");
    const QString first = installTool("gnome-system-monitor");
    Forms::get<frmAbout>().cmdSysInfo->click();
    const QList<HostCall> shell = hostScript.callsOf("Shell");
    ASSERT_EQ(shell.size(), 1);
    EXPECT_EQ(shell[0].text, first);
}
