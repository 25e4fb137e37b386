#pragma once

#include "CommonDialog.h"
#include "FormBase.h"

class QCheckBox;
class QGroupBox;
class QPushButton;

namespace qs {

// The Convert to XML dialog: writes the selected item (glngSelectedId) to an XML file or appends
// it to one, refusing a file that holds the item already.  Failures report under the name
// "frmExportToXML".
class frmExportToXMLFile : public FormBase {
    Q_OBJECT
public:
    frmExportToXMLFile();

    QGroupBox* frmeOptions = nullptr;
    QCheckBox* chkAppentoFile = nullptr; // the design's spelling
    QCheckBox* chkInclVersHist = nullptr;
    QPushButton* cmdOk = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHelp = nullptr;
    CommonDialog CommonDialog1;

    // True when a line of the file holds the item marker and, anywhere, the id's digits (case
    // ignored), so that id 5 also hits on the line of id 15.
    static bool FileHoldsItem(const QString& strFile, long lngId);

    void cmdOk_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();

protected:
    void Form_Load() override;
};

} // namespace qs
