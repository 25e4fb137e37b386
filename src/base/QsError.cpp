#include "QsError.h"

namespace qs {

QsError::QsError(long number, QString source, QString description)
    : mNumber(number), mSource(std::move(source)), mDescription(std::move(description)) {}

void QsError::appendSource(const QString& literal) {
    mSource += literal;
}

const char* QsError::what() const noexcept {
    mWhat = QStringLiteral("%1 (%2): %3").arg(mSource).arg(mNumber).arg(mDescription).toUtf8();
    return mWhat.constData();
}

} // namespace qs
