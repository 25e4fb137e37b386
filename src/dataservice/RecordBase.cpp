#include "RecordBase.h"

#include "DatabaseLocation.h"
#include "ServiceErrors.h"

namespace qs {

RecordBase::RecordBase() : mDatabasePath(ConfiguredDatabasePath()) {}

void RecordBase::BeginEdit(int) {
    mEditing = true;
}

void RecordBase::checkEditing(const QString& source) const {
    if (!mEditing)
        RaiseServiceError(kErrReadOnly, source);
}

} // namespace qs
