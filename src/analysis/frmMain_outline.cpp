// The outline of a class or module in the item trees: its member lists as group and member
// nodes under the item, and the click on such a node that shows the group or the member.

#include "frmMain.h"

#include "Globals.h"
#include "Host.h"
#include "NodeKeys.h"
#include "OutlineNames.h"
#include "RichTextBox.h"
#include "TreeView.h"
#include "cCodeParser.h"
#include "cLibraryService.h"
#include "mErrorHandling.h"

#include <QLabel>
#include <memory>

namespace qs {

namespace {

enum class NameRule { Constant, Variable, Type, Enum, Declare, Procedure, Property };

struct OutlineList {
    MemberList frmMain::*array;
    MemberList (cCodeParser::*list)() const;
    const char* groupText;
    const char* groupWord;
    const char* memberWord;
    const char* image;
    NameRule rule;
};

// In the order the lists are read and their groups stand under the item.
const OutlineList kLists[] = {
    {&frmMain::marrConstants, &cCodeParser::Constants, "Constants", "ConstantsNoDrag",
     "ConstantNoDrag", "Constant", NameRule::Constant},
    {&frmMain::marrModuleVars, &cCodeParser::ModuleVars, "ModuleVars", "ModuleVarsNoDrag",
     "ModuleVarNoDrag", "", NameRule::Variable},
    {&frmMain::marrTypes, &cCodeParser::Types, "Types", "TypesNoDrag", "TypeNoDrag", "Type1",
     NameRule::Type},
    {&frmMain::marrEnums, &cCodeParser::Enums, "Enums", "EnumsNoDrag", "EnumNoDrag", "Enum",
     NameRule::Enum},
    {&frmMain::marrAPIDeclares, &cCodeParser::APIDeclares, "APIDeclares", "APIDeclaresNoDrag",
     "APIDeclareNoDrag", "API", NameRule::Declare},
    {&frmMain::marrProperties, &cCodeParser::Properties, "Properties", "PropertiesNoDrag",
     "PropertyNoDrag", "Property", NameRule::Property},
    {&frmMain::marrFunctions, &cCodeParser::Functions, "Functions", "FunctionsNoDrag",
     "FunctionNoDrag", "Function", NameRule::Procedure},
    {&frmMain::marrSubs, &cCodeParser::Subs, "Subs", "SubsNoDrag", "SubNoDrag", "Sub",
     NameRule::Procedure},
};

QString memberName(NameRule rule, const QString& element, bool stripGlobal) {
    using namespace OutlineNames;
    switch (rule) {
    case NameRule::Constant:
        return ConstantName(element, stripGlobal);
    case NameRule::Variable:
        return VariableName(element);
    case NameRule::Type:
        return TypeOrEnumName(element, QStringLiteral("Type"));
    case NameRule::Enum:
        return TypeOrEnumName(element, QStringLiteral("Enum"));
    case NameRule::Declare:
        return DeclareName(element);
    case NameRule::Property:
        return PropertyName(element);
    case NameRule::Procedure:
        break;
    }
    return ProcedureName(element);
}

// The digits at the start of `text`, as a number (0 when there are none).
long leadingNumber(const QString& text) {
    int digits = 0;
    while (digits < text.size() && text.at(digits).isDigit())
        ++digits;
    return text.left(digits).toLong();
}

} // namespace

void frmMain::ParseModule(const QString& strCode, long lngId) {
    try {
        buildOutline(*tvwMain, strCode, lngId, true);
    } catch (...) {
        HandleFailure("frmMain:ParseModule;");
    }
}

void frmMain::ParseModuleBk(const QString& strCode, long lngId) {
    try {
        buildOutline(*tvwBookMarks, strCode, lngId, false);
    } catch (...) {
        HandleFailure("frmMain:ParseModuleBk;");
    }
}

void frmMain::ParseModuleSrch(const QString& strCode, long lngId) {
    try {
        buildOutline(*tvwSearchResults, strCode, lngId, false);
    } catch (...) {
        HandleFailure("frmMain:ParseModuleSrch;");
    }
}

void frmMain::buildOutline(TreeView& tree, const QString& code, long lngId, bool stripGlobal) {
    // The pointer stays: the click that started the load puts it back at its end.
    host().setMousePointer(vbHourglass);
    host().doEvents();
    auto parser = std::make_unique<cCodeParser>();
    parser->ParseSourceCode(code);
    Node item = tree.SelectedItem();
    const QString itemKey = item.Key();
    // The groups stand in the order of the lists: the sorting an item got at the fill reaches
    // only the children it had then.
    item.setSorted(false);
    const int id = static_cast<int>(lngId);
    // A name rule that fails leaves the nodes made so far; the item then has children, so the
    // outline is not tried again.
    for (const OutlineList& list : kLists) {
        MemberList& members = this->*list.array;
        members = ((*parser).*list.list)();
        if (members.LBound() < 1)
            continue;
        const QString image = QString::fromLatin1(list.image);
        Node group = tree.Nodes.Add(
            item, tvwChild, NodeKeys::OutlineGroupKey(id, itemKey, QLatin1String(list.groupWord)),
            QString::fromLatin1(list.groupText), image);
        group.setSorted(true);
        for (int n = 1; n <= members.UBound(); ++n) {
            const QString& element = members(n);
            if (element.isEmpty())
                continue;
            tree.Nodes.Add(
                group, tvwChild,
                NodeKeys::OutlineMemberKey(id, itemKey, QLatin1String(list.memberWord), n),
                memberName(list.rule, element, stripGlobal), image);
        }
    }
}

void frmMain::GetArrays(long lngId) {
    try {
        const auto library = NewLibrary();
        const cSourceCode record = library->GetSourceCode(static_cast<int>(lngId));
        cCodeParser parser;
        parser.ParseSourceCode(record.Code());
        for (const OutlineList& list : kLists)
            this->*list.array = (parser.*list.list)();
    } catch (...) {
        HandleFailure("frmMain:GetArrays;");
    }
}

void frmMain::OutlineNodeClick(const Node& node, void (frmMain::*loader)(long)) {
    const QString key = node.Key();
    const long id = leadingNumber(key.left(key.indexOf(QLatin1Char('_'))));
    mblnChildClick = true;
    (this->*loader)(id);
    mblnChildClick = false;
    GetArrays(id);
    // A key holds one of the sixteen words; every word is tried, group before member.
    for (const OutlineList& list : kLists) {
        const MemberList& members = this->*list.array;
        if (key.contains(QLatin1String(list.groupWord), Qt::CaseInsensitive)) {
            RichTextBoxCode->setText(QString());
            QString joined;
            for (int n = 1; n <= members.UBound(); ++n) {
                if (!joined.isEmpty())
                    joined += QLatin1String("\r\n");
                joined += members(n);
            }
            RichTextBoxCode->setText(joined);
            lblCodeSnipDescr->setText(node.Text());
        }
        if (key.contains(QLatin1String(list.memberWord), Qt::CaseInsensitive)) {
            const QString tail =
                key.mid(key.indexOf(QLatin1String("NoDrag"), 0, Qt::CaseInsensitive));
            const int index = static_cast<int>(leadingNumber(tail.mid(tail.indexOf('g') + 1)));
            RichTextBoxCode->setText(members(index));
            lblCodeSnipDescr->setText(node.Text());
        }
    }
}

} // namespace qs
