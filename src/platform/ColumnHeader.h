#pragma once

#include <QString>

namespace qs {

class ListView;

// One column of a report list.  Owned by the list; its Index counts from 1.
class ColumnHeader {
public:
    ColumnHeader(ListView* list, int index, const QString& key)
        : mList(list), mIndex(index), mKey(key) {}

    int Index() const { return mIndex; }
    QString Key() const { return mKey; }
    QString Text() const;
    void setText(const QString& text);
    // Width in pixels.
    int Width() const;
    void setWidth(int width);

private:
    ListView* mList;
    int mIndex;
    QString mKey;
};

} // namespace qs
