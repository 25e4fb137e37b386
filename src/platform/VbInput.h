#pragma once

#include <Qt>

namespace qs {

// Keyboard and mouse values as the logic's event handlers take them.

// The key code of a Qt key (13 Enter, 27 Escape, 45 Insert, 46 Delete, 112 F1 ... 123 F12,
// 65 to 90 letters, 48 to 57 digits, ...); 0 for a key without one.
int VbKeyCode(int qtKey);
// Shift state: 1 Shift, 2 Ctrl, 4 Alt, added.
int VbShift(Qt::KeyboardModifiers modifiers);
// Mouse button: 1 left, 2 right, 4 middle, added for several.
int VbButton(Qt::MouseButtons buttons);

} // namespace qs
