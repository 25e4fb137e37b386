#include "mLaunchAppsAndProcesses.h"

#include "Host.h"

namespace qs {

QString LaunchAppMessage(long lngCode) {
    switch (lngCode) {
    case 0:
        return QStringLiteral("Insufficent system memory or corrupt program file.");
    case 2:
        return QStringLiteral("File not found.");
    case 3:
        return QStringLiteral("Invalid path.");
    case 5:
        return QStringLiteral("Sharing or Protection Error.");
    case 6:
        return QStringLiteral("Seperate data segments are required for each task.");
    case 8:
        return QStringLiteral("Insufficient memory to run the program.");
    case 10:
        return QStringLiteral("Incorrect Windows version.");
    case 11:
        return QStringLiteral("Invalid program file.");
    case 12:
        return QStringLiteral("Program file requires a different operating system.");
    case 13:
        return QStringLiteral("Program requires MS-DOS 4.0.");
    case 14:
        return QStringLiteral("Unknown program file type.");
    case 15:
        return QStringLiteral("Windows program does not support protected memory mode.");
    case 16:
        return QStringLiteral(
            "Invalid use of data segments when loading a second instance of a program.");
    case 19:
        return QStringLiteral("Attempt to run a compressed program file.");
    case 20:
        return QStringLiteral("Invalid dynamic link library.");
    case 21:
        return QStringLiteral("Program requires Windows 32-bit extensions.");
    default:
        return QString();
    }
}

QString RunFileMessage(long lngCode) {
    switch (lngCode) {
    case 0:
        return QStringLiteral("The file could not be run due to insufficient system memory or a "
                              "corrupt program file");
    case 2:
        return QStringLiteral("File Not Found");
    case 3:
        return QStringLiteral("Invalid Path");
    case 5:
        return QStringLiteral("Sharing or protection error");
    case 6:
        return QStringLiteral("Separate data segments are required for each task ");
    case 8:
        return QStringLiteral("Insufficient memory to run the program");
    case 10:
        return QStringLiteral("Incorrect Windows version");
    case 11:
        return QStringLiteral("Invalid Program File");
    case 12:
        return QStringLiteral("Program file requires a different operating System ");
    case 13:
        return QStringLiteral("Program requires MS-DOS 4.0");
    case 14:
        return QStringLiteral("Unknown program file type");
    case 15:
        return QStringLiteral("Windows prgram does not support protected memory mode");
    case 16:
        return QStringLiteral(
            "Invalid use of data segments when loading a second instance of a program");
    case 19:
        return QStringLiteral("Attempt to run a compressed program file");
    case 20:
        return QStringLiteral("Invalid dynamic link library");
    case 21:
        return QStringLiteral("Program requires Windows 32-bit extensions");
    case 31:
        return QStringLiteral("No application found to run this file");
    default:
        return QString();
    }
}

long extLaunchApp(const QString& strFile, bool blnForPrint, const QString& strParameters,
                  const QString& strFolder, int intShow, bool blnSuppressMessage) {
    const QString verb = blnForPrint ? QStringLiteral("Print") : QStringLiteral("Open");
    const long result = host().shellExecute(verb, strFile, strParameters, strFolder, intShow);
    if (result < 22 && !blnSuppressMessage) {
        const QString message = LaunchAppMessage(result);
        if (!message.isEmpty())
            host().msgBox(message, vbExclamation, QStringLiteral("Error running ") + strFile);
    }
    return result;
}

QString extRunFile(const QString& strFile) {
    const long result =
        host().shellExecute(QStringLiteral("open"), strFile, QString(), QString(), SW_SHOWNORMAL);
    if (result < 22 || result == 31)
        return RunFileMessage(result);
    return QString();
}

} // namespace qs
