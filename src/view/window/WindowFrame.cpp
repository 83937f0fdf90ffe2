#include "view/window/WindowFrame.h"

#include <cmath>

#include <QFont>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPalette>

#include "platform/Design.h"
#include "view/drawing/Twips.h"

namespace brelk::view {

namespace {

constexpr double kBorderTwips = design::kFrameBorder;
constexpr double kCaptionTwips = design::kFrameCaption;
constexpr int kIconSize = 16;

// At 100 %; a zoomed window's frame is this one grown.
int pixels(double twips) { return static_cast<int>(std::lround(toPixels(twips, 1.0))); }

}  // namespace

WindowFrame WindowFrame::mainWindow() { return {pixels(kBorderTwips), pixels(kCaptionTwips)}; }

WindowFrame WindowFrame::toolWindow() { return {pixels(kBorderTwips), pixels(kCaptionTwips), false}; }

WindowFrame WindowFrame::zoomed(double zoom) const {
    const auto grown = [zoom](int px) { return static_cast<int>(std::lround(px * zoom)); };
    return {grown(border), grown(caption), icon};
}

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
    // Lines, icon and caption grow with the strip when the window is zoomed.
    const double scale = strip.height() / static_cast<double>(pixels(kCaptionTwips));
    const auto grown = [scale](int px) { return std::max(1, static_cast<int>(std::lround(px * scale))); };
    const int line = grown(1);
    painter.fillRect(strip, palette.color(QPalette::Window).darker(108));
    painter.fillRect(QRect(strip.left(), strip.bottom() + 1 - line, strip.width(), line), palette.color(QPalette::Mid));
    painter.setClipRegion(ring.subtracted(QRegion(outer.marginsRemoved({line, line, line, line}))));
    painter.fillRect(outer, palette.color(QPalette::Dark));
    painter.setClipRegion(ring);

    // Icon and caption, muted, as on an inactive title bar.
    int textLeft = strip.left() + grown(3);
    if (const int side = grown(kIconSize); frame.icon && !icon.isNull() && strip.height() >= side) {
        const QRect iconRect(textLeft, strip.top() + (strip.height() - 1 - side) / 2, side, side);
        icon.paint(&painter, iconRect);
        textLeft = iconRect.right() + grown(5);
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
