// cSecurityService and cUser: logins, lookups, the two markers, renaming and deleting users.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"
#include "cSecurityService.h"

using namespace qs;
using namespace qs::test;

using Security = DataServiceTest;

// The right password or none gives the whole record; a wrong one or an unknown id the marker.
TEST_F(Security, GetUserGivesTheStoredRecordOrTheEmptyMarker) {
    addUser(QStringLiteral("ann"), QStringLiteral("Secret"), 2);
    const struct {
        const char* id;
        QString password;
        bool found;
    } cases[] = {{"ann", "Secret", true},
                 {"ann", QString(), true},
                 {"ann", "secret", false},
                 {"zed", "Secret", false},
                 {"zed", QString(), false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.id) + " " + c.password.toStdString());
        const cUser user = cSecurityService(dbPath).GetUser(c.id, c.password, "ann");
        EXPECT_EQ(user.IsStored(), c.found);
        EXPECT_EQ(user.UserId(), c.found ? "ann" : "Q70707");
        EXPECT_EQ(user.Password(), c.found ? "Secret" : "");
        EXPECT_EQ(user.FirstName(), c.found ? "First ann" : "");
        EXPECT_EQ(user.Question(), c.found ? "Pet?" : "");
        EXPECT_EQ(user.Answer(), c.found ? "Rex" : "");
        EXPECT_EQ(user.AccessLevel(), c.found ? 2 : 0);
    }
}

TEST_F(Security, FirstUserIsMadeFromTheMarkerRecord) {
    cSecurityService security(dbPath);
    cUser user = security.GetUser(QStringLiteral("boss"), QStringLiteral("pw"), QString());
    ASSERT_EQ(user.UserId(), QStringLiteral("Q70707"));
    user.BeginEdit(0);
    user.UserId(QStringLiteral("boss"));
    user.FirstName(QStringLiteral("Big"));
    user.LastName(QStringLiteral("Boss"));
    user.Password(QStringLiteral("pw"));
    user.AccessLevel(1);
    user.Save(QStringLiteral("boss"), 0);

    // The window then saves a second new record of the same id with the level it offered; the
    // user is written over, and his own level stays.
    addUser(QStringLiteral("boss"), QStringLiteral("pw"), 3);
    const auto users = security.GetUsers();
    ASSERT_EQ(users.UBound(), 1);
    EXPECT_EQ(users(1).UserId, QStringLiteral("boss"));
    EXPECT_EQ(users(1).FirstName, QStringLiteral("First boss"));
    EXPECT_EQ(users(1).LastName, QStringLiteral("Last boss"));
    const cUser stored = security.GetUser(QStringLiteral("boss"), QStringLiteral("pw"), "");
    EXPECT_EQ(stored.AccessLevel(), 1);
    EXPECT_EQ(stored.Question(), QStringLiteral("Pet?"));
}

TEST_F(Security, MarkerRecordSavedOverAStoredUserKeepsWhatItDidNotSet) {
    addUser(QStringLiteral("ann"), QStringLiteral("Secret"));
    cUser marker =
        cSecurityService(dbPath).GetUser(QStringLiteral("ann"), QStringLiteral("typo"), "");
    marker.BeginEdit(0);
    marker.AccessLevel(1);
    marker.UserId(QStringLiteral("ann"));
    marker.FirstName(QStringLiteral("Ann"));
    marker.LastName(QStringLiteral("Lee"));
    marker.Save(QStringLiteral("ann"), 0);

    const cUser stored =
        cSecurityService(dbPath).GetUser(QStringLiteral("ann"), QStringLiteral("Secret"), "");
    EXPECT_EQ(stored.UserId(), QStringLiteral("ann"));
    EXPECT_EQ(stored.FirstName(), QStringLiteral("Ann"));
    EXPECT_EQ(stored.Question(), QStringLiteral("Pet?"));
    EXPECT_EQ(stored.Answer(), QStringLiteral("Rex"));
    // The record now stands for the row it was written to.
    EXPECT_TRUE(marker.IsStored());
    EXPECT_EQ(marker.Question(), QStringLiteral("Pet?"));
}

TEST_F(Security, MarkerIdItselfCannotBeSaved) {
    cUser user = cSecurityService(dbPath).GetUser(QStringLiteral("x"), QStringLiteral("y"), "");
    user.BeginEdit(0);
    EXPECT_EQ(Raised([&] { user.Save(QString(), 0); }).number(), kErrMissingParameters);
    EXPECT_EQ(cSecurityService(dbPath).GetUsers().UBound(), 0);
}

TEST_F(Security, ForgottenPasswordNeedsTheExactAnswer) {
    addUser(QStringLiteral("ann"), QStringLiteral("Secret"));
    cSecurityService security(dbPath);
    EXPECT_EQ(security.GetPasswordQuestion(QStringLiteral("ann")), QStringLiteral("Pet?"));
    EXPECT_EQ(security.GetPasswordQuestion(QStringLiteral("zed")), QString());
    EXPECT_EQ(security.GetForgottenPassword(QStringLiteral("ann"), QStringLiteral("Rex")),
              QStringLiteral("Secret"));
    EXPECT_EQ(security.GetForgottenPassword(QStringLiteral("ann"), QStringLiteral("rex")),
              QStringLiteral("707070"));
    EXPECT_EQ(security.GetForgottenPassword(QStringLiteral("zed"), QStringLiteral("Rex")),
              QStringLiteral("707070"));
}

