#pragma once

#include "Panel.h"
#include "StatusBarPanels.h"

#include <QStatusBar>

namespace qs {

// A status bar over QStatusBar with numbered text panels.  It starts with `panels` panels.
class StatusBar : public QStatusBar {
    Q_OBJECT
public:
    explicit StatusBar(const QString& name, QWidget* parent = nullptr, int panels = 1);

    StatusBarPanels Panels;

    QString Name() const { return objectName(); }
};

} // namespace qs
