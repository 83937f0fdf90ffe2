#include "view/controls/ButtonView.h"

#include <QFocusEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "platform/Form.h"

namespace brelk::view {

ButtonView::ButtonView(Control& control, const ViewContext& context, QWidget* parent)
    : QPushButton(parent), ControlView(control, context) {
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false);
    setAttribute(Qt::WA_NoMousePropagation);
    connect(this, &QPushButton::clicked, this, [this] {
        if (Control* c = control_) context_.run([&] { c->form().click(*c); });
    });
}

void ButtonView::apply(Prop p) {
    // "&" marks the key of the button, as on the buttons of any dialog.
    if (p == Prop::Caption) setText(QString::fromStdString(control_->caption()));
    // The button that Enter presses looks it.
    if (p == Prop::Default) setDefault(control_->flag(Prop::Default));
}

void ButtonView::paintEvent(QPaintEvent*) {
    // The style's bevel, and the caption centred over the whole button: the
    // window's buttons are smaller than a style's text margins allow.
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    QRect area = rect();
    if (isDown()) area.translate(1, 1);
    painter.drawItemText(area, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
}

void ButtonView::focusInEvent(QFocusEvent* e) {
    QPushButton::focusInEvent(e);
    // The form knows its focus; telling it again when the window comes back
    // to the front raises nothing.
    if (Control* c = control_) context_.run([&] { c->form().setFocus(c); });
}

}  // namespace brelk::view
