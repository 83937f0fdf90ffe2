#pragma once

#include <QWidget>

#include "view/controls/ControlMouse.h"
#include "view/controls/ControlView.h"

namespace brelk::view {

// A drawn control that takes the mouse itself (labels, images): every press,
// release, double click and move on the widget goes to its control.
class MouseView : public QWidget, public ControlView {
public:
    MouseView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void mousePressEvent(QMouseEvent* e) override { mouse_.press(*this, e); }
    void mouseReleaseEvent(QMouseEvent* e) override { mouse_.release(*this, e); }
    void mouseDoubleClickEvent(QMouseEvent* e) override { mouse_.doubleClick(*this, e); }
    void mouseMoveEvent(QMouseEvent* e) override { mouse_.move(*this, e); }

private:
    ControlMouse mouse_;
};

}  // namespace brelk::view
