#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace qs {

// One list of member texts as the parser hands it out: a one-dimensional string array whose
// bounds tell whether it holds anything.  With no member it runs from 0 to 0 and element 0 exists
// (empty unless the scanner wrote to it); with members it runs from 1 to the count, element 1
// being the first member in source order.
class MemberList {
public:
    MemberList() = default;

    int LBound() const { return mLower; }
    int UBound() const { return mLower + int(mElements.size()) - 1; }
    // Element `index`; outside the bounds raises "Subscript out of range" (9).
    const QString& operator()(int index) const;
    // The elements from the lower bound to the upper one.
    const QStringList& elements() const { return mElements; }

    // Back to bounds 0 to 0 with one empty element.
    void reset();
    // Opens a new element behind the last: the first member rebinds the list to 1 to 1, which
    // drops element 0; a further member extends the upper bound and keeps the contents.
    void addElement();
    // Appends a line end and `line` to the last element.
    void appendLine(QStringView line);

private:
    QStringList mElements{QString()};
    int mLower = 0;
};

} // namespace qs
