#include "ImageView.h"

#include <QPainter>

#include "ItemIcons.h"
#include "map/IconCatalogue.h"
#include "platform/Form.h"

namespace brelk::view {

ImageView::ImageView(Control& control, const ViewContext& context, QWidget* parent)
    : QWidget(parent), ControlView(control, context), mouse_(*this) {
    setAttribute(Qt::WA_NoMousePropagation);
    setMouseTracking(context.form.hasHandler(control.name(), Event::MouseMove));
}

void ImageView::apply(Prop p) {
    if (p == Prop::Picture || p == Prop::Stretch) update();
}

void ImageView::paintEvent(QPaintEvent*) {
    if (!control_) return;
    const auto index = iconIndex(control_->get(Prop::Picture).text());
    if (!index) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintItemIcon(painter, QRectF(rect()), *index);
}

}  // namespace brelk::view
