#pragma once

#include <QWidget>

#include "ControlMouse.h"
#include "ControlView.h"

namespace brelk::view {

// An image: one of the item pictures, fitted to the control.
class ImageView : public QWidget, public ControlView {
public:
    ImageView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void apply(Prop p) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override { mouse_.press(*this, e); }
    void mouseReleaseEvent(QMouseEvent* e) override { mouse_.release(*this, e); }
    void mouseDoubleClickEvent(QMouseEvent* e) override { mouse_.doubleClick(*this, e); }
    void mouseMoveEvent(QMouseEvent* e) override { mouse_.move(*this, e); }

private:
    ControlMouse mouse_;
};

}  // namespace brelk::view
