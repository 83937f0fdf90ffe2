#pragma once

#include <QWidget>

#include "view/controls/ControlMouse.h"
#include "view/controls/ControlView.h"

namespace brelk::view {

// A picture box or a frame: a plain container on its back colour, with a
// sunken border (picture box with BorderStyle 1), or drawn as the style's
// group box with its caption (frame). Hiding it hides all it contains.
class BoxView : public QWidget, public ControlView {
public:
    BoxView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }
    QWidget* childArea() override { return area_; }

    ControlMouse& mouse() { return mouse_; }

protected:
    void apply(Prop p) override;
    void applyFont() override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override { placeArea(); }
    void mousePressEvent(QMouseEvent* e) override { mouse_.press(*area_, e); }
    void mouseReleaseEvent(QMouseEvent* e) override { mouse_.release(*area_, e); }

private:
    int border() const;
    void placeArea();

    QWidget* area_;
    ControlMouse mouse_;
};

}  // namespace brelk::view
