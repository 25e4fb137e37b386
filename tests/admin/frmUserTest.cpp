#include "AdminFixture.h"
#include "ExitWays.h"

#include "ComboBox.h"
#include "FormBase.h"
#include "Globals.h"
#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cUser.h"
#include "frmUser.h"
#include "mINIReadWrite.h"
#include "quillstone_private.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

const QString kRequired =
    QStringLiteral("The following field(s) are required for update:.\r\n\r\n");

cUser storedUser(const QString& id) {
    return cSecurityService().GetUser(id, QString(), id);
}

QStringList entries(const ComboBox& combo) {
    QStringList list;
    for (int i = 0; i < combo.ListCount(); ++i)
        list << combo.List(i);
    return list;
}

// ---------------------------------------------------------------------------------------------
// The first user of an empty database.

class FirstUser : public AdminFixture {
protected:
    void SetUp() override {
        AdminFixture::SetUp();
        gblnFirstUser = true;
    }
};

TEST_F(FirstUser, IsStoredAsAdministratorAndAsAuthorAndPreparesTheLogin) {
    frmUser& form = Forms::get<frmUser>();
    EXPECT_EQ(form.Caption(), QStringLiteral("User Maintenance"));
    EXPECT_EQ(form.cboUsers->ListCount(), 0);
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("ada"), QStringLiteral("Ada"), QStringLiteral("Byron"),
             QStringLiteral("secret"), QStringLiteral("Admin"));
    form.cmdUserUpdate_Click();

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    const cUser user =
        cSecurityService().GetUser(QStringLiteral("ada"), QStringLiteral("secret"), QString());
    EXPECT_EQ(user.UserId(), QStringLiteral("ada"));
    EXPECT_EQ(user.AccessLevel(), 1);
    EXPECT_EQ(user.FirstName(), QStringLiteral("Ada"));
    EXPECT_EQ(user.Question(), QStringLiteral("First pet"));

    const VbArray<AuthorRow> authors = cLibraryService().GetAuthors();
    ASSERT_EQ(authors.UBound(), 1);
    EXPECT_EQ(authors(1).FirstName, QStringLiteral("Ada"));
    EXPECT_EQ(authors(1).LastName, QStringLiteral("Byron"));

    EXPECT_EQ(gstrFirstUserId, QStringLiteral("ada"));
    EXPECT_EQ(gstrFirstUserPassword, QStringLiteral("secret"));
    EXPECT_EQ(gstrAccessType, QStringLiteral("Admin"));
    EXPECT_EQ(gstrUserName, QStringLiteral("Ada Byron"));
    EXPECT_EQ(gintAccessLevel, 1);
    ASSERT_TRUE(gobjCurrentUser);
    EXPECT_EQ(gobjCurrentUser->UserId(), QStringLiteral("ada"));
    // Update pressed Exit, which found a user and closed the window.
    EXPECT_EQ(Forms::find<frmUser>(), nullptr);
    EXPECT_FALSE(gblnFirstUserCancelled);
}

TEST_F(FirstUser, ReadAccessIsRefusedWithFocusOnTheAccessType) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("ada"), QStringLiteral("Ada"), QStringLiteral("Byron"),
             QStringLiteral("secret"), QStringLiteral("Read"));
    hostScript.expectMsgBox(QStringLiteral("The first user has to be an ''Admin'' so that you "
                                           "can add people and modify data"));
    form.cmdUserUpdate_Click();

    EXPECT_EQ(hostScript.msgBoxes().first().icon(), vbInformation);
    EXPECT_EQ(QApplication::focusWidget(), form.cboAccessType);
    EXPECT_TRUE(cSecurityService().GetUsers().isEmpty());
    EXPECT_TRUE(cLibraryService().GetAuthors().isEmpty());
    EXPECT_EQ(form.Mode(), frmUser::ModeAdd);
}

TEST_F(FirstUser, ReadWriteAccessPassesYetTheUserIsStoredAsAdministrator) {
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("ada"), QStringLiteral("Ada"), QStringLiteral("Byron"),
             QStringLiteral("secret"), QStringLiteral("Read/Write"));
    form.cmdUserUpdate_Click();

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(storedUser(QStringLiteral("ada")).AccessLevel(), 1);
}

// Exit, Escape and the close box all ask before the program ends without a user.
class FirstUserLeft : public FirstUser, public ::testing::WithParamInterface<Leave> {};

