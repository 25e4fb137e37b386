// The category tree: its fill, the last place coming back at start-up, and the click that turns a
// type node into the item list of tvwMain.

#include "frmMain.h"

#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "OleColor.h"
#include "SSTab.h"
#include "StatusBar.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"
#include "mRegConstants.h"
#include "mRegistry.h"
#include "mTreeview.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>

namespace qs {

using namespace NodeKeys;

namespace {

const QString kRoot = QStringLiteral("ROOT");
const QString kTested = QStringLiteral("Tested");
const QString kUnTested = QStringLiteral("UnTested");

bool isBranchText(const QString& text) {
    return text == kTested || text == kUnTested;
}

bool holdsVisualBasic(const QString& text) {
    return text.contains(QLatin1String("Visual Basic"), Qt::CaseInsensitive);
}

// A lookup by key that falls back on the root when the key is gone.
Node nodeOrRoot(const TreeView& tree, const QString& key) {
    try {
        return tree.Nodes(key);
    } catch (...) {
        return tree.Nodes(kRoot);
    }
}

} // namespace

QString frmMain::lookupMatch(const VbArray<LookupRow>& rows, const QString& text) {
    for (const LookupRow& row : rows)
        if (row.Description == text)
            return row.Description;
    return QString();
}

void frmMain::showTreeCopy(bool copy) {
    tvwMainCopy->setVisible(copy);
    tvwMain->setVisible(!copy);
}

void frmMain::showItemTabs(bool sourceFile) {
    SSTabSourceFile->setVisible(sourceFile);
    SSTabAboutCode->setVisible(!sourceFile);
    if (sourceFile) {
        SSTabSourceFile->setTab(0);
        cmdOpenFile->setEnabled(tvwCategories->SelectedItem().Image() == QLatin1String("Article"));
    } else {
        SSTabAboutCode->setTab(0);
    }
}

bool frmMain::categoryShowsFiles(bool byTextToo) const {
    const Node selected = tvwCategories->SelectedItem();
    if (!selected)
        return false;
    return IsSourceFileImage(selected.Image()) || (byTextToo && IsSourceFileImage(selected.Text()));
}

void frmMain::saveCategoryPlace(const QString& lastNode, const QString& lastCodeType) {
    const QString key = QString::fromLatin1(REG_KEY_TVIEWSETTINGS);
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_LASTNODECATEGORY), lastNode);
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_TVIEW_LASTCODETYPE), lastCodeType);
}

void frmMain::FillTreeViewCategory() {
    TreeView& tree = *tvwCategories;
    try {
        const auto library = NewLibrary();
        host().doEvents();
        marrCategories = library->GetLookup(QStringLiteral("Category"));
        marrCodeTypes = library->GetLookup(QStringLiteral("CodeType"));
        marrFileTypes = library->GetLookup(QStringLiteral("FileType"));

        if (marrCategories.UBound() == 0) {
            tree.Nodes.Clear();
            Node root = tree.Nodes.Add(kRoot, QStringLiteral("Tarnwick Categories"),
                                       QStringLiteral("Categories"));
            tvwBoldTreeNode(tree, root, true);
            return;
        }

        tvwRedraw(tree, false);
        tree.Nodes.Clear();
        Node root = tree.Nodes.Add(kRoot, QStringLiteral("Tarnwick Categories"),
                                   QStringLiteral("Categories"));
        tvwBoldTreeNode(tree, root, true);
        for (const LookupRow& row : marrCategories)
            tree.Nodes
                .Add(root, tvwChild, CategoryKey(row.Id), row.Description,
                     QStringLiteral("ClosedFolder"))
                .setTag(QStringLiteral("C") + QStringLiteral("0"));

        // The categories' own pass: the tag names the parent, "C0" the root.
        marrCategoryKeys.clear();
        for (Node node : tree.Nodes) {
            const QString tag = node.Tag();
            if (tag.isEmpty())
                continue;
            node.setParent(tree.Nodes(tag == QLatin1String("C0") ? kRoot : tag));
            host().doEvents();
            marrCategoryKeys.append(node.Key());
        }

        for (int i = 1; i <= marrCategoryKeys.UBound(); ++i) {
            const QString category = marrCategoryKeys(i);
            if (category == kRoot)
                continue;
            for (const LookupRow& type : marrFileTypes)
                if (IsSourceFileImage(type.Description))
                    tree.Nodes.Add(category, tvwChild, FileTypeKey(i, type.Id), type.Description,
                                   type.Description);
            host().doEvents();
            const QString tested = TestedBranchKey(category);
            const QString untested = UnTestedBranchKey(category);
            tree.Nodes.Add(category, tvwChild, tested, kTested, QStringLiteral("ClosedFolder"));
            tree.Nodes.Add(category, tvwChild, untested, kUnTested, QStringLiteral("ClosedFolder"));
            for (const LookupRow& type : marrCodeTypes) {
                const QString image = TypeNodeImage(type.Description, true);
                if (image.isEmpty() || IsSourceFileImage(image))
                    continue;
                tree.Nodes.Add(tested, tvwChild, CodeTypeKey(true, i, type.Id), type.Description,
                               image);
                tree.Nodes.Add(untested, tvwChild, CodeTypeKey(false, i, type.Id), type.Description,
                               image);
            }
        }

        for (Node node : tree.Nodes) {
            node.setBackColor(vbWindowBackground);
            if (node.Children() > 0) {
                node.setSorted(true);
                continue;
            }
            const QString text = node.Text();
            const QString fileType = lookupMatch(marrFileTypes, text);
            if (IsSourceFileImage(fileType))
                node.setImage(fileType);
            if (!lookupMatch(marrCodeTypes, text).isEmpty()) {
                const bool tested =
                    node.Key().contains(QLatin1String("CTested"), Qt::CaseInsensitive);
                const QString image = TypeNodeImage(text, tested);
                if (!image.isEmpty())
                    node.setImage(image);
            }
        }

        root.setSorted(true);
        root.setExpanded(true);
        root.setImage(QStringLiteral("Categories"));
        root.setBackColor(vbWindowBackground);
        host().doEvents();
        tvwRedraw(tree, true);
    } catch (...) {
        tvwRedraw(tree, true);
        HandleFailure("frmMain:FillTreeViewCategory;");
    }
}

