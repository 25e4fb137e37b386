#include "ComboBox.h"

#include <QLineEdit>

namespace qs {

ComboBox::ComboBox(const QString& name, QWidget* parent, int style)
    : ListControl(parent), mStyle(style) {
    setObjectName(name);
    setEditable(style != vbComboDropdownList);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(16);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int) {
        if (Click && !mSilent)
            Click();
    });
    connect(this, &QComboBox::editTextChanged, this, [this](const QString&) {
        if (Change && !mSilent)
            Change();
    });
}

void ComboBox::Clear() {
    mSilent = true;
    clear();
    if (isEditable())
        setEditText(QString());
    mSilent = false;
    mNewIndex = -1;
}

void ComboBox::AddItem(const QString& text, int index) {
    const int at = addPlace(index);
    mSilent = true;
    const QString edit = isEditable() ? currentText() : QString();
    insertItem(at, text);
    QComboBox::setItemData(at, 0, kDataRole);
    // A new entry selects nothing, and a drop-down combo keeps what was typed.
    if (count() == 1)
        setCurrentIndex(-1);
    if (isEditable() && currentIndex() < 0)
        setEditText(edit);
    mSilent = false;
    mNewIndex = at;
}

void ComboBox::RemoveItem(int index) {
    mSilent = true;
    removeItem(checkedIndex(index));
    mSilent = false;
}

QString ComboBox::List(int index) const {
    // Reading past the end gives an empty text, as the platform does.
    if (index < 0 || index >= count())
        return QString();
    return itemText(index);
}

void ComboBox::setList(int index, const QString& text) {
    setItemText(checkedIndex(index), text);
}

void ComboBox::setListIndex(int index) {
    checkListIndex(index);
    mSilent = true;
    setCurrentIndex(index);
    if (index < 0 && isEditable())
        setEditText(QString());
    mSilent = false;
    raiseClick();
}

qint32 ComboBox::ItemData(int index) const {
    return itemData(checkedIndex(index), kDataRole).toInt();
}

void ComboBox::setItemData(int index, qint32 data) {
    QComboBox::setItemData(checkedIndex(index), data, kDataRole);
}

QString ComboBox::Text() const {
    if (isEditable())
        return currentText();
    return currentIndex() >= 0 ? itemText(currentIndex()) : QString();
}

void ComboBox::setText(const QString& text) {
    if (isEditable()) {
        const int exact = findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
        mSilent = true;
        setCurrentIndex(exact);
        setEditText(text);
        mSilent = false;
        if (Change)
            Change();
        return;
    }
    // A drop-down list can only show one of its entries.
    const int match = findText(text, Qt::MatchFixedString);
    if (match < 0)
        throw QsError(383, QString::fromLatin1(kAppSource),
                      QStringLiteral("'Text' property is read-only"));
    setListIndex(match);
}

} // namespace qs
