#pragma once

#include "QsError.h"

#include <QString>
#include <QWidget>
#include <functional>

namespace qs {

// The list API ComboBox and ListBox share over their Qt widget: entries numbered from 0, a
// 32-bit ItemData beside each (kept in kDataRole), NewIndex, and the checks with their errors:
// 381 for an index outside the list, 380 for a ListIndex outside -1 .. ListCount - 1, 5 for an
// AddItem place past the end.  Widget is QComboBox or QListWidget; both have count().
template <class Widget> class ListControl : public Widget {
public:
    QString Name() const { return this->objectName(); }
    int ListCount() const { return this->count(); }
    int NewIndex() const { return mNewIndex; }
    void SetFocus() { this->setFocus(Qt::OtherFocusReason); }

    // Raised when a person picks an entry, and when ListIndex is set.
    std::function<void()> Click;

protected:
    static constexpr int kDataRole = Qt::UserRole + 1;

    explicit ListControl(QWidget* parent) : Widget(parent) {}

    int checkedIndex(int index) const {
        if (index < 0 || index >= this->count())
            throw QsError(381, QString::fromLatin1(kAppSource),
                          QStringLiteral("Invalid property array index"));
        return index;
    }
    // Where AddItem puts an entry: at the end for a negative index, else before that entry.
    int addPlace(int index) const {
        if (index > this->count())
            throw QsError(5, QString::fromLatin1(kAppSource),
                          QStringLiteral("Invalid procedure call or argument"));
        return index < 0 ? this->count() : index;
    }
    void checkListIndex(int index) const {
        if (index < -1 || index >= this->count())
            throw QsError(380, QString::fromLatin1(kAppSource),
                          QStringLiteral("Invalid property value"));
    }
    // Click after ListIndex is set; a person's pick raises it from the widget's signal.
    void raiseClick() {
        if (Click)
            Click();
    }

    int mNewIndex = -1;
    // Set while the list changes by code, so that the widget's signals raise no events.
    bool mSilent = false;
};

} // namespace qs
