#pragma once

#include <QWidget>

#include "platform/Control.h"
#include "view/window/ViewContext.h"

namespace brelk::view {

// The widget side of one control: it shows the control's properties and
// follows every change of them. The control stays the only store of state;
// the widget reads it and hands input back to the form.
class ControlView {
public:
    ControlView(Control& control, const ViewContext& context);
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    virtual QWidget* widget() = 0;
    // Where the controls that this one contains are placed.
    virtual QWidget* childArea() { return widget(); }

    // Brings the widget in line with one property, or with all of them.
    void sync(Prop p);
    void syncAll();

    // The control; null once it has been unloaded, while its widget waits
    // to be deleted.
    Control* control() const { return control_; }
    void detach() { control_ = nullptr; }
    const ViewContext& context() const { return context_; }

protected:
    // Geometry in the parent's pixels; lines work it out from their ends.
    virtual void applyGeometry();
    virtual void applyFont();
    // Everything particular to the kind of control.
    virtual void apply(Prop p) = 0;

    Control* control_;
    const ViewContext& context_;
};

// Buttons, boxes and entry fields are windows of their own and always lie
// above labels, images and lines, whatever the stacking order says.
bool isWindowedKind(ControlKind kind);

}  // namespace brelk::view
