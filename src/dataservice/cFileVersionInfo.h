#pragma once

#include <QString>

namespace qs {

struct PeVersionBlock;

// The version block of an executable file, captured when the file is stored.
//
// Entries, numbered 0 to 14 (EntryName / EntryValue):
//    0 "Company Name"            CompanyName string
//    1 "Description"             FileDescription string
//    2 "File Version"            FileVersion string, else the binary file version
//    3 "Fixed File Version"      binary file version a.b.c.d (a duplicate of 2; not listed)
//    4 "Fixed Product Version"   binary product version a.b.c.d (a duplicate of 12; not listed)
//    5 "Internal Name"           InternalName string
//    6 "Translation"             raw language and code page key, "040904B0" (7 reads it)
//    7 "Language"                the language of the strings by name, "English (United States)"
//    8 "Legal Copyright"         LegalCopyright string
//    9 "Legal Trademarks"        LegalTrademarks string
//   10 "Original Filename"       OriginalFilename string
//   11 "Product Name"            ProductName string
//   12 "Product Version"         ProductVersion string, else the binary product version
//   13 "Comments"                Comments string
//   14 "File Type"               kind of image from the binary block: "Application",
//                                "Dynamic Link Library", "Device Driver", "Font",
//                                "Virtual Device", "Static Library"
// The entries 3, 4 and 6 are the raw forms of values that other entries already show readably.
class cFileVersionInfo {
public:
    static constexpr int kEntryCount = 15;

    cFileVersionInfo() = default;
    // The block of the file at path; a file that isn't a PE image, or has no block, gives an
    // object whose HasVersionInfo is False.
    static cFileVersionInfo FromFile(const QString& path);
    static cFileVersionInfo FromBlock(const PeVersionBlock& block);

    bool HasVersionInfo() const { return mHas; }
    QString FileDescription() const { return mValues[1]; }
    QString FileVersion() const { return mValues[2]; }
    QString LegalCopyright() const { return mValues[8]; }

    // Index outside 0..14 raises error 9, "Subscript out of range".
    QString EntryName(int index) const;
    QString EntryValue(int index) const;

    // Storage form of the block, {"format":1,"values":[15 strings]}, read back by FromJson; an
    // object without version information gives "", and "" or a damaged text gives such an object.
    QString ToJson() const;
    static cFileVersionInfo FromJson(const QString& json);

    // The name Windows gives a language id, "English (United States)"; the id in hex when unknown.
    static QString LanguageName(quint16 langId);

    bool operator==(const cFileVersionInfo& other) const;

private:
    bool mHas = false;
    QString mValues[kEntryCount];
};

} // namespace qs
