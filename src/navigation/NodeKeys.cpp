#include "NodeKeys.h"

#include "mStrings.h"

#include <QStringList>

namespace qs::NodeKeys {

namespace {

const QString kRoot = QStringLiteral("ROOT");

bool holds(const QString& text, const QString& word) {
    return text.contains(word, Qt::CaseInsensitive);
}

// The word of a code type in kind words, empty for a code the trees skip.
QString typeWord(int typeId) {
    switch (typeId) {
    case kArticle:
        return QStringLiteral("Article");
    case kComponent:
        return QStringLiteral("Component");
    case kCodeSnippet:
        return QStringLiteral("Code");
    case kTip:
        return QStringLiteral("Tip");
    case kClassModule:
        return QStringLiteral("Class");
    case kGeneralModule:
        return QStringLiteral("Module");
    default:
        return QString();
    }
}

} // namespace

bool IsSourceFileType(int typeId) {
    return typeId < 200;
}

QString TableOf(int typeId) {
    return IsSourceFileType(typeId) ? QStringLiteral("SourceFile") : QStringLiteral("SourceCode");
}

QString CategoryKey(const QString& id) {
    return QLatin1Char('C') + id;
}

QString FileTypeKey(int position, const QString& typeId) {
    return QStringLiteral("FT") + QString::number(position) + typeId;
}

QString TestedBranchKey(const QString& categoryKey) {
    return QStringLiteral("Tested") + categoryKey;
}

QString UnTestedBranchKey(const QString& categoryKey) {
    return QStringLiteral("UnTested") + categoryKey;
}

QString CodeTypeKey(bool tested, int position, const QString& id) {
    return (tested ? QStringLiteral("CTested") : QStringLiteral("CUntested")) +
           QString::number(position) + id;
}

QString TypeNodeImage(const QString& description, bool tested) {
    if (description == QLatin1String("Article") || description == QLatin1String("Component"))
        return description;
    if (description == QLatin1String("Class Module"))
        return QStringLiteral("Class3");
    if (description == QLatin1String("General Module"))
        return QStringLiteral("Module");
    if (description == QLatin1String("Tip"))
        return QStringLiteral("Tip");
    if (description == QLatin1String("Code Snippet"))
        return tested ? QStringLiteral("TestedSnippet") : QStringLiteral("UnTestedSnippet");
    return QString();
}

int DigitWidth(int upperBound) {
    if (upperBound < 10)
        return 1;
    if (upperBound <= 99)
        return 2;
    if (upperBound <= 999)
        return 3;
    if (upperBound <= 9999)
        return 4;
    if (upperBound <= 99999)
        return 5;
    return 6;
}

QString After(const QString& key, int skip) {
    return skip >= key.size() ? QString() : key.mid(skip);
}

QString Prefix(int typeId) {
    return IsSourceFileType(typeId) ? QStringLiteral("SF") : QStringLiteral("SC");
}

QString KindWord(int typeId, bool tested, bool folder) {
    QString word = typeWord(typeId);
    if (word.isEmpty())
        return word;
    if (!IsSourceFileType(typeId))
        word += tested ? QStringLiteral("Tested") : QStringLiteral("UnTested");
    if (folder)
        word += QStringLiteral("Folder");
    return word;
}

QString ItemImage(int typeId, bool tested, bool folder) {
    if (typeWord(typeId).isEmpty())
        return QString();
    if (folder)
        return QStringLiteral("ClosedFolder");
    switch (typeId) {
    case kCodeSnippet:
        return tested ? QStringLiteral("TestedSnippet") : QStringLiteral("UnTestedSnippet");
    case kClassModule:
        return QStringLiteral("Class3");
    default: // "Article", "Component", "Tip" and "Module" are their own words
        return typeWord(typeId);
    }
}

QString ItemKey(const ItemRow& row) {
    const QString kind = KindWord(row.TypeId, IsTested(row.Tested), row.IsFolder);
    return kind.isEmpty() ? kind : Prefix(row.TypeId) + QString::number(row.Id) + kind;
}

QString ItemTag(const ItemRow& row) {
    const QString kind = KindWord(row.TypeId, IsTested(row.Tested), row.IsFolder);
    return kind.isEmpty() ? kind : Prefix(row.TypeId) + QString::number(row.ParentId) + kind;
}

QString AddedItemTag(const ItemRow& row) {
    if (row.TypeId != kGeneralModule || row.IsFolder)
        return ItemTag(row);
    ItemRow tested = row;
    tested.Tested = 1;
    return ItemTag(tested);
}

QString ParentKeyOfTag(const QString& tag) {
    if (tag.isEmpty())
        return tag;
    const QString head = tag.left(3);
    if (head == QLatin1String("SC0") || head == QLatin1String("SF0"))
        return kRoot;
    return tag.contains(QLatin1String("Folder")) ? tag : tag + QStringLiteral("Folder");
}

QString BookmarkKey(int typeId, int id) {
    return Prefix(typeId) + QString::number(id);
}

QString BookmarkImage(int typeId, int tested) {
    return ItemImage(typeId, IsTested(tested), false);
}

QString SearchKey(int typeId, int id) {
    return QStringLiteral("SRCH") + BookmarkKey(typeId, id);
}

QString OutlineGroupKey(int moduleId, const QString& itemKey, const QString& groupWord) {
    return QString::number(moduleId) + QLatin1Char('_') + itemKey + groupWord;
}

QString OutlineMemberKey(int moduleId, const QString& itemKey, const QString& memberWord, int n) {
    return OutlineGroupKey(moduleId, itemKey, memberWord) + QString::number(n);
}

bool IsModuleMember(const QString& key) {
    return holds(key, QStringLiteral("NoDrag"));
}

QString Family(const QString& key) {
    const int start = key.startsWith(QLatin1String("SRCH")) ? 4 : 0;
    return key.mid(start, 2);
}

int IdOf(const QString& key) {
    const int start = key.startsWith(QLatin1String("SRCH")) ? 4 : 0;
    const QString rest = key.mid(start + 2);
    const int letter = FirstAlphaCharacter(rest);
    return (letter > 0 ? rest.left(letter - 1) : rest).trimmed().toInt();
}

int TypeCodeOf(const QString& key) {
    static const struct {
        const char* word;
        int code;
    } kWords[] = {{"Code", kCodeSnippet},     {"Tip", kTip},         {"Class", kClassModule},
                  {"Module", kGeneralModule}, {"Article", kArticle}, {"Component", kComponent}};
    int code = 0;
    for (const auto& w : kWords)
        if (holds(key, QLatin1String(w.word)))
            code = w.code;
    return code;
}

QString TypeName(int typeId) {
    switch (typeId) {
    case kCodeSnippet:
        return QStringLiteral("Code Snippet");
    case kClassModule:
        return QStringLiteral("Class Module");
    case kGeneralModule:
        return QStringLiteral("General Module");
    default: // "Article", "Component" and "Tip" are their own words
        return typeWord(typeId);
    }
}

bool IsFolder(const QString& key, const QString& image) {
    return image == QLatin1String("ClosedFolder") || image == QLatin1String("OpenFolder") ||
           key.contains(QLatin1String("Folder"));
}

bool IsItemImage(const QString& image) {
    static const QStringList kImages = {
        QStringLiteral("TestedSnippet"), QStringLiteral("UnTestedSnippet"),
        QStringLiteral("Tip"),           QStringLiteral("Class3"),
        QStringLiteral("Module"),        QStringLiteral("Article"),
        QStringLiteral("Component")};
    return kImages.contains(image);
}

bool IsSourceFileImage(const QString& image) {
    return image == QLatin1String("Article") || image == QLatin1String("Component");
}

} // namespace qs::NodeKeys
