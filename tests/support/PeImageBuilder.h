#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

namespace qs::test {

// Builds small PE images byte by byte, so the version tests need no binary from elsewhere.
struct PeImageSpec {
    bool withVersion = true; // a version resource at all
    bool pe32Plus = false;   // 64-bit optional header
    bool withFixed = true;   // the binary VS_FIXEDFILEINFO
    quint32 fileVersionMS = 0x00020003;
    quint32 fileVersionLS = 0x00040005;
    quint32 productVersionMS = 0x00020003;
    quint32 productVersionLS = 0x00000000;
    quint32 fileType = 1;
    // String tables in order: key ("040904B0") and its strings.
    QVector<QPair<QString, QVector<QPair<QString, QString>>>> tables;
    // VarFileInfo\Translation values (language | code page << 16); none writes no VarFileInfo.
    QVector<quint32> translations;
};

class PeImageBuilder {
public:
    static QByteArray Build(const PeImageSpec& spec);
    // The usual case: one US English table with the given strings.
    static QByteArray WithStrings(const QVector<QPair<QString, QString>>& strings);

    // Offsets inside the image Build makes, for tests that damage one field on purpose.
    static constexpr int kPeOffset = 0x80;
    static constexpr int kResourceOffset = 0x200;
    static constexpr int kVersionOffset = kResourceOffset + 0x58;
    static int OptionalHeaderOffset() { return kPeOffset + 24; }

    // One node of a version tree: header, key, padding, value, children.
    static QByteArray Node(const QString& key, const QByteArray& value, quint16 valueLength,
                           quint16 type, const QVector<QByteArray>& children = {});
    static QByteArray StringNode(const QString& key, const QString& value);
};

} // namespace qs::test
