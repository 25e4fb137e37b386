#include "ColumnHeader.h"

#include "ListView.h"

#include <QHeaderView>

namespace qs {

QString ColumnHeader::Text() const {
    return mList->headerItem()->text(mIndex - 1);
}
void ColumnHeader::setText(const QString& text) {
    mList->headerItem()->setText(mIndex - 1, text);
}
int ColumnHeader::Width() const {
    return mList->columnWidth(mIndex - 1);
}
void ColumnHeader::setWidth(int width) {
    mList->setColumnWidth(mIndex - 1, width);
}

} // namespace qs
