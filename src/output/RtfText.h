#pragma once

#include <QString>
#include <QStringView>

namespace qs {

// Position arithmetic of the converter over the flat rich text: positions count from 1, a
// search that finds nothing gives 0, and a character beyond either end reads as none (-1).
class RtfText {
public:
    explicit RtfText(const QString& text) : mText(text) {}

    qsizetype size() const { return mText.size(); }
    const QString& text() const { return mText; }

    int at(qsizetype position) const {
        return position >= 1 && position <= mText.size() ? mText.at(position - 1).unicode() : -1;
    }
    bool isDigitAt(qsizetype position) const {
        const int c = at(position);
        return c >= '0' && c <= '9';
    }
    // The text from `position` on starts with `word`.
    bool startsAt(qsizetype position, QLatin1String word) const {
        return position >= 1 && position <= mText.size() &&
               QStringView(mText).sliced(position - 1).startsWith(word);
    }
    // At most `length` characters from `position`, fewer at the end of the text.
    QStringView mid(qsizetype position, qsizetype length) const {
        if (position < 1 || position > mText.size() || length <= 0)
            return {};
        return QStringView(mText).sliced(position - 1).left(length);
    }
    qsizetype find(qsizetype from, QStringView what) const {
        if (from < 1 || from > mText.size())
            return 0;
        return mText.indexOf(what, from - 1) + 1;
    }

private:
    const QString& mText;
};

// A search for one fixed text that the converter repeats from nearby positions: the last answer
// stands for every start between the last start and what it found, so searching forward over
// the same stretch again costs nothing.
class RtfFinder {
public:
    RtfFinder(const RtfText& text, QStringView what) : mText(text), mWhat(what) {}

    qsizetype find(qsizetype from) {
        const bool covered =
            mSearched && from >= mFrom && (mFound == 0 || from <= mFound) && from >= 1;
        if (!covered) {
            mFrom = from;
            mFound = mText.find(from, mWhat);
            mSearched = true;
        }
        return mFound;
    }

private:
    const RtfText& mText;
    QStringView mWhat;
    bool mSearched = false;
    qsizetype mFrom = 0;
    qsizetype mFound = 0;
};

} // namespace qs
