#pragma once

#include "Button.h"
#include "ToolbarButtons.h"

#include <QToolBar>
#include <functional>

namespace qs {

class ImageList;

// A tool bar over QToolBar whose buttons are reached by key.  Object name = design name.
class Toolbar : public QToolBar {
    Q_OBJECT
public:
    explicit Toolbar(const QString& name, QWidget* parent = nullptr);
    // The event members go before the base widget, which may still signal while it dies.
    ~Toolbar() override { blockSignals(true); }

    ToolbarButtons Buttons;

    QString Name() const { return objectName(); }

    void setImageList(ImageList* list);
    ImageList* imageList() const { return mImageList; }

    // Flat buttons are drawn raised only under the pointer.
    bool Flat() const { return mFlat; }
    void setFlat(bool flat);

    // Raises ButtonClick as a click on an enabled, visible button does; returns false (and
    // raises nothing) for a disabled, hidden or separator button.
    bool PerformClick(const QString& key);

    std::function<void(Button&)> ButtonClick;

private:
    friend class Button;
    friend class ToolbarButtons;
    void applyImage(Button& button);
    ImageList* mImageList = nullptr;
    bool mFlat = false;
};

} // namespace qs
