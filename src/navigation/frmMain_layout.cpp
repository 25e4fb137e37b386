// The controls of the main window and where they stand.

#include "frmMain.h"

#include "ComboBox.h"
#include "ListBox.h"
#include "ListView.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Timer.h"
#include "Toolbar.h"
#include "TreeView.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace qs {

namespace {

template <class T> T* named(T* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QLineEdit* field(QWidget* owner, const char* name) {
    auto* box = named(new QLineEdit(owner), name);
    box->setReadOnly(true);
    return box;
}

QPlainTextEdit* memo(QWidget* owner, const char* name) {
    auto* box = named(new QPlainTextEdit(owner), name);
    box->setReadOnly(true);
    return box;
}

QLabel* caption(QWidget* owner, const char* name, const QString& text) {
    return named(new QLabel(text, owner), name);
}

} // namespace

void frmMain::buildLayout() {
    menuBar = named(new QMenuBar(this), "menuBar");
    tbToolBar = new Toolbar(QStringLiteral("tbToolBar"), this);
    sbStatusBar = new StatusBar(QStringLiteral("sbStatusBar"), this, 2);
    tmrDrag = new Timer(QStringLiteral("tmrDrag"), this);
    tmrDrag->setEnabled(false);

    // ---- Left: categories above, navigation tabs below ----
    auto* left = new QWidget(this);
    lblCategories = caption(left, "lblCategories", QStringLiteral("Quillstone Catagories:"));
    tvwCategories = new TreeView(QStringLiteral("tvwCategories"), left);
    // A label edit starts from the Rename command only, so nobody renames by a second click.
    tvwCategories->setLabelEdit(tvwManual);

    SSTabNavigate = new SSTab(QStringLiteral("SSTabNavigate"), left);
    SSTabNavigate->setTabs(3);
    SSTabNavigate->setTabCaption(0, QStringLiteral("Main"));
    SSTabNavigate->setTabCaption(1, QStringLiteral("BookMarks"));
    SSTabNavigate->setTabCaption(2, QStringLiteral("Search/Results"));

    QWidget* mainPage = SSTabNavigate->Page(0);
    tvwMain = new TreeView(QStringLiteral("tvwMain"), mainPage);
    tvwMain->setLabelEdit(tvwManual);
    tvwMainCopy = new TreeView(QStringLiteral("tvwMainCopy"), mainPage);
    tvwMainCopy->setVisible(false);
    auto* mainBox = new QVBoxLayout(mainPage);
    mainBox->setContentsMargins(2, 2, 2, 2);
    mainBox->addWidget(tvwMain);
    mainBox->addWidget(tvwMainCopy);

    QWidget* bookPage = SSTabNavigate->Page(1);
    tvwBookMarks = new TreeView(QStringLiteral("tvwBookMarks"), bookPage);
    auto* bookBox = new QVBoxLayout(bookPage);
    bookBox->setContentsMargins(2, 2, 2, 2);
    bookBox->addWidget(tvwBookMarks);

    QWidget* searchPage = SSTabNavigate->Page(2);
    cboCategory = new ComboBox(QStringLiteral("cboCategory"), searchPage);
    cboCodeType = new ComboBox(QStringLiteral("cboCodeType"), searchPage);
    cboTestedOrUntested = new ComboBox(QStringLiteral("cboTestedOrUntested"), searchPage);
    txtSearchString = named(new QLineEdit(searchPage), "txtSearchString");
    const char* const optionNames[] = {"Exact Phrase", "All Words", "Any Word"};
    for (int i = 0; i < 3; ++i) {
        rdoSearchOption[i] = new QRadioButton(QString::fromLatin1(optionNames[i]), searchPage);
        rdoSearchOption[i]->setObjectName(QStringLiteral("rdoSearchOption(%1)").arg(i));
    }
    cmdSearch = named(new QPushButton(QStringLiteral("Search"), searchPage), "cmdSearch");
    cmdSearch->setAutoDefault(false);
    tvwSearchResults = new TreeView(QStringLiteral("tvwSearchResults"), searchPage);
    auto* searchForm = new QFormLayout;
    searchForm->addRow(caption(searchPage, "lblCategory", QStringLiteral("Category:")),
                       cboCategory);
    searchForm->addRow(caption(searchPage, "lblCodeType", QStringLiteral("Type:")), cboCodeType);
    searchForm->addRow(caption(searchPage, "lblTested", QStringLiteral("Status:")),
                       cboTestedOrUntested);
    searchForm->addRow(caption(searchPage, "lblSearchString", QStringLiteral("Find:")),
                       txtSearchString);
    auto* options = new QHBoxLayout;
    for (QRadioButton* option : rdoSearchOption)
        options->addWidget(option);
    options->addStretch();
    options->addWidget(cmdSearch);
    auto* searchBox = new QVBoxLayout(searchPage);
    searchBox->setContentsMargins(2, 2, 2, 2);
    searchBox->addLayout(searchForm);
    searchBox->addLayout(options);
    searchBox->addWidget(tvwSearchResults, 1);

    // The category tree and the navigation tabs share the left side by a splitter of their own.
    auto* categoryBox = new QWidget(left);
    auto* categoryLayout = new QVBoxLayout(categoryBox);
    categoryLayout->setContentsMargins(0, 0, 0, 0);
    categoryLayout->addWidget(lblCategories);
    categoryLayout->addWidget(tvwCategories, 1);
    auto* splitLeft = named(new QSplitter(Qt::Vertical, left), "splitLeft");
    splitLeft->addWidget(categoryBox);
    splitLeft->addWidget(SSTabNavigate);
    splitLeft->setStretchFactor(0, 2);
    splitLeft->setStretchFactor(1, 3);
    splitLeft->setChildrenCollapsible(false);
    auto* leftBox = new QVBoxLayout(left);
    leftBox->setContentsMargins(0, 0, 0, 0);
    leftBox->addWidget(splitLeft);

    // ---- Right: description, path, and the panes of a text item or a stored file ----
    auto* right = new QWidget(this);
    lblCodeSnipDescr = caption(right, "lblCodeSnipDescr", QString());
    txtCodePath = field(right, "txtCodePath");
    txtCodePath2 = field(right, "txtCodePath2");
    txtCodePath2->setVisible(false);

    SSTabAboutCode = new SSTab(QStringLiteral("SSTabAboutCode"), right);
    SSTabAboutCode->setTabs(3);
    SSTabAboutCode->setTabCaption(0, QStringLiteral("Code"));
    SSTabAboutCode->setTabCaption(1, QStringLiteral("Description"));
    SSTabAboutCode->setTabCaption(2, QStringLiteral("Example"));

    QWidget* codePage = SSTabAboutCode->Page(0);
    RichTextBoxCode = new RichTextBox(QStringLiteral("RichTextBoxCode"), codePage);
    RichTextBoxVis = new RichTextBox(QStringLiteral("RichTextBoxVis"), codePage);
    RichTextBoxHold = new RichTextBox(QStringLiteral("RichTextBoxHold"), codePage);
    RichTextBoxVis->setVisible(false);
    RichTextBoxHold->setVisible(false);
    // Code reads in columns.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (RichTextBox* pane : {RichTextBoxCode, RichTextBoxVis, RichTextBoxHold})
        pane->setFont(fixed);
    auto* codeBox = new QVBoxLayout(codePage);
    codeBox->setContentsMargins(2, 2, 2, 2);
    codeBox->addWidget(RichTextBoxCode);
    codeBox->addWidget(RichTextBoxVis);
    codeBox->addWidget(RichTextBoxHold);

    QWidget* descPage = SSTabAboutCode->Page(1);
    txtNotes = memo(descPage, "txtNotes");
    txtVersionNo = field(descPage, "txtVersionNo");
    txtSourceAuthor = field(descPage, "txtSourceAuthor");
    txtDateWritten = field(descPage, "txtDateWritten");
    txtDateEntered = field(descPage, "txtDateEntered");
    lvwRevisionHistory = new ListView(QStringLiteral("lvwRevisionHistory"), descPage);
    txtRevisionAuthorSC = field(descPage, "txtRevisionAuthorSC");
    txtChangesSC = memo(descPage, "txtChangesSC");
    auto* descForm = new QFormLayout(descPage);
    descForm->addRow(caption(descPage, "lblNotes", QStringLiteral("Notes:")), txtNotes);
    descForm->addRow(caption(descPage, "lblVersionNo", QStringLiteral("Version:")), txtVersionNo);
    descForm->addRow(caption(descPage, "lblSourceAuthor", QStringLiteral("Author:")),
                     txtSourceAuthor);
    descForm->addRow(caption(descPage, "lblDateWritten", QStringLiteral("Date Written:")),
                     txtDateWritten);
    descForm->addRow(caption(descPage, "lblDateEntered", QStringLiteral("Date Entered:")),
                     txtDateEntered);
    descForm->addRow(caption(descPage, "lblRevisionHistory", QStringLiteral("Revisions:")),
                     lvwRevisionHistory);
    descForm->addRow(caption(descPage, "lblRevisionAuthorSC", QStringLiteral("Revised By:")),
                     txtRevisionAuthorSC);
    descForm->addRow(caption(descPage, "lblChangesSC", QStringLiteral("Changes:")), txtChangesSC);

    QWidget* examplePage = SSTabAboutCode->Page(2);
    txtExample = memo(examplePage, "txtExample");
    txtExample->setFont(fixed);
    auto* exampleBox = new QVBoxLayout(examplePage);
    exampleBox->setContentsMargins(2, 2, 2, 2);
    exampleBox->addWidget(txtExample);

    buildSourceFileTabs(right);

    auto* rightBox = new QVBoxLayout(right);
    rightBox->setContentsMargins(0, 0, 0, 0);
    rightBox->addWidget(lblCodeSnipDescr);
    rightBox->addWidget(txtCodePath);
    rightBox->addWidget(txtCodePath2);
    rightBox->addWidget(SSTabAboutCode, 1);
    rightBox->addWidget(SSTabSourceFile, 1);
    SSTabSourceFile->setVisible(false);

    auto* split = named(new QSplitter(Qt::Horizontal, this), "splitMain");
    split->addWidget(left);
    split->addWidget(right);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 3);
    split->setChildrenCollapsible(false);
    // Both sides share the room the window gains, by the stretch above.
    left->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    right->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    auto* main = new QVBoxLayout(this);
    main->setContentsMargins(4, 0, 4, 0);
    main->setSpacing(2);
    main->setMenuBar(menuBar);
    main->addWidget(tbToolBar);
    main->addWidget(split, 1);
    main->addWidget(sbStatusBar);
    fitToScreen();
}

