#pragma once

#include "cRevision.h"

#include <deque>

namespace qs {

// The revision history of one item in the order of entry, newest last.  Lines handed out by Add
// and Item stay valid for the life of the list (a deque never moves its elements on append).
// A copy of a record copies its list.
class cRevisions {
public:
    // Appends an empty line to fill; the item's Save stores it.  The argument is always 0.
    cRevision& Add(int flag = 0);
    // 1-based; an index outside 1..Count raises error 9 "Subscript out of range".
    cRevision& Item(int index);
    const cRevision& Item(int index) const;
    int Count() const { return static_cast<int>(mLines.size()); }

    auto begin() { return mLines.begin(); }
    auto end() { return mLines.end(); }
    auto begin() const { return mLines.begin(); }
    auto end() const { return mLines.end(); }

private:
    friend class RevisionStore;
    std::deque<cRevision> mLines;
};

} // namespace qs
