#include "cApiLoader.h"

#include "Cp1252.h"
#include "QsError.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace qs {

namespace {

const QRegularExpression kScope(QStringLiteral("^(?:Public|Private|Global)\\s+"),
                                QRegularExpression::CaseInsensitiveOption);
const QRegularExpression
    kConst(QStringLiteral("^Const\\s+([A-Za-z]\\w*)[&%!#@$]?(?:\\s+As\\s+\\w+)?\\s*=\\s*\\S"),
           QRegularExpression::CaseInsensitiveOption);
const QRegularExpression kDeclare(QStringLiteral("^Declare\\s+(?:Function|Sub)\\s+([A-Za-z]\\w*)"
                                                 "[&%!#@$]?\\s+Lib\\s+\"[^\"]+\"[^(]*\\(.*\\)"),
                                  QRegularExpression::CaseInsensitiveOption);
const QRegularExpression kType(QStringLiteral("^Type\\s+([A-Za-z]\\w*)\\s*(?:'.*)?$"),
                               QRegularExpression::CaseInsensitiveOption);
const QRegularExpression kEndType(QStringLiteral("^End\\s+Type\\b"),
                                  QRegularExpression::CaseInsensitiveOption);

bool isComment(const QString& trimmed) {
    return trimmed.startsWith(QLatin1Char('\'')) ||
           trimmed.compare(QLatin1String("Rem"), Qt::CaseInsensitive) == 0 ||
           trimmed.startsWith(QLatin1String("Rem "), Qt::CaseInsensitive);
}

// Reads physical lines and hands out logical ones, with continuations joined.
class LineReader {
public:
    explicit LineReader(QFile& file) : mFile(file) {
        mUtf8 = mFile.peek(3) == QByteArray("\xEF\xBB\xBF");
        if (mUtf8)
            mFile.read(3);
    }

    bool next(QString& line) {
        line.clear();
        bool any = false;
        while (!mFile.atEnd()) {
            QByteArray raw = mFile.readLine();
            if (raw.contains('\0')) { // no text file holds a null byte
                mBinary = true;
                return false;
            }
            while (raw.endsWith('\n') || raw.endsWith('\r'))
                raw.chop(1);
            QString piece = mUtf8 ? QString::fromUtf8(raw) : FromCp1252(raw);
            any = true;
            const bool continues =
                piece.endsWith(QLatin1String(" _")) || piece.endsWith(QLatin1String("\t_"));
            if (continues)
                piece.chop(1);
            if (!line.isEmpty())
                line += QLatin1Char(' ') + piece.trimmed();
            else
                line = piece;
            if (!continues)
                return true;
            while (line.endsWith(QLatin1Char(' ')) || line.endsWith(QLatin1Char('\t')))
                line.chop(1);
        }
        return any;
    }

    bool binary() const { return mBinary; }

private:
    QFile& mFile;
    bool mUtf8 = false;
    bool mBinary = false;
};

VbArray<QString> sortedNames(const QMap<QString, QString>& items) {
    QStringList names = items.keys();
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        const int c = a.compare(b, Qt::CaseInsensitive);
        return c != 0 ? c < 0 : a < b;
    });
    VbArray<QString> out;
    for (const QString& n : names)
        out.append(n);
    return out;
}

} // namespace

void cApiLoader::clear() {
    mTypes.clear();
    mConstants.clear();
    mDeclares.clear();
    mDeclareNames.clear();
    mConstantNames.clear();
    mTypeNames.clear();
}

void cApiLoader::LoadFile(const QString& strPath) {
    clear();
    QFile file(strPath);
    if (strPath.isEmpty() || !file.open(QIODevice::ReadOnly))
        throw QsError(53, QStringLiteral("cApiLoader:LoadFile;"),
                      QStringLiteral("File not found: %1").arg(strPath));
    LineReader reader(file);
    QSet<QString> seen; // names of all three kinds, lower case: a collection refuses a twin key
    auto add = [&seen](QMap<QString, QString>& to, const QString& name, const QString& text) {
        const QString key = name.toLower();
        if (seen.contains(key))
            return;
        seen.insert(key);
        to.insert(name, text);
    };

    QString typeName; // the Type being read, empty outside one
    QStringList typeLines;
    QString line;
    while (reader.next(line)) {
        QString text = line.trimmed();
        if (text.isEmpty() || isComment(text))
            continue;
        if (!typeName.isEmpty()) {
            if (kEndType.match(text).hasMatch()) {
                typeLines << QStringLiteral("End Type");
                add(mTypes, typeName, typeLines.join(QStringLiteral("\r\n")));
                typeName.clear();
                continue;
            }
            const QString stripped = QString(text).remove(kScope);
            if (!kType.match(stripped).hasMatch()) {
                QString member = line;
                while (member.endsWith(QLatin1Char(' ')) || member.endsWith(QLatin1Char('\t')))
                    member.chop(1);
                typeLines << member;
                continue;
            }
            // A new Type before End Type: the open one is damaged and dropped.
            typeName.clear();
        }
        text.remove(kScope);
        if (const auto m = kConst.match(text); m.hasMatch()) {
            add(mConstants, m.captured(1), text);
        } else if (const auto d = kDeclare.match(text); d.hasMatch()) {
            add(mDeclares, d.captured(1), text);
        } else if (const auto t = kType.match(text); t.hasMatch()) {
            typeName = t.captured(1);
            typeLines = QStringList{text};
        }
    }
    if (reader.binary()) {
        clear();
        throw QsError(321, QStringLiteral("cApiLoader:LoadFile;"),
                      QStringLiteral("Invalid file format: %1 is not a text file of API "
                                     "declarations.")
                          .arg(strPath));
    }
    mConstantNames = sortedNames(mConstants);
    mDeclareNames = sortedNames(mDeclares);
    mTypeNames = sortedNames(mTypes);
}

} // namespace qs
