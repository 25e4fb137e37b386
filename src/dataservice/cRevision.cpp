#include "cRevision.h"

#include "ServiceErrors.h"

namespace qs {

void cRevision::checkWritable() const {
    if (mStored)
        RaiseServiceError(kErrReadOnly, QStringLiteral("cRevision:Let;"));
}

void cRevision::AuthorId(int value) {
    checkWritable();
    mAuthorId = value;
}

void cRevision::Comment(const QString& value) {
    checkWritable();
    mComment = value;
}

void cRevision::Version(const QString& value) {
    checkWritable();
    mVersion = value;
}

void cRevision::DateRevised(const QDateTime& value) {
    checkWritable();
    mDateRevised = value;
}

} // namespace qs
