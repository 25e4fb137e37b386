#pragma once

#include "ItemRow.h"

#include <QString>

namespace qs::NodeKeys {

// The keys, tags and image keys of the main window's trees.  A node's key is the only record of
// what it stands for, and handlers take it apart again at every click, so every key is written
// and read here.

// Type codes, held as text and converted where they are compared.
inline constexpr int kArticle = 101;
inline constexpr int kComponent = 102;
inline constexpr int kCodeSnippet = 201;
inline constexpr int kTip = 202;
inline constexpr int kClassModule = 203;
inline constexpr int kGeneralModule = 204;

// True for codes below 200: the item lives in the "SourceFile" table.
bool IsSourceFileType(int typeId);
// "SourceFile" or "SourceCode".
QString TableOf(int typeId);

// ---- tvwCategories ----
QString CategoryKey(const QString& id);                            // "C" & id
QString FileTypeKey(int position, const QString& typeId);          // "FT" & i & typeId
QString TestedBranchKey(const QString& categoryKey);               // "Tested" & cat
QString UnTestedBranchKey(const QString& categoryKey);             // "UnTested" & cat
QString CodeTypeKey(bool tested, int position, const QString& id); // "CTested"/"CUntested" & i & id
// The image of a type node: "Article", "Component", "Class3", "Module", "Tip", or for a snippet
// "TestedSnippet" / "UnTestedSnippet"; empty for a description the tree leaves out.
QString TypeNodeImage(const QString& description, bool tested);
// The digit width W of the position in type-node keys: the number of digits of the upper bound
// of the category keys (6 from 100000 on).  Positions are written unpadded, so a key of one of
// the first nine categories is misread from ten categories on; the number comes from the key.
int DigitWidth(int upperBound);
// What stands after `skip` characters of `key` (Mid from skip + 1).
QString After(const QString& key, int skip);

// ---- tvwMain ----
// "SF" for stored files, "SC" for code.
QString Prefix(int typeId);
// The kind word of a row ("ClassUnTested", "ArticleFolder", ...); empty for a code the trees
// skip.
QString KindWord(int typeId, bool tested, bool folder);
// The image of an item row: "ClosedFolder" for every folder.
QString ItemImage(int typeId, bool tested, bool folder);
// Key (prefix & id & kind) and tag (prefix & parent id & kind) of a row; empty when skipped.
QString ItemKey(const ItemRow& row);
QString ItemTag(const ItemRow& row);
// The tag of a text item the add window has just made: ItemTag, except that an untested general
// module is tagged with the tested word ("SC" & parent & "ModuleTested"), as it always has been.
QString AddedItemTag(const ItemRow& row);
// The key of the parent a tag names: "ROOT" when its first three characters are "SC0" or "SF0",
// otherwise the tag with "Folder" appended unless it holds that word already.  Empty for an
// empty tag (the root).
QString ParentKeyOfTag(const QString& tag);

// ---- tvwBookMarks and tvwSearchResults ----
QString BookmarkKey(int typeId, int id); // "SF" & id or "SC" & id
QString BookmarkImage(int typeId, int tested);
QString SearchKey(int typeId, int id); // "SRCHSF" & id or "SRCHSC" & id

// ---- Module outline ----
QString OutlineGroupKey(int moduleId, const QString& itemKey, const QString& groupWord);
QString OutlineMemberKey(int moduleId, const QString& itemKey, const QString& memberWord, int n);

// ---- Reading ----
// A module member (the key holds "NoDrag", any case): never an item, a drop target or a thing to
// edit.
bool IsModuleMember(const QString& key);
// "SC" or "SF": the first two characters, after "SRCH" in the search tree.
QString Family(const QString& key);
// The database id: after the family prefix, the digits before the first letter (all of them for
// a bookmark key, which has no kind word); 0 when there is none.
int IdOf(const QString& key);
// The type code a key names: "Code" 201, "Tip" 202, "Class" 203, "Module" 204, "Article" 101,
// "Component" 102, tested in that order with the last match winning; 0 for none.
int TypeCodeOf(const QString& key);
// The name of a type code as the selection globals carry it ("Code Snippet", "Tip",
// "Class Module", "General Module", "Article", "Component"); empty for any other code.
QString TypeName(int typeId);
// A folder: the image is "ClosedFolder" or "OpenFolder", or the key holds "Folder".
bool IsFolder(const QString& key, const QString& image);
// An item's image: "TestedSnippet", "UnTestedSnippet", "Tip", "Class3", "Module", "Article",
// "Component".
bool IsItemImage(const QString& image);
// "Article" or "Component".
bool IsSourceFileImage(const QString& image);
// True for a tested row (Tested is 1; any other value is untested).
inline bool IsTested(int tested) {
    return tested == 1;
}

} // namespace qs::NodeKeys