TEST_F(Security, NewUserIdRenamesTheUserAndCarriesHisBookmarks) {
    addUser(QStringLiteral("admin"));
    addUser(QStringLiteral("ann"), QStringLiteral("pw"), 2);
    const int code = addCode(QStringLiteral("Marked"));
    cLibraryService library(dbPath);
    library.AddBookmark(QStringLiteral("BkMark_SrcCode"), code, QStringLiteral("ann"));

    cUser ann = cSecurityService(dbPath).GetUser(QStringLiteral("ann"), QString(), "admin");
    ann.BeginEdit(0);
    ann.NewUserId(QStringLiteral("anna"));
    ann.Save(QStringLiteral("admin"), 0);

    cSecurityService security(dbPath);
    EXPECT_EQ(security.GetUser(QStringLiteral("ann"), QStringLiteral("pw"), "").UserId(),
              QStringLiteral("Q70707"));
    EXPECT_EQ(security.GetUser(QStringLiteral("anna"), QStringLiteral("pw"), "").UserId(),
              QStringLiteral("anna"));
    EXPECT_EQ(
        library.GetBookmarks(QStringLiteral("BkMark_SrcCode"), QStringLiteral("anna")).UBound(), 1);
    EXPECT_EQ(
        library.GetBookmarks(QStringLiteral("BkMark_SrcCode"), QStringLiteral("ann")).UBound(), 0);
}

TEST_F(Security, RenameOntoATakenIdChangesNothing) {
    addUser(QStringLiteral("admin"));
    addUser(QStringLiteral("ann"));
    cUser admin = cSecurityService(dbPath).GetUser(QStringLiteral("admin"), QString(), "");
    admin.BeginEdit(0);
    admin.NewUserId(QStringLiteral("ann"));
    admin.FirstName(QStringLiteral("Changed"));
    const QsError e = Raised([&] { admin.Save(QStringLiteral("admin"), 0); });
    EXPECT_EQ(e.number(), kErrDuplicateUser);
    EXPECT_EQ(cSecurityService(dbPath).GetUser(QStringLiteral("admin"), QString(), "").FirstName(),
              QStringLiteral("First admin"));
}

TEST_F(Security, DeletingAUserTakesHisBookmarksOnly) {
    addUser(QStringLiteral("admin"));
    addUser(QStringLiteral("ann"));
    const int author = addAuthor(QStringLiteral("First ann"), QStringLiteral("Last ann"));
    const int code = addCode(QStringLiteral("Marked"));
    cLibraryService library(dbPath);
    library.AddBookmark(QStringLiteral("BkMark_SrcCode"), code, QStringLiteral("ann"));

    cUser ann = cSecurityService(dbPath).GetUser(QStringLiteral("ann"), QString(), "admin");
    ann.BeginEdit(0);
    ann.Deleted(true);
    ann.Save(QStringLiteral("admin"), 0);

    EXPECT_EQ(cSecurityService(dbPath).GetUsers().UBound(), 1);
    EXPECT_EQ(rows(QStringLiteral("BkMark_SrcCode")), 0);
    EXPECT_TRUE(library.GetAuthor(author).has_value());
    EXPECT_EQ(library.GetSourceCode(code).Description(), QStringLiteral("Marked"));
}

TEST_F(Security, OnlyAnAdministratorChangesOtherUsers) {
    addUser(QStringLiteral("admin"));
    addUser(QStringLiteral("reader"), QStringLiteral("pw"), 2);
    addUser(QStringLiteral("other"), QStringLiteral("pw"), 2);
    cSecurityService security(dbPath);

    cUser other = security.GetUser(QStringLiteral("other"), QString(), "reader");
    other.BeginEdit(0);
    other.Password(QStringLiteral("hijacked"));
    const QsError e = Raised([&] { other.Save(QStringLiteral("reader"), 0); });
    EXPECT_EQ(e.number(), kErrNotAuthorized);
    EXPECT_EQ(e.description(), QStringLiteral("Access Not Authorized \""));
    EXPECT_EQ(Raised([&] { other.Save(QStringLiteral("stranger"), 0); }).number(),
              kErrNotAuthorized);

    // A user changes his own password, but not his own level.
    cUser reader = security.GetUser(QStringLiteral("reader"), QString(), "reader");
    reader.BeginEdit(0);
    reader.Password(QStringLiteral("new"));
    reader.AccessLevel(1);
    reader.Save(QStringLiteral("reader"), 0);
    const cUser stored = security.GetUser(QStringLiteral("reader"), QStringLiteral("new"), "");
    EXPECT_EQ(stored.UserId(), QStringLiteral("reader"));
    EXPECT_EQ(stored.AccessLevel(), 2);
    EXPECT_EQ(security.GetUser(QStringLiteral("other"), QStringLiteral("pw"), "").UserId(),
              QStringLiteral("other"));
}

TEST_F(Security, UsersListInNameOrderWithoutPasswords) {
    addUser(QStringLiteral("zz"));
    addUser(QStringLiteral("aa"), QStringLiteral("pw"), 3);
    const auto users = cSecurityService(dbPath).GetUsers();
    ASSERT_EQ(users.UBound(), 2);
    EXPECT_EQ(users(1).UserId, QStringLiteral("aa"));
    EXPECT_EQ(users(1).AccessType, QStringLiteral("Read/Write"));
    EXPECT_EQ(users(1).DisplayName, QStringLiteral("First aa Last aa"));
    EXPECT_EQ(users(2).UserId, QStringLiteral("zz"));
    for (const UserRow& row : users) {
        EXPECT_NE(row.Reserved, QStringLiteral("pw"));
        EXPECT_NE(row.AccessType, QStringLiteral("pw"));
    }
    EXPECT_EQ(cLibraryService(dbPath).GetUsers(false).UBound(), 2);
}
