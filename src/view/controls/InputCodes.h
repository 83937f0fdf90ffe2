#pragma once

#include <Qt>

class QKeyEvent;

namespace brelk::view {

// Qt's input in the program's terms: mouse buttons 1 left, 2 right, 4
// middle; shift state 1 Shift, 2 Ctrl, 4 Alt; key codes of the keyboard's
// virtual keys (13 Enter, 27 Esc, 65 "A", ...).
int buttonCode(Qt::MouseButton b);
int buttonsHeld(Qt::MouseButtons b);
int shiftState(Qt::KeyboardModifiers m);
// 0 when the key has no code the program could use.
int keyCode(const QKeyEvent& e);

}  // namespace brelk::view
