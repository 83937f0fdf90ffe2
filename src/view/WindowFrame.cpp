#include "WindowFrame.h"

#include <cmath>

#include <QFont>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPalette>

#include "Twips.h"
#include "platform/Design.h"

namespace brelk::view {

namespace {

constexpr double kBorderTwips = design::kFrameBorder;
constexpr double kCaptionTwips = design::kFrameCaption;
constexpr int kIconSize = 16;

int pixels(double twips) { return static_cast<int>(std::lround(toPixels(twips))); }

}  // namespace

WindowFrame WindowFrame::mainWindow() { return {pixels(kBorderTwips), pixels(kCaptionTwips)}; }

WindowFrame WindowFrame::toolWindow() { return {pixels(kBorderTwips), pixels(kCaptionTwips), false}; }

void paintWindowFrame(QPainter& painter, const QRect& outer, const WindowFrame& frame, const QString& caption,
                      const QIcon& icon, const QPalette& palette) {
    if (frame.isEmpty()) return;
    painter.save();
    // The border in the window colour of the system, outlined so the window
    // stands out on any desktop.
    const QRect inner = outer.marginsRemoved(frame.margins());
    const QRegion ring = QRegion(outer).subtracted(QRegion(inner));
    painter.setClipRegion(ring);
    painter.fillRect(outer, palette.color(QPalette::Window));
    const QRect strip = frame.captionRect(outer);
    painter.fillRect(strip, palette.color(QPalette::Window).darker(108));
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawLine(strip.bottomLeft(), strip.bottomRight());
    painter.setPen(palette.color(QPalette::Dark));
    painter.drawRect(outer.adjusted(0, 0, -1, -1));

    // Icon and caption, muted, as on an inactive title bar.
    int textLeft = strip.left() + 3;
    if (frame.icon && !icon.isNull() && strip.height() >= kIconSize) {
        const QRect iconRect(textLeft, strip.top() + (strip.height() - 1 - kIconSize) / 2, kIconSize, kIconSize);
        icon.paint(&painter, iconRect);
        textLeft = iconRect.right() + 5;
    }
    QFont font = painter.font();
    font.setPixelSize(std::max(8, strip.height() * 11 / 19));
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::Disabled, QPalette::WindowText).darker(130));
    const QRect textRect(textLeft, strip.top(), strip.right() - textLeft, strip.height() - 1);
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(font).elidedText(caption, Qt::ElideRight, textRect.width()));
    painter.restore();
}

}  // namespace brelk::view
