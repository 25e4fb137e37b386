#include "DialogParts.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qs::dialogparts {

QCheckBox* checkBox(QWidget* owner, const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption, owner);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

QPushButton* button(QWidget* owner, const char* name, const QString& caption) {
    auto* cmd = new QPushButton(caption, owner);
    cmd->setObjectName(QString::fromLatin1(name));
    cmd->setAutoDefault(false);
    return cmd;
}

CommentFrame commentFrame(QWidget* owner) {
    CommentFrame f;
    f.frame =
        new QGroupBox(QStringLiteral("Select comments to include with the copied code"), owner);
    f.frame->setObjectName(QStringLiteral("frmeComments"));
    f.chkAuthor = checkBox(f.frame, "chkAuthor", QStringLiteral("Include Author"));
    f.chkVersion = checkBox(f.frame, "chkVersion", QStringLiteral("Include Version Number"));
    f.chkCreateDate = checkBox(f.frame, "chkCreateDate", QStringLiteral("Include Creation Date"));
    f.chkDescription = checkBox(f.frame, "chkDescription", QStringLiteral("Include Description"));
    f.chkRevisionHistory =
        checkBox(f.frame, "chkRevisionHistory", QStringLiteral("Include Revision History"));
    f.txtCommentSpec = new QLineEdit(f.frame);
    f.txtCommentSpec->setObjectName(QStringLiteral("txtCommentSpec"));
    auto* label = new QLabel(QStringLiteral("Comment Specifier:"), f.frame);
    label->setObjectName(QStringLiteral("lblCommentSpec"));
    label->setBuddy(f.txtCommentSpec);

    auto* layout = new QGridLayout(f.frame);
    layout->addWidget(f.chkAuthor, 0, 0);
    layout->addWidget(f.chkVersion, 1, 0);
    layout->addWidget(f.chkCreateDate, 2, 0);
    layout->addWidget(f.chkDescription, 0, 1);
    layout->addWidget(f.chkRevisionHistory, 1, 1);
    auto* spec = new QHBoxLayout;
    spec->addWidget(label);
    spec->addWidget(f.txtCommentSpec);
    layout->addLayout(spec, 2, 1);
    return f;
}

} // namespace qs::dialogparts
