#pragma once

#include "ComboBox.h"
#include "frmUser.h"

#include <QLineEdit>
#include <QString>

namespace qs::test {

// What a person does in the first-user form: fill every box, choose "Admin" and press Update.
inline void makeFirstUser(frmUser& form, const QString& id, const QString& password) {
    if (form.Mode() != frmUser::ModeAdd)
        form.cmdUserAdd_Click();
    form.txtUserId->setText(id);
    form.txtUserFName->setText(QStringLiteral("Ada"));
    form.txtUserLName->setText(QStringLiteral("Byron"));
    form.txtPassword->setText(password);
    form.txtQuestion->setText(QStringLiteral("First pet"));
    form.txtAnswer->setText(QStringLiteral("Rex"));
    for (int i = 0; i < form.cboAccessType->ListCount(); ++i)
        if (form.cboAccessType->List(i) == QLatin1String("Admin"))
            form.cboAccessType->setListIndex(i);
    form.cmdUserUpdate_Click();
}

} // namespace qs::test
