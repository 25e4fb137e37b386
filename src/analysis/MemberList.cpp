#include "MemberList.h"

#include "QsError.h"

namespace qs {

const QString& MemberList::operator()(int index) const {
    if (index < LBound() || index > UBound())
        throw QsError(9, QString::fromLatin1(kAppSource), QStringLiteral("Subscript out of range"));
    return mElements.at(index - mLower);
}

void MemberList::reset() {
    mElements = QStringList{QString()};
    mLower = 0;
}

void MemberList::addElement() {
    if (UBound() > 0) {
        mElements.append(QString());
    } else {
        mElements = QStringList{QString()};
        mLower = 1;
    }
}

void MemberList::appendLine(QStringView line) {
    QString& last = mElements.last();
    last.append(QLatin1String("\r\n"));
    last.append(line);
}

} // namespace qs
