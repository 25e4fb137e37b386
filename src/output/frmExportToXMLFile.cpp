#include "frmExportToXMLFile.h"

#include "DialogParts.h"
#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "mCommonDialog.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mHelpRoutines.h"
#include "mPathHelpers.h"

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace qs {

using namespace dialogparts;

namespace {
const QString kItemMarker = QStringLiteral("<SourceItem SourceId = ");
constexpr long kHelpXmlExport = 1580;
constexpr int kFirstFailedLaunch = 32; // shell results up to this one are failures
} // namespace

frmExportToXMLFile::frmExportToXMLFile() : FormBase(QStringLiteral("frmExportToXMLFile")) {
    frmeOptions = new QGroupBox(QStringLiteral("Specify the desired options:"), this);
    frmeOptions->setObjectName(QStringLiteral("frmeOptions"));
    chkAppentoFile = checkBox(frmeOptions, "chkAppentoFile",
                              QStringLiteral("Append code data to existing XML File."));
    chkInclVersHist =
        checkBox(frmeOptions, "chkInclVersHist", QStringLiteral("Include Version History"));
    auto* options = new QVBoxLayout(frmeOptions);
    options->addWidget(chkAppentoFile);
    options->addWidget(chkInclVersHist);

    cmdOk = button(this, "cmdOk", QStringLiteral("OK"));
    cmdOk->setDefault(true);
    cmdCancel = button(this, "cmdCancel", QStringLiteral("Cancel"));
    cmdHelp = button(this, "cmdHelp", QStringLiteral("Help"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdHelp);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frmeOptions);
    layout->addLayout(buttons);
    setCaption(QStringLiteral("Export To XML Dialog"));

    Wire(this, cmdOk, &QPushButton::clicked, "cmdOk_Click", [this] { cmdOk_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, cmdHelp, &QPushButton::clicked, "cmdHelp_Click", [this] { cmdHelp_Click(); });
}

void frmExportToXMLFile::Form_Load() {
    CenterOnScreen();
}

bool frmExportToXMLFile::FileHoldsItem(const QString& strFile, long lngId) {
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QString id = QString::number(lngId);
    // Line by line, a line ending at CR LF, CR or LF.
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(lineEnd);
    for (const QString& line : lines)
        if (line.contains(kItemMarker, Qt::CaseInsensitive) &&
            line.contains(id, Qt::CaseInsensitive))
            return true;
    return false;
}

void frmExportToXMLFile::cmdOk_Click() {
    try {
        host().setMousePointer(vbHourglass);
        const QString path = GetFileName(CommonDialog1, QStringLiteral("XML Files (*.xml)|*.xml"),
                                         QStringLiteral("Select a path to save XML file"),
                                         QString(), QString(), true);
        const bool append = chkAppentoFile->isChecked();
        if (append && FileExists(path) && FileHoldsItem(path, glngSelectedId)) {
            host().msgBox(QStringLiteral("The file you selected already has the code information "
                                         "you requested.\r\nEither ''Cancel Out'', ''Select "
                                         "Another File'', or ''Enter a New File''."),
                          vbInformation, QString());
            host().setMousePointer(vbDefault);
            return;
        }
        const auto library = NewLibrary();
        host().doEvents();
        const cSourceCode item = library->GetSourceCode(static_cast<int>(glngSelectedId));
        item.ExportXml(path, append, chkInclVersHist->isChecked());

        if (path.isEmpty()) {
            host().msgBox(QStringLiteral("You did not choose to save file."), vbInformation,
                          QStringLiteral("Save?"));
            host().setMousePointer(vbDefault);
            Unload();
            return;
        }
        if (host().msgBox(
                QStringLiteral("Do you want to launch your XML file in you default browser?"),
                vbYesNo + vbQuestion, QStringLiteral("Launch XML File?")) == vbYes) {
            bool launched = false;
            try {
                launched = StartURL(path) > kFirstFailedLaunch;
            } catch (...) {
                launched = false;
            }
            if (!launched)
                host().msgBox(QStringLiteral("Did not launch successfully in you default browser. "
                                             "\r\nPlease try to launch it manually or in a "
                                             "different browser.\r\nHere is the path you "
                                             "selected: \r\n") +
                                  path,
                              vbInformation, QStringLiteral("Did Not Launch In Default Browser?"));
        }
        host().setMousePointer(vbDefault);
        Unload();
    } catch (...) {
        HandleFailure("frmExportToXML:cmdOk_Click;");
    }
}

void frmExportToXMLFile::cmdCancel_Click() {
    try {
        Unload();
    } catch (...) {
        HandleFailure("frmExportToXML:cmdCancel_Click;");
    }
}

void frmExportToXMLFile::cmdHelp_Click() {
    try {
        ShowHelpTopic(kHelpXmlExport);
    } catch (...) {
        HandleFailure("frmExportToXML:cmdHelp_Click;");
    }
}

} // namespace qs
