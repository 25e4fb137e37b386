#include "cFileVersionInfo.h"

#include "PeVersionParser.h"
#include "QsError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace qs {

namespace {

const char* const kNames[cFileVersionInfo::kEntryCount] = {
    "Company Name",          "Description",      "File Version",      "Fixed File Version",
    "Fixed Product Version", "Internal Name",    "Translation",       "Language",
    "Legal Copyright",       "Legal Trademarks", "Original Filename", "Product Name",
    "Product Version",       "Comments",         "File Type"};

void checkIndex(int index) {
    if (index < 0 || index >= cFileVersionInfo::kEntryCount)
        throw QsError(9, QStringLiteral("cFileVersionInfo:Entry;"),
                      QStringLiteral("Subscript out of range"));
}

QString dotted(quint32 ms, quint32 ls) {
    return QStringLiteral("%1.%2.%3.%4")
        .arg(ms >> 16)
        .arg(ms & 0xFFFF)
        .arg(ls >> 16)
        .arg(ls & 0xFFFF);
}

QString fileTypeName(quint32 type) {
    switch (type) {
    case 1:
        return QStringLiteral("Application");
    case 2:
        return QStringLiteral("Dynamic Link Library");
    case 3:
        return QStringLiteral("Device Driver");
    case 4:
        return QStringLiteral("Font");
    case 5:
        return QStringLiteral("Virtual Device");
    case 7:
        return QStringLiteral("Static Library");
    default:
        return {};
    }
}

struct Lang {
    quint16 id;
    const char* name;
};

// The languages of most version blocks met in practice; sublanguage first, then the primary.
const Lang kLanguages[] = {
    {0x0000, "Language Neutral"},
    {0x0400, "Process Default Language"},
    {0x0409, "English (United States)"},
    {0x0809, "English (United Kingdom)"},
    {0x0C09, "English (Australia)"},
    {0x1009, "English (Canada)"},
    {0x0407, "German (Germany)"},
    {0x0807, "German (Switzerland)"},
    {0x0C07, "German (Austria)"},
    {0x040C, "French (France)"},
    {0x0C0C, "French (Canada)"},
    {0x0410, "Italian (Italy)"},
    {0x0C0A, "Spanish (Spain)"},
    {0x040A, "Spanish (Traditional Sort)"},
    {0x080A, "Spanish (Mexico)"},
    {0x0413, "Dutch (Netherlands)"},
    {0x0416, "Portuguese (Brazil)"},
    {0x0816, "Portuguese (Portugal)"},
    {0x041D, "Swedish"},
    {0x0406, "Danish"},
    {0x0414, "Norwegian (Bokmal)"},
    {0x040B, "Finnish"},
    {0x0415, "Polish"},
    {0x0405, "Czech"},
    {0x040E, "Hungarian"},
    {0x0419, "Russian"},
    {0x0408, "Greek"},
    {0x041F, "Turkish"},
    {0x0411, "Japanese"},
    {0x0412, "Korean"},
    {0x0404, "Chinese (Taiwan)"},
    {0x0804, "Chinese (PRC)"},
    {0x040D, "Hebrew"},
    {0x0401, "Arabic (Saudi Arabia)"},
};

const Lang kPrimary[] = {{0x09, "English"},    {0x07, "German"},  {0x0C, "French"},
                         {0x10, "Italian"},    {0x0A, "Spanish"}, {0x13, "Dutch"},
                         {0x16, "Portuguese"}, {0x19, "Russian"}, {0x04, "Chinese"},
                         {0x01, "Arabic"}};

} // namespace

QString cFileVersionInfo::LanguageName(quint16 langId) {
    for (const Lang& l : kLanguages) {
        if (l.id == langId)
            return QString::fromLatin1(l.name);
    }
    for (const Lang& l : kPrimary) {
        if (l.id == (langId & 0x3FF))
            return QString::fromLatin1(l.name);
    }
    return QStringLiteral("%1").arg(langId, 4, 16, QLatin1Char('0')).toUpper();
}

cFileVersionInfo cFileVersionInfo::FromFile(const QString& path) {
    return FromBlock(PeVersionParser::ParseFile(path));
}

cFileVersionInfo cFileVersionInfo::FromBlock(const PeVersionBlock& block) {
    cFileVersionInfo info;
    if (!block.found)
        return info;
    info.mHas = true;
    QString* v = info.mValues;
    v[0] = block.value(QStringLiteral("CompanyName"));
    v[1] = block.value(QStringLiteral("FileDescription"));
    v[2] = block.value(QStringLiteral("FileVersion"));
    if (block.hasFixed) {
        v[3] = dotted(block.fileVersionMS, block.fileVersionLS);
        v[4] = dotted(block.productVersionMS, block.productVersionLS);
        v[14] = fileTypeName(block.fileType);
    }
    if (v[2].isEmpty())
        v[2] = v[3];
    v[5] = block.value(QStringLiteral("InternalName"));
    v[6] = block.tableKey;
    bool ok = false;
    const quint16 lang = block.tableKey.left(4).toUShort(&ok, 16);
    if (ok && block.tableKey.size() == 8)
        v[7] = LanguageName(lang);
    else if (!block.translations.isEmpty())
        v[7] = LanguageName(block.translations.first() & 0xFFFF);
    v[8] = block.value(QStringLiteral("LegalCopyright"));
    v[9] = block.value(QStringLiteral("LegalTrademarks"));
    v[10] = block.value(QStringLiteral("OriginalFilename"));
    v[11] = block.value(QStringLiteral("ProductName"));
    v[12] = block.value(QStringLiteral("ProductVersion"));
    if (v[12].isEmpty())
        v[12] = v[4];
    v[13] = block.value(QStringLiteral("Comments"));
    return info;
}

QString cFileVersionInfo::EntryName(int index) const {
    checkIndex(index);
    return QString::fromLatin1(kNames[index]);
}

QString cFileVersionInfo::EntryValue(int index) const {
    checkIndex(index);
    return mValues[index];
}

QString cFileVersionInfo::ToJson() const {
    if (!mHas)
        return {};
    QJsonArray values;
    for (const QString& v : mValues)
        values.append(v);
    QJsonObject root;
    root.insert(QStringLiteral("format"), 1);
    root.insert(QStringLiteral("values"), values);
    return QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Compact));
}

cFileVersionInfo cFileVersionInfo::FromJson(const QString& json) {
    cFileVersionInfo info;
    if (json.isEmpty())
        return info;
    const QJsonDocument doc = QJsonDocument::fromJson(json.toUtf8());
    const QJsonArray values = doc.object().value(QStringLiteral("values")).toArray();
    if (doc.object().value(QStringLiteral("format")).toInt() != 1 || values.size() != kEntryCount)
        return info;
    for (int i = 0; i < kEntryCount; ++i) {
        if (!values[i].isString())
            return {};
        info.mValues[i] = values[i].toString();
    }
    info.mHas = true;
    return info;
}

bool cFileVersionInfo::operator==(const cFileVersionInfo& other) const {
    if (mHas != other.mHas)
        return false;
    for (int i = 0; i < kEntryCount; ++i) {
        if (mValues[i] != other.mValues[i])
            return false;
    }
    return true;
}

} // namespace qs
