#include "StatusBar.h"

namespace qs {

StatusBar::StatusBar(const QString& name, QWidget* parent, int panels)
    : QStatusBar(parent), Panels(this) {
    setObjectName(name);
    setSizeGripEnabled(false);
    for (int i = 0; i < panels; ++i)
        Panels.Add();
}

} // namespace qs
