#include "view/controls/ControlView.h"

#include "view/drawing/Twips.h"

namespace brelk::view {

ControlView::ControlView(Control& control, const ViewContext& context) : control_(&control), context_(context) {}

namespace {

bool isCommon(Prop p) {
    switch (p) {
    case Prop::Left: case Prop::Top: case Prop::Width: case Prop::Height:
    case Prop::X1: case Prop::Y1: case Prop::X2: case Prop::Y2:
    case Prop::Visible: case Prop::Enabled: case Prop::ToolTipText:
    case Prop::FontName: case Prop::FontSize: case Prop::FontBold: case Prop::FontUnderline:
    case Prop::MousePointer: return true;
    default: return false;
    }
}

}  // namespace

void ControlView::sync(Prop p) {
    if (!control_) return;
    QWidget* w = widget();
    switch (p) {
    case Prop::Left:
    case Prop::Top:
    case Prop::Width:
    case Prop::Height:
    case Prop::X1:
    case Prop::Y1:
    case Prop::X2:
    case Prop::Y2: applyGeometry(); break;
    case Prop::Visible: w->setVisible(control_->visible()); break;
    case Prop::Enabled: w->setEnabled(control_->enabled()); break;
    case Prop::ToolTipText: w->setToolTip(QString::fromStdString(control_->get(p).text())); break;
    case Prop::MousePointer:
        if (control_->number(p) == pointer::Hand) w->setCursor(Qt::PointingHandCursor);
        else w->unsetCursor();
        break;
    case Prop::FontName:
    case Prop::FontSize:
    case Prop::FontBold:
    case Prop::FontUnderline: applyFont(); break;
    default: apply(p); break;
    }
}

void ControlView::syncAll() {
    if (!control_) return;
    applyGeometry();
    if (control_->has(Prop::FontName)) applyFont();
    for (Prop p : {Prop::Enabled, Prop::ToolTipText, Prop::MousePointer})
        if (control_->has(p)) sync(p);
    for (int i = 0; i < kPropCount; ++i) {
        const auto p = static_cast<Prop>(i);
        if (!isCommon(p) && control_->has(p)) apply(p);
    }
    // Last, so that a widget is shown only once it looks right.
    sync(Prop::Visible);
}

void ControlView::applyGeometry() {
    // Geometry placed in the form's own units becomes twips here.
    const double across = control_->twipsPerUnitAcross();
    const double down = control_->twipsPerUnitDown();
    widget()->setGeometry(pixelRect(control_->number(Prop::Left) * across, control_->number(Prop::Top) * down,
                                    control_->number(Prop::Width) * across, control_->number(Prop::Height) * down,
                                    context_.zoom));
}

void ControlView::applyFont() { widget()->setFont(fontOf(*control_, context_.zoom)); }

bool isWindowedKind(ControlKind kind) {
    switch (kind) {
    case ControlKind::CommandButton:
    case ControlKind::TextBox:
    case ControlKind::OptionButton:
    case ControlKind::ComboBox:
    case ControlKind::PictureBox:
    case ControlKind::Frame: return true;
    default: return false;
    }
}

}  // namespace brelk::view
