#include "cCodeParser.h"

#include "QsError.h"
#include "mErrorHandling.h"

#include <QStringView>

namespace qs {

namespace {

// The member keywords, in the order of the lists they feed.
enum class Keyword { None, Function, Sub, Declare, Type, Enum, Const, Property };

Keyword keywordOf(QStringView word) {
    switch (word.size()) {
    case 3:
        return word == u"Sub" ? Keyword::Sub : Keyword::None;
    case 4:
        if (word == u"Type")
            return Keyword::Type;
        if (word == u"Enum")
            return Keyword::Enum;
        return Keyword::None;
    case 5:
        return word == u"Const" ? Keyword::Const : Keyword::None;
    case 7:
        return word == u"Declare" ? Keyword::Declare : Keyword::None;
    case 8:
        if (word == u"Function")
            return Keyword::Function;
        if (word == u"Property")
            return Keyword::Property;
        return Keyword::None;
    default:
        return Keyword::None;
    }
}

// The line that closes a member opened by `keyword`, blanks around it aside.
QStringView closingLine(Keyword keyword) {
    switch (keyword) {
    case Keyword::Function:
        return u"End Function";
    case Keyword::Sub:
        return u"End Sub";
    case Keyword::Type:
        return u"End Type";
    case Keyword::Enum:
        return u"End Enum";
    case Keyword::Property:
        return u"End Property";
    default:
        return {};
    }
}

bool isScopeWord(QStringView word) {
    return word == u"Public" || word == u"Private" || word == u"Friend" || word == u"Global" ||
           word == u"Dim";
}

// Piece 0 of the line split at single blanks: everything before the first blank.  A tab is no
// separator.
QStringView firstPiece(QStringView line) {
    const qsizetype blank = line.indexOf(u' ');
    return blank < 0 ? line : line.left(blank);
}

// Piece 1 of the line split at single blanks: what stands between the first blank and the next.
// A line without a blank has no piece 1, which is the scanner's one way to fail.
QStringView secondPiece(QStringView line) {
    const qsizetype first = line.indexOf(u' ');
    if (first < 0)
        throw QsError(9, QString::fromLatin1(kAppSource), QStringLiteral("Subscript out of range"));
    const qsizetype next = line.indexOf(u' ', first + 1);
    return next < 0 ? line.mid(first + 1) : line.mid(first + 1, next - first - 1);
}

// The line without blanks at either end; tabs stay.
QStringView trimBlanks(QStringView line) {
    qsizetype first = 0;
    qsizetype last = line.size();
    while (first < last && line[first] == u' ')
        ++first;
    while (last > first && line[last - 1] == u' ')
        --last;
    return line.mid(first, last - first);
}

// Calls `scan` for each line of `text`, as printing the text to a file (which puts one line end
// behind it) and reading the file back line by line gives them: CR LF, a lone LF and a lone CR
// each end a line, and whatever follows the last line end is one more line, also when empty.
template <class Scan> void forEachLine(QStringView text, Scan&& scan) {
    const qsizetype size = text.size();
    const char16_t* const chars = text.utf16();
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = chars[i];
        if (c != u'\r' && c != u'\n')
            continue;
        scan(text.mid(start, i - start));
        if (c == u'\r' && i + 1 < size && chars[i + 1] == u'\n')
            ++i;
        start = i + 1;
    }
    scan(text.mid(start));
}

} // namespace

void cCodeParser::ParseSourceCode(const QString& code) {
    try {
        // The scanner's words are views into this copy, so they stay valid across lines.
        const QString text = code;
        for (MemberList* list : {&mFunctions, &mSubs, &mAPIDeclares, &mTypes, &mEnums, &mConstants,
                                 &mModuleVars, &mProperties})
            list->reset();
        MemberList* const lists[] = {nullptr, &mFunctions, &mSubs,      &mAPIDeclares,
                                     &mTypes, &mEnums,     &mConstants, &mProperties};

        QStringView word; // survives an empty line
        Keyword current = Keyword::None;
        bool isNew = true;
        forEachLine(text, [&](QStringView line) {
            if (!line.isEmpty())
                word = firstPiece(line);
            // Only one scope word is passed over.
            if (isScopeWord(word))
                word = secondPiece(line);
            // Runs inside a member too: an unindented keyword line switches the list.
            const Keyword keyword = keywordOf(word);
            if (keyword != Keyword::None)
                current = keyword;
            if (current == Keyword::None)
                return;

            MemberList& list = *lists[int(current)];
            if (isNew)
                list.addElement();
            list.appendLine(line);

            if (current == Keyword::Declare || current == Keyword::Const) {
                // Continued only by a last character "_"; a blank behind it breaks it.
                if (line.endsWith(u'_')) {
                    isNew = false;
                } else {
                    word = QStringView();
                    current = Keyword::None;
                    isNew = true;
                }
            } else if (trimBlanks(line) == closingLine(current)) {
                current = Keyword::None;
                isNew = true;
            } else {
                isNew = false;
            }
        });
    } catch (...) {
        HandleFailure("cCodeParserParseCode;");
    }
}

} // namespace qs
