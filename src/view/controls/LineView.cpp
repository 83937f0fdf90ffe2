#include "view/controls/LineView.h"

#include <cmath>

#include <QPainter>

#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {

QPointF endPoint(const Control& c, Prop x, Prop y, double zoom) {
    return {toPixels(c.number(x) * c.twipsPerUnitAcross(), zoom), toPixels(c.number(y) * c.twipsPerUnitDown(), zoom)};
}

// One pixel at 100 %, growing with the zoom as on a denser screen.
int thickness(double zoom) { return std::max(1, static_cast<int>(std::lround(zoom))); }

}  // namespace

LineView::LineView(Control& control, const ViewContext& context, QWidget* parent)
    : QWidget(parent), ControlView(control, context) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::applyGeometry() {
    // The widget is the box around the line, one line thick at least.
    const QPointF a = endPoint(*control_, Prop::X1, Prop::Y1, context_.zoom);
    const QPointF b = endPoint(*control_, Prop::X2, Prop::Y2, context_.zoom);
    const int left = static_cast<int>(std::lround(std::min(a.x(), b.x())));
    const int top = static_cast<int>(std::lround(std::min(a.y(), b.y())));
    const int right = static_cast<int>(std::lround(std::max(a.x(), b.x())));
    const int bottom = static_cast<int>(std::lround(std::max(a.y(), b.y())));
    const int least = thickness(context_.zoom);
    setGeometry(left, top, std::max(least, right - left), std::max(least, bottom - top));
    update();
}

void LineView::apply(Prop p) {
    if (p == Prop::BorderColor) update();
}

void LineView::paintEvent(QPaintEvent*) {
    if (!control_) return;
    QPainter painter(this);
    const QColor colour = toColor(control_->number(Prop::BorderColor));
    const QPointF a = endPoint(*control_, Prop::X1, Prop::Y1, context_.zoom);
    const QPointF b = endPoint(*control_, Prop::X2, Prop::Y2, context_.zoom);
    if (std::lround(a.x()) == std::lround(b.x()) || std::lround(a.y()) == std::lround(b.y())) {
        // Across or down: sharp rows or columns of pixels.
        painter.fillRect(rect(), colour);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = thickness(context_.zoom);
    painter.setPen(QPen(colour, width));
    const bool falling = (b.x() - a.x()) * (b.y() - a.y()) > 0;
    const QRectF r = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    if (falling) painter.drawLine(r.topLeft(), r.bottomRight());
    else painter.drawLine(r.bottomLeft(), r.topRight());
}

}  // namespace brelk::view
