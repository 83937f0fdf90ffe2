#include "view/controls/ControlMouse.h"

#include <QMouseEvent>
#include <QWidget>

#include "platform/Events.h"
#include "platform/Form.h"
#include "view/controls/ControlView.h"
#include "view/controls/InputCodes.h"
#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {

float twipX(const QMouseEvent* e, double zoom) { return static_cast<float>(toTwips(e->position().x(), zoom)); }
float twipY(const QMouseEvent* e, double zoom) { return static_cast<float>(toTwips(e->position().y(), zoom)); }

}  // namespace

void ControlMouse::press(QWidget&, QMouseEvent* e) {
    e->accept();
    Control* c = view_.control();
    const int b = buttonCode(e->button());
    if (!c || b == 0) return;
    if (b == button::Left) {
        pressed_ = true;
        doubleClick_ = false;
        // A press that Qt turns into a double click comes back as one.
        if (e->flags() & Qt::MouseEventCreatedDoubleClick) return;
    }
    const int shift = shiftState(e->modifiers());
    const float x = twipX(e, view_.context().zoom), y = twipY(e, view_.context().zoom);
    view_.context().run([&] { c->form().mouseDown(*c, b, shift, x, y); });
}

void ControlMouse::doubleClick(QWidget& area, QMouseEvent* e) {
    e->accept();
    Control* c = view_.control();
    if (!c) return;
    if (e->button() != Qt::LeftButton) return press(area, e);
    pressed_ = true;
    doubleClick_ = true;
    view_.context().run([&] { c->form().dblClick(*c); });
}

void ControlMouse::release(QWidget& area, QMouseEvent* e) {
    e->accept();
    Control* c = view_.control();
    const int b = buttonCode(e->button());
    if (!c || b == 0) return;
    const bool click = b == button::Left && pressed_ && !doubleClick_ &&
                       area.rect().contains(e->position().toPoint());
    if (b == button::Left) pressed_ = doubleClick_ = false;
    const int shift = shiftState(e->modifiers());
    const float x = twipX(e, view_.context().zoom), y = twipY(e, view_.context().zoom);
    view_.context().run([&] {
        Form& form = c->form();
        form.mouseUp(*c, b, shift, x, y);
        // The MouseUp handler may have unloaded the control.
        if (click && view_.control()) form.click(*c);
    });
}

void ControlMouse::move(QWidget&, QMouseEvent* e) {
    e->accept();
    Control* c = view_.control();
    if (!c) return;
    const int held = buttonsHeld(e->buttons());
    const int shift = shiftState(e->modifiers());
    const float x = twipX(e, view_.context().zoom), y = twipY(e, view_.context().zoom);
    view_.context().run([&] { c->form().mouseMove(*c, held, shift, x, y); });
}

}  // namespace brelk::view
