#include "LineView.h"

#include <cmath>

#include <QPainter>

#include "Twips.h"

namespace brelk::view {

namespace {

QPointF endPoint(const Control& c, Prop x, Prop y) {
    return {toPixels(c.number(x) * c.twipsPerUnitAcross()), toPixels(c.number(y) * c.twipsPerUnitDown())};
}

}  // namespace

LineView::LineView(Control& control, const ViewContext& context, QWidget* parent)
    : QWidget(parent), ControlView(control, context) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::applyGeometry() {
    // The widget is the box around the line, one pixel thick at least.
    const QPointF a = endPoint(*control_, Prop::X1, Prop::Y1);
    const QPointF b = endPoint(*control_, Prop::X2, Prop::Y2);
    const int left = static_cast<int>(std::lround(std::min(a.x(), b.x())));
    const int top = static_cast<int>(std::lround(std::min(a.y(), b.y())));
    const int right = static_cast<int>(std::lround(std::max(a.x(), b.x())));
    const int bottom = static_cast<int>(std::lround(std::max(a.y(), b.y())));
    setGeometry(left, top, std::max(1, right - left), std::max(1, bottom - top));
    update();
}

void LineView::apply(Prop p) {
    if (p == Prop::BorderColor) update();
}

void LineView::paintEvent(QPaintEvent*) {
    if (!control_) return;
    QPainter painter(this);
    const QColor colour = toColor(control_->number(Prop::BorderColor));
    const QPointF a = endPoint(*control_, Prop::X1, Prop::Y1);
    const QPointF b = endPoint(*control_, Prop::X2, Prop::Y2);
    if (std::lround(a.x()) == std::lround(b.x()) || std::lround(a.y()) == std::lround(b.y())) {
        // Across or down: one sharp pixel row or column.
        painter.fillRect(rect(), colour);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1));
    const bool falling = (b.x() - a.x()) * (b.y() - a.y()) > 0;
    const QRectF r = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (falling) painter.drawLine(r.topLeft(), r.bottomRight());
    else painter.drawLine(r.bottomLeft(), r.topRight());
}

}  // namespace brelk::view