TEST_P(FirstUserLeft, AnsweringYesEndsTheProgram) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    hostScript.expectMsgBox(QStringLiteral("There are no users in the database."));
    hostScript.expectMsgBox(QStringLiteral("Exiting without entering an employee will cause "),
                            vbYes);
    leave(form, GetParam(), form.cmdExit, form.txtUserFName);
    EXPECT_TRUE(hostScript.ended());

    ASSERT_FALSE(hostScript.msgBoxes().isEmpty());
    const HostCall question = hostScript.msgBoxes().last();
    EXPECT_EQ(question.text, QStringLiteral("Exiting without entering an employee will cause "
                                            "\r\nthe program to exit completely.\r\n\r\nDo you "
                                            "wish to continue?"));
    EXPECT_EQ(question.buttons(), vbYesNo);
    EXPECT_EQ(question.icon(), vbQuestion);
    EXPECT_TRUE(gblnFirstUserCancelled);
}

TEST_P(FirstUserLeft, AnsweringNoReturnsToTheUserId) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    gblnFirstUserCancelled = true;
    hostScript.expectMsgBox(QStringLiteral("There are no users in the database."));
    hostScript.expectMsgBox(QStringLiteral("Exiting without entering an employee"), vbNo);
    EXPECT_EQ(leave(form, GetParam(), form.cmdExit, form.txtUserFName),
              GetParam() != Leave::CloseBox);

    EXPECT_FALSE(hostScript.ended());
    EXPECT_FALSE(gblnFirstUserCancelled);
    EXPECT_EQ(Forms::find<frmUser>(), &form);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), form.txtUserId);
}

INSTANTIATE_TEST_SUITE_P(Ways, FirstUserLeft, everyWay(), WayName());

// ---------------------------------------------------------------------------------------------
// Maintenance by a logged-in administrator.

class UserMaintenance : public AdminFixture {
protected:
    void SetUp() override {
        AdminFixture::SetUp();
        addUser(QStringLiteral("ada"), QStringLiteral("secret"), 1, QStringLiteral("Ada"),
                QStringLiteral("Byron"));
        addUser(QStringLiteral("bob"), QStringLiteral("pw"), 2, QStringLiteral("Bob"),
                QStringLiteral("Stone"));
        logIn(QStringLiteral("ada"), QStringLiteral("secret"));
    }
};

TEST_F(UserMaintenance, OpensOnTheLoggedInUserInViewMode) {
    frmUser& form = Forms::get<frmUser>();

    EXPECT_EQ(entries(*form.cboUsers), QStringList({QStringLiteral("Ada Byron  (ada)"),
                                                    QStringLiteral("Bob Stone  (bob)")}));
    EXPECT_EQ(form.cboUsers->Text(), QStringLiteral("Ada Byron  (ada)"));
    EXPECT_EQ(form.txtUserId->text(), QStringLiteral("ada"));
    EXPECT_EQ(form.txtPassword->text(), QStringLiteral("secret"));
    EXPECT_EQ(form.txtAnswer->text(), QStringLiteral("Rex"));
    EXPECT_EQ(form.cboAccessType->Text(), QStringLiteral("Admin"));
    EXPECT_FALSE(entries(*form.cboAccessType).contains(QStringLiteral("Unauthorized")));
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_TRUE(form.txtUserId->isReadOnly());
    EXPECT_TRUE(form.cmdUserAdd->isEnabled());
    EXPECT_FALSE(form.cmdUserUpdate->isEnabled());
    EXPECT_FALSE(form.cmdUserCancel->isEnabled());
}

TEST_F(UserMaintenance, ChoosingAnEntryShowsThatUser) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);

    EXPECT_EQ(form.txtUserId->text(), QStringLiteral("bob"));
    EXPECT_EQ(form.txtUserLName->text(), QStringLiteral("Stone"));
    EXPECT_EQ(form.cboAccessType->Text(), QStringLiteral("Read"));
}

TEST_F(UserMaintenance, EmptyFormNamesEveryMissingFieldInOrder) {
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserAdd_Click();
    EXPECT_EQ(form.Mode(), frmUser::ModeAdd);
    EXPECT_FALSE(form.txtUserId->isReadOnly());
    EXPECT_FALSE(form.cboUsers->isVisible());
    hostScript.answerMsgBox(vbOK);
    form.cmdUserUpdate_Click();

    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.text, kRequired + QStringLiteral("UserId\r\n First Name\r\n Last Name\r\n "
                                                   "Password\r\n Password Question\r\n Password "
                                                   "Answer\r\n Access Level"));
    EXPECT_EQ(box.icon(), vbCritical);
    EXPECT_EQ(cSecurityService().GetUsers().UBound(), 2);
    EXPECT_EQ(form.Mode(), frmUser::ModeAdd);
}

