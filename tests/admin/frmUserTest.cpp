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

const QString kRequired = "The following field(s) are required for update:.\r\n\r\n";
const QString kTaken = QStringLiteral("Please enter a different UserId.\r\nThe UserId already "
                                      "exists in the database.");

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

TEST_F(FirstUser, MustHaveWriteAccessAndIsStoredAsAdministratorAndAuthorAndPreparesTheLogin) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    EXPECT_EQ(form.cboUsers->ListCount(), 0);
    press(form.cmdUserAdd);
    fillUser(form, "ada", "Ada", "Byron", "secret", "Read");
    hostScript.expectMsgBox(QStringLiteral("The first user has to be an ''Admin'' so that you "
                                           "can add people and modify data"));
    press(form.cmdUserUpdate);
    EXPECT_EQ(hostScript.msgBoxes().first().icon(), vbInformation);
    EXPECT_EQ(QApplication::focusWidget(), form.cboAccessType);
    EXPECT_TRUE(cSecurityService().GetUsers().isEmpty());
    EXPECT_TRUE(cLibraryService().GetAuthors().isEmpty());
    EXPECT_EQ(form.Mode(), frmUser::ModeAdd);

    // Read/Write passes, yet the first user is stored as an administrator.
    chooseAccess(form, "Read/Write");
    hostScript.clearCalls();
    press(form.cmdUserUpdate);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    const cUser user = cSecurityService().GetUser("ada", "secret", QString());
    EXPECT_EQ(user.UserId(), "ada");
    EXPECT_EQ(user.AccessLevel(), 1);
    EXPECT_EQ(user.FirstName(), "Ada");
    EXPECT_EQ(user.Question(), "First pet");

    const VbArray<AuthorRow> authors = cLibraryService().GetAuthors();
    ASSERT_EQ(authors.UBound(), 1);
    EXPECT_EQ(authors(1).FirstName, "Ada");
    EXPECT_EQ(authors(1).LastName, "Byron");

    EXPECT_EQ(gstrFirstUserId, "ada");
    EXPECT_EQ(gstrFirstUserPassword, "secret");
    EXPECT_EQ(gstrAccessType, "Admin");
    EXPECT_EQ(gstrUserName, "Ada Byron");
    EXPECT_EQ(gintAccessLevel, 1);
    ASSERT_TRUE(gobjCurrentUser);
    EXPECT_EQ(gobjCurrentUser->UserId(), "ada");
    // Update pressed Exit, which found a user and closed the window.
    EXPECT_EQ(Forms::find<frmUser>(), nullptr);
    EXPECT_FALSE(gblnFirstUserCancelled);
}

// Exit, Escape and the close box all ask before the program ends without a user.
class FirstUserLeft : public FirstUser, public ::testing::WithParamInterface<Leave> {};

TEST_P(FirstUserLeft, NoReturnsToTheUserIdAndYesEndsTheProgram) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    gblnFirstUserCancelled = true;
    const QString noUsers = "There are no users in the database.";
    hostScript.expectMsgBox(noUsers);
    hostScript.expectMsgBox("Exiting without entering an employee", vbNo);
    EXPECT_EQ(leave(form, GetParam(), form.cmdExit, form.txtUserFName),
              GetParam() != Leave::CloseBox);
    EXPECT_FALSE(hostScript.ended());
    EXPECT_FALSE(gblnFirstUserCancelled);
    EXPECT_EQ(Forms::find<frmUser>(), &form);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), form.txtUserId);

    hostScript.expectMsgBox(noUsers);
    hostScript.expectMsgBox("Exiting without entering an employee will cause ", vbYes);
    leave(form, GetParam(), form.cmdExit, form.txtUserFName);
    EXPECT_TRUE(hostScript.ended());
    const HostCall question = hostScript.msgBoxes().last();
    EXPECT_EQ(question.text, QStringLiteral("Exiting without entering an employee will cause "
                                            "\r\nthe program to exit completely.\r\n\r\nDo you "
                                            "wish to continue?"));
    EXPECT_EQ(question.buttons(), vbYesNo);
    EXPECT_EQ(question.icon(), vbQuestion);
    EXPECT_TRUE(gblnFirstUserCancelled);
}

INSTANTIATE_TEST_SUITE_P(Ways, FirstUserLeft, everyWay(), WayName());

// ---------------------------------------------------------------------------------------------
// Maintenance by a logged-in administrator.

class UserMaintenance : public AdminFixture {
protected:
    void SetUp() override {
        AdminFixture::SetUp();
        addUser("ada", "secret", 1, "Ada", "Byron");
        addUser("bob", "pw", 2, "Bob", "Stone");
        logIn("ada", "secret");
    }
};