void frmMain::SettingCategory() {
    try {
        TreeView& tree = *tvwCategories;
        Node node;
        QString strCategory;
        QString strCodeType;
        QString strFileType;
        bool byCodeType = !mstrLastCodeType.isEmpty();
        if (!byCodeType) {
            node = nodeOrRoot(tree, mstrLastNodeCategory);
            // Nothing is selected yet at start-up, so no category name is noted then.
            const Node selected = tree.SelectedItem();
            if (selected && selected.Key() != kRoot)
                strCategory = lookupMatch(marrCategories, selected.Text());
            else if (selected)
                byCodeType = true;
        }
        if (byCodeType)
            node = nodeOrRoot(tree, mstrLastCodeType);
        if (!mstrLastCodeType.isEmpty()) {
            strCodeType = lookupMatch(marrCodeTypes, node.Text());
            if (!mstrLastCodeTypeMain.isEmpty())
                strFileType = lookupMatch(marrFileTypes, node.Text());
        }

        if (node) {
            node.setExpanded(true);
            const bool noName =
                strCategory.isEmpty() && strCodeType.isEmpty() && strFileType.isEmpty();
            const bool select = mstrLastCodeType.isEmpty() ? noName && node.Key() != kRoot : true;
            if (select) {
                tree.setSelectedItem(node);
                node.EnsureVisible();
                tree.setFocus();
            }
        }
        tvwRedraw(*tvwMain, true);
        tvwCategories_NodeClick(node);
        SSTabNavigate->setTab(0);
        SSTabAboutCode->setTab(0);
    } catch (...) {
        HandleFailure("frmMain:SettingCategory;");
    }
}

void frmMain::categoryStatus(const Node& node) {
    Panel& panel = sbStatusBar->Panels(1);
    const QString text = node.Text();
    if (node.Key() == kRoot) {
        ClearRevisionControls();
        ClearOriginalControls();
        ClearControlsSourceFileTab();
        panel.setText(QStringLiteral("At The Root Directory"));
        return;
    }
    const Node parent = node.Parent();
    const Node grand = parent.Parent();
    const QString parentText = parent.Text();
    const QString grandText = grand ? grand.Text() : QString();
    const QString blank = QStringLiteral(" ");
    if (isBranchText(parentText)) {
        panel.setText(grandText + blank + parentText + blank + text + QStringLiteral("s"));
        mblnVisualBasicCategory = holdsVisualBasic(grandText);
    } else if (!lookupMatch(marrCategories, text).isEmpty()) {
        panel.setText(text);
    } else if (parent.Key() != kRoot && grandText != QLatin1String("Tarnwick Categories")) {
        panel.setText(grandText + blank + parentText + blank + text + QStringLiteral("s"));
    } else if (parent.Key() != kRoot) {
        panel.setText(parentText + blank + text + QStringLiteral(" Items"));
        if (isBranchText(text))
            mblnVisualBasicCategory = holdsVisualBasic(parentText);
    } else {
        panel.setText(parentText + blank + text + QStringLiteral("s"));
        mblnVisualBasicCategory = holdsVisualBasic(text);
    }
}

