#include "CoreFixture.h"

#include "Globals.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "mINIReadWrite.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "quillstone_private.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace qs::test {

void CoreFixture::SetUp() {
    HostFixture::SetUp();
    addGlobalReset("core", [] { ResetGlobals(); });
}

QString CoreFixture::libraryPath(const QString& fileName) const {
    return home->file(QStringLiteral("Libraries/") + fileName);
}

QString CoreFixture::makeLibrary(const QString& fileName) {
    const QString path = libraryPath(fileName);
    cLibraryService(path).CreateDatabase(path, SettingsFilePath());
    pointDatabaseAt(path);
    return path;
}

void CoreFixture::pointDatabaseAt(const QString& path) {
    const QFileInfo file(path);
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH), file.absolutePath());
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file.fileName());
}

QString CoreFixture::registryPath() {
    return GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                         QString::fromLatin1(REG_VAL_DATABASE_PATH))
        .toString();
}

QString CoreFixture::registryFileName() {
    return GetRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                         QString::fromLatin1(REG_VAL_DATABASE_FILENAME))
        .toString();
}

void CoreFixture::addUser(const QString& id, const QString& password, short level,
                          const QString& first, const QString& last, const QString& question,
                          const QString& answer) {
    cUser user;
    user.BeginEdit(0);
    user.UserId(id);
    user.Password(password);
    user.FirstName(first);
    user.LastName(last);
    user.Question(question);
    user.Answer(answer);
    user.AccessLevel(level);
    // The first user may save himself; later ones are saved by an administrator.
    const VbArray<UserRow> users = cSecurityService().GetUsers();
    user.Save(users.isEmpty() ? id : users(1).UserId, 0);
}

bool CoreFixture::canLogIn(const QString& id, const QString& password) {
    return cSecurityService().GetUser(id, password, QString()).UserId() != QLatin1String("Q70707");
}

QStringList CoreFixture::windowOrder() const {
    QStringList order;
    for (const HostCall& call : hostScript.calls()) {
        if (call.kind == QLatin1String("MsgBox") || call.kind == QLatin1String("Modal"))
            order << call.kind + QStringLiteral(": ") + call.text;
        else if (call.kind.startsWith(QLatin1String("File")))
            order << call.kind + QStringLiteral(": ") + call.title;
    }
    return order;
}

QString CoreFixture::writeSettingsFile(const QString& userId, const QString& rememberPass) {
    const QString path = SettingsFilePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    QString text = QStringLiteral("[AppSettings]\r\nUserId=") + userId + QStringLiteral("\r\n");
    if (!rememberPass.isEmpty())
        text += QStringLiteral("RememberPass=") + rememberPass + QStringLiteral("\r\n");
    file.write(text.toLatin1());
    return path;
}

QString CoreFixture::settingsValue(const QString& key) {
    return File_GetSpecificKeySetting_FromSpecificFile(
        SettingsFilePath(), QString::fromLatin1(INI_SECTION_APPSETTINGS), key);
}

} // namespace qs::test
