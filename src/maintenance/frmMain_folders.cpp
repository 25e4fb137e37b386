// The main window's folder, category and rename commands, and the Insert key on a folder.

#include "frmMain.h"

#include "EventWiring.h"
#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "Toolbar.h"
#include "TreeView.h"
#include "cLibraryService.h"
#include "frmChooseFolderType.h"
#include "frmInsert.h"
#include "mConstants.h"
#include "mErrorHandling.h"
#include "mTreeview.h"

#include <QAction>
#include <QDateTime>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

namespace qs {

using namespace NodeKeys;

namespace {

const QString kRoot = QStringLiteral("ROOT");

// What a new folder under the selected node of tvwMain is, and how the dialog is preset.
struct FolderPlan {
    bool valid = false;
    int typeId = 0;     // 0: by the folder type the dialog gives
    bool tested = true; // code folders: the branch they stand in
    QString filePreset; // "Article Folder" or "Component Folder"
    QString option;     // the option set and hidden: "Code", "Tip", "Class", "Module"
    bool frameCaption = false;
};

QString optionOfTypeName(const QString& typeName) {
    if (typeName == QLatin1String("Code Snippet"))
        return QStringLiteral("Code");
    if (typeName == QLatin1String("Tip"))
        return QStringLiteral("Tip");
    if (typeName == QLatin1String("Class Module"))
        return QStringLiteral("Class");
    if (typeName == QLatin1String("General Module"))
        return QStringLiteral("Module");
    return QString();
}

int typeOfFolderType(const QString& folderType) {
    if (folderType == QLatin1String("Code"))
        return kCodeSnippet;
    if (folderType == QLatin1String("Tip"))
        return kTip;
    if (folderType == QLatin1String("Class"))
        return kClassModule;
    if (folderType == QLatin1String("Module"))
        return kGeneralModule;
    return 0;
}

FolderPlan filePlan(int typeId) {
    FolderPlan plan;
    plan.valid = true;
    plan.typeId = typeId;
    plan.filePreset =
        typeId == kArticle ? QStringLiteral("Article Folder") : QStringLiteral("Component Folder");
    return plan;
}

// A folder always holds the kind of its parent; kinds mix only at the root of a branch.
FolderPlan planFolder(const QString& key, const Node& category) {
    FolderPlan plan;
    if (key == kRoot) {
        const QString text = category ? category.Text() : QString();
        const Node parent = category ? category.Parent() : Node();
        const QString parentText = parent ? parent.Text() : QString();
        if (text == QLatin1String("Article") || text == QLatin1String("Component"))
            return filePlan(text == QLatin1String("Article") ? kArticle : kComponent);
        if (text == QLatin1String("Tested") || text == QLatin1String("UnTested")) {
            plan.valid = true;
            plan.tested = text == QLatin1String("Tested");
            return plan;
        }
        const QString option = optionOfTypeName(text);
        if (!option.isEmpty() &&
            (parentText == QLatin1String("Tested") || parentText == QLatin1String("UnTested"))) {
            plan.valid = true;
            plan.tested = parentText == QLatin1String("Tested");
            plan.option = option;
        }
        return plan;
    }
    if (key.contains(QLatin1String("Article"), Qt::CaseInsensitive))
        return filePlan(kArticle);
    if (key.contains(QLatin1String("Component"), Qt::CaseInsensitive))
        return filePlan(kComponent);
    for (const char* word :
         {"ClassTestedFolder", "ClassUnTestedFolder", "ModuleTestedFolder", "ModuleUnTestedFolder",
          "TipTestedFolder", "TipUnTestedFolder", "CodeTestedFolder", "CodeUnTestedFolder"}) {
        const QString kind = QString::fromLatin1(word);
        if (!key.contains(kind, Qt::CaseInsensitive))
            continue;
        plan.valid = true;
        plan.typeId = TypeCodeOf(kind);
        plan.tested = !kind.contains(QLatin1String("UnTested"));
        plan.option = kind.left(kind.indexOf(QLatin1String("Tested"))).remove(QLatin1String("Un"));
        plan.frameCaption = true;
        return plan;
    }
    return plan;
}

// Writes the folder's record and returns its id; no revision line goes with a folder.
int saveFolder(int typeId) {
    const auto library = NewLibrary();
    if (IsSourceFileType(typeId)) {
        cSourceFile folder(library->DatabasePath());
        folder.BeginEdit(0);
        folder.AuthorId(static_cast<int>(glngFolderAuthorId));
        folder.CategoryId(static_cast<int>(glngCategoryId));
        folder.FileTypeId(typeId);
        folder.Description(gstrFolderName);
        folder.ParentId(static_cast<int>(glngParentId));
        folder.IsFolder(true);
        return folder.Save();
    }
    cSourceCode folder(library->DatabasePath());
    folder.BeginEdit(0);
    folder.AuthorId(static_cast<int>(glngFolderAuthorId));
    folder.CategoryId(static_cast<int>(glngCategoryId));
    folder.Tested(static_cast<int>(gintCodeStatusId));
    folder.CodeTypeId(typeId);
    folder.DateWritten(QDateTime::currentDateTime());
    folder.Description(gstrFolderName);
    folder.ParentId(static_cast<int>(glngParentId));
    folder.IsFolder(true);
    return folder.Save();
}

} // namespace

void frmMain::connectMaintenance() {
    struct Route {
        QAction* action;
        const char* handler;
        void (frmMain::*member)();
    };
    const Route routes[] = {
        {mnuAddCategory, "mnuAddCategory_Click", &frmMain::mnuAddCategory_Click},
        {mnuAddFolder, "mnuAddFolder_Click", &frmMain::mnuAddFolder_Click},
        {mnuAddSourceFile, "mnuAddSourceFile_Click", &frmMain::mnuAddSourceFile_Click},
        {mnuRename, "mnuRename_Click", &frmMain::mnuRename_Click},
    };
    for (const Route& r : routes)
        Wire(this, r.action, &QAction::triggered, r.handler,
             [this, member = r.member] { (this->*member)(); });
    Wire(this, cmdOpenFile, &QPushButton::clicked, "cmdOpenFile_Click",
         [this] { cmdOpenFile_Click(); });
    Wire(this, cmdSaveFile, &QPushButton::clicked, "cmdSaveFile_Click",
         [this] { cmdSaveFile_Click(); });
}

void frmMain::mnuAddFolder_Click() {
    try {
        Node selected = tvwMain->SelectedItem();
        const QString key = selected ? selected.Key() : QString();
        if (!key.contains(QLatin1String("Folder")) && key != kRoot) {
            host().msgBox(
                QStringLiteral(
                    "Please click on a ''Folder'' or ''Root'' directory to add a folder."),
                vbInformation, QString::fromLatin1(APP_TITLE));
            if (selected)
                tvwMain_NodeClick(selected);
            host().setMousePointer(vbDefault);
            return;
        }
        host().setMousePointer(vbHourglass);
        ClearOriginalControls();
        ClearRevisionControls();
        ClearControlsSourceFileTab();
        glngParentId = key == kRoot ? 0 : IdOf(key);

        const FolderPlan plan = planFolder(key, tvwCategories->SelectedItem());
        if (!plan.valid) {
            host().setMousePointer(vbDefault);
            return;
        }
        gblnFolderAccepted = false;
        frmChooseFolderType& dialog = Forms::get<frmChooseFolderType>();
        if (!plan.filePreset.isEmpty())
            dialog.PresetFileFolder(plan.filePreset);
        else if (!plan.option.isEmpty())
            dialog.PresetOption(plan.option, plan.frameCaption);
        if (plan.typeId == 0)
            gstrFolderType.clear();
        const QPointer<frmMain> self(this);
        setEnabled(false);
        host().setMousePointer(vbDefault);
        dialog.Show(vbModal);
        if (!self)
            return;
        setEnabled(true);
        if (!gblnFolderAccepted) {
            host().setMousePointer(vbDefault);
            tvwMain->setFocus();
            return;
        }
        const int typeId = plan.typeId != 0 ? plan.typeId : typeOfFolderType(gstrFolderType);
        if (typeId == 0)
            return;

        ItemRow row;
        row.Id = saveFolder(typeId);
        row.ParentId = static_cast<int>(glngParentId);
        row.TypeId = typeId;
        row.Tested = plan.tested ? 1 : 2;
        row.IsFolder = true;
        Node node = tvwMain->Nodes.Add(selected, tvwChild, ItemKey(row), gstrFolderName,
                                       ItemImage(typeId, plan.tested, true));
        node.setTag(ItemTag(row));
        tvwMain->setSelectedItem(node);
        node.EnsureVisible();
        gstrClickButton = QStringLiteral("Left");
        tvwMain_NodeClick(node);
        tvwMain->setFocus();
        host().setMousePointer(vbDefault);
    } catch (...) {
        setEnabled(true);
        HandleFailure("frmMain:mnuAddFolder_Click;");
    }
}

void frmMain::mnuAddCategory_Click() {
    try {
        host().setMousePointer(vbHourglass);
        int id = 0;
        {
            const auto library = NewLibrary();
            host().doEvents();
            library->AddCategory(QStringLiteral("Adding Cat"), id);
            gobjLibrary.reset();
        }
        tvwClear(*tvwCategories);
        FillTreeViewCategory();
        Node node = tvwCategories->Nodes(CategoryKey(QString::number(id)));
        tvwCategories->setSelectedItem(node);
        node.setExpanded(true);
        tvwCategories_NodeClick(node);
        // The placeholder name stays until the person types another.
        tvwCategories->StartLabelEdit();
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmMain:mnuAddCategory_Click;");
    }
}

void frmMain::mnuRename_Click() {
    try {
        if (mstrActiveTree == QLatin1String("Cats")) {
            const Node selected = tvwCategories->SelectedItem();
            if (selected && selected.Text() == QLatin1String("Visual Basic")) {
                host().msgBox(QStringLiteral("''Visual Basic'' is the only ''Static Category'' "
                                             "and cannot be renamed."),
                              vbInformation, QString::fromLatin1(APP_TITLE));
                return;
            }
            tvwCategories->StartLabelEdit();
        } else {
            tvwMain->StartLabelEdit();
        }
    } catch (...) {
        HandleFailure("frmMain:mnuRename_Click;");
    }
}

void frmMain::InsertIntoFolder(const QString& strKey) {
    const bool files = strKey.contains(QLatin1String("Component"), Qt::CaseInsensitive) ||
                       strKey.contains(QLatin1String("Article"), Qt::CaseInsensitive);
    frmInsert& dialog = Forms::get<frmInsert>();
    if (files) {
        dialog.optSource->setText(QStringLiteral("Insert Source File"));
        dialog.optFolder->setText(QStringLiteral("Insert Source File Folder"));
    }
    const QPointer<frmMain> self(this);
    setEnabled(false);
    dialog.Show(vbModal);
    if (!self)
        return;
    setEnabled(true);
    if (gstrInsertChoice.isEmpty() || gblnInsertCancelled)
        return;
    // Each choice runs only while its button is on: the node's kind and the rights apply.
    if (gstrInsertChoice == QLatin1String("Add Folder")) {
        if (buttonOn("Add Folder"))
            mnuAddFolder->trigger();
    } else if (gstrInsertChoice == QLatin1String("Add Source Code")) {
        if (buttonOn("Add SourceCode"))
            mnuAddSourceCode->trigger();
    } else if (buttonOn("Add SourceFile")) {
        mnuAddSourceFile->trigger();
    }
}

} // namespace qs
