#pragma once

#include <QPushButton>

#include "view/controls/ControlView.h"

namespace brelk::view {

// A command button: a real push button that takes the focus, is pressed by
// the mouse or by Space, and clicks its control. Its caption, its Enabled
// and the form's focus follow the model.
class ButtonView : public QPushButton, public ControlView {
public:
    ButtonView(Control& control, const ViewContext& context, QWidget* parent);
    QWidget* widget() override { return this; }

protected:
    void apply(Prop p) override;
    void paintEvent(QPaintEvent*) override;
    void focusInEvent(QFocusEvent* e) override;
};

}  // namespace brelk::view
