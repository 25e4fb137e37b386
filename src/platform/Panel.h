#pragma once

#include <QString>

class QLabel;

namespace qs {

// One panel of a status bar.  Owned by the bar.
class Panel {
public:
    Panel(QLabel* label, int index, const QString& key) : mLabel(label), mIndex(index), mKey(key) {}

    int Index() const { return mIndex; }
    QString Key() const { return mKey; }
    QString Text() const;
    void setText(const QString& text);
    // Width in pixels.
    int Width() const;
    void setWidth(int width);

private:
    QLabel* mLabel;
    int mIndex;
    QString mKey;
};

} // namespace qs