TEST_F(UserMaintenance, PartlyFilledFormNamesOnlyWhatIsMissing) {
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("cyd"), QStringLiteral("Cyd"), QString(), QString(), QString());
    hostScript.answerMsgBox(vbOK);
    form.cmdUserUpdate_Click();

    EXPECT_EQ(hostScript.msgBoxes().first().text,
              kRequired + QStringLiteral(" Last Name\r\n Password\r\n Access Level"));
    EXPECT_EQ(storedUser(QStringLiteral("cyd")).UserId(), QStringLiteral("Q70707"));
}

TEST_F(UserMaintenance, TakenUserIdIsRefusedWithFocusOnTheId) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("bob"), QStringLiteral("Robert"), QStringLiteral("Other"),
             QStringLiteral("changed"), QStringLiteral("Admin"));
    form.txtUserFName->setFocus();
    hostScript.expectMsgBox(QStringLiteral("Please enter a different UserId."));
    form.cmdUserUpdate_Click();

    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.text, QStringLiteral("Please enter a different UserId.\r\nThe UserId already "
                                       "exists in the database."));
    EXPECT_EQ(box.title, QStringLiteral("UserID?"));
    EXPECT_EQ(box.icon(), vbInformation);
    EXPECT_EQ(QApplication::focusWidget(), form.txtUserId);
    const cUser bob = storedUser(QStringLiteral("bob"));
    EXPECT_EQ(bob.FirstName(), QStringLiteral("Bob"));
    EXPECT_EQ(bob.Password(), QStringLiteral("pw"));
    EXPECT_EQ(bob.AccessLevel(), 2);
}

TEST_F(UserMaintenance, NewUserIsStoredListedAndShown) {
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("cyd"), QStringLiteral("Cyd"), QStringLiteral("Moss"),
             QStringLiteral("pw3"), QStringLiteral("Read/Write"));
    form.cmdUserUpdate_Click();

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    const cUser cyd = storedUser(QStringLiteral("cyd"));
    EXPECT_EQ(cyd.UserId(), QStringLiteral("cyd"));
    EXPECT_EQ(cyd.AccessLevel(), 3);
    EXPECT_EQ(cyd.Password(), QStringLiteral("pw3"));
    EXPECT_TRUE(entries(*form.cboUsers).contains(QStringLiteral("Cyd Moss  (cyd)")));
    EXPECT_EQ(form.cboUsers->Text(), QStringLiteral("Cyd Moss  (cyd)"));
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_TRUE(form.cboUsers->isVisibleTo(&form));
    // Not a first user: no author is made.
    EXPECT_TRUE(cLibraryService().GetAuthors().isEmpty());
}

TEST_F(UserMaintenance, EditWithTheSameIdAsksNoDuplicateCheckAndSaves) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);
    form.cmdUserEdit_Click();
    EXPECT_EQ(form.Mode(), frmUser::ModeEdit);
    form.txtUserLName->setText(QStringLiteral("Mason"));
    form.cmdUserUpdate_Click();

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(storedUser(QStringLiteral("bob")).LastName(), QStringLiteral("Mason"));
    EXPECT_EQ(form.cboUsers->Text(), QStringLiteral("Bob Mason  (bob)"));
}

TEST_F(UserMaintenance, EditToAnotherUsersIdIsRefused) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);
    form.cmdUserEdit_Click();
    form.txtUserId->setText(QStringLiteral("ada"));
    hostScript.expectMsgBox(QStringLiteral("The UserId already exists in the database."));
    form.cmdUserUpdate_Click();

    EXPECT_EQ(storedUser(QStringLiteral("bob")).UserId(), QStringLiteral("bob"));
    EXPECT_EQ(form.Mode(), frmUser::ModeEdit);
}

TEST_F(UserMaintenance, CancelInEditModeRestoresTheBoxesFromTheRecord) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);
    form.cmdUserEdit_Click();
    form.txtUserFName->setText(QStringLiteral("Typed"));
    form.txtPassword->setText(QStringLiteral("typed"));
    form.cmdUserCancel_Click();

    EXPECT_EQ(form.txtUserFName->text(), QStringLiteral("Bob"));
    EXPECT_EQ(form.txtPassword->text(), QStringLiteral("pw"));
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_EQ(storedUser(QStringLiteral("bob")).FirstName(), QStringLiteral("Bob"));
}

TEST_F(UserMaintenance, CancelInAddModeRefillsTheListAndStoresNothing) {
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserAdd_Click();
    fillUser(form, QStringLiteral("cyd"), QStringLiteral("Cyd"), QStringLiteral("Moss"),
             QStringLiteral("pw3"), QStringLiteral("Read"));
    form.cmdUserCancel_Click();

    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_EQ(form.cboUsers->ListCount(), 2);
    EXPECT_EQ(storedUser(QStringLiteral("cyd")).UserId(), QStringLiteral("Q70707"));
}