TEST_F(UserMaintenance, OpensOnTheLoggedInUserInViewModeAndAnEntryShowsItsUser) {
    frmUser& form = Forms::get<frmUser>();
    EXPECT_EQ(entries(*form.cboUsers), QStringList({"Ada Byron  (ada)", "Bob Stone  (bob)"}));
    EXPECT_EQ(form.cboUsers->Text(), "Ada Byron  (ada)");
    EXPECT_EQ(form.txtUserId->text(), "ada");
    EXPECT_EQ(form.txtPassword->text(), "secret");
    EXPECT_EQ(form.txtAnswer->text(), "Rex");
    EXPECT_EQ(form.cboAccessType->Text(), "Admin");
    EXPECT_FALSE(entries(*form.cboAccessType).contains("Unauthorized"));
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_TRUE(form.txtUserId->isReadOnly());
    EXPECT_TRUE(form.cmdUserAdd->isEnabled());
    EXPECT_FALSE(form.cmdUserUpdate->isEnabled());
    EXPECT_FALSE(form.cmdUserCancel->isEnabled());

    form.cboUsers->setListIndex(1);
    EXPECT_EQ(form.txtUserId->text(), "bob");
    EXPECT_EQ(form.txtUserLName->text(), "Stone");
    EXPECT_EQ(form.cboAccessType->Text(), "Read");
}

TEST_F(UserMaintenance, RefusalsNameWhatIsWrongAndStoreNothing) {
    frmUser& form = Forms::get<frmUser>();
    showActive(form);
    const QString all = QStringLiteral("UserId\r\n First Name\r\n Last Name\r\n Password\r\n "
                                       "Password Question\r\n Password Answer\r\n Access Level");
    const struct {
        bool edit;          // Bob edited, and his id typed over; else a new user
        const char* fields; // "id|first|last|password|access"; nullptr: nothing typed
        QString message;
        const char* title;
        int icon;
        QWidget* focus; // nullptr: not asserted
    } cases[] = {
        {false, nullptr, kRequired + all, "", vbCritical, nullptr},
        {false, "cyd|Cyd|||", kRequired + " Last Name\r\n Password\r\n Access Level", "",
         vbCritical, nullptr},
        {false, "bob|Robert|Other|changed|Admin", kTaken, "UserID?", vbInformation, form.txtUserId},
        {true, "ada", kTaken, "UserID?", vbInformation, form.txtUserId},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message.toStdString());
        const QStringList f = QString::fromLatin1(c.fields).split(QLatin1Char('|'));
        if (c.edit) {
            form.cboUsers->setListIndex(1);
            press(form.cmdUserEdit);
            form.txtUserId->setText(f[0]);
        } else {
            press(form.cmdUserAdd);
            EXPECT_FALSE(form.txtUserId->isReadOnly());
            EXPECT_FALSE(form.cboUsers->isVisible());
            if (c.fields)
                fillUser(form, f[0], f[1], f[2], f[3], f[4]);
            form.txtUserFName->setFocus();
        }
        hostScript.clearCalls();
        hostScript.answerMsgBox(vbOK);
        press(form.cmdUserUpdate);
        ASSERT_EQ(hostScript.msgBoxes().size(), 1);
        const HostCall box = hostScript.msgBoxes().first();
        EXPECT_EQ(box.text, c.message);
        EXPECT_EQ(box.title, c.title);
        EXPECT_EQ(box.icon(), c.icon);
        if (c.focus) {
            EXPECT_EQ(QApplication::focusWidget(), c.focus);
        }
        EXPECT_EQ(form.Mode(), c.edit ? frmUser::ModeEdit : frmUser::ModeAdd);
        EXPECT_EQ(cSecurityService().GetUsers().UBound(), 2);
        EXPECT_EQ(storedUser("cyd").UserId(), "Q70707");
        const cUser bob = storedUser("bob");
        EXPECT_EQ(bob.UserId(), "bob");
        EXPECT_EQ(bob.FirstName(), "Bob");
        EXPECT_EQ(bob.Password(), "pw");
        EXPECT_EQ(bob.AccessLevel(), 2);
        press(form.cmdUserCancel);
    }
}

TEST_F(UserMaintenance, ANewUserIsStoredListedAndShownAndAnEditKeepingItsIdSavesUnasked) {
    frmUser& form = Forms::get<frmUser>();
    press(form.cmdUserAdd);
    fillUser(form, "cyd", "Cyd", "Moss", "pw3", "Read/Write");
    press(form.cmdUserUpdate);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    const cUser cyd = storedUser("cyd");
    EXPECT_EQ(cyd.UserId(), "cyd");
    EXPECT_EQ(cyd.AccessLevel(), 3);
    EXPECT_EQ(cyd.Password(), "pw3");
    EXPECT_TRUE(entries(*form.cboUsers).contains("Cyd Moss  (cyd)"));
    EXPECT_EQ(form.cboUsers->Text(), "Cyd Moss  (cyd)");
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_TRUE(form.cboUsers->isVisibleTo(&form));
    // Not a first user: no author is made.
    EXPECT_TRUE(cLibraryService().GetAuthors().isEmpty());

    form.cboUsers->setText("Bob Stone  (bob)");
    ASSERT_EQ(form.txtUserId->text(), "bob");
    press(form.cmdUserEdit);
    EXPECT_EQ(form.Mode(), frmUser::ModeEdit);
    form.txtUserLName->setText("Mason");
    press(form.cmdUserUpdate);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(storedUser("bob").LastName(), "Mason");
    EXPECT_EQ(form.cboUsers->Text(), "Bob Mason  (bob)");
}

