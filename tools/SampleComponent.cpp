#include "SampleComponent.h"

namespace qs::sample {

namespace {

void put16(QByteArray& b, int at, quint32 v) {
    b[at] = char(v & 0xFF);
    b[at + 1] = char((v >> 8) & 0xFF);
}

void put32(QByteArray& b, int at, quint32 v) {
    put16(b, at, v & 0xFFFF);
    put16(b, at + 2, v >> 16);
}

void pad4(QByteArray& b) {
    while (b.size() % 4)
        b.append('\0');
}

QByteArray utf16z(const QString& s) {
    QByteArray b;
    for (QChar c : s) {
        b.append(char(c.unicode() & 0xFF));
        b.append(char(c.unicode() >> 8));
    }
    b.append(2, '\0');
    return b;
}

// One node of the version tree: length, value length, type, key, then value and children,
// each on a four-byte boundary.
QByteArray node(const QString& key, const QByteArray& value, quint16 valueLength, quint16 type,
                const QVector<QByteArray>& children = {}) {
    QByteArray b(6, '\0');
    b += utf16z(key);
    pad4(b);
    b += value;
    for (const QByteArray& child : children) {
        pad4(b);
        b += child;
    }
    put16(b, 0, quint32(b.size()));
    put16(b, 2, valueLength);
    put16(b, 4, type);
    return b;
}

constexpr int kPeOffset = 0x80;
constexpr int kSectionOffset = 0x200; // file offset of .rsrc
constexpr quint32 kSectionAddress = 0x1000;
constexpr int kDirectories = 0x58; // three directory levels and one data entry

} // namespace

QByteArray ComponentImage(const quint16 (&fileVersion)[4],
                          const QVector<QPair<QString, QString>>& strings) {
    QByteArray fixed(52, '\0');
    const quint32 ms = quint32(fileVersion[0]) << 16 | fileVersion[1];
    const quint32 ls = quint32(fileVersion[2]) << 16 | fileVersion[3];
    // Signature, structure version, file and product versions, flags mask, flags, OS (NT,
    // Windows 32), type (DLL), subtype, date.
    const quint32 words[13] = {0xFEEF04BD, 0x00010000, ms, ls, ms, ls, 0x3F,
                               0,          0x00040004, 2,  0,  0,  0};
    for (int i = 0; i < 13; ++i)
        put32(fixed, i * 4, words[i]);
    QVector<QByteArray> entries;
    for (const auto& s : strings)
        entries.append(node(s.first, utf16z(s.second), quint16(s.second.size() + 1), 1));
    const QByteArray table = node(QStringLiteral("040904B0"), {}, 0, 1, entries);
    QByteArray translation(4, '\0');
    put32(translation, 0, 0x04B00409); // US English, Unicode
    const QByteArray version =
        node(QStringLiteral("VS_VERSION_INFO"), fixed, quint16(fixed.size()), 0,
             {node(QStringLiteral("StringFileInfo"), {}, 0, 1, {table}),
              node(QStringLiteral("VarFileInfo"), {}, 0, 1,
                   {node(QStringLiteral("Translation"), translation, 4, 0)})});

    // Resource directories: type 16 (version), name 1, language 0x409, then the data entry.
    QByteArray rsrc(kDirectories, '\0');
    put16(rsrc, 0x0E, 1);
    put32(rsrc, 0x10, 16);
    put32(rsrc, 0x14, 0x80000000u | 0x18);
    put16(rsrc, 0x18 + 0x0E, 1);
    put32(rsrc, 0x18 + 0x10, 1);
    put32(rsrc, 0x18 + 0x14, 0x80000000u | 0x30);
    put16(rsrc, 0x30 + 0x0E, 1);
    put32(rsrc, 0x30 + 0x10, 0x0409);
    put32(rsrc, 0x30 + 0x14, 0x48);
    put32(rsrc, 0x48, kSectionAddress + kDirectories);
    put32(rsrc, 0x4C, quint32(version.size()));
    rsrc += version;
    pad4(rsrc);
    const int rawSize = (int(rsrc.size()) + 0x1FF) & ~0x1FF;
    rsrc.append(rawSize - rsrc.size(), '\0');

    // DOS stub header, PE signature, file header, optional header, one section header.
    constexpr int kOptionalSize = 224;
    QByteArray image(kSectionOffset, '\0');
    image[0] = 'M';
    image[1] = 'Z';
    put32(image, 0x3C, kPeOffset);
    image.replace(kPeOffset, 4, QByteArray("PE\0\0", 4));
    const int coff = kPeOffset + 4;
    put16(image, coff, 0x14C); // i386
    put16(image, coff + 2, 1); // one section
    put16(image, coff + 16, kOptionalSize);
    put16(image, coff + 18, 0x2102); // executable, 32-bit, DLL
    const int optional = coff + 20;
    put16(image, optional, 0x10B);                         // PE32
    put32(image, optional + 28, 0x10000000);               // image base
    put32(image, optional + 32, 0x1000);                   // section alignment
    put32(image, optional + 36, 0x200);                    // file alignment
    put16(image, optional + 40, 4);                        // operating system 4.0
    put16(image, optional + 48, 4);                        // subsystem 4.0
    put32(image, optional + 56, kSectionAddress + 0x1000); // size of image
    put32(image, optional + 60, kSectionOffset);           // size of headers
    put16(image, optional + 68, 2);                        // Windows GUI
    put32(image, optional + 92, 16);                       // data directories
    put32(image, optional + 96 + 2 * 8, kSectionAddress);  // resource directory
    put32(image, optional + 96 + 2 * 8 + 4, quint32(rsrc.size()));
    const int section = optional + kOptionalSize;
    image.replace(section, 6, QByteArray(".rsrc\0", 6));
    put32(image, section + 8, quint32(rsrc.size()));
    put32(image, section + 12, kSectionAddress);
    put32(image, section + 16, quint32(rawSize));
    put32(image, section + 20, kSectionOffset);
    put32(image, section + 36, 0x40000040); // initialised data, readable
    return image + rsrc;
}

} // namespace qs::sample
