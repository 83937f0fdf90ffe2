#include "BoxView.h"

#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>

#include "ItemIcons.h"
#include "Twips.h"
#include "map/IconCatalogue.h"
#include "platform/Form.h"
#include "platform/Platform.h"

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

// The 3D border of a picture box, in pixels.
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
    return control_->number(Prop::BorderStyle) != 0 ? kSunkenBorder : 0;
}

void BoxView::placeArea() { area_->setGeometry(rect().adjusted(border(), border(), -border(), -border())); }

void BoxView::apply(Prop p) {
    if (p == Prop::BorderStyle) placeArea();
    if (p == Prop::BackColor || p == Prop::BorderStyle || p == Prop::Caption || p == Prop::Picture) update();
}

void BoxView::applyFont() {
    setFont(fontOf(*control_));
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
            paintItemIcon(painter, QRectF(area_->geometry()), *icon);
            painter.restore();
        } else if (picture == kProgramIconPicture) {
            appIcon().paint(&painter, area_->geometry());
        }
        if (border() == 0) return;
        QStyleOptionFrame option;
        option.initFrom(this);
        option.rect = rect();
        option.lineWidth = kSunkenBorder / 2;
        option.midLineWidth = 0;
        option.state |= QStyle::State_Sunken;
        style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, this);
        return;
    }
    // A frame: an etched rectangle whose top line runs through the caption.
    const QString caption = displayText(*control_);
    const QFontMetrics metrics(font());
    const int middle = metrics.height() / 2;
    const QRect box = rect().adjusted(0, middle, -1, -1);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(box);
    painter.setPen(palette().color(QPalette::Light));
    painter.drawRect(box.adjusted(1, 1, 1, 1));
    if (caption.isEmpty()) return;
    const QRect text(8, 0, metrics.horizontalAdvance(caption) + 4, metrics.height());
    painter.fillRect(text, toColor(control_->number(Prop::BackColor)));
    painter.setPen(toColor(control_->number(Prop::ForeColor)));
    painter.drawText(text, Qt::AlignCenter, caption);
}

}  // namespace brelk::view
