#pragma once

#include "view/controls/MouseView.h"

namespace brelk::view {

// An image: one of the item pictures, fitted to the control.
class ImageView : public MouseView {
public:
    using MouseView::MouseView;

protected:
    void apply(Prop p) override;
    void paintEvent(QPaintEvent*) override;
};

}  // namespace brelk::view
