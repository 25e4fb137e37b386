// The controls and menus of frmApiViewer and the wiring of their events.

#include "frmApiViewer.h"

#include "ComboBox.h"
#include "CommonDialog.h"
#include "EventWiring.h"
#include "ListBox.h"
#include "MenuParts.h"
#include "RichTextBox.h"
#include "TextBox.h"

#include <QAction>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qs {

using menuparts::entry;
using menuparts::subMenu;

namespace {

QPushButton* button(QWidget* owner, const char* name, const QString& caption) {
    auto* cmd = new QPushButton(caption, owner);
    cmd->setObjectName(QString::fromLatin1(name));
    cmd->setAutoDefault(false);
    return cmd;
}

QGroupBox* frame(QWidget* owner, const char* name, const QString& caption, QWidget* content) {
    auto* box = new QGroupBox(caption, owner);
    box->setObjectName(QString::fromLatin1(name));
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(content);
    return box;
}

} // namespace

void frmApiViewer::buildLayout() {
    menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("menuBar"));

    cboTypes = new ComboBox(QStringLiteral("cboTypes"), this);
    for (const char* type : {"Constants", "Declares", "Types"})
        cboTypes->AddItem(QString::fromLatin1(type));
    auto* lblTypes = new QLabel(QStringLiteral("API Type"), this);
    lblTypes->setObjectName(QStringLiteral("lblTypes"));
    lblTypes->setBuddy(cboTypes);

    txtSearch = new TextBox(QStringLiteral("txtSearch"), this);
    auto* lblSearch = new QLabel(QStringLiteral("Type In First Few Letters To Search"), this);
    lblSearch->setObjectName(QStringLiteral("lblSearch"));
    lblSearch->setBuddy(txtSearch);

    lstAvailItems = new ListBox(QStringLiteral("lstAvailItems"), this);
    // Every entry is one line: the view lays out tens of thousands without measuring each.
    lstAvailItems->setUniformItemSizes(true);
    auto* frmeAvail =
        frame(this, "frmeAvailItems", QStringLiteral("Available Items"), lstAvailItems);

    optPublic = new QRadioButton(QStringLiteral("Public"), this);
    optPublic->setObjectName(QStringLiteral("optPublic"));
    optPublic->setChecked(true);
    optPrivate = new QRadioButton(QStringLiteral("Private"), this);
    optPrivate->setObjectName(QStringLiteral("optPrivate"));
    frmeScope = new QGroupBox(QStringLiteral("Declare Scope"), this);
    frmeScope->setObjectName(QStringLiteral("frmeScope"));
    auto* scopeLayout = new QHBoxLayout(frmeScope);
    scopeLayout->addWidget(optPublic);
    scopeLayout->addWidget(optPrivate);
    frmeScope->setEnabled(false);

    cmdAdd = button(this, "cmdAdd", QStringLiteral("Add"));
    cmdAdd->setEnabled(false);

    RTBoxSelItems = new RichTextBox(QStringLiteral("RTBoxSelItems"), this);
    RTBoxSelItems->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    RTBoxSelItems->setLineWrapMode(QTextEdit::NoWrap);
    auto* frmeSel = frame(this, "frmeSelItems", QStringLiteral("Selected Items"), RTBoxSelItems);

    cmdCopy = button(this, "cmdCopy", QStringLiteral("Copy"));
    cmdRemove = button(this, "cmdRemove", QStringLiteral("Remove"));
    cmdClear = button(this, "cmdClear", QStringLiteral("Clear"));
    EnablePaneButtons(false);

    CommonDialog1 = std::make_unique<CommonDialog>();

    auto* top = new QGridLayout;
    top->addWidget(lblTypes, 0, 0);
    top->addWidget(cboTypes, 1, 0);
    top->addWidget(lblSearch, 0, 1);
    top->addWidget(txtSearch, 1, 1);
    top->setColumnStretch(1, 1);

    auto* middle = new QHBoxLayout;
    middle->addWidget(frmeAvail, 1);
    auto* addColumn = new QVBoxLayout;
    addColumn->addWidget(frmeScope);
    addColumn->addWidget(cmdAdd);
    addColumn->addStretch();
    middle->addLayout(addColumn);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* cmd : {cmdCopy, cmdRemove, cmdClear})
        buttons->addWidget(cmd);

    auto* main = new QVBoxLayout(this);
    main->setMenuBar(menuBar);
    main->addLayout(top);
    main->addLayout(middle, 1);
    main->addWidget(frmeSel, 1);
    main->addLayout(buttons);
    resize(760, 620);
}

