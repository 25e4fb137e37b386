#include "ListViewColumns.h"

#include "ListView.h"
#include "QsError.h"

namespace qs {

namespace {
[[noreturn]] void notFound() {
    throw QsError(35601, QString::fromLatin1(kAppSource), QStringLiteral("Element not found"));
}
} // namespace

ColumnHeader& ListViewColumns::Add(const QString& key, const QString& text, int width) {
    if (!key.isEmpty())
        for (const auto& c : mColumns)
            if (c->Key() == key)
                throw QsError(35602, QString::fromLatin1(kAppSource),
                              QStringLiteral("Key is not unique in collection"));
    const int index = Count() + 1;
    mList->setColumnCount(index);
    mColumns.push_back(std::make_unique<ColumnHeader>(mList, index, key));
    ColumnHeader& column = *mColumns.back();
    column.setText(text);
    if (width >= 0)
        column.setWidth(width);
    return column;
}

ColumnHeader& ListViewColumns::Item(int index) const {
    if (index < 1 || index > Count())
        notFound();
    return *mColumns[static_cast<size_t>(index - 1)];
}

ColumnHeader& ListViewColumns::Item(const QString& key) const {
    for (const auto& c : mColumns)
        if (!key.isEmpty() && c->Key() == key)
            return *c;
    notFound();
}

void ListViewColumns::Clear() {
    mList->ListItems.Clear();
    mColumns.clear();
    mList->setColumnCount(0);
}

} // namespace qs
