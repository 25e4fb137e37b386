#include "VersionLists.h"

#include "ComboBox.h"
#include "Globals.h"
#include "Host.h"
#include "QsError.h"
#include "SSTab.h"

#include <QPlainTextEdit>

namespace qs {

namespace {

void fillFrom(ComboBox& list, int from, int to) {
    list.Clear();
    for (int n = from; n <= to; ++n)
        list.AddItem(QString::number(n));
}

// The tab of the version fields comes forward before the focus goes to one of them.
void showField(const NewVersionFields& fields, QWidget* field) {
    fields.tabs->setTab(fields.tab);
    field->setFocus();
}

} // namespace

void FillVersionLists(ComboBox& major, ComboBox& minor, ComboBox& revision) {
    fillFrom(major, gintMajor, 3000);
    fillFrom(minor, gintMinor, 9);
    fillFrom(revision, gintRevision, 9);
    major.setText(QString::number(gintMajor));
    minor.setText(QString::number(gintMinor));
    revision.setText(QString::number(gintRevision));
}

void ResetMinorAndRevision(ComboBox& minor, ComboBox& revision) {
    fillFrom(minor, 0, 9);
    fillFrom(revision, 0, 9);
}

QString NewVersionText(const NewVersionFields& fields) {
    return fields.major->Text() + QLatin1Char('.') + fields.minor->Text() + QLatin1Char('.') +
           fields.revision->Text();
}

VersionCheck CheckNewVersion(const NewVersionFields& fields, const Refusal& refuse) {
    const QString title = QStringLiteral("Description?");
    struct Test {
        bool failed;
        const char* text;
        QWidget* focus;
    };
    const Test tests[] = {
        {fields.comments->toPlainText().isEmpty(),
         "Please enter a ''Revision Comment'' about what you have changed.", fields.comments},
        {fields.major->Text().isEmpty(),
         "Please select or enter a ''Major'' about waht you have changed.", fields.major},
        {fields.minor->Text().isEmpty(), "Please select a ''Minor'' before updating.",
         fields.minor},
        {fields.revision->Text().isEmpty(), "Please select a ''Revision'' before updating",
         fields.revision},
        {NewVersionText(fields) == gstrCurrentVersion,
         "Please select a ''Revision'' that is not in the current revision number before "
         "updating.",
         fields.major},
    };
    for (const Test& t : tests) {
        if (!t.failed)
            continue;
        showField(fields, t.focus);
        refuse(title, QString::fromLatin1(t.text), t.focus);
        return VersionCheck::Refused;
    }
    bool ok = false;
    const double major = fields.major->Text().trimmed().toDouble(&ok);
    if (!ok)
        throw QsError(13, QString::fromLatin1(kAppSource), QStringLiteral("Type mismatch"));
    if (major > gintMajor + 2) {
        const int answer = host().msgBox(
            QStringLiteral("You are selecting a major that is at least 2 greater increments than "
                           "the current major.  Are you sue you want to update?"),
            vbYesNo | vbInformation, QStringLiteral("Major?"));
        // Yes gives up the update, as the program has always done.
        if (answer == vbYes)
            return VersionCheck::Abandoned;
    }
    return VersionCheck::Passed;
}

} // namespace qs
