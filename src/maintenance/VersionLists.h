#pragma once

#include <QString>
#include <functional>

class QPlainTextEdit;
class QWidget;

namespace qs {

class ComboBox;
class SSTab;

// The three version lists of the update windows and the tests of a new version.

// Fills major from gintMajor to 3000, minor from gintMinor to 9 and revision from gintRevision
// to 9, and shows the current numbers.
void FillVersionLists(ComboBox& major, ComboBox& minor, ComboBox& revision);
// Once another major has been picked, minor and revision offer 0 to 9.
void ResetMinorAndRevision(ComboBox& minor, ComboBox& revision);

// The fields of the new version in an update window, and the tab that holds them.
struct NewVersionFields {
    SSTab* tabs = nullptr;
    int tab = 0;
    QPlainTextEdit* comments = nullptr;
    ComboBox* major = nullptr;
    ComboBox* minor = nullptr;
    ComboBox* revision = nullptr;
};

enum class VersionCheck {
    Passed,
    Refused,  // a message was shown and the focus moved; the window stays
    Abandoned // Yes to the "Major?" question: the update ends with nothing written
};

// What a refused test does with its message: the caller's information box and focus.
using Refusal = std::function<void(const QString& title, const QString& text, QWidget* focus)>;

// The tests of a new version, in order: a revision comment, the three numbers, a version other
// than gstrCurrentVersion, and the question on a major more than two above gintMajor (Yes
// abandons the update, No goes on).  A major that is no number raises 13.
VersionCheck CheckNewVersion(const NewVersionFields& fields, const Refusal& refuse);

// "major.minor.revision" as the lists stand.
QString NewVersionText(const NewVersionFields& fields);

} // namespace qs
