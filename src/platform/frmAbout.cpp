#include "frmAbout.h"

#include "EventWiring.h"
#include "Host.h"
#include "mErrorHandling.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QVersionNumber>

namespace qs {

frmAbout::frmAbout() : FormBase(QStringLiteral("frmAbout")) {
    lblTitle = new QLabel(this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont big = lblTitle->font();
    big.setPointSize(big.pointSize() + 6);
    big.setBold(true);
    lblTitle->setFont(big);
    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdSysInfo = new QPushButton(QStringLiteral("&System Info..."), this);
    cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));

    auto* buttons = new QVBoxLayout;
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdSysInfo);
    buttons->addStretch();
    auto* text = new QVBoxLayout;
    text->addWidget(lblTitle);
    text->addWidget(lblVersion);
    text->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(text, 1);
    layout->addLayout(buttons);

    Wire(this, cmdOK, &QPushButton::clicked, "cmdOK_Click", [this] { cmdOK_Click(); });
    Wire(this, cmdSysInfo, &QPushButton::clicked, "cmdSysInfo_Click",
         [this] { cmdSysInfo_Click(); });
}

void frmAbout::Form_Load() {
    setCaption(QStringLiteral("About This Application"));
    lblTitle->setText(QStringLiteral("Quillstone"));
    const QVersionNumber v = QVersionNumber::fromString(QCoreApplication::applicationVersion());
    lblVersion->setText(QStringLiteral("Version %1.%2.%3")
                            .arg(v.majorVersion())
                            .arg(v.minorVersion())
                            .arg(v.microVersion()));
    resize(420, 160);
}

void frmAbout::cmdOK_Click() {
    Unload();
}

QStringList frmAbout::SysInfoTools() {
    return {QStringLiteral("hardinfo"), QStringLiteral("gnome-system-monitor"),
            QStringLiteral("kinfocenter"), QStringLiteral("ksysguard")};
}

QString frmAbout::FindSysInfoTool() {
    for (const QString& tool : SysInfoTools()) {
        const QString path = QStandardPaths::findExecutable(tool);
        if (!path.isEmpty())
            return path;
    }
    return QString();
}

void frmAbout::cmdSysInfo_Click() {
    try {
        const QString tool = FindSysInfoTool();
        if (tool.isEmpty() ||
            host().shellExecute(QStringLiteral("open"), tool, QString(), QString(), 1) <= 32)
            host().msgBox(QStringLiteral("System Information Is Unavailable At This Time"),
                          vbOKOnly, QStringLiteral("Quillstone"));
    } catch (...) {
        HandleFailure("frmAbout:cmdSysInfo_Click;");
    }
}

} // namespace qs
