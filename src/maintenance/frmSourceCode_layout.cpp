// The controls, menus and tool bar of frmSourceCode and the wiring of their events.

#include "frmSourceCode.h"

#include "ComboBox.h"
#include "EventWiring.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "Toolbar.h"

#include <QAction>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs {

namespace {

template <class T> T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QLabel* caption(QWidget* owner, const char* name, const QString& text) {
    return named(new QLabel(text, owner), name);
}

QPushButton* button(QWidget* owner, const char* name, const QString& text) {
    auto* cmd = named(new QPushButton(text, owner), name);
    cmd->setAutoDefault(false);
    return cmd;
}

// A page of the tab control holding one control over its whole area.
void fill(QWidget* page, QWidget* control) {
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(control);
}

} // namespace

void frmSourceCode::buildLayout() {
    setCaption(QStringLiteral("Add Source Code"));
    const ItemWindowMenus bars = BuildItemWindowMenus(this, true);
    menuBar = bars.menuBar;
    tbToolBar = bars.tbToolBar;
    mnuFile = bars.mnuFile;
    mnuExit = bars.mnuExit;
    mnuEdit = bars.mnuEdit;
    mnuCut = bars.mnuCut;
    mnuCopy = bars.mnuCopy;
    mnuPaste = bars.mnuPaste;
    Seperator1 = bars.Seperator1;
    mnuAsciiFile = bars.mnuAsciiFile;
    mnuHelp = bars.mnuHelp;
    mnuHelpContents = bars.mnuHelpContents;
    mnuHelpSearch = bars.mnuHelpSearch;
    mnuHelpOnHelp = bars.mnuHelpOnHelp;

    lblSourceType = caption(this, "lblSourceType", QString());
    lblCategory = caption(this, "lblCategory", QString());
    lblCodeStatus = caption(this, "lblCodeStatus", QString());
    cboAuthors = new ComboBox(QStringLiteral("cboAuthors"), this);
    lblPersonCap = caption(this, "lblPersonCap", QStringLiteral("Code Author:"));
    DTPickerDateWritten = named(new QDateTimeEdit(this), "DTPickerDateWritten");
    DTPickerDateWritten->setCalendarPopup(true);
    DTPickerDateWritten->setDisplayFormat(QStringLiteral("MM/dd/yyyy"));
    lblDateWritten = caption(this, "lblDateWritten", QStringLiteral("Date Written:"));
    txtDescriptionAddOrUpdate = named(new QLineEdit(this), "txtDescriptionAddOrUpdate");
    txtDescriptionAddOrUpdate->setMaxLength(50);

    SSTabAboutCode = new SSTab(QStringLiteral("SSTabAboutCode"), this);
    SSTabAboutCode->setTabs(4);
    const char* const tabs[] = {"Code Text", "Notes", "Example", "Revision"};
    for (int i = 0; i < 4; ++i)
        SSTabAboutCode->setTabCaption(i, QString::fromLatin1(tabs[i]));
    RTBoxAddOrUpdate = new RichTextBox(QStringLiteral("RTBoxAddOrUpdate"), SSTabAboutCode->Page(0));
    RTBoxAddOrUpdate->setAcceptRichText(false);
    RTBoxAddOrUpdate->setLineWrapMode(QTextEdit::NoWrap);
    fill(SSTabAboutCode->Page(0), RTBoxAddOrUpdate);
    txtNotesAddOrUpdate = named(new QPlainTextEdit(SSTabAboutCode->Page(1)), "txtNotesAddOrUpdate");
    fill(SSTabAboutCode->Page(1), txtNotesAddOrUpdate);
    txtExampleAddOrUpdate =
        named(new QPlainTextEdit(SSTabAboutCode->Page(2)), "txtExampleAddOrUpdate");
    fill(SSTabAboutCode->Page(2), txtExampleAddOrUpdate);

    QWidget* revision = SSTabAboutCode->Page(3);
    cboMajor = new ComboBox(QStringLiteral("cboMajor"), revision, vbComboDropdown);
    cboMinor = new ComboBox(QStringLiteral("cboMinor"), revision, vbComboDropdown);
    cboRev = new ComboBox(QStringLiteral("cboRev"), revision, vbComboDropdown);
    txtRevComsAddOrUpdate = named(new QPlainTextEdit(revision), "txtRevComsAddOrUpdate");
    auto* numbers = new QHBoxLayout;
    numbers->addWidget(caption(revision, "lblMajor", QStringLiteral("Major:")));
    numbers->addWidget(cboMajor);
    numbers->addWidget(caption(revision, "lblMinor", QStringLiteral("Minor:")));
    numbers->addWidget(cboMinor);
    numbers->addWidget(caption(revision, "lblRev", QStringLiteral("Revision:")));
    numbers->addWidget(cboRev);
    numbers->addStretch();
    auto* revisionLayout = new QVBoxLayout(revision);
    revisionLayout->addLayout(numbers);
    revisionLayout->addWidget(
        caption(revision, "lblRevComs", QStringLiteral("Revision Comments:")));
    revisionLayout->addWidget(txtRevComsAddOrUpdate);

    ckkTested = named(new QCheckBox(QStringLiteral("Mark As Tested"), this), "ckkTested");
    lblParent = caption(this, "lblParent", QStringLiteral("Select Tested Parent Folder:"));
    cboSelParFolder = new ComboBox(QStringLiteral("cboSelParFolder"), this);
    ckkTested->setVisible(false);
    lblParent->setVisible(false);
    cboSelParFolder->setVisible(false);

    CmdAddOrUpdate = button(this, "CmdAddOrUpdate", QStringLiteral("&Add"));
    cmdCancel = button(this, "cmdCancel", QStringLiteral("&Cancel"));

    auto* fields = new QGridLayout;
    int row = 0;
    const auto addRow = [&](QWidget* left, QWidget* right) {
        fields->addWidget(left, row, 0);
        fields->addWidget(right, row, 1);
        ++row;
    };
    addRow(caption(this, "lblSourceTypeCap", QStringLiteral("Source Type:")), lblSourceType);
    addRow(caption(this, "lblCategoryCap", QStringLiteral("Category:")), lblCategory);
    addRow(caption(this, "lblCodeStatusCap", QStringLiteral("Code Status:")), lblCodeStatus);
    addRow(lblPersonCap, cboAuthors);
    addRow(lblDateWritten, DTPickerDateWritten);
    addRow(caption(this, "lblDescription", QStringLiteral("Description:")),
           txtDescriptionAddOrUpdate);
    fields->setColumnStretch(1, 1);

    auto* tested = new QHBoxLayout;
    tested->addWidget(ckkTested);
    tested->addWidget(lblParent);
    tested->addWidget(cboSelParFolder, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CmdAddOrUpdate);
    buttons->addWidget(cmdCancel);

    auto* main = new QVBoxLayout(this);
    main->setMenuBar(menuBar);
    main->addWidget(tbToolBar);
    main->addLayout(fields);
    main->addWidget(SSTabAboutCode, 1);
    main->addLayout(tested);
    main->addLayout(buttons);
    resize(640, 560);
}