TEST_F(UserMaintenance, DeleteWithoutAnIdAsksForOne) {
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserAdd_Click();
    form.cmdUserCancel_Click();
    form.txtUserId->clear();
    hostScript.expectMsgBox(QStringLiteral("Please enter either a UserId."));
    form.cmdUserDelete_Click();

    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.title, QStringLiteral("UserId"));
    EXPECT_EQ(box.icon(), vbInformation);
    EXPECT_EQ(cSecurityService().GetUsers().UBound(), 2);
}

TEST_F(UserMaintenance, DeleteAnsweredNoKeepsTheUser) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);
    hostScript.expectMsgBox(QStringLiteral("Are you sure you want to delete the UserId: bob?."),
                            vbNo);
    form.cmdUserDelete_Click();

    const HostCall box = hostScript.msgBoxes().first();
    EXPECT_EQ(box.title, QStringLiteral("Delete User?"));
    EXPECT_EQ(box.buttons(), vbYesNo);
    EXPECT_EQ(box.icon(), vbExclamation);
    EXPECT_EQ(storedUser(QStringLiteral("bob")).UserId(), QStringLiteral("bob"));
}

TEST_F(UserMaintenance, DeleteAnsweredYesRemovesTheUserFromStoreAndList) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);
    hostScript.expectMsgBox(QStringLiteral("Are you sure you want to delete the UserId: bob?."),
                            vbYes);
    form.cmdUserDelete_Click();

    EXPECT_EQ(hostScript.msgBoxes().size(), 1) << hostScript.log().toStdString();
    EXPECT_EQ(storedUser(QStringLiteral("bob")).UserId(), QStringLiteral("Q70707"));
    EXPECT_EQ(entries(*form.cboUsers), QStringList({QStringLiteral("Ada Byron  (ada)")}));
}

TEST_F(UserMaintenance, RenamingOnesOwnIdKeepsTheSessionWorking) {
    const QString settings = SettingsFilePath();
    const QString section = QStringLiteral("AppSettings");
    QDir().mkpath(QFileInfo(settings).absolutePath());
    ASSERT_TRUE(File_WriteSpecificKeyNameAndSetting_ToSpecificFile(
        section, QStringLiteral("UserId"), QStringLiteral("ada"), settings));
    frmUser& form = Forms::get<frmUser>();
    form.cmdUserEdit->click();
    form.txtUserId->setText(QStringLiteral("adele"));
    form.txtUserFName->setText(QStringLiteral("Adele"));
    form.cmdUserUpdate->click();

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(gstrUserId, QStringLiteral("adele"));
    EXPECT_EQ(gstrUserName, QStringLiteral("Adele Byron"));
    ASSERT_TRUE(gobjCurrentUser);
    EXPECT_EQ(gobjCurrentUser->UserId(), QStringLiteral("adele"));
    EXPECT_EQ(gintAccessLevel, 1);
    EXPECT_EQ(
        File_GetSpecificKeySetting_FromSpecificFile(settings, section, QStringLiteral("UserId")),
        QStringLiteral("adele"));

    // The next save acts as the renamed administrator.
    form.cboUsers->setListIndex(1);
    ASSERT_EQ(form.txtUserId->text(), QStringLiteral("bob"));
    form.cmdUserEdit->click();
    form.txtUserLName->setText(QStringLiteral("Mason"));
    form.cmdUserUpdate->click();
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(storedUser(QStringLiteral("bob")).LastName(), QStringLiteral("Mason"));

    // And so does a bookmark.
    cSourceCode item;
    item.BeginEdit(0);
    item.CategoryId(1);
    item.CodeTypeId(201);
    item.Description(QStringLiteral("Marked"));
    const int id = item.Save();
    cLibraryService library;
    library.AddBookmark(QStringLiteral("BkMark_SrcCode"), id, gstrUserId);
    EXPECT_EQ(library.GetBookmarks(QStringLiteral("BkMark_SrcCode"), gstrUserId).UBound(), 1);
}

class UserMaintenanceLeft : public UserMaintenance, public ::testing::WithParamInterface<Leave> {};

TEST_P(UserMaintenanceLeft, WithUsersTheWindowClosesWithoutAQuestion) {
    frmUser& form = Forms::get<frmUser>();
    form.show();
    EXPECT_TRUE(leave(form, GetParam(), form.cmdExit, form.txtUserId));

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
    EXPECT_EQ(Forms::find<frmUser>(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Ways, UserMaintenanceLeft, everyWay(), WayName());

} // namespace
