#pragma once

#include "HostFixture.h"

#include <QString>
#include <QStringList>

namespace qs::test {

// A scripted host, a private home and reset globals, with the libraries and users a start-up or
// login case needs, made through the data service.
class CoreFixture : public HostFixture {
protected:
    void SetUp() override;

    // A path for a database file inside the home.
    QString libraryPath(const QString& fileName = QStringLiteral("Quillstone.mdb")) const;
    // Makes an empty library at the path and lets the settings name it.
    QString makeLibrary(const QString& fileName = QStringLiteral("Quillstone.mdb"));
    // Lets the settings name the file, whether or not it exists.
    static void pointDatabaseAt(const QString& path);
    static QString registryPath();
    static QString registryFileName();

    // Stores a user in the library the settings name.
    static void addUser(const QString& id, const QString& password, short level = 1,
                        const QString& first = QStringLiteral("Ada"),
                        const QString& last = QStringLiteral("Byron"),
                        const QString& question = QStringLiteral("First pet"),
                        const QString& answer = QStringLiteral("Rex"));
    // True when the library the settings name lets the id log in with the password.
    static bool canLogIn(const QString& id, const QString& password);

    // The message boxes, modal shows and file dialogs so far, as "Kind: text" in order.
    QStringList windowOrder() const;

    // Writes the settings file with the UserId given.
    static QString writeSettingsFile(const QString& userId,
                                     const QString& rememberPass = QString());
    static QString settingsValue(const QString& key);
};

} // namespace qs::test
