#include "PeImageBuilder.h"

namespace qs::test {

namespace {

void put16(QByteArray& b, int off, quint32 v) {
    b[off] = char(v & 0xFF);
    b[off + 1] = char((v >> 8) & 0xFF);
}

void put32(QByteArray& b, int off, quint32 v) {
    put16(b, off, v & 0xFFFF);
    put16(b, off + 2, v >> 16);
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

} // namespace

QByteArray PeImageBuilder::Node(const QString& key, const QByteArray& value, quint16 valueLength,
                                quint16 type, const QVector<QByteArray>& children) {
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

QByteArray PeImageBuilder::StringNode(const QString& key, const QString& value) {
    return Node(key, utf16z(value), quint16(value.size() + 1), 1);
}

QByteArray PeImageBuilder::Build(const PeImageSpec& spec) {
    // Version tree.
    QByteArray fixed;
    if (spec.withFixed) {
        fixed = QByteArray(52, '\0');
        const quint32 words[13] = {0xFEEF04BD,
                                   0x00010000,
                                   spec.fileVersionMS,
                                   spec.fileVersionLS,
                                   spec.productVersionMS,
                                   spec.productVersionLS,
                                   0x3F,
                                   0,
                                   0x00040004,
                                   spec.fileType,
                                   0,
                                   0,
                                   0};
        for (int i = 0; i < 13; ++i)
            put32(fixed, i * 4, words[i]);
    }
    QVector<QByteArray> top;
    if (!spec.tables.isEmpty()) {
        QVector<QByteArray> tables;
        for (const auto& table : spec.tables) {
            QVector<QByteArray> strings;
            for (const auto& s : table.second)
                strings.append(StringNode(s.first, s.second));
            tables.append(Node(table.first, {}, 0, 1, strings));
        }
        top.append(Node(QStringLiteral("StringFileInfo"), {}, 0, 1, tables));
    }
    if (!spec.translations.isEmpty()) {
        QByteArray value(spec.translations.size() * 4, '\0');
        for (int i = 0; i < spec.translations.size(); ++i)
            put32(value, i * 4, spec.translations[i]);
        const QByteArray var = Node(QStringLiteral("Translation"), value, quint16(value.size()), 0);
        top.append(Node(QStringLiteral("VarFileInfo"), {}, 0, 1, {var}));
    }
    const QByteArray version =
        Node(QStringLiteral("VS_VERSION_INFO"), fixed, quint16(fixed.size()), 0, top);

    // Resource section: type, name and language directories, one data entry, the data.
    QByteArray rsrc(0x58, '\0');
    const quint32 typeId = spec.withVersion ? 16 : 3; // 3 is RT_ICON: a resource of another type
    put16(rsrc, 0x0E, 1);
    put32(rsrc, 0x10, typeId);
    put32(rsrc, 0x14, 0x80000000u | 0x18);
    put16(rsrc, 0x18 + 0x0E, 1);
    put32(rsrc, 0x18 + 0x10, 1);
    put32(rsrc, 0x18 + 0x14, 0x80000000u | 0x30);
    put16(rsrc, 0x30 + 0x0E, 1);
    put32(rsrc, 0x30 + 0x10, 0x0409);
    put32(rsrc, 0x30 + 0x14, 0x48);
    put32(rsrc, 0x48, 0x1000 + 0x58);
    put32(rsrc, 0x4C, quint32(version.size()));
    rsrc += version;
    pad4(rsrc);
    const int rawSize = int((rsrc.size() + 0x1FF) & ~0x1FF);
    rsrc.append(rawSize - rsrc.size(), '\0');

    // Headers.
    const int optSize = spec.pe32Plus ? 240 : 224;
    QByteArray image(kResourceOffset, '\0');
    image[0] = 'M';
    image[1] = 'Z';
    put32(image, 0x3C, kPeOffset);
    image.replace(kPeOffset, 4, QByteArray("PE\0\0", 4));
    const int coff = kPeOffset + 4;
    put16(image, coff, spec.pe32Plus ? 0x8664 : 0x14C);
    put16(image, coff + 2, 1);
    put16(image, coff + 16, quint32(optSize));
    put16(image, coff + 18, 0x0102);
    const int opt = coff + 20;
    put16(image, opt, spec.pe32Plus ? 0x20B : 0x10B);
    const int countOff = opt + (spec.pe32Plus ? 108 : 92);
    put32(image, countOff, 16);
    put32(image, countOff + 4 + 16, 0x1000);
    put32(image, countOff + 4 + 20, quint32(rsrc.size()));
    const int section = opt + optSize;
    image.replace(section, 6, QByteArray(".rsrc\0", 6));
    put32(image, section + 8, quint32(rsrc.size()));
    put32(image, section + 12, 0x1000);
    put32(image, section + 16, quint32(rawSize));
    put32(image, section + 20, kResourceOffset);
    return image + rsrc;
}

QByteArray PeImageBuilder::WithStrings(const QVector<QPair<QString, QString>>& strings) {
    PeImageSpec spec;
    spec.tables.append({QStringLiteral("040904B0"), strings});
    spec.translations.append(0x04B00409);
    return Build(spec);
}

} // namespace qs::test
