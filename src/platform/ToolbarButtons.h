#pragma once

#include "Button.h"

#include <memory>
#include <vector>

namespace qs {

class Toolbar;

// The Buttons collection of a tool bar, in the order added, 1-based.  An absent key or index
// raises 35601; a duplicate non-empty key raises 35602.
class ToolbarButtons {
public:
    Button& Add(const QString& key, const QString& caption = QString(), int style = tbrDefault,
                const QString& image = QString());
    Button& operator()(const QString& key) const { return Item(key); }
    Button& operator()(int index) const { return Item(index); }
    Button& Item(const QString& key) const;
    Button& Item(int index) const;
    bool Exists(const QString& key) const;
    int Count() const { return static_cast<int>(mButtons.size()); }

    auto begin() const { return mButtons.begin(); }
    auto end() const { return mButtons.end(); }

private:
    friend class Toolbar;
    explicit ToolbarButtons(Toolbar* bar) : mBar(bar) {}
    ToolbarButtons(const ToolbarButtons&) = delete;
    ToolbarButtons& operator=(const ToolbarButtons&) = delete;
    Toolbar* mBar;
    std::vector<std::unique_ptr<Button>> mButtons;
};

} // namespace qs
