#include "cApiLoader.h"

#include "Cp1252.h"
#include "QsError.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace qs {

namespace {

// Whitespace, word and letter as the grammar means them: ASCII only.
bool isBlank(QChar c) {
    const char16_t u = c.unicode();
    return u == ' ' || u == '\t' || u == '\n' || u == '\r' || u == '\f' || u == '\v';
}
bool isLetter(QChar c) {
    const char16_t u = c.unicode();
    return (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z');
}
bool isWordChar(QChar c) {
    const char16_t u = c.unicode();
    return isLetter(c) || (u >= '0' && u <= '9') || u == '_';
}

// A cursor over one statement; each step consumes what it matched.
class Scanner {
public:
    explicit Scanner(QStringView text) : mText(text) {}

    qsizetype pos() const { return mPos; }
    void setPos(qsizetype pos) { mPos = pos; }
    bool atEnd() const { return mPos >= mText.size(); }
    QChar current() const { return mText.at(mPos); }

    // The keyword, case ignored.
    bool keyword(const char* word) {
        const QLatin1String w(word);
        if (mText.size() - mPos < w.size() ||
            mText.mid(mPos, w.size()).compare(w, Qt::CaseInsensitive) != 0)
            return false;
        mPos += w.size();
        return true;
    }
    // Any number of blanks; true when there was at least one.
    bool blanks() {
        const qsizetype from = mPos;
        while (!atEnd() && isBlank(current()))
            ++mPos;
        return mPos > from;
    }
    // A name: a letter, then letters, digits and underscores.
    QStringView name() {
        if (atEnd() || !isLetter(current()))
            return {};
        const qsizetype from = mPos++;
        while (!atEnd() && isWordChar(current()))
            ++mPos;
        return mText.mid(from, mPos - from);
    }
    bool word() {
        const qsizetype from = mPos;
        while (!atEnd() && isWordChar(current()))
            ++mPos;
        return mPos > from;
    }
    void typeChar() {
        if (!atEnd() && QStringView(u"&%!#@$").contains(current()))
            ++mPos;
    }
    bool at(QChar c) {
        if (atEnd() || current() != c)
            return false;
        ++mPos;
        return true;
    }

private:
    QStringView mText;
    qsizetype mPos = 0;
};

// The statement without its leading Public, Private or Global.
QStringView withoutScope(QStringView text) {
    for (const char* scope : {"Public", "Private", "Global"}) {
        Scanner s(text);
        if (s.keyword(scope) && s.blanks())
            return text.mid(s.pos());
    }
    return text;
}

// Const NAME[type char] [As TYPE] = value
QStringView constName(QStringView text) {
    Scanner s(text);
    if (!s.keyword("Const") || !s.blanks())
        return {};
    const QStringView name = s.name();
    if (name.isEmpty())
        return {};
    s.typeChar();
    const qsizetype afterName = s.pos();
    if (!(s.blanks() && s.keyword("As") && s.blanks() && s.word()))
        s.setPos(afterName);
    s.blanks();
    if (!s.at(QLatin1Char('=')))
        return {};
    s.blanks();
    return s.atEnd() ? QStringView() : name;
}

// Declare Function|Sub NAME[type char] Lib "lib" ... (...)
QStringView declareName(QStringView text) {
    Scanner s(text);
    if (!s.keyword("Declare") || !s.blanks() || !(s.keyword("Function") || s.keyword("Sub")) ||
        !s.blanks())
        return {};
    const QStringView name = s.name();
    if (name.isEmpty())
        return {};
    s.typeChar();
    if (!s.blanks() || !s.keyword("Lib") || !s.blanks() || !s.at(QLatin1Char('"')))
        return {};
    const qsizetype closing = text.indexOf(QLatin1Char('"'), s.pos());
    if (closing <= s.pos())
        return {};
    const qsizetype open = text.indexOf(QLatin1Char('('), closing + 1);
    if (open < 0 || text.lastIndexOf(QLatin1Char(')')) < open)
        return {};
    return name;
}

// Type NAME [' comment]
QStringView typeName(QStringView text) {
    Scanner s(text);
    if (!s.keyword("Type") || !s.blanks())
        return {};
    const QStringView name = s.name();
    if (name.isEmpty())
        return {};
    s.blanks();
    return s.atEnd() || s.current() == QLatin1Char('\'') ? name : QStringView();
}

bool isEndType(QStringView text) {
    Scanner s(text);
    return s.keyword("End") && s.blanks() && s.keyword("Type") &&
           (s.atEnd() || !isWordChar(s.current()));
}

bool isComment(QStringView trimmed) {
    return trimmed.startsWith(QLatin1Char('\'')) ||
           trimmed.compare(QLatin1String("Rem"), Qt::CaseInsensitive) == 0 ||
           trimmed.startsWith(QLatin1String("Rem "), Qt::CaseInsensitive);
}

// Hands out the logical lines of the text, with continuations joined.
class LineReader {
public:
    explicit LineReader(QStringView text) : mText(text) {}

    bool next(QString& line) {
        line.resize(0);
        bool any = false;
        QStringView piece;
        while (nextPiece(piece)) {
            any = true;
            const bool continues =
                piece.endsWith(QLatin1String(" _")) || piece.endsWith(QLatin1String("\t_"));
            if (continues)
                piece.chop(1);
            if (!line.isEmpty()) {
                line += QLatin1Char(' ');
                line += piece.trimmed();
            } else {
                line = piece.toString();
            }
            if (!continues)
                return true;
            while (line.endsWith(QLatin1Char(' ')) || line.endsWith(QLatin1Char('\t')))
                line.chop(1);
        }
        return any;
    }

private:
    // One physical line, without its line end; LF ends a line, trailing CRs go.
    bool nextPiece(QStringView& piece) {
        if (mPos >= mText.size())
            return false;
        const qsizetype lf = mText.indexOf(QLatin1Char('\n'), mPos);
        const qsizetype end = lf < 0 ? mText.size() : lf;
        piece = mText.mid(mPos, end - mPos);
        mPos = end + 1;
        while (piece.endsWith(QLatin1Char('\r')))
            piece.chop(1);
        return true;
    }

    QStringView mText;
    qsizetype mPos = 0;
};

struct Item {
    QString key; // the name in lower case: names are ASCII, and one name is one item
    QString name;
    QString text;
};

QMap<QString, QString> collection(QVector<Item>& items) {
    std::sort(items.begin(), items.end(),
              [](const Item& a, const Item& b) { return a.name < b.name; });
    QMap<QString, QString> map;
    for (const Item& item : items)
        map.insert(map.cend(), item.name, item.text);
    return map;
}

// Sorted with case ignored: the lower-case keys in code-unit order are that order for ASCII.
VbArray<QString> sortedNames(QVector<Item>& items) {
    std::sort(items.begin(), items.end(),
              [](const Item& a, const Item& b) { return a.key < b.key; });
    VbArray<QString> out;
    for (const Item& item : items)
        out.append(item.name);
    return out;
}

[[noreturn]] void raiseNoText(const QString& strPath) {
    throw QsError(321, QStringLiteral("cApiLoader:LoadFile;"),
                  QStringLiteral("Invalid file format: %1 is not a text file of API declarations.")
                      .arg(strPath));
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
    // No text file holds a null byte; a binary file shows one early, before all of it is read.
    if (file.peek(64 * 1024).contains('\0'))
        raiseNoText(strPath);
    const QByteArray bytes = file.readAll();
    if (bytes.contains('\0'))
        raiseNoText(strPath);
    const QByteArray bom("\xEF\xBB\xBF");
    const QString content = bytes.startsWith(bom)
                                ? QString::fromUtf8(QByteArrayView(bytes).sliced(bom.size()))
                                : FromCp1252(bytes);

    QVector<Item> constants;
    QVector<Item> declares;
    QVector<Item> types;
    QSet<QString> seen; // names of all three kinds: a collection refuses a twin key
    const auto add = [&seen](QVector<Item>& to, QStringView name, QString text) {
        QString key = name.toString().toLower();
        if (seen.contains(key))
            return;
        seen.insert(key);
        to.append(Item{std::move(key), name.toString(), std::move(text)});
    };

    LineReader reader(content);
    QString open; // the Type being read, empty outside one
    QStringList typeLines;
    QString line;
    while (reader.next(line)) {
        const QStringView text = QStringView(line).trimmed();
        if (text.isEmpty() || isComment(text))
            continue;
        if (!open.isEmpty()) {
            if (isEndType(text)) {
                typeLines << QStringLiteral("End Type");
                add(types, open, typeLines.join(QStringLiteral("\r\n")));
                open.clear();
                continue;
            }
            if (typeName(withoutScope(text)).isEmpty()) {
                QStringView member(line);
                while (member.endsWith(QLatin1Char(' ')) || member.endsWith(QLatin1Char('\t')))
                    member.chop(1);
                typeLines << member.toString();
                continue;
            }
            // A new Type before End Type: the open one is damaged and dropped.
            open.clear();
        }
        const QStringView statement = withoutScope(text);
        if (const QStringView name = constName(statement); !name.isEmpty()) {
            add(constants, name, statement.toString());
        } else if (const QStringView name = declareName(statement); !name.isEmpty()) {
            add(declares, name, statement.toString());
        } else if (const QStringView name = typeName(statement); !name.isEmpty()) {
            open = name.toString();
            typeLines = QStringList{statement.toString()};
        }
    }
    mConstants = collection(constants);
    mDeclares = collection(declares);
    mTypes = collection(types);
    mConstantNames = sortedNames(constants);
    mDeclareNames = sortedNames(declares);
    mTypeNames = sortedNames(types);
}

} // namespace qs
