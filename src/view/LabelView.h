#pragma once

#include <QFont>

#include "MouseView.h"

namespace brelk::view {

// A label: its caption in its font, colour and alignment, on its back
// colour when BackStyle is 1 and on whatever lies behind when it is 0.
class LabelView : public MouseView {
public:
    using MouseView::MouseView;

protected:
    void apply(Prop p) override;
    void applyFont() override;
    void paintEvent(QPaintEvent*) override;

private:
    QFont font_;
};

}  // namespace brelk::view
