#pragma once

#include <QString>

namespace qs {

// Show values of a started program.
enum ShowWindowStyle : int {
    SW_HIDE = 0,
    SW_SHOWNORMAL = 1,
    SW_SHOWMINIMIZED = 2,
    SW_SHOWMAXIMIZED = 3
};

// Opens (or prints) a file with the desktop's handler.  A result below 22 is a failure: unless
// `blnSuppressMessage`, its message is shown under the title "Error running " and the file.
// Returns the shell's result.
long extLaunchApp(const QString& strFile, bool blnForPrint = false,
                  const QString& strParameters = QString(), const QString& strFolder = QString(),
                  int intShow = SW_SHOWNORMAL, bool blnSuppressMessage = false);

// Opens a file with the desktop's handler.  Returns the failure text (results below 22 and 31),
// empty when the file was started; the caller shows it.
QString extRunFile(const QString& strFile);

// The message of a launch failure code, as each procedure words it; empty for other codes.
QString LaunchAppMessage(long lngCode);
QString RunFileMessage(long lngCode);

} // namespace qs