TEST_F(UserMaintenance, CancelRestoresAnEditFromTheRecordAndDropsAnAdd) {
    frmUser& form = Forms::get<frmUser>();
    form.cboUsers->setListIndex(1);
    press(form.cmdUserEdit);
    form.txtUserFName->setText("Typed");
    form.txtPassword->setText("typed");
    press(form.cmdUserCancel);
    EXPECT_EQ(form.txtUserFName->text(), "Bob");
    EXPECT_EQ(form.txtPassword->text(), "pw");
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_EQ(storedUser("bob").FirstName(), "Bob");

    press(form.cmdUserAdd);
    fillUser(form, "cyd", "Cyd", "Moss", "pw3", "Read");
    press(form.cmdUserCancel);
    EXPECT_EQ(form.Mode(), frmUser::ModeView);
    EXPECT_EQ(form.cboUsers->ListCount(), 2);
    EXPECT_EQ(storedUser("cyd").UserId(), "Q70707");
}

TEST_F(UserMaintenance, DeleteAsksForAnIdThenForConfirmation) {
    frmUser& form = Forms::get<frmUser>();
    const QString question = "Are you sure you want to delete the UserId: bob?.";
    const struct {
        const char* id; // typed over the shown user's id; nullptr: Bob chosen in the list
        int answer;     // 0: no question
        const char* title;
        int flags;
        QStringList listed; // afterwards
    } cases[] = {
        {"", 0, "UserId", vbInformation, {"Ada Byron  (ada)", "Bob Stone  (bob)"}},
        {nullptr,
         vbNo,
         "Delete User?",
         vbYesNo | vbExclamation,
         {"Ada Byron  (ada)", "Bob Stone  (bob)"}},
        {nullptr, vbYes, "Delete User?", vbYesNo | vbExclamation, {"Ada Byron  (ada)"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer);
        form.cboUsers->setListIndex(1);
        if (c.id)
            form.txtUserId->setText(QLatin1String(c.id));
        hostScript.clearCalls();
        hostScript.expectMsgBox(c.answer ? question : "Please enter either a UserId.",
                                c.answer ? c.answer : vbOK);
        press(form.cmdUserDelete);
        ASSERT_EQ(hostScript.msgBoxes().size(), 1) << hostScript.log().toStdString();
        EXPECT_EQ(hostScript.msgBoxes().first().title, c.title);
        EXPECT_EQ(hostScript.msgBoxes().first().flags, c.flags);
        EXPECT_EQ(storedUser("bob").UserId(), c.answer == vbYes ? "Q70707" : "bob");
        EXPECT_EQ(entries(*form.cboUsers), c.listed);
    }
}

TEST_F(UserMaintenance, RenamingOnesOwnIdKeepsTheSessionWorking) {
    const QString settings = SettingsFilePath();
    const QString section = "AppSettings";
    QDir().mkpath(QFileInfo(settings).absolutePath());
    ASSERT_TRUE(
        File_WriteSpecificKeyNameAndSetting_ToSpecificFile(section, "UserId", "ada", settings));
    frmUser& form = Forms::get<frmUser>();
    press(form.cmdUserEdit);
    form.txtUserId->setText("adele");
    form.txtUserFName->setText("Adele");
    press(form.cmdUserUpdate);

    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(gstrUserId, "adele");
    EXPECT_EQ(gstrUserName, "Adele Byron");
    ASSERT_TRUE(gobjCurrentUser);
    EXPECT_EQ(gobjCurrentUser->UserId(), "adele");
    EXPECT_EQ(gintAccessLevel, 1);
    EXPECT_EQ(File_GetSpecificKeySetting_FromSpecificFile(settings, section, "UserId"), "adele");

    // The next save acts as the renamed administrator.
    form.cboUsers->setListIndex(1);
    ASSERT_EQ(form.txtUserId->text(), "bob");
    press(form.cmdUserEdit);
    form.txtUserLName->setText("Mason");
    press(form.cmdUserUpdate);
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty()) << hostScript.log().toStdString();
    EXPECT_EQ(storedUser("bob").LastName(), "Mason");

    // And so does a bookmark.
    cSourceCode item;
    item.BeginEdit(0);
    item.CategoryId(1);
    item.CodeTypeId(201);
    item.Description("Marked");
    const int id = item.Save();
    cLibraryService library;
    library.AddBookmark("BkMark_SrcCode", id, gstrUserId);
    EXPECT_EQ(library.GetBookmarks("BkMark_SrcCode", gstrUserId).UBound(), 1);
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
