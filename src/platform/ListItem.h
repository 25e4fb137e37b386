#pragma once

#include <QString>

class QTreeWidgetItem;

namespace qs {

// One row of a report list, as a light handle ("Nothing" when empty).  A handle lives as long as
// its row: Clear and Remove end it.
class ListItem {
public:
    ListItem() = default;
    explicit ListItem(QTreeWidgetItem* row) : mRow(row) {}

    bool isNothing() const { return mRow == nullptr; }
    explicit operator bool() const { return mRow != nullptr; }
    bool operator==(const ListItem& other) const { return mRow == other.mRow; }

    QString Key() const;
    QString Text() const;
    void setText(const QString& text);
    // Sub-item i (1-based) is the text of column i + 1.
    QString SubItems(int index) const;
    void setSubItems(int index, const QString& text);
    QString Tag() const;
    void setTag(const QString& tag);
    bool Selected() const;
    void setSelected(bool selected);
    // 1-based row in display order.
    int Index() const;
    void EnsureVisible();

    QTreeWidgetItem* row() const { return mRow; }

private:
    QTreeWidgetItem* checked() const;
    QTreeWidgetItem* mRow = nullptr;
};

} // namespace qs
