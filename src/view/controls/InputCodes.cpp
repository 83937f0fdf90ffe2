#include "view/controls/InputCodes.h"

#include <QKeyEvent>

#include "platform/Events.h"

namespace brelk::view {

int buttonCode(Qt::MouseButton b) {
    switch (b) {
    case Qt::LeftButton: return button::Left;
    case Qt::RightButton: return button::Right;
    case Qt::MiddleButton: return button::Middle;
    default: return 0;
    }
}

int buttonsHeld(Qt::MouseButtons b) {
    return (b & Qt::LeftButton ? button::Left : 0) | (b & Qt::RightButton ? button::Right : 0) |
           (b & Qt::MiddleButton ? button::Middle : 0);
}

int shiftState(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) | (m & Qt::AltModifier ? 4 : 0);
}

int keyCode(const QKeyEvent& e) {
    const int k = e.key();
    if (k >= Qt::Key_A && k <= Qt::Key_Z) return 'A' + (k - Qt::Key_A);
    if (k >= Qt::Key_0 && k <= Qt::Key_9) return '0' + (k - Qt::Key_0);
    if (k >= Qt::Key_F1 && k <= Qt::Key_F12) return 112 + (k - Qt::Key_F1);
    switch (k) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: case Qt::Key_Backtab: return 9;
    case Qt::Key_Return: case Qt::Key_Enter: return key::Return;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Escape: return key::Escape;
    case Qt::Key_Space: return 32;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: return 0;
    }
}

}  // namespace brelk::view
