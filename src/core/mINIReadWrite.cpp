#include "mINIReadWrite.h"

#include "Host.h"
#include "QsError.h"

#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <climits>

namespace qs {

namespace {

// Buffers of the callers, terminator included.
constexpr int kKeySettingBuffer = 255;
constexpr int kKeyValueBuffer = 256;
constexpr int kSectionBuffer = 4096;

// The error a failed write reports: the run-time error for a file that cannot be written.
constexpr long kPathFileAccessError = 75;

bool isBlank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

QString trimmed(const QString& text) {
    int first = 0;
    int last = text.size();
    while (first < last && isBlank(text.at(first)))
        ++first;
    while (last > first && isBlank(text.at(last - 1)))
        --last;
    return text.mid(first, last - first);
}

// One line as the reader sees it.
struct Line {
    enum Kind { Other, Section, Entry } kind = Other;
    QString name;  // section or key name, trimmed
    QString value; // entry value, trimmed, quotes kept
    bool hasEquals = false;
};

Line parse(const QString& raw) {
    Line line;
    const QString text = trimmed(raw);
    if (text.isEmpty() || text.startsWith(QLatin1Char(';')))
        return line;
    if (text.startsWith(QLatin1Char('['))) {
        const int close = text.indexOf(QLatin1Char(']'));
        line.kind = Line::Section;
        line.name = trimmed(close < 0 ? text.mid(1) : text.mid(1, close - 1));
        return line;
    }
    line.kind = Line::Entry;
    const int eq = text.indexOf(QLatin1Char('='));
    line.name = trimmed(eq < 0 ? text : text.left(eq));
    line.value = eq < 0 ? QString() : trimmed(text.mid(eq + 1));
    line.hasEquals = eq >= 0;
    return line;
}

QString unquoted(const QString& value) {
    if (value.size() >= 2) {
        const QChar first = value.front();
        if ((first == QLatin1Char('"') || first == QLatin1Char('\'')) && value.back() == first)
            return value.mid(1, value.size() - 2);
    }
    return value;
}

bool sameName(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The file's lines without their ends; false when it is missing or unreadable.
bool readLines(const QString& file, QStringList* lines) {
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    const QString text = QString::fromLocal8Bit(in.readAll());
    *lines = text.split(QLatin1Char('\n'));
    if (!lines->isEmpty() && lines->back().isEmpty())
        lines->removeLast();
    for (QString& line : *lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    }
    return true;
}

// Index of the first line of `section`'s header, -1 when absent.
int findSection(const QStringList& lines, const QString& section) {
    for (int i = 0; i < lines.size(); ++i) {
        const Line line = parse(lines.at(i));
        if (line.kind == Line::Section && sameName(line.name, section))
            return i;
    }
    return -1;
}

// One past the last line of the section whose header is at `header`.
int sectionEnd(const QStringList& lines, int header) {
    int i = header + 1;
    while (i < lines.size() && parse(lines.at(i)).kind != Line::Section)
        ++i;
    return i;
}

// The value of `key` in `section`, quotes removed; false when absent.
bool lookup(const QString& section, const QString& key, const QString& file, QString* value) {
    QStringList lines;
    if (!readLines(file, &lines))
        return false;
    const int header = findSection(lines, section);
    if (header < 0)
        return false;
    const int end = sectionEnd(lines, header);
    for (int i = header + 1; i < end; ++i) {
        const Line line = parse(lines.at(i));
        if (line.kind == Line::Entry && sameName(line.name, key)) {
            *value = unquoted(line.value);
            return true;
        }
    }
    return false;
}

QString cutToBuffer(const QString& text, int bufferChars) {
    return bufferChars < 1 ? QString() : text.left(bufferChars - 1);
}

void showWriteError(long number, const QString& source, const QString& description) {
    host().msgBox(QStringLiteral("VB Error Number = ") + QString::number(number) +
                      QStringLiteral("\r\nVB Error Source = ") + source +
                      QStringLiteral("\r\nVB Error Description = ") + description,
                  vbExclamation, QStringLiteral("Error"));
}

} // namespace

QString SystemIniFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tarnwick/win.ini");
}

QString ProfileGetString(const QString& section, const QString& key, const QString& defaultText,
                         int bufferChars, const QString& file) {
    QString value;
    if (!lookup(section, key, file, &value))
        value = defaultText;
    return cutToBuffer(value, bufferChars);
}

int ProfileGetInt(const QString& section, const QString& key, int defaultValue,
                  const QString& file) {
    const QString text = ProfileGetString(section, key, QString(), kKeyValueBuffer, file);
    if (text.isEmpty())
        return defaultValue;
    int i = 0;
    bool negative = false;
    if (text.at(0) == QLatin1Char('-') || text.at(0) == QLatin1Char('+')) {
        negative = text.at(0) == QLatin1Char('-');
        ++i;
    }
    qint64 number = 0;
    for (; i < text.size() && text.at(i).isDigit() && text.at(i).unicode() < 128; ++i)
        number = qMin<qint64>(number * 10 + text.at(i).digitValue(), INT_MAX);
    return negative ? 0 : static_cast<int>(number);
}

QStringList ProfileGetSection(const QString& section, int bufferChars, const QString& file) {
    QStringList entries;
    QStringList lines;
    if (!readLines(file, &lines))
        return entries;
    const int header = findSection(lines, section);
    if (header < 0)
        return entries;
    // Room for the text of the entries: each takes its terminator, and one more ends the list.
    int room = bufferChars - 1;
    const int end = sectionEnd(lines, header);
    for (int i = header + 1; i < end && room > 1; ++i) {
        const Line line = parse(lines.at(i));
        if (line.kind != Line::Entry)
            continue;
        QString entry = line.hasEquals ? line.name + QLatin1Char('=') + line.value : line.name;
        if (entry.size() + 1 > room)
            entry = entry.left(room - 1);
        room -= entry.size() + 1;
        entries.append(entry);
    }
    return entries;
}

bool ProfileWriteString(const QString& section, const QString& key, const QString& value,
                        const QString& file) {
    QStringList lines;
    if (QFile::exists(file) && !readLines(file, &lines))
        return false;

    const int header = findSection(lines, section);
    if (header < 0) {
        if (!lines.isEmpty() && !trimmed(lines.back()).isEmpty())
            lines.append(QString());
        lines.append(QLatin1Char('[') + section + QLatin1Char(']'));
        lines.append(key + QLatin1Char('=') + value);
    } else {
        const int end = sectionEnd(lines, header);
        int insertAt = header + 1;
        bool replaced = false;
        for (int i = header + 1; i < end && !replaced; ++i) {
            const Line line = parse(lines.at(i));
            if (line.kind == Line::Entry && sameName(line.name, key)) {
                lines[i] = line.name + QLatin1Char('=') + value;
                replaced = true;
            } else if (!trimmed(lines.at(i)).isEmpty()) {
                insertAt = i + 1;
            }
        }
        if (!replaced)
            lines.insert(insertAt, key + QLatin1Char('=') + value);
    }

    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    out.write((lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toLocal8Bit());
    return out.commit();
}

bool File_WriteSpecificKeyNameAndSetting_ToSpecificFile(const QString& strSection,
                                                        const QString& strKey,
                                                        const QString& strValue,
                                                        const QString& strFile) {
    if (ProfileWriteString(strSection, strKey, strValue, strFile)) {
        host().setMousePointer(vbDefault);
        return true;
    }
    showWriteError(kPathFileAccessError, QString::fromLatin1(kAppSource),
                   QStringLiteral("Path/File access error"));
    return false;
}

QString File_GetSpecificKeySetting_FromSpecificFile(const QString& strFile,
                                                    const QString& strSection,
                                                    const QString& strKey) {
    const QString buffer =
        ProfileGetString(strSection, strKey, QString(), kKeySettingBuffer, strFile);
    const QString result = buffer.size() < 1 ? QString() : trimmed(buffer);
    host().setMousePointer(vbDefault);
    return result;
}

QVariant iniGetKeyValue(const QString& section, const QString& key, const QString& file,
                        bool asInteger, bool fromSystemFile) {
    const QString source = fromSystemFile ? SystemIniFile() : file;
    if (asInteger)
        return ProfileGetInt(section, key, 0, source);
    return ProfileGetString(section, key, QString(), kKeyValueBuffer, source);
}

QString iniGetSectionKeys(const QString& section, const QString& file, bool fromSystemFile) {
    const QStringList entries =
        ProfileGetSection(section, kSectionBuffer, fromSystemFile ? SystemIniFile() : file);
    return (entries.isEmpty() ? QString() : entries.front()) + QChar(0);
}

VbArray<QString> iniEnumSectionValues(const QString& file, const QString& section) {
    VbArray<QString> values;
    for (const QString& entry : ProfileGetSection(section, INT_MAX, file))
        values.append(entry);
    return values;
}

} // namespace qs
