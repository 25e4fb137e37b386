#pragma once

#include "MemberList.h"

#include <QString>

namespace qs {

// Splits the text of a Visual Basic module (the body of a .bas, .cls or .frm file) into lists of
// member texts.  A line scanner, not a language parser: it looks at the first one or two
// blank-separated words of a line and at its last character, nothing else.  An object serves
// one parse: ParseSourceCode, then the getters, then release.
//
// Each member text is the member's lines, each behind a carriage return and line feed, so it
// starts with a line end and has none behind its last line.
class cCodeParser {
public:
    // Replaces the contents of all eight lists with the members of `code`.  A failure is reported
    // under "cCodeParserParseCode;" and leaves the lists as far as they were filled.
    void ParseSourceCode(const QString& code);

    MemberList Functions() const { return mFunctions; }
    MemberList Subs() const { return mSubs; }
    MemberList APIDeclares() const { return mAPIDeclares; }
    MemberList Types() const { return mTypes; }
    MemberList Enums() const { return mEnums; }
    MemberList Constants() const { return mConstants; }
    // Nothing is ever collected here; the list stays at bounds 0 to 0.
    MemberList ModuleVars() const { return mModuleVars; }
    MemberList Properties() const { return mProperties; }

private:
    MemberList mFunctions;
    MemberList mSubs;
    MemberList mAPIDeclares;
    MemberList mTypes;
    MemberList mEnums;
    MemberList mConstants;
    MemberList mModuleVars;
    MemberList mProperties;
};

} // namespace qs
