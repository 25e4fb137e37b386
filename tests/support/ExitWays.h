#pragma once

#include "FormBase.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QTest>
#include <gtest/gtest.h>
#include <string>

namespace qs::test {

// The ways a person leaves a window: its own exit or cancel button, Escape in a control, or the
// window's close box.
enum class Leave { Button, Escape, CloseBox };

inline std::string wayName(Leave way) {
    switch (way) {
    case Leave::Button:
        return "Button";
    case Leave::Escape:
        return "Escape";
    case Leave::CloseBox:
        return "CloseBox";
    }
    return std::string();
}

// For a suite run once per way: INSTANTIATE_TEST_SUITE_P(Ways, Suite, everyWay(), WayName());
inline auto everyWay() {
    return ::testing::Values(Leave::Button, Leave::Escape, Leave::CloseBox);
}
struct WayName {
    std::string operator()(const ::testing::TestParamInfo<Leave>& info) const {
        return wayName(info.param);
    }
};

// Leaves `form` that way: clicks `button`, presses Escape in `control`, or sends the close event
// of the close box.  Returns false when the close box's event was refused (the window stays).
inline bool leave(FormBase& form, Leave way, QAbstractButton* button, QWidget* control) {
    switch (way) {
    case Leave::Button:
        button->click();
        return true;
    case Leave::Escape:
        QTest::keyClick(control, Qt::Key_Escape);
        return true;
    case Leave::CloseBox: {
        QCloseEvent event;
        QApplication::sendEvent(&form, &event);
        return event.isAccepted();
    }
    }
    return false;
}

} // namespace qs::test
