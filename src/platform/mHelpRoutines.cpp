#include "mHelpRoutines.h"

#include "Host.h"
#include "mDriveInfo.h"
#include "mErrorHandling.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QString>
#include <cerrno>
#include <cstring>

namespace qs {

namespace {

// The help file, or empty while its folder is not set.
QString helpFile() {
    const QString folder = GetRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                                         QString::fromLatin1(REG_VAL_HELPFILES_FILEPATH))
                               .toString();
    if (folder.isEmpty())
        return QString();
    const QString name = GetRegSetting(QString::fromLatin1(REG_KEY_HELPFILES),
                                       QString::fromLatin1(REG_VAL_HELPFILES_FILENAME),
                                       QString::fromLatin1(REG_DEF_HELPFILES_FILENAME))
                             .toString();
    return FormatPath(folder) + name;
}

bool callHelp(int command, long context) {
    const QString file = helpFile();
    if (file.isEmpty())
        return false;
    if (host().showHelp(file, command, context))
        return true;
    // The help pages are missing: the system's own words for it.
    host().msgBox(QString::fromLocal8Bit(std::strerror(ENOENT)), vbCritical | vbOKOnly,
                  QStringLiteral("Quillstone"));
    return false;
}

} // namespace

bool ShowHelpTopic(long lngContext, bool blnPopup) {
    try {
        return callHelp(blnPopup ? HELP_CONTEXTPOPUP : HELP_CONTEXT, lngContext);
    } catch (...) {
        HandleFailure("mHelpRoutines:ShowHelpTopic;");
    }
    return false;
}

bool ShowHelpContents() {
    try {
        return callHelp(HELP_TAB, 0);
    } catch (...) {
        HandleFailure("mHelpRoutines:ShowHelpContents;");
    }
    return false;
}

bool ShowHelpSearch() {
    try {
        return callHelp(HELP_PARTIALKEY, 0);
    } catch (...) {
        HandleFailure("mHelpRoutines:ShowHelpSearch;");
    }
    return false;
}

void QuitHelp() {
    try {
        const QString file = helpFile();
        if (!file.isEmpty())
            host().showHelp(file, HELP_QUIT, 0);
    } catch (...) {
        HandleFailure("mHelpRoutines:QuitHelp;");
    }
}

} // namespace qs