void frmMain::fitToScreen() {
    // The window opens at its usual size, or at most nine tenths of the screen it is on, and
    // keeps room for both sides when made small.
    QSize size(960, 680);
    if (const QScreen* screen = this->screen()) {
        const QSize room = screen->availableGeometry().size() * 9 / 10;
        size = size.boundedTo(room);
    }
    setMinimumSize(QSize(480, 360).boundedTo(size));
    resize(size);
    setSizeGripEnabled(true);
}

void frmMain::buildSourceFileTabs(QWidget* owner) {
    SSTabSourceFile = new SSTab(QStringLiteral("SSTabSourceFile"), owner);
    SSTabSourceFile->setTabs(2);
    SSTabSourceFile->setTabCaption(0, QStringLiteral("General Information"));
    SSTabSourceFile->setTabCaption(1, QStringLiteral("Version Information"));

    QWidget* general = SSTabSourceFile->Page(0);
    picIcon = named(new QLabel(general), "picIcon");
    picIcon->setFixedSize(32, 32);
    txtFilename = field(general, "txtFilename");
    txtType = field(general, "txtType");
    txtSize = field(general, "txtSize");
    txtAuthorName = field(general, "txtAuthorName");
    txtDosName = field(general, "txtDosName");
    txtCreated = field(general, "txtCreated");
    txtDateFileEntered = field(general, "txtDateFileEntered");
    txtFileVer = field(general, "txtFileVer");
    txtDescription = field(general, "txtDescription");
    txtCopyright = field(general, "txtCopyright");
    txtFileNotes = memo(general, "txtFileNotes");
    const char* const attributes[] = {"Read-only", "Archive", "Compressed",
                                      "Hidden",    "System",  "Temporary"};
    auto* attributeBox = new QHBoxLayout;
    for (int i = 0; i < 6; ++i) {
        chkAttr[i] = new QCheckBox(QString::fromLatin1(attributes[i]), general);
        chkAttr[i]->setObjectName(QStringLiteral("chkAttr(%1)").arg(i));
        chkAttr[i]->setEnabled(false);
        attributeBox->addWidget(chkAttr[i]);
    }
    cmdOpenFile = named(new QPushButton(QStringLiteral("Open File"), general), "cmdOpenFile");
    cmdSaveFile = named(new QPushButton(QStringLiteral("Save File"), general), "cmdSaveFile");
    cmdOpenFile->setAutoDefault(false);
    cmdSaveFile->setAutoDefault(false);

    auto* grid = new QGridLayout(general);
    grid->addWidget(picIcon, 0, 0);
    grid->addWidget(txtFilename, 0, 1, 1, 3);
    int row = 1;
    const auto pair = [&](const char* name, const QString& text, QWidget* control, int column) {
        grid->addWidget(caption(general, name, text), row, column);
        grid->addWidget(control, row, column + 1);
    };
    pair("lblType", QStringLiteral("Type:"), txtType, 0);
    pair("lblSize", QStringLiteral("Size:"), txtSize, 2);
    ++row;
    pair("lblAuthorName", QStringLiteral("Author:"), txtAuthorName, 0);
    pair("lblDosName", QStringLiteral("MS-DOS Name:"), txtDosName, 2);
    ++row;
    pair("lblCreated", QStringLiteral("Created:"), txtCreated, 0);
    pair("lblDateFileEntered", QStringLiteral("Entered:"), txtDateFileEntered, 2);
    ++row;
    pair("lblFileVer", QStringLiteral("File Version:"), txtFileVer, 0);
    pair("lblDescription", QStringLiteral("Description:"), txtDescription, 2);
    ++row;
    pair("lblCopyright", QStringLiteral("Copyright:"), txtCopyright, 0);
    ++row;
    grid->addLayout(attributeBox, row++, 0, 1, 4);
    grid->addWidget(caption(general, "lblFileNotes", QStringLiteral("Notes:")), row, 0);
    grid->addWidget(txtFileNotes, row++, 1, 1, 3);
    auto* fileButtons = new QHBoxLayout;
    fileButtons->addStretch();
    fileButtons->addWidget(cmdOpenFile);
    fileButtons->addWidget(cmdSaveFile);
    grid->addLayout(fileButtons, row, 0, 1, 4);

    QWidget* version = SSTabSourceFile->Page(1);
    lboxVerInfo = new ListBox(QStringLiteral("lboxVerInfo"), version);
    txtVerInfo = memo(version, "txtVerInfo");
    lstSrcFileRevHist = new ListView(QStringLiteral("lstSrcFileRevHist"), version);
    txtSFRevHistAuthor = field(version, "txtSFRevHistAuthor");
    txtRevCommentsSF = memo(version, "txtRevCommentsSF");
    auto* versionForm = new QFormLayout(version);
    versionForm->addRow(caption(version, "lblVerInfo", QStringLiteral("Version Entries:")),
                        lboxVerInfo);
    versionForm->addRow(caption(version, "lblVerInfoValue", QStringLiteral("Value:")), txtVerInfo);
    versionForm->addRow(caption(version, "lblSrcFileRevHist", QStringLiteral("Revisions:")),
                        lstSrcFileRevHist);
    versionForm->addRow(caption(version, "lblSFRevHistAuthor", QStringLiteral("Revised By:")),
                        txtSFRevHistAuthor);
    versionForm->addRow(caption(version, "lblRevCommentsSF", QStringLiteral("Changes:")),
                        txtRevCommentsSF);
}

} // namespace qs
