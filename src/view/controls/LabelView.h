#pragma once

#include <QFont>

#include "view/controls/MouseView.h"

namespace brelk::view {

// A label: its caption in its font, colour and alignment, on its back
// colour when BackStyle is 1 and on whatever lies behind when it is 0, in a
// thin border when BorderStyle is 1. A caption of several words a little
// too wide for a one-line label is drawn a little narrower.
class LabelView : public MouseView {
public:
    using MouseView::MouseView;

protected:
    void apply(Prop p) override;
    void applyFont() override;
    void paintEvent(QPaintEvent*) override;

private:
    QFont fitted(const QString& text) const;

    QFont font_;
};

}  // namespace brelk::view