void frmSourceCode::connectEvents() {
    struct Route {
        QAction* action;
        const char* handler;
        void (frmSourceCode::*member)();
    };
    const Route menus[] = {
        {mnuExit, "mnuExit_Click", &frmSourceCode::mnuExit_Click},
        {mnuCut, "mnuCut_Click", &frmSourceCode::mnuCut_Click},
        {mnuCopy, "mnuCopy_Click", &frmSourceCode::mnuCopy_Click},
        {mnuPaste, "mnuPaste_Click", &frmSourceCode::mnuPaste_Click},
        {mnuAsciiFile, "mnuAsciiFile_Click", &frmSourceCode::mnuAsciiFile_Click},
        {mnuHelpContents, "mnuHelpContents_Click", &frmSourceCode::mnuHelpContents_Click},
        {mnuHelpSearch, "mnuHelpSearch_Click", &frmSourceCode::mnuHelpSearch_Click},
        {mnuHelpOnHelp, "mnuHelpOnHelp_Click", &frmSourceCode::mnuHelpOnHelp_Click},
    };
    for (const Route& r : menus)
        Wire(this, r.action, &QAction::triggered, r.handler,
             [this, member = r.member] { (this->*member)(); });
    Wire(this, CmdAddOrUpdate, &QPushButton::clicked, "CmdAddOrUpdate_Click",
         [this] { CmdAddOrUpdate_Click(); });
    Wire(this, cmdCancel, &QPushButton::clicked, "cmdCancel_Click", [this] { cmdCancel_Click(); });
    Wire(this, ckkTested, &QCheckBox::clicked, "ckkTested_Click", [this] { ckkTested_Click(); });
    Wire(this, cboMajor->Click, "cboMajor_Click", [this] { cboMajor_Click(); });
    Wire(this, SSTabAboutCode->Click, "SSTabAboutCode_Click",
         [this](int) { SSTabAboutCode_Click(); });
    Wire(this, tbToolBar->ButtonClick, "tbToolBar_ButtonClick",
         [this](Button& b) { tbToolBar_ButtonClick(b); });
    Wire(this, RTBoxAddOrUpdate->GotFocus, "RTBoxAddOrUpdate_GotFocus",
         [this] { RTBoxAddOrUpdate_GotFocus(); });
    Wire(this, RTBoxAddOrUpdate->MouseDown, "RTBoxAddOrUpdate_MouseDown",
         [this](int b, int shift, int x, int y) { RTBoxAddOrUpdate_MouseDown(b, shift, x, y); });
    // The box raises no event of its own when it loses the focus; the window watches for it.
    RTBoxAddOrUpdate->installEventFilter(this);
}

} // namespace qs
