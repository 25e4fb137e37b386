#include "TreeWindowFixture.h"

#include "cLibraryService.h"
#include "cSecurityService.h"
#include "cSourceCode.h"
#include "cSourceFile.h"
#include "cUser.h"
#include "frmLogin.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QApplication>
#include <QFileInfo>
#include <QTreeWidgetItemIterator>

namespace qs::test {

void TreeWindow::SetUp() {
    HostFixture::SetUp();
    addGlobalReset("core", [] { ResetGlobals(); });
    mDatabase = home->file(QStringLiteral("Libraries/Quillstone.mdb"));
    cLibraryService(mDatabase).CreateDatabase(mDatabase, QString());
    pointAt(mDatabase);
    gstrUserId = QStringLiteral("ada");
}

void TreeWindow::pointAt(const QString& path) {
    const QString key = QString::fromLatin1(REG_KEY_DATABASE);
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_PATH), QFileInfo(path).absolutePath());
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_DATABASE_FILENAME), QFileInfo(path).fileName());
}

int TreeWindow::addCode(const QString& description, int typeId, int tested, int parentId,
                        bool folder, int categoryId, const QString& code) {
    cSourceCode item(mDatabase);
    item.BeginEdit(0);
    item.Description(description);
    item.CategoryId(categoryId);
    item.CodeTypeId(typeId);
    item.Tested(tested);
    item.ParentId(parentId);
    item.IsFolder(folder);
    item.Code(code.isEmpty() ? QStringLiteral("' code of ") + description : code);
    return item.Save();
}

int TreeWindow::addFile(const QString& description, int typeId, int parentId, bool folder,
                        int categoryId) {
    cSourceFile item(mDatabase);
    item.BeginEdit(0);
    item.Description(description);
    item.CategoryId(categoryId);
    item.FileTypeId(typeId);
    item.ParentId(parentId);
    item.IsFolder(folder);
    return item.Save();
}

int TreeWindow::addCategory(const QString& name) {
    return cLibraryService(mDatabase).AddCategory(name);
}

void TreeWindow::addUser(const QString& id, const QString& password) {
    cUser user;
    user.BeginEdit(0);
    user.UserId(id);
    user.Password(password);
    user.FirstName(id);
    user.LastName(QStringLiteral("Tester"));
    user.Question(QStringLiteral("Pet"));
    user.Answer(QStringLiteral("Rex"));
    user.AccessLevel(1);
    // The first user saves himself; the first saves the later ones.
    const VbArray<UserRow> users = cSecurityService().GetUsers();
    user.Save(users.isEmpty() ? id : users(1).UserId, 0);
}

void TreeWindow::logIn() {
    frmLogin& login = Forms::get<frmLogin>();
    login.Show();
    login.txtUserId->setText(QStringLiteral("ada"));
    login.txtPassword->setText(QStringLiteral("pw"));
    login.cmdOk->click();
}

frmMain& TreeWindow::open(const QString& accessType) {
    gstrAccessType = accessType;
    frmMain& form = Forms::get<frmMain>();
    form.show();
    QApplication::setActiveWindow(&form);
    return form;
}

void TreeWindow::click(TreeView& tree, const QString& key, Qt::MouseButton button) {
    Node node = tree.Nodes(key);
    node.EnsureVisible();
    for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
        const QRect rect = tree.visualItemRect(*it);
        if (!rect.isEmpty() && tree.HitTest(rect.center().x(), rect.center().y()) == node) {
            QTest::mouseClick(tree.viewport(), button, {}, rect.center());
            return;
        }
    }
    ADD_FAILURE() << "the node " << key.toStdString() << " is not on show";
}

void TreeWindow::search(frmMain& form, const QString& text, const char* codeType) {
    form.cboCategory->setText(QStringLiteral("Visual Basic"));
    if (codeType)
        form.cboCodeType->setText(QLatin1String(codeType));
    form.txtSearchString->clear();
    QTest::keyClicks(form.txtSearchString, text);
    QTest::keyClick(form.txtSearchString, Qt::Key_Return);
}

void TreeWindow::press(TreeView& tree, Qt::Key key) {
    tree.setFocus();
    QTest::keyClick(&tree, key);
}

QStringList TreeWindow::enabledButtons(frmMain& form) {
    QStringList on;
    for (const char* key : {"Add Category", "Add Folder", "Add SourceCode", "Add SourceFile",
                            "DeleteNode", "ReName Item", "Edit", "BookMark"})
        if (form.tbToolBar->Buttons(QLatin1String(key)).Enabled())
            on << QLatin1String(key);
    return on;
}

std::string TreeWindow::popups() const {
    QStringList shown;
    for (const HostCall& call : hostScript.callsOf(QStringLiteral("PopupMenu")))
        shown << call.text + QLatin1Char(':') + call.title;
    return shown.join(QStringLiteral("; ")).toStdString();
}

QStringList TreeWindow::childKeys(TreeView& tree, const QString& key) {
    QStringList keys;
    for (Node child = tree.Nodes(key).Child(); child; child = child.Next())
        keys << child.Key();
    return keys;
}

} // namespace qs::test
