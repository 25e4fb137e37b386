#include "RevisionList.h"

#include "Globals.h"
#include "ListView.h"
#include "QsError.h"
#include "cRevisions.h"

#include <QStringList>

namespace qs {

QString FillRevisionList(ListView& list, const cRevisions& revisions) {
    QDateTime newestDate(QDate(2001, 1, 1), QTime(0, 0));
    QString newestVersion;
    list.Clear();
    int n = 0;
    for (const cRevision& revision : revisions) {
        ++n;
        const QString text =
            revision.DateRevised().toString(QStringLiteral("MM/dd/yyyy")).trimmed();
        list.ListItems.Add(QStringLiteral("KEY") + QString::number(n), text)
            .setSubItems(1, revision.Version());
        gstrCurrentVersion = revision.Version();
        if (revision.DateRevised() > newestDate) {
            newestDate = revision.DateRevised();
            newestVersion = revision.Version();
        } else if (revision.DateRevised() == newestDate) {
            // Binary text order, so "1.0.10" stands below "1.0.9" and wins.
            if (QString::compare(newestVersion, revision.Version(), Qt::CaseSensitive) > 0)
                newestVersion = revision.Version();
        }
    }
    return newestVersion;
}

void SplitVersion(const QString& version) {
    const QStringList parts = version.split(QLatin1Char('.'));
    if (parts.size() < 3)
        throw QsError(9, QString::fromLatin1(kAppSource), QStringLiteral("Subscript out of range"));
    short numbers[3] = {};
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        numbers[i] = parts[i].trimmed().toShort(&ok);
        if (!ok)
            throw QsError(13, QString::fromLatin1(kAppSource), QStringLiteral("Type mismatch"));
    }
    gintMajor = numbers[0];
    gintMinor = numbers[1];
    gintRevision = numbers[2];
}

} // namespace qs
