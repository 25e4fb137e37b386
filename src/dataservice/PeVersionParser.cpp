#include "PeVersionParser.h"

#include <QFile>

#include <algorithm>

namespace qs {

namespace {

constexpr quint32 kRtVersion = 16;
constexpr quint32 kFixedSignature = 0xFEEF04BD;
constexpr int kMaxSections = 96;      // the loader's own limit
constexpr int kMaxDirEntries = 4096;  // far above any real resource directory
constexpr int kMaxChildren = 4096;    // entries of one version block
constexpr int kMaxKeyChars = 256;     // keys are short ("StringFileInfo", "040904B0")
constexpr int kMaxValueChars = 32768; // a string value

// Bounds-checked little-endian access to an untrusted buffer.  Offsets are 64-bit so that
// sums of two 32-bit fields cannot wrap.
class Bytes {
public:
    Bytes(const uchar* data, std::size_t size) : mData(data), mSize(size) {}

    std::uint64_t size() const { return mSize; }
    bool has(std::uint64_t off, std::uint64_t len) const {
        return off <= mSize && len <= mSize - off;
    }
    bool u16(std::uint64_t off, quint16& v) const {
        if (!has(off, 2))
            return false;
        v = static_cast<quint16>(mData[off] | (mData[off + 1] << 8));
        return true;
    }
    bool u32(std::uint64_t off, quint32& v) const {
        if (!has(off, 4))
            return false;
        v = static_cast<quint32>(mData[off]) | (static_cast<quint32>(mData[off + 1]) << 8) |
            (static_cast<quint32>(mData[off + 2]) << 16) |
            (static_cast<quint32>(mData[off + 3]) << 24);
        return true;
    }
    // A zero-terminated UTF-16 string starting at off and ending before limit.  `next` is the
    // offset behind the terminator.  False when no terminator comes within maxChars or limit.
    bool wstr(std::uint64_t off, std::uint64_t limit, int maxChars, QString& s,
              std::uint64_t& next) const {
        s.clear();
        limit = std::min<std::uint64_t>(limit, mSize);
        for (int i = 0; i <= maxChars; ++i) {
            quint16 c = 0;
            if (off + 2 > limit || !u16(off, c))
                return false;
            off += 2;
            if (c == 0) {
                next = off;
                return true;
            }
            s.append(QChar(c));
        }
        return false;
    }

private:
    const uchar* mData;
    std::size_t mSize;
};

struct Section {
    quint32 va = 0;
    quint32 rawSize = 0;
    quint32 rawPtr = 0;
};

// File offset of an RVA and the number of file bytes of its section from there on.
bool rvaToOffset(const Bytes& b, const QVector<Section>& sections, quint32 rva, std::uint64_t& off,
                 std::uint64_t& avail) {
    for (const Section& s : sections) {
        if (rva >= s.va && std::uint64_t(rva) < std::uint64_t(s.va) + s.rawSize) {
            const std::uint64_t delta = rva - s.va;
            off = std::uint64_t(s.rawPtr) + delta;
            if (off >= b.size())
                return false;
            avail = std::min<std::uint64_t>(s.rawSize - delta, b.size() - off);
            return true;
        }
    }
    return false;
}

// One entry of a resource directory: the id wanted (or any id when wantId < 0) and whether the
// entry must lead to a subdirectory.  Returns its offset field without the flag.
bool findEntry(const Bytes& b, std::uint64_t base, std::uint64_t limit, quint32 dirOff,
               qint64 wantId, bool wantDir, quint32& target) {
    const std::uint64_t dir = base + dirOff;
    quint16 named = 0;
    quint16 ids = 0;
    if (dir + 16 > limit || !b.u16(dir + 12, named) || !b.u16(dir + 14, ids))
        return false;
    const int count = std::min<int>(named + ids, kMaxDirEntries);
    for (int i = 0; i < count; ++i) {
        const std::uint64_t e = dir + 16 + std::uint64_t(i) * 8;
        quint32 name = 0;
        quint32 data = 0;
        if (e + 8 > limit || !b.u32(e, name) || !b.u32(e + 4, data))
            return false;
        const bool isName = (name & 0x80000000u) != 0;
        const bool isDir = (data & 0x80000000u) != 0;
        if (wantId >= 0 && (isName || name != quint32(wantId)))
            continue;
        if (isDir != wantDir)
            continue;
        target = data & 0x7FFFFFFFu;
        return true;
    }
    return false;
}

// The header of one node of the version tree: wLength, wValueLength, wType, szKey, padding.
struct Node {
    std::uint64_t end = 0;
    quint16 valueLength = 0;
    quint16 type = 0;
    QString key;
    std::uint64_t value = 0;
    std::uint64_t children = 0;
};

std::uint64_t align4(std::uint64_t base, std::uint64_t off) {
    return base + ((off - base + 3) & ~std::uint64_t(3));
}

bool readNode(const Bytes& b, std::uint64_t base, std::uint64_t start, std::uint64_t limit,
              Node& n) {
    quint16 len = 0;
    if (start + 6 > limit || !b.u16(start, len) || !b.u16(start + 2, n.valueLength) ||
        !b.u16(start + 4, n.type))
        return false;
    if (len < 6)
        return false;
    n.end = std::min<std::uint64_t>(start + len, limit);
    std::uint64_t next = 0;
    if (!b.wstr(start + 6, n.end, kMaxKeyChars, n.key, next))
        return false;
    n.value = std::min(align4(base, next), n.end);
    // Text values count characters, binary ones bytes.
    const std::uint64_t valueBytes = n.type == 1 ? std::uint64_t(n.valueLength) * 2 : n.valueLength;
    n.children = std::min(align4(base, std::min(n.value + valueBytes, n.end)), n.end);
    return true;
}

// Walks the children of a node, calling f(child) for each; stops at the first damaged one.
template <class F> void forChildren(const Bytes& b, std::uint64_t base, const Node& parent, F f) {
    std::uint64_t pos = parent.children;
    for (int i = 0; i < kMaxChildren && pos + 6 <= parent.end; ++i) {
        Node child;
        if (!readNode(b, base, pos, parent.end, child))
            return;
        f(child);
        const std::uint64_t next = align4(base, child.end);
        if (next <= pos)
            return;
        pos = next;
    }
}

struct Table {
    QString key;
    QVector<QPair<QString, QString>> strings;
};

void parseVersionInfo(const Bytes& b, std::uint64_t start, std::uint64_t limit,
                      PeVersionBlock& out) {
    Node root;
    if (!readNode(b, start, start, limit, root) || root.key != QLatin1String("VS_VERSION_INFO"))
        return;
    out.found = true;
    quint32 sig = 0;
    if (root.valueLength >= 52 && root.value + 52 <= root.end && b.u32(root.value, sig) &&
        sig == kFixedSignature) {
        out.hasFixed =
            b.u32(root.value + 8, out.fileVersionMS) && b.u32(root.value + 12, out.fileVersionLS) &&
            b.u32(root.value + 16, out.productVersionMS) &&
            b.u32(root.value + 20, out.productVersionLS) && b.u32(root.value + 36, out.fileType);
    }
    QVector<Table> tables;
    forChildren(b, start, root, [&](const Node& child) {
        if (child.key == QLatin1String("StringFileInfo")) {
            forChildren(b, start, child, [&](const Node& table) {
                Table t;
                t.key = table.key.toUpper();
                forChildren(b, start, table, [&](const Node& str) {
                    QString value;
                    std::uint64_t next = 0;
                    if (str.valueLength > 0 &&
                        !b.wstr(str.value, str.end, kMaxValueChars, value, next)) {
                        // A value without its terminator: keep what the node holds.
                        value.clear();
                        for (std::uint64_t p = str.value; p + 2 <= str.end; p += 2) {
                            quint16 c = 0;
                            if (!b.u16(p, c) || c == 0 || value.size() >= kMaxValueChars)
                                break;
                            value.append(QChar(c));
                        }
                    }
                    t.strings.append({str.key, value});
                });
                tables.append(t);
            });
        } else if (child.key == QLatin1String("VarFileInfo")) {
            forChildren(b, start, child, [&](const Node& var) {
                if (var.key != QLatin1String("Translation"))
                    return;
                const std::uint64_t end = std::min(var.value + var.valueLength, var.end);
                for (std::uint64_t p = var.value; p + 4 <= end && out.translations.size() < 64;
                     p += 4) {
                    quint16 lang = 0;
                    quint16 cp = 0;
                    if (b.u16(p, lang) && b.u16(p + 2, cp))
                        out.translations.append(quint32(lang) | (quint32(cp) << 16));
                }
            });
        }
    });
    if (tables.isEmpty())
        return;
    // The table of the first translation, else the first table.
    int chosen = 0;
    if (!out.translations.isEmpty()) {
        const quint32 t = out.translations.first();
        const QString wanted = QStringLiteral("%1%2")
                                   .arg(t & 0xFFFF, 4, 16, QLatin1Char('0'))
                                   .arg(t >> 16, 4, 16, QLatin1Char('0'))
                                   .toUpper();
        for (int i = 0; i < tables.size(); ++i) {
            if (tables[i].key == wanted) {
                chosen = i;
                break;
            }
        }
    }
    out.tableKey = tables[chosen].key;
    out.strings = tables[chosen].strings;
}

} // namespace

QString PeVersionBlock::value(const QString& key) const {
    for (const auto& s : strings) {
        if (s.first.compare(key, Qt::CaseInsensitive) == 0)
            return s.second;
    }
    return {};
}

PeVersionBlock PeVersionParser::Parse(const uchar* data, std::size_t size) {
    PeVersionBlock out;
    if (!data)
        return out;
    const Bytes b(data, size);
    quint16 mz = 0;
    quint32 peOff = 0;
    quint32 sig = 0;
    if (!b.u16(0, mz) || mz != 0x5A4D || !b.u32(0x3C, peOff) || !b.u32(peOff, sig) ||
        sig != 0x00004550)
        return out;
    const std::uint64_t coff = std::uint64_t(peOff) + 4;
    quint16 sectionCount = 0;
    quint16 optSize = 0;
    quint16 magic = 0;
    if (!b.u16(coff + 2, sectionCount) || !b.u16(coff + 16, optSize))
        return out;
    const std::uint64_t opt = coff + 20;
    if (!b.u16(opt, magic))
        return out;
    std::uint64_t countOff = 0;
    if (magic == 0x10B)
        countOff = 92;
    else if (magic == 0x20B)
        countOff = 108;
    else
        return out;
    quint32 dirCount = 0;
    quint32 resRva = 0;
    quint32 resSize = 0;
    const std::uint64_t resDir = opt + countOff + 4 + 2 * 8;
    if (!b.u32(opt + countOff, dirCount) || dirCount < 3 || resDir + 8 > opt + optSize ||
        !b.u32(resDir, resRva) || !b.u32(resDir + 4, resSize) || resRva == 0 || resSize == 0)
        return out;

    QVector<Section> sections;
    const std::uint64_t table = opt + optSize;
    for (int i = 0; i < std::min<int>(sectionCount, kMaxSections); ++i) {
        const std::uint64_t s = table + std::uint64_t(i) * 40;
        Section sec;
        if (!b.u32(s + 12, sec.va) || !b.u32(s + 16, sec.rawSize) || !b.u32(s + 20, sec.rawPtr))
            break;
        sections.append(sec);
    }

    std::uint64_t base = 0;
    std::uint64_t avail = 0;
    if (!rvaToOffset(b, sections, resRva, base, avail))
        return out;
    const std::uint64_t limit = base + avail;
    // Type, name, language: the first version resource in its first language.
    quint32 nameDir = 0;
    quint32 langDir = 0;
    quint32 leaf = 0;
    if (!findEntry(b, base, limit, 0, kRtVersion, true, nameDir) ||
        !findEntry(b, base, limit, nameDir, -1, true, langDir) ||
        !findEntry(b, base, limit, langDir, -1, false, leaf))
        return out;
    quint32 dataRva = 0;
    quint32 dataSize = 0;
    if (base + leaf + 16 > limit || !b.u32(base + leaf, dataRva) ||
        !b.u32(base + leaf + 4, dataSize))
        return out;
    std::uint64_t vOff = 0;
    std::uint64_t vAvail = 0;
    if (!rvaToOffset(b, sections, dataRva, vOff, vAvail))
        return out;
    parseVersionInfo(b, vOff, vOff + std::min<std::uint64_t>(dataSize, vAvail), out);
    return out;
}

PeVersionBlock PeVersionParser::ParseFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() < 64)
        return {};
    if (file.peek(2) != "MZ")
        return {};
    const qint64 size = file.size();
    if (uchar* mapped = file.map(0, size)) {
        PeVersionBlock block = Parse(mapped, std::size_t(size));
        file.unmap(mapped);
        return block;
    }
    // A file system without mapping: PE images with resources worth reading are small enough.
    if (size > 512LL * 1024 * 1024)
        return {};
    const QByteArray all = file.readAll();
    return Parse(reinterpret_cast<const uchar*>(all.constData()), std::size_t(all.size()));
}

} // namespace qs
