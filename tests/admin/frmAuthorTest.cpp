// Author maintenance, driven through its buttons and list as a person does.
#include "AdminFixture.h"

#include "ComboBox.h"
#include "FormBase.h"
#include "Globals.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "cSourceFile.h"
#include "frmAuthor.h"
#include "frmMain.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>

using namespace qs;
using namespace qs::test;

namespace {

class AuthorWindow : public AdminFixture {
protected:
    int addAuthor(const QString& first, const QString& last) {
        cAuthor author(mDatabase);
        author.BeginEdit(0);
        author.FirstName(first);
        author.LastName(last);
        author.Save();
        return author.AuthorId();
    }
    static QStringList names() {
        QStringList list;
        for (const AuthorRow& row : cLibraryService().GetAuthors())
            list << row.FirstName + QLatin1Char('|') + row.LastName;
        return list;
    }
    static QString shown(const frmAuthor& form) {
        return form.txtAuthorId->text() + QLatin1Char(' ') + form.txtAuthorFName->text() +
               QLatin1Char(' ') + form.txtAuthorLName->text();
    }
};

TEST_F(AuthorWindow, OpensOnTheUsersOwnEntryAndItsModesLockWhatTheyShould) {
    const int ada = addAuthor("Ada", "Lovelace");
    const int bob = addAuthor("Bob", "Marley");
    gstrUserName = "Bob Marley";
    frmAuthor& form = Forms::get<frmAuthor>();
    EXPECT_EQ(form.cboAuthors->Text(), "Bob Marley");
    EXPECT_EQ(shown(form), QStringLiteral("%1 Bob Marley").arg(bob));

    struct Step {
        QPushButton* button;
        const char* typed; // into the first name box before the button, or nullptr
        short mode;
        const char* shown; // "<id>" stands for Ada's id
    };
    const Step steps[] = {
        {form.cmdAuthorAdd, nullptr, frmAuthor::ModeAdd, "  "},
        // Cancelling an add brings the first author back.
        {form.cmdAuthorCancel, nullptr, frmAuthor::ModeView, "<id> Ada Lovelace"},
        {form.cmdAuthorEdit, nullptr, frmAuthor::ModeEdit, "<id> Ada Lovelace"},
        {form.cmdAuthorCancel, "Adelaide", frmAuthor::ModeView, "<id> Ada Lovelace"},
    };
    for (const Step& s : steps) {
        SCOPED_TRACE(s.button->objectName().toStdString());
        if (s.typed)
            form.txtAuthorFName->setText(QLatin1String(s.typed));
        press(s.button);
        EXPECT_EQ(form.Mode(), s.mode);
        EXPECT_EQ(shown(form), QString::fromLatin1(s.shown).replace("<id>", QString::number(ada)));
        const bool view = s.mode == frmAuthor::ModeView;
        EXPECT_EQ(form.cboAuthors->isEnabled(), view);
        EXPECT_EQ(form.txtAuthorId->isReadOnly(), !view);
        EXPECT_EQ(form.txtAuthorFName->isReadOnly(), view);
        EXPECT_EQ(form.txtAuthorLName->isReadOnly(), view);
        for (QPushButton* b : {form.cmdAuthorAdd, form.cmdAuthorEdit, form.cmdAuthorDelete})
            EXPECT_EQ(b->isEnabled(), view);
        for (QPushButton* b : {form.cmdAuthorUpdate, form.cmdAuthorCancel})
            EXPECT_EQ(b->isEnabled(), !view);
    }
    EXPECT_TRUE(hostScript.msgBoxes().isEmpty());
}

TEST_F(AuthorWindow, AnExistingNameInAnyCaseIsQuestionedAndEveryNameOtherwisePasses) {
    addAuthor("Ada", "Lovelace");
    addAuthor("Bob", "Marley");
    frmAuthor& form = Forms::get<frmAuthor>();
    const QString addQuestion =
        QStringLiteral("This author already exists in the database. This might cause "
                       "confusion.\r\nAre you sure that you want to add this new author to the "
                       "database?");
    const QString editQuestion =
        QStringLiteral("This author already exists in the database. This might cause "
                       "confusion.\r\nAre you sure that you want to change the current author "
                       "name?");
    struct Case {
        const char* entry; // chosen before Edit; nullptr for an add
        const char* first;
        const char* last;
        int answer; // to the question; 0 when none is asked
        const char* added;
    };
    const Case cases[] = {
        {nullptr, "ada", "LOVELACE", vbNo, nullptr},
        {nullptr, "ada", "LOVELACE", vbYes, "ada|LOVELACE"},
        {nullptr, "Cy", "Young", 0, "Cy|Young"},
        // The field check never holds: an author with no name at all is stored.
        {nullptr, "", "", 0, "|"},
        // The kept name is the first name twice, so an unchanged edit finds its own entry.
        {"Bob Marley", "Bob", "Marley", vbYes, nullptr},
        {"Bob Marley", "Robert", "Marley", 0, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.entry ? c.entry : "add") + " " + c.first + " " + c.last);
        const QStringList before = names();
        if (c.entry) {
            form.cboAuthors->setText(QLatin1String(c.entry));
            press(form.cmdAuthorEdit);
        } else {
            press(form.cmdAuthorAdd);
        }
        form.txtAuthorFName->setText(QLatin1String(c.first));
        form.txtAuthorLName->setText(QLatin1String(c.last));
        hostScript.clearCalls();
        if (c.answer)
            hostScript.answerMsgBox(c.answer);
        press(form.cmdAuthorUpdate);
        const QList<HostCall> boxes = hostScript.msgBoxes();
        ASSERT_EQ(boxes.size(), c.answer ? 1 : 0);
        if (c.answer) {
            EXPECT_EQ(boxes[0].text, c.entry ? editQuestion : addQuestion);
            EXPECT_EQ(boxes[0].title, "Author First & Last Name?");
            EXPECT_EQ(boxes[0].buttons(), vbYesNo);
        }
        QStringList expected = before;
        if (c.added)
            expected << QLatin1String(c.added);
        else if (c.entry && c.answer != vbNo)
            expected.replaceInStrings("Bob|", QLatin1String(c.first) + "|");
        expected.sort();
        QStringList now = names();
        now.sort();
        EXPECT_EQ(now, expected);
        if (c.answer == vbNo) {
            EXPECT_EQ(form.Mode(), frmAuthor::ModeAdd);
            press(form.cmdAuthorCancel);
        } else {
            EXPECT_EQ(form.Mode(), frmAuthor::ModeView);
        }
    }
}

