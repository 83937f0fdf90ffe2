#include "view/controls/LabelView.h"

#include <cmath>

#include <QPainter>

#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {

Qt::Alignment alignmentOf(const Control& c) {
    switch (static_cast<int>(c.number(Prop::Alignment))) {
    case align::Right: return Qt::AlignRight | Qt::AlignTop;
    case align::Center: return Qt::AlignHCenter | Qt::AlignTop;
    default: return Qt::AlignLeft | Qt::AlignTop;
    }
}

}  // namespace

void LabelView::apply(Prop p) {
    if (p == Prop::BackStyle) setAttribute(Qt::WA_OpaquePaintEvent, control_->number(Prop::BackStyle) != 0);
    switch (p) {
    case Prop::Caption:
    case Prop::ForeColor:
    case Prop::BackColor:
    case Prop::BackStyle:
    case Prop::Alignment:
    case Prop::BorderStyle:
    case Prop::UseMnemonic: update(); break;
    default: break;
    }
}

void LabelView::applyFont() {
    font_ = fontOf(*control_, context_.zoom);
    update();
}

QFont LabelView::fitted(const QString& text) const {
    // A label with room for one line: a caption of several words a little
    // too wide for it is drawn a little narrower, down to 85 %, rather than
    // losing its last words to a second line that does not show.
    QFont font = font_;
    if (!text.contains(' ') || height() >= 2 * QFontMetrics(font).height()) return font;
    for (int stretch = 100; stretch > 85 && QFontMetricsF(font).horizontalAdvance(text) > width(); stretch -= 3)
        font.setStretch(stretch - 3);
    return font;
}

void LabelView::paintEvent(QPaintEvent*) {
    if (!control_) return;
    QPainter painter(this);
    if (control_->number(Prop::BackStyle) != 0) painter.fillRect(rect(), toColor(control_->number(Prop::BackColor)));
    if (control_->number(Prop::BorderStyle) == border::FixedSingle) {
        // One dark line around it, inside its rectangle: one pixel at 100 %.
        const double line = std::max(1.0, std::round(context_.zoom));
        painter.setPen(QPen(palette().color(QPalette::WindowText), line));
        painter.drawRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
    }
    // A CR, alone or before an LF, breaks the line as an LF does.
    const QString text = displayText(*control_).replace("\r\n", "\n").replace('\r', '\n');
    if (text.isEmpty()) return;
    painter.setFont(fitted(text));
    painter.setPen(toColor(control_->number(Prop::ForeColor)));
    // Words that do not fit go to the next line, as on the labels this
    // window was designed with; what falls outside the label is cut.
    painter.drawText(rect(), static_cast<int>(alignmentOf(*control_)) | Qt::TextWordWrap, text);
}

}  // namespace brelk::view
