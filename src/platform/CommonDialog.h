#pragma once

#include <QString>

namespace qs {

// Flags of the open and save dialogs.
enum FileOpenConstants : long {
    cdlOFNReadOnly = 0x1,
    cdlOFNOverwritePrompt = 0x2,
    cdlOFNHideReadOnly = 0x4,
    cdlOFNNoChangeDir = 0x8,
    cdlOFNExtensionDifferent = 0x400,
    cdlOFNPathMustExist = 0x800,
    cdlOFNFileMustExist = 0x1000,
};

// The error a cancelled dialog raises when CancelError is on.
inline constexpr long cdlCancel = 32755;

// The common dialog control: open, save and printer dialogs, all through the host.
class CommonDialog {
public:
    CommonDialog();

    QString DialogTitle;
    QString Filter;
    int FilterIndex = 1;
    QString FileName;
    QString FileTitle;
    QString DefaultExt;
    QString InitDir; // the home folder unless set
    long Flags = 0;
    bool CancelError = false;
    QString HelpFile;
    long HelpContext = 0;
    int Copies = 1;
    bool PrinterDefault = true;
    QString PrinterName;
    QString PrinterOutputFile; // the PDF file the printer dialog chose to print into, or empty

    // Each sets FileName (and FileTitle) to the choice.  On Cancel they raise cdlCancel
    // "Cancel was selected." when CancelError is on and otherwise leave FileName as it was.
    void ShowOpen();
    void ShowSave();
    // Sets Copies and PrinterName from the choice.
    void ShowPrinter();

private:
    void showFile(bool forSave);
    void cancelled() const;
};

} // namespace qs
