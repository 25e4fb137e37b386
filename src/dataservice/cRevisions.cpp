#include "cRevisions.h"

#include "QsError.h"

namespace qs {

cRevision& cRevisions::Add(int) {
    mLines.emplace_back();
    return mLines.back();
}

cRevision& cRevisions::Item(int index) {
    return const_cast<cRevision&>(static_cast<const cRevisions&>(*this).Item(index));
}

const cRevision& cRevisions::Item(int index) const {
    if (index < 1 || index > Count())
        throw QsError(9, QStringLiteral("cRevisions:Item;"),
                      QStringLiteral("Subscript out of range"));
    return mLines[static_cast<size_t>(index - 1)];
}

} // namespace qs