TEST_F(AuthorWindow, AnAuthorIsDeletedOnlyWhenNoItemCarriesHisName) {
    const int coder = addAuthor("Ada", "Lovelace");
    const int writer = addAuthor("Bob", "Marley");
    const int idle = addAuthor("Cy", "Young");
    cSourceCode code(mDatabase);
    code.BeginEdit(0);
    code.CategoryId(1);
    code.CodeTypeId(201);
    code.Tested(1);
    code.AuthorId(coder);
    code.Save();
    cSourceFile file(mDatabase);
    file.BeginEdit(0);
    file.CategoryId(1);
    file.FileTypeId(101);
    file.AuthorId(writer);
    file.Save();
    frmAuthor& form = Forms::get<frmAuthor>();

    struct Case {
        QString id;
        int answer;          // to "Delete Author?"; 0 when it isn't asked
        const char* refusal; // text of the refusal, or nullptr
        const char* title;   // of the refusal
        bool gone;
    };
    const Case cases[] = {
        {QString(), 0, "Please enter either an AuthorId.", "AuthorId", false},
        {"99", 0, "The AuthorId: 99 is not not in the database.", "AuthorId Not Found", false},
        {QString::number(coder), vbYes,
         "To remove this author from the database you must first remove all source items "
         "associated with their name.",
         "Remove Author", false},
        {QString::number(writer), vbYes, "To remove", "Remove Author", false},
        {QString::number(idle), vbNo, nullptr, nullptr, false},
        {QString::number(idle), vbYes, nullptr, nullptr, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id.toStdString());
        form.txtAuthorId->setText(c.id);
        hostScript.clearCalls();
        if (c.answer)
            hostScript.expectMsgBox(
                QStringLiteral("Are you sure you want to delete the AuthorId: %1?.").arg(c.id),
                c.answer);
        if (c.refusal)
            hostScript.expectMsgBox(QLatin1String(c.refusal));
        press(form.cmdAuthorDelete);
        if (c.refusal) {
            EXPECT_EQ(hostScript.msgBoxes().last().title, c.title);
        }
        if (c.answer) {
            EXPECT_EQ(hostScript.msgBoxes().first().title, "Delete Author?");
        }
        const int id = c.id.toInt();
        EXPECT_EQ(id != 0 && id != 99 && !cLibraryService().GetAuthor(id), c.gone);
    }
    EXPECT_EQ(form.cboAuthors->ListCount(), 2);
}

TEST_F(AuthorWindow, TheAdminMenuShowsItInsteadOfTheMainWindow) {
    addUser("ada", "pw", 1, "Ada", "Lovelace");
    logIn("ada", "pw");
    frmMain& main = Forms::get<frmMain>();
    main.show();
    bool mainHidden = false;
    hostScript.onModal<frmAuthor>("frmAuthor", [&](frmAuthor& form) {
        mainHidden = !main.isVisible();
        // With a user in the library, Exit just closes the window.
        press(form.cmdExit);
    });
    main.mnuAuthor->trigger();
    EXPECT_TRUE(mainHidden);
    EXPECT_TRUE(main.isVisible());
    EXPECT_EQ(Forms::find<frmAuthor>(), nullptr);
}

TEST_F(AuthorWindow, ExitWithNoUserInTheLibraryAsksFirst) {
    frmAuthor& form = Forms::get<frmAuthor>();
    const char* const noUsers = "There are no users in the database.";
    hostScript.expectMsgBox(noUsers);
    hostScript.expectMsgBox("Exiting without entering an employee will cause \r\nthe program to "
                            "exit completely.\r\n\r\nDo you wish to continue?",
                            vbNo);
    press(form.cmdExit);
    EXPECT_EQ(Forms::find<frmAuthor>(), &form);
    EXPECT_EQ(hostScript.msgBoxes().last().flags, vbYesNo | vbQuestion);
    hostScript.expectMsgBox(noUsers);
    hostScript.expectMsgBox("Do you wish to continue?", vbYes);
    press(form.cmdExit);
    EXPECT_EQ(Forms::find<frmAuthor>(), nullptr);
}

} // namespace
