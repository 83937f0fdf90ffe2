#pragma once

#include <string_view>

#include <QByteArray>
#include <QtGlobal>

class QPainter;
class QRectF;
class QPixmap;
class QIcon;

namespace brelk::icons {

// The pictures of the icon words, in catalogue order (QUAD, 25H, ... MEDKIT).
constexpr int kItemIconCount = 20;

// Paints picture `index` into `target`, antialiased, leaving the ground clear.
// An index outside the catalogue paints nothing.
void paintItemIcon(QPainter& painter, const QRectF& target, int index);

// The picture as a transparent pixmap of `logicalSize` points, drawn at the
// device pixel ratio so it stays crisp on high-density screens.
QPixmap itemIconPixmap(int index, int logicalSize, qreal dpr);

// The picture of a catalogue word ("RA"); a word outside the catalogue paints nothing.
void paintItemIcon(QPainter& painter, const QRectF& target, std::string_view word);

// The picture as an SVG document of `size` by `size` points, for a web page;
// empty for a word outside the catalogue.
QByteArray itemIconSvg(std::string_view word, int size = 32);

// The program's emblem, a stopwatch with a red hand, painted into `target`;
// the desktop's icon files are drawn by it too.
void paintAppIcon(QPainter& painter, const QRectF& target);

// The program's window icon: the emblem in several sizes.
QIcon appIcon();

}  // namespace brelk::icons
