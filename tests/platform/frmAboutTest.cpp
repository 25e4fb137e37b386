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
        QDir().mkpath(home->file(QStringLiteral("bin")));
        qputenv("PATH", home->file(QStringLiteral("bin")).toLocal8Bit());
    }
    void TearDown() override {
        qputenv("PATH", mOldPath);
        QCoreApplication::setApplicationVersion(mOldVersion);
        HostFixture::TearDown();
    }
    QString installTool(const QString& name) {
        const QString path = home->file(QStringLiteral("bin/") + name);
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

TEST_F(About, ShowsCaptionAndTheThreePartVersion) {
    QCoreApplication::setApplicationVersion(QStringLiteral("2.5.7"));
    frmAbout& form = Forms::get<frmAbout>();
    EXPECT_EQ(form.Caption(), QStringLiteral("About This Application"));
    EXPECT_EQ(form.lblVersion->text(), QStringLiteral("Version 2.5.7"));
    form.cmdOK->click();
    EXPECT_EQ(Forms::find<frmAbout>(), nullptr);
}

TEST_F(About, SystemInfoStartsTheFirstToolFoundOnThePath) {
    installTool(QStringLiteral("kinfocenter"));
    const QString first = installTool(QStringLiteral("gnome-system-monitor"));
    frmAbout& form = Forms::get<frmAbout>();
    form.cmdSysInfo->click();
    const QList<HostCall> shell = hostScript.callsOf(QStringLiteral("Shell"));
    ASSERT_EQ(shell.size(), 1);
    EXPECT_EQ(shell[0].text, first);
}

TEST_F(About, SystemInfoWithoutAToolSaysSo) {
    hostScript.expectMsgBox(QStringLiteral("System Information Is Unavailable At This Time"), vbOK);
    Forms::get<frmAbout>().cmdSysInfo->click();
    EXPECT_TRUE(hostScript.callsOf(QStringLiteral("Shell")).isEmpty());
}

TEST_F(About, EscapeAndTheCloseBoxCloseItAsOkDoes) {
    for (const Leave way : {Leave::Escape, Leave::CloseBox}) {
        frmAbout& form = Forms::get<frmAbout>();
        form.show();
        EXPECT_TRUE(leave(form, way, form.cmdOK, form.cmdSysInfo));
        EXPECT_EQ(Forms::find<frmAbout>(), nullptr) << wayName(way);
    }
}
