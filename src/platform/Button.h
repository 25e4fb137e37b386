#pragma once

#include <QString>

class QAction;

namespace qs {

class Toolbar;

// Button styles.
enum ButtonStyle : int { tbrDefault = 0, tbrCheck = 1, tbrButtonGroup = 2, tbrSeparator = 3 };

// One tool bar button.  Owned by its tool bar.
class Button {
public:
    Button(Toolbar* bar, QAction* action, int index, const QString& key, int style);

    int Index() const { return mIndex; }
    QString Key() const { return mKey; }
    QString Tag() const { return mTag; }
    void setTag(const QString& tag) { mTag = tag; }
    QString Caption() const;
    void setCaption(const QString& caption);
    QString ToolTipText() const { return mToolTip; }
    void setToolTipText(const QString& text);
    // Image key of the tool bar's image list; empty for none.
    QString Image() const { return mImage; }
    void setImage(const QString& imageKey);
    bool Enabled() const;
    void setEnabled(bool enabled);
    bool Visible() const;
    void setVisible(bool visible);
    int Style() const { return mStyle; }

    QAction* action() const { return mAction; }

private:
    friend class Toolbar;
    Toolbar* mBar;
    QAction* mAction;
    int mIndex;
    QString mKey;
    QString mTag;
    QString mImage;
    QString mToolTip;
    int mStyle;
};

} // namespace qs
