#include "AdminFixture.h"

#include "ComboBox.h"
#include "Globals.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "frmUser.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace qs::test {

void AdminFixture::SetUp() {
    HostFixture::SetUp();
    addGlobalReset("core", [] { ResetGlobals(); });
    mDatabase = home->file("Libraries/Quillstone.mdb");
    cLibraryService(mDatabase).CreateDatabase(mDatabase, QString());
    const QFileInfo file(mDatabase);
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_PATH), file.absolutePath());
    SaveRegSetting(QString::fromLatin1(REG_KEY_DATABASE),
                   QString::fromLatin1(REG_VAL_DATABASE_FILENAME), file.fileName());
}

void AdminFixture::addUser(const QString& id, const QString& password, short level,
                           const QString& first, const QString& last) {
    cUser user;
    user.BeginEdit(0);
    user.UserId(id);
    user.Password(password);
    user.FirstName(first);
    user.LastName(last);
    user.Question("First pet");
    user.Answer("Rex");
    user.AccessLevel(level);
    const VbArray<UserRow> users = cSecurityService().GetUsers();
    user.Save(users.isEmpty() ? id : users(1).UserId, 0);
}

void AdminFixture::press(QPushButton* button) {
    ASSERT_TRUE(button->isEnabled()) << button->objectName().toStdString();
    QTest::mouseClick(button, Qt::LeftButton);
}

void AdminFixture::logIn(const QString& id, const QString& password) {
    auto user = std::make_shared<cUser>(cSecurityService().GetUser(id, password, QString()));
    gobjCurrentUser = user;
    gstrUserId = user->UserId();
    gstrFirstName = user->FirstName();
    gstrLastName = user->LastName();
    gstrUserName = gstrFirstName + QLatin1Char(' ') + gstrLastName;
    gintAccessLevel = user->AccessLevel();
    gstrAccessType = gintAccessLevel == 1 ? "Admin" : "User";
}

void AdminFixture::showActive(frmUser& form) {
    form.show();
    QApplication::setActiveWindow(&form);
    form.activateWindow();
}

void AdminFixture::chooseAccess(frmUser& form, const QString& text) {
    for (int i = 0; i < form.cboAccessType->ListCount(); ++i)
        if (form.cboAccessType->List(i) == text)
            form.cboAccessType->setListIndex(i);
}

void AdminFixture::fillUser(frmUser& form, const QString& id, const QString& first,
                            const QString& last, const QString& password, const QString& access) {
    form.txtUserId->setText(id);
    form.txtUserFName->setText(first);
    form.txtUserLName->setText(last);
    form.txtPassword->setText(password);
    form.txtQuestion->setText("First pet");
    form.txtAnswer->setText("Rex");
    chooseAccess(form, access);
}

} // namespace qs::test
