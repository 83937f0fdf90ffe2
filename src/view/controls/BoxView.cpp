#include "view/controls/BoxView.h"

#include <cmath>

#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>

#include "map/IconCatalogue.h"
#include "platform/Form.h"
#include "platform/Platform.h"
#include "icons/ItemIcons.h"
#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {

// The inside of a box, where its controls sit and its mouse events start.
class BoxArea : public QWidget {
public:
    BoxArea(BoxView& box) : QWidget(&box), box_(box) {}

protected:
    void mousePressEvent(QMouseEvent* e) override { box_.mouse().press(*this, e); }
    void mouseReleaseEvent(QMouseEvent* e) override { box_.mouse().release(*this, e); }
    void mouseDoubleClickEvent(QMouseEvent* e) override { box_.mouse().doubleClick(*this, e); }
    void mouseMoveEvent(QMouseEvent* e) override { box_.mouse().move(*this, e); }

private:
    BoxView& box_;
};

// The 3D border of a picture box, in pixels at 100 %.
constexpr int kSunkenBorder = 2;

}  // namespace

BoxView::BoxView(Control& control, const ViewContext& context, QWidget* parent)
    : QWidget(parent), ControlView(control, context), area_(new BoxArea(*this)), mouse_(*this) {
    setAttribute(Qt::WA_NoMousePropagation);
    area_->setAttribute(Qt::WA_NoMousePropagation);
    area_->setObjectName(QString::fromStdString(control.displayName()) + ".area");
}

int BoxView::border() const {
    if (!control_ || control_->kind() != ControlKind::PictureBox) return 0;
    return control_->number(Prop::BorderStyle) != 0 ? static_cast<int>(std::lround(kSunkenBorder * context_.zoom)) : 0;
}

void BoxView::placeArea() { area_->setGeometry(rect().adjusted(border(), border(), -border(), -border())); }

void BoxView::apply(Prop p) {
    if (p == Prop::BorderStyle) placeArea();
    if (p == Prop::BackColor || p == Prop::BorderStyle || p == Prop::Caption || p == Prop::Picture) update();
}

void BoxView::applyFont() {
    setFont(fontOf(*control_, context_.zoom));
    update();
}

void BoxView::paintEvent(QPaintEvent*) {
    if (!control_) return;
    QPainter painter(this);
    painter.fillRect(rect(), toColor(control_->number(Prop::BackColor)));
    if (control_->kind() == ControlKind::PictureBox) {
        const std::string picture = control_->get(Prop::Picture).text();
        if (const auto icon = iconIndex(picture)) {
            painter.save();
            painter.setRenderHint(QPainter::Antialiasing);
            icons::paintItemIcon(painter, QRectF(area_->geometry()), *icon);
            painter.restore();
        } else if (picture == kProgramIconPicture) {
            icons::appIcon().paint(&painter, area_->geometry());
        }
        if (border() == 0) return;
        QStyleOptionFrame option;
        option.initFrom(this);
        option.rect = rect();
        option.lineWidth = border() / 2;
        option.midLineWidth = 0;
        option.state |= QStyle::State_Sunken;
        style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, this);
        return;
    }
    // A frame: the style's group box, its caption on the top line.
    QStyleOptionGroupBox option;
    option.initFrom(this);
    option.text = displayText(*control_);
    option.textAlignment = Qt::AlignLeft;
    option.textColor = toColor(control_->number(Prop::ForeColor));
    option.subControls = QStyle::SC_GroupBoxFrame;
    if (!option.text.isEmpty()) option.subControls |= QStyle::SC_GroupBoxLabel;
    option.lineWidth = 1;
    option.midLineWidth = 0;
    style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, this);
}

}  // namespace brelk::view
