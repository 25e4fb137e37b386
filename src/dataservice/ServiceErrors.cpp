#include "ServiceErrors.h"

namespace qs {

void RaiseServiceError(long number, const QString& source, const QString& detail) {
    QString text;
    switch (number) {
    case kErrDatabaseNotFound:
        text = QString::fromLatin1(kTextDatabaseNotFound);
        break;
    case kErrDatabaseCorrupt:
        text = QString::fromLatin1(kTextDatabaseCorrupt);
        break;
    case kErrReadOnly:
        text = QString::fromLatin1(kTextReadOnly);
        break;
    case kErrNotAuthorized:
        text = QString::fromLatin1(kTextNotAuthorized);
        break;
    case kErrMissingParameters:
        text = QString::fromLatin1(kTextMissingParameters);
        break;
    case kErrRecordNotFound:
        text = QString::fromLatin1(kTextRecordNotFound);
        break;
    case kErrRecordInUse:
        text = QString::fromLatin1(kTextRecordInUse) + detail;
        break;
    case kErrInvalidParent:
        text = QString::fromLatin1(kTextInvalidParent) + detail;
        break;
    case kErrDuplicateUser:
        text = QString::fromLatin1(kTextDuplicateUser);
        break;
    default:
        text = detail;
        break;
    }
    throw QsError(number, source, text);
}

} // namespace qs
