#pragma once

#include <QFont>
#include <QWidget>

#include "ControlMouse.h"
#include "ControlView.h"

namespace brelk::view {

// A label: its caption in its font, colour and alignment, on its back
// colour when BackStyle is 1 and on whatever lies behind when it is 0.
class LabelView : public QWidget, public ControlView {
public:
    LabelView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void apply(Prop p) override;
    void applyFont() override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override { mouse_.press(*this, e); }
    void mouseReleaseEvent(QMouseEvent* e) override { mouse_.release(*this, e); }
    void mouseDoubleClickEvent(QMouseEvent* e) override { mouse_.doubleClick(*this, e); }
    void mouseMoveEvent(QMouseEvent* e) override { mouse_.move(*this, e); }

private:
    QFont font_;
    ControlMouse mouse_;
};

}  // namespace brelk::view
