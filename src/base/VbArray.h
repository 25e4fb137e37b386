#pragma once

#include "QsError.h"

#include <QVector>

namespace qs {

// A list with the bounds the callers test: rows are numbered from 1 and an empty result has
// lower bound 0 and upper bound 0.  Index 0 of a non-empty array does not exist.
template <class T> class VbArray {
public:
    VbArray() = default;
    VbArray(std::initializer_list<T> rows) : mRows(rows) {}

    int LBound() const { return mRows.isEmpty() ? 0 : 1; }
    int UBound() const { return mRows.size(); }
    bool isEmpty() const { return mRows.isEmpty(); }
    int count() const { return mRows.size(); }

    T& operator()(int index) { return mRows[checked(index)]; }
    const T& operator()(int index) const { return mRows[checked(index)]; }
    T& operator[](int index) { return mRows[checked(index)]; }
    const T& operator[](int index) const { return mRows[checked(index)]; }

    void append(const T& row) { mRows.append(row); }
    void append(T&& row) { mRows.append(std::move(row)); }
    void clear() { mRows.clear(); }
    void reserve(int count) { mRows.reserve(count); }

    // Plain iteration over the rows, first to last.
    auto begin() { return mRows.begin(); }
    auto end() { return mRows.end(); }
    auto begin() const { return mRows.begin(); }
    auto end() const { return mRows.end(); }

    const QVector<T>& rows() const { return mRows; }

private:
    int checked(int index) const {
        if (index < 1 || index > mRows.size())
            throw QsError(9, QString::fromLatin1(kAppSource),
                          QStringLiteral("Subscript out of range"));
        return index - 1;
    }
    QVector<T> mRows;
};

} // namespace qs
