#pragma once

#include <QColor>
#include <QFont>
#include <QRect>

namespace brelk {
class Control;
}

namespace brelk::view {

// The model measures in twips; a window drawn at 100 % shows 15 twips per
// logical pixel, and Qt's device pixel ratio keeps that crisp on dense
// screens. A window drawn at a zoom (1.5 for 150 %) has that many times more
// pixels per twip, for places and sizes alike.
constexpr double kTwipsPerPixel = 15.0;

inline double toPixels(double twips, double zoom) { return twips * zoom / kTwipsPerPixel; }
inline double toTwips(double pixels, double zoom) { return pixels * kTwipsPerPixel / zoom; }

// A twip rectangle on the logical pixel grid. Edges are rounded, not sizes,
// so controls that touch in twips touch on screen too.
QRect pixelRect(double left, double top, double width, double height, double zoom);

// 0x00BBGGRR as the model stores colours.
inline QColor toColor(double value) {
    // Anything out of range (or no number at all) is taken as black or white.
    const auto v = static_cast<unsigned long>(value > 0 ? (value < 16777215.0 ? value : 16777215.0) : 0.0);
    return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF), static_cast<int>((v >> 16) & 0xFF));
}

// The control's font, its points drawn at the zoom: the metric-compatible
// families this system has.
QFont fontOf(const Control& c, double zoom);

// A caption as shown: with mnemonics on, "&x" marks x and "&&" is one "&".
QString displayText(const Control& c);

}  // namespace brelk::view
