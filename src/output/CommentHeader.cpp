#include "CommentHeader.h"

#include "VbStrings.h"
#include "cRevision.h"
#include "cRevisions.h"
#include "cSourceCode.h"

#include <QLocale>

namespace qs {

namespace {

const QString kCrLf = QStringLiteral("\r\n");
const QChar kTab = QLatin1Char('\t');

QString line(const QString& spec, const char* label, const QString& value) {
    return spec + QLatin1String(label) + kTab + value + kCrLf;
}

QString upperName(const QString& first, const QString& last) {
    return (first + QLatin1Char(' ') + last).toUpper();
}

} // namespace

QString CommentSpecifier(const QString& strBox) {
    // A blank box would get "'", but the trimmed box overwrites it in any case.
    return VbTrim(strBox);
}

QString AuthorLine(const QString& strSpec, const cSourceCode& item) {
    return line(strSpec, " AUTHOR:  ", upperName(item.AuthorFirstName(), item.AuthorLastName()));
}

QString VersionLine(const QString& strSpec, const QString& strVersion) {
    return line(strSpec, " VERSION: ", strVersion);
}

QString CreateDateLine(const QString& strSpec, const cSourceCode& item) {
    const QDate written = item.DateWritten().date();
    return line(strSpec, " CREATE DATE: ",
                written.isValid() ? QLocale().toString(written, QLocale::ShortFormat) : QString());
}

QString DescriptionLine(const QString& strSpec, const cSourceCode& item) {
    return line(strSpec, " DESCRIPTION: ", item.Description().toUpper());
}

QString HeaderVersion(const cRevisions& revisions) {
    // Dates compare by the day, as their "mm/dd/yyyy" text does.
    QDate heldDate(2001, 1, 1);
    QString heldVersion;
    for (const cRevision& revision : revisions) {
        const QDate date = revision.DateRevised().date();
        const QString& version = revision.Version();
        if (date.isValid() && date > heldDate) {
            heldDate = date;
            heldVersion = version;
        }
        if (date == heldDate && version > heldVersion)
            heldVersion = version;
    }
    return heldVersion;
}

QString RevisionHistoryBlock(const QString& strSpec, const cRevisions& revisions) {
    QString block = kCrLf + strSpec + QStringLiteral(" REVISION HISTORY") + kCrLf + strSpec +
                    QLatin1Char(' ') + QString(17, QLatin1Char('='));
    for (const cRevision& revision : revisions) {
        block += kCrLf + kCrLf +
                 line(strSpec, " REV. AUTHOR: ",
                      upperName(revision.AuthorFirstName(), revision.AuthorLastName()));
        block += line(strSpec, " REV. NUMBER: ", revision.Version().toUpper());
        block += line(strSpec, " REV. NUMBER: ", GeneralDate(revision.DateRevised()).toUpper());
        block +=
            strSpec + QStringLiteral(" REV. DESCRIPTION: ") + kTab + revision.Comment().toUpper();
    }
    return block;
}

QString GeneralDate(const QDateTime& value) {
    if (!value.isValid())
        return QString();
    const QLocale locale;
    QString text = locale.toString(value.date(), QLocale::ShortFormat);
    if (value.time() != QTime(0, 0))
        text += QLatin1Char(' ') + locale.toString(value.time(), QLocale::LongFormat);
    return text;
}

} // namespace qs