void frmApiViewer::buildMenus() {
    mnuFile = subMenu(this, menuBar, "mnuFile", QStringLiteral("&File"));
    mnuLoad = entry(mnuFile, "mnuLoad", QStringLiteral("Load Text File"));
    mnuExit = entry(mnuFile, "mnuExit", QStringLiteral("Exit"));
    mnuEdit = subMenu(this, menuBar, "mnuEdit", QStringLiteral("&Edit"));
    mnucopy = entry(mnuEdit, "mnucopy", QStringLiteral("Copy"));
    mnuView = subMenu(this, menuBar, "mnuView", QStringLiteral("&View"));
    mnuLineItem = entry(mnuView, "mnuLineItem", QStringLiteral("Line Item"));
    mnuFullText = entry(mnuView, "mnuFullText", QStringLiteral("Full Text"));
    mnuLastFile = entry(mnuView, "mnuLastFile", QStringLiteral("Last File"));
    mnuLineItem->setCheckable(true);
    mnuFullText->setCheckable(true);
    mnuHelp = subMenu(this, menuBar, "mnuHelp", QStringLiteral("&Help"));
    mnuHelpContents = entry(mnuHelp, "mnuHelpContents", QStringLiteral("Contents..."));
    mnuHelpSearch = entry(mnuHelp, "mnuHelpSearch", QStringLiteral("Search..."));
    mnuHelpOnHelp = entry(mnuHelp, "mnuHelpOnHelp", QStringLiteral("How to Use Help"));
    mnuHelp->menu()->addSeparator();
    mnuAbout = entry(mnuHelp, "mnuAbout", QStringLiteral("About"));
}

void frmApiViewer::connectEvents() {
    struct Route {
        QAction* action;
        const char* handler;
        void (frmApiViewer::*member)();
    };
    // mnuHelpOnHelp has no command behind it, as in the main window.
    const Route menus[] = {
        {mnuLoad, "mnuLoad_Click", &frmApiViewer::mnuLoad_Click},
        {mnuExit, "mnuExit_Click", &frmApiViewer::mnuExit_Click},
        {mnucopy, "mnucopy_Click", &frmApiViewer::mnucopy_Click},
        {mnuLineItem, "mnuLineItem_Click", &frmApiViewer::mnuLineItem_Click},
        {mnuFullText, "mnuFullText_Click", &frmApiViewer::mnuFullText_Click},
        {mnuLastFile, "mnuLastFile_Click", &frmApiViewer::mnuLastFile_Click},
        {mnuHelpContents, "mnuHelpContents_Click", &frmApiViewer::mnuHelpContents_Click},
        {mnuHelpSearch, "mnuHelpSearch_Click", &frmApiViewer::mnuHelpSearch_Click},
        {mnuAbout, "mnuAbout_Click", &frmApiViewer::mnuAbout_Click},
    };
    for (const Route& r : menus)
        Wire(this, r.action, &QAction::triggered, r.handler,
             [this, member = r.member] { (this->*member)(); });

    const auto wire = [this](QPushButton* cmd, const char* name, void (frmApiViewer::*handler)()) {
        Wire(this, cmd, &QPushButton::clicked, name, [this, handler] { (this->*handler)(); });
    };
    wire(cmdAdd, "cmdAdd_Click", &frmApiViewer::cmdAdd_Click);
    wire(cmdCopy, "cmdCopy_Click", &frmApiViewer::cmdCopy_Click);
    wire(cmdRemove, "cmdRemove_Click", &frmApiViewer::cmdRemove_Click);
    wire(cmdClear, "cmdClear_Click", &frmApiViewer::cmdClear_Click);
    Wire(this, cboTypes->Click, "cboTypes_Click", [this] { cboTypes_Click(); });
    Wire(this, lstAvailItems->Click, "lstAvailItems_Click", [this] { lstAvailItems_Click(); });
    Wire(this, txtSearch->KeyUp, "txtSearch_KeyUp",
         [this](int& keyCode, int shift) { txtSearch_KeyUp(keyCode, shift); });
}

} // namespace qs
