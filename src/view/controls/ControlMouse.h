#pragma once

class QMouseEvent;
class QWidget;

namespace brelk::view {

class ControlView;

// The mouse as the form's controls receive it: MouseDown and MouseUp with
// the button that changed, the shift state and the position in twips on the
// control; MouseMove with the buttons held; Click when the left button is
// pressed and released on the control; a double click gives MouseDown,
// MouseUp, Click, DblClick, MouseUp. The form sends each MouseUp to the
// control that got the press, wherever the pointer is by then.
class ControlMouse {
public:
    explicit ControlMouse(ControlView& view) : view_(view) {}

    // `area` is the widget whose corner is the control's (0, 0).
    void press(QWidget& area, QMouseEvent* e);
    void release(QWidget& area, QMouseEvent* e);
    void doubleClick(QWidget& area, QMouseEvent* e);
    void move(QWidget& area, QMouseEvent* e);

private:
    ControlView& view_;
    bool pressed_ = false;      // the left button went down here
    bool doubleClick_ = false;  // the release that ends a double click gives no Click
};

}  // namespace brelk::view
