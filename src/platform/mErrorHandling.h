#pragma once

#include <QDateTime>
#include <QString>

namespace qs {

// Log state, process-wide.  Nothing assigns gstrLogFile by default, so the log stays inert.
extern QString gstrLogFile;
extern int gintLogFileNo;
extern long glngLogMode;

// Kinds of log entry.
enum LogKind : long { vbLogError = 1, vbLogWarning = 2, vbLogInformation = 4 };

void DisplayErrInfo(const QString& strSource, long lngNumber, const QString& strDescription);
void ErrWriteToLog(long lngNumber, const QString& strSource, const QString& strDescription,
                   long lngKind);
void OpenLogFile();
// The text one log entry adds (with the header when glngLogMode is 2), stamped with `when`.
QString LogEntryText(long lngNumber, const QString& strSource, const QString& strDescription,
                     long lngKind, const QDateTime& when);
void CloseLogFile();

// The failure tail of a procedure, called from its catch-all handler:
//     catch (...) { qs::HandleFailure("frmMain:FillTreeViewMain;"); }
// It reads the error in flight (QsError, or any other exception as the program's own run-time
// error), reports it through DisplayErrInfo with the error's source followed by `literal`, and
// puts the mouse pointer back.
enum class FailureTail {
    Standard,    // report, then the pointer back to default
    KeepPointer, // report only (the small procedures that leave the pointer alone)
    ClearError,  // report, pointer back, error cleared (Main)
};
void HandleFailure(const char* literal, FailureTail tail = FailureTail::Standard);

} // namespace qs
