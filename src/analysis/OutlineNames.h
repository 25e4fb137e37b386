#pragma once

#include <QString>

namespace qs::OutlineNames {

// The name a member of a module outline shows, worked out of the member's text as the parser
// stored it (a line end in front).  The rules are tuned to the usual layout of a module and
// keep their results at other layouts.  A text a rule cannot take apart raises 5 "Invalid
// procedure call or argument": a constant with no blank left, a declaration with no " Lib ", a
// procedure with no "(".

// Constant: the leading line end off, then the words "Private ", "Public ", "Global " (only with
// stripGlobal) and "Const " in that order where the text begins with them; the name is what
// stands before the first blank.
QString ConstantName(const QString& element, bool stripGlobal);
// Variable: what follows the first blank, up to the next blank.
QString VariableName(const QString& element);
// Type or enumeration (keyword "Type" or "Enum"): what follows the keyword, cut behind the
// first blank, and less three characters when a line end is still on it; a header with a
// comment behind it keeps a blank on the name.
QString TypeOrEnumName(const QString& element, const QString& keyword);
// Declaration: the word in front of " Lib ".
QString DeclareName(const QString& element);
// Procedure: the word in front of the first "(".
QString ProcedureName(const QString& element);
// Property: the procedure name, with "Get " and then "Let " put in front when the text holds
// "Property Get" or "Property Let"; a Property Set shows its bare name.
QString PropertyName(const QString& element);

} // namespace qs::OutlineNames