void frmMain::tvwCategories_NodeClick(Node node) {
    try {
        if (!node) {
            showTreeCopy(false);
            return;
        }
        host().setMousePointer(vbHourglass);
        lblCodeSnipDescr->clear();
        mblnVisualBasicCategory = false;
        node.setBackColor(vbWindowBackground);
        showTreeCopy(true);
        categoryStatus(node);

        const bool admin = mnuAdmin->isVisible();
        setButton("BookMark", false);
        mnuBookMark->setVisible(false);
        if (admin) {
            for (const char* key : {"Add Folder", "Add SourceCode", "Add SourceFile", "Edit"})
                setButton(key, false);
            mnuAddCategory->setVisible(true);
            for (QAction* entry :
                 {mnuEditSource, mnuBookMarkA, mnuAddFolder, mnuAddSourceCode, mnuAddSourceFile})
                entry->setVisible(false);
        }
        const auto done = [this] {
            host().setMousePointer(vbDefault);
            showTreeCopy(false);
        };
        if (mstrCategoryButton == QLatin1String("Right")) {
            done();
            return;
        }

        lblCodeSnipDescr->clear();
        const QString key = node.Key();
        const QString text = node.Text();
        const QString strCategory = lookupMatch(marrCategories, text);
        if (key == kRoot) {
            if (admin) {
                mnuModify->setEnabled(true);
                setButton("Add Category", true);
                for (const char* button : {"DeleteNode", "ReName Item", "Edit"})
                    setButton(button, false);
                mnuAddCategory->setVisible(true);
                mnuDelete->setVisible(false);
                mnuRename->setVisible(false);
            }
            saveCategoryPlace(kRoot, QString());
            tvwClear(*tvwMain);
            done();
            return;
        }
        if (admin) {
            const bool category = !strCategory.isEmpty();
            mnuModify->setEnabled(category);
            setButton("DeleteNode", category);
            setButton("ReName Item", category);
            setButton("Edit", false);
            if (category) {
                mnuDelete->setVisible(true);
                mnuRename->setVisible(true);
                mnuAddCategory->setVisible(false);
            }
            setButton("Add Category", false);
        }

        tvwClear(*tvwMain);
        const QString strCodeType = lookupMatch(marrCodeTypes, text);
        const QString strFileType = lookupMatch(marrFileTypes, text);
        if (!strCategory.isEmpty())
            saveCategoryPlace(key, QString());
        else
            saveCategoryPlace(QString(), key);
        if (marrCodeTypes.isEmpty() && marrFileTypes.isEmpty()) {
            done();
            return;
        }

        if (strCategory.isEmpty() &&
            (!strCodeType.isEmpty() || !strFileType.isEmpty() || isBranchText(text))) {
            // The type id stands after a position read as W digits wide, whatever its width.
            const int width = DigitWidth(marrCategoryKeys.UBound());
            const Node parent = node.Parent();
            const QString parentKey = parent.Key();
            long typeId = 0;
            long categoryId = 0;
            if (key.startsWith(QLatin1String("CTested"))) {
                typeId = After(key, 7 + width).toLong();
                categoryId =
                    After(parentKey, parentKey.startsWith(QLatin1String("TestedC")) ? 7 : 9)
                        .toLong();
            } else if (key.startsWith(QLatin1String("CUntested"))) {
                typeId = After(key, 9 + width).toLong();
                if (parentKey.startsWith(kUnTested))
                    categoryId = After(parentKey, 8 + width).toLong();
                else if (parentKey.startsWith(kTested))
                    categoryId = After(parentKey, 6 + width).toLong();
            } else if (key.startsWith(QLatin1String("FT"))) {
                typeId = After(key, 2 + width).toLong();
            }

            if (!strFileType.isEmpty()) {
                gstrCategory = parent.Text();
                glngCategoryId = After(parentKey, 1).toLong();
                categoryId = glngCategoryId;
            } else {
                const bool tested = parent.Text() == kTested || text == kTested;
                gstrCodeStatus = tested ? kTested : kUnTested;
                gintCodeStatusId = tested ? 1 : 2;
                const Node owner = isBranchText(text) ? parent : parent.Parent();
                gstrCategory = owner.Text();
                glngCategoryId = After(owner.Key(), 1).toLong();
            }
            if (!isBranchText(text)) {
                mblnFilling = true;
                FillTreeViewMain(typeId, categoryId,
                                 strFileType.isEmpty() ? QStringLiteral("SourceCode")
                                                       : QStringLiteral("SourceFile"));
            }
        }

        try {
            tvwMain->SelectedItem().setText(QStringLiteral("Tarnwick"));
        } catch (...) {
            // No node is selected in the item tree after a fill.
        }
        showItemTabs(categoryShowsFiles(false));
        SSTabNavigate->setTab(0);
        done();
    } catch (...) {
        showTreeCopy(false);
        HandleFailure("frmMain:tvwCategories_NodeClick;");
    }
}

} // namespace qs
