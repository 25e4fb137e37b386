#pragma once

#include "HostFixture.h"

#include <QString>

class QPushButton;

namespace qs {
class frmUser;
}

namespace qs::test {

// A private home with an empty library that the settings name, a scripted host and reset
// globals; users are stored through the data service.
class AdminFixture : public HostFixture {
protected:
    void SetUp() override;

    // Stores a user in the library; the first one saves himself, later ones the first one.
    static void addUser(const QString& id, const QString& password, short level,
                        const QString& first, const QString& last);
    // A real click on a button, which must be on.
    static void press(QPushButton* button);
    // Fills the login globals as a good login of that stored user does.
    static void logIn(const QString& id, const QString& password);
    // Shows the window and makes it active, so that focus can be asserted.
    static void showActive(frmUser& form);
    // Chooses the access type entry with that text.
    static void chooseAccess(frmUser& form, const QString& text);
    // Fills every box of the form.
    static void fillUser(frmUser& form, const QString& id, const QString& first,
                         const QString& last, const QString& password, const QString& access);

    QString mDatabase;
};

} // namespace qs::test
