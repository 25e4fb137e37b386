#pragma once

#include "Panel.h"

#include <memory>
#include <vector>

namespace qs {

class StatusBar;

// The Panels collection of a status bar, 1-based; an absent index or key raises 35601.
class StatusBarPanels {
public:
    Panel& Add(const QString& key = QString(), const QString& text = QString());
    Panel& operator()(int index) const { return Item(index); }
    Panel& operator()(const QString& key) const { return Item(key); }
    Panel& Item(int index) const;
    Panel& Item(const QString& key) const;
    int Count() const { return static_cast<int>(mPanels.size()); }

private:
    friend class StatusBar;
    explicit StatusBarPanels(StatusBar* bar) : mBar(bar) {}
    StatusBarPanels(const StatusBarPanels&) = delete;
    StatusBarPanels& operator=(const StatusBarPanels&) = delete;
    StatusBar* mBar;
    std::vector<std::unique_ptr<Panel>> mPanels;
};

} // namespace qs
