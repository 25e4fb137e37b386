#pragma once

#include "FormBase.h"

#include <memory>

class QLineEdit;
class QPushButton;

namespace qs {

class ComboBox;
class cAuthor;

// Author maintenance: adds, changes and deletes the people items are credited to, and refuses to
// delete one who still has items.
class frmAuthor : public FormBase {
    Q_OBJECT
public:
    // Modes of the window.
    enum AuthorMode : short { ModeAdd = 0, ModeEdit = 1, ModeView = 2 };

    frmAuthor();
    ~frmAuthor() override;

    // Controls, by design name.
    ComboBox* cboAuthors = nullptr;
    QLineEdit* txtAuthorId = nullptr;
    QLineEdit* txtAuthorFName = nullptr;
    QLineEdit* txtAuthorLName = nullptr;
    QPushButton* cmdAuthorAdd = nullptr;
    QPushButton* cmdAuthorEdit = nullptr;
    QPushButton* cmdAuthorUpdate = nullptr;
    QPushButton* cmdAuthorDelete = nullptr;
    QPushButton* cmdAuthorCancel = nullptr;
    QPushButton* cmdHelp = nullptr;
    QPushButton* cmdExit = nullptr;

    void PopulateAuthorCbo(bool blnSelectFirst = false);
    bool ValidAuthor(long lngId);
    void DeleteAuthor(long lngId);
    void LookupAuthor(long lngId);
    void FillAuthorFields();
    void ClearAuthorFields();
    void SetAuthorMode(short intMode);
    bool ValidateAuthorFields();

    void cboAuthors_Click();
    void cmdAuthorAdd_Click();
    void cmdAuthorEdit_Click();
    void cmdAuthorUpdate_Click();
    void cmdAuthorDelete_Click();
    void cmdAuthorCancel_Click();
    void cmdHelp_Click();
    void cmdExit_Click();
    void txtAuthorFName_GotFocus();
    void txtAuthorLName_GotFocus();

    short Mode() const { return mintMode; }
    // The record the window works on; null while none is chosen.
    cAuthor* CurrentAuthor() const { return mobjAuthor.get(); }

protected:
    void Form_Load() override;
    // Releases the window's record.
    void Form_Unload(int& cancel) override;
    ExitCommand exitCommand() override {
        return {"cmdExit_Click", [this] { cmdExit_Click(); }};
    }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void connectEvents();

    std::shared_ptr<cAuthor> mobjAuthor;
    short mintMode = ModeView;
    bool mblnIgnoreClick = false;
    // The names as they stood when the mode was entered.
    QString mstrFirstName;
    QString mstrLastName;
};

} // namespace qs
