#pragma once

#include <QWidget>

#include "view/controls/ControlView.h"

namespace brelk::view {

// A line from (X1, Y1) to (X2, Y2) in its border colour. It takes no mouse:
// what lies under it gets the click.
class LineView : public QWidget, public ControlView {
public:
    LineView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void applyGeometry() override;
    void applyFont() override {}
    void apply(Prop p) override;
    void paintEvent(QPaintEvent*) override;
};

}  // namespace brelk::view
