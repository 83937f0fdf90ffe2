#include "view/controls/MouseView.h"

#include "platform/Form.h"

namespace brelk::view {

MouseView::MouseView(Control& control, const ViewContext& context, QWidget* parent)
    : QWidget(parent), ControlView(control, context), mouse_(*this) {
    setAttribute(Qt::WA_NoMousePropagation);
    // The moving pointer is followed only where the program listens to it.
    setMouseTracking(context.form.hasHandler(control.name(), Event::MouseMove));
}

}  // namespace brelk::view
