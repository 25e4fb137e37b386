#pragma once

#include <QString>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QWidget;

namespace qs::dialogparts {

// Controls of the output dialogs, each carrying its design name.
QCheckBox* checkBox(QWidget* owner, const char* name, const QString& caption);
QPushButton* button(QWidget* owner, const char* name, const QString& caption);

// The frame "Select comments to include with the copied code" with its five boxes and the
// comment specifier, shared by the copy and the HTML dialogs.
struct CommentFrame {
    QGroupBox* frame = nullptr;
    QCheckBox* chkAuthor = nullptr;
    QCheckBox* chkVersion = nullptr;
    QCheckBox* chkCreateDate = nullptr;
    QCheckBox* chkDescription = nullptr;
    QCheckBox* chkRevisionHistory = nullptr;
    QLineEdit* txtCommentSpec = nullptr;
};
CommentFrame commentFrame(QWidget* owner);

} // namespace qs::dialogparts
