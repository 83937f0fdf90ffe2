#include "icons/ItemIcons.h"

#include <QBuffer>
#include <QColor>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPixmap>
#include <QPolygonF>
#include <QSvgGenerator>
#include <QTransform>

#include <array>
#include <initializer_list>

#include "map/IconCatalogue.h"

namespace brelk::icons {

namespace {

// Every picture is designed on a 32 x 32 grid and scaled to its target.
constexpr qreal kGrid = 32.0;
constexpr qreal kOutline = 1.2;  // grid units; about one device pixel at 20 px

struct Emblem {
    QPainterPath shape;
    QColor colour;
};

// One colour per family, saturated enough to tell apart on light and dark rows.
const QColor kRed(226, 36, 36);
const QColor kOrange(242, 130, 28);
const QColor kYellow(240, 206, 30);
const QColor kGreen(52, 186, 52);
const QColor kCyan(30, 206, 238);
const QColor kBlue(52, 100, 238);
const QColor kPurple(164, 66, 226);

QPainterPath polygon(std::initializer_list<QPointF> points) {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    path.closeSubpath();
    return path;
}

QPainterPath rect(qreal x1, qreal y1, qreal x2, qreal y2, qreal radius = 0) {
    QPainterPath path;
    if (radius > 0)
        path.addRoundedRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)), radius, radius);
    else
        path.addRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)));
    return path;
}

QPainterPath circle(qreal cx, qreal cy, qreal r) {
    QPainterPath path;
    path.addEllipse(QPointF(cx, cy), r, r);
    return path;
}

// A line drawn as a fillable band, so lines join the boolean operations.
QPainterPath band(const QPainterPath& line, qreal width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(line).simplified();
}

QPainterPath segment(QPointF a, QPointF b, qreal width) {
    QPainterPath line(a);
    line.lineTo(b);
    return band(line, width);
}

QPainterPath unite(std::initializer_list<QPainterPath> parts) {
    QPainterPath all;
    for (const QPainterPath& part : parts) all = all.united(part);
    return all;
}

QPainterPath mirrored(const QPainterPath& path) {
    return QTransform(-1, 0, 0, 1, kGrid, 0).map(path);
}

// Guns are drawn pointing right around the grid's centre, then turned.
QPainterPath turned(const QPainterPath& path, qreal degrees) {
    QTransform t;
    t.translate(kGrid / 2, kGrid / 2);
    t.rotate(degrees);
    t.translate(-kGrid / 2, -kGrid / 2);
    return t.map(path);
}

QPainterPath ring(qreal outer, qreal inner) {
    return circle(16, 16, outer).subtracted(circle(16, 16, inner));
}

QPainterPath cross(qreal arm, qreal width) {
    const qreal h = width / 2;
    return rect(16 - arm, 16 - h, 16 + arm, 16 + h).united(rect(16 - h, 16 - arm, 16 + h, 16 + arm));
}

Emblem quad() {
    QPainterPath wing(QPointF(13, 12));
    wing.quadTo(7, 5, 1.5, 4.5);
    for (QPointF p : {QPointF(4.5, 10), QPointF(1.8, 11.5), QPointF(5, 15), QPointF(2, 17),
                      QPointF(7, 19.5), QPointF(5, 22), QPointF(12, 22)})
        wing.lineTo(p);
    wing.closeSubpath();
    const QPainterPath core = circle(16, 15, 6.5).united(polygon({{12.5, 19}, {19.5, 19}, {16, 29}}));
    return {unite({wing, mirrored(wing), core}).subtracted(circle(16, 15, 2.8)), kCyan};
}

Emblem health25() { return {ring(14, 11).united(cross(10, 3.6)), kYellow}; }

Emblem regen() {
    QPainterPath heart(QPointF(16, 29));
    heart.cubicTo(5, 21, 1, 14, 4, 8.5);
    heart.cubicTo(7, 3, 14, 3, 16, 9.5);
    heart.cubicTo(18, 3, 25, 3, 28, 8.5);
    heart.cubicTo(31, 14, 27, 21, 16, 29);
    heart.closeSubpath();
    return {heart, kRed};
}

Emblem health50() { return {ring(14, 11).united(cross(10.5, 7.5)), kOrange}; }

Emblem bfg() {
    QPainterPath disc = circle(16, 16, 14).subtracted(ring(9.5, 6.5));
    for (qreal angle : {-90.0, 30.0, 150.0})
        disc = disc.united(turned(rect(20, 14.6, 26, 17.4), angle));
    return {disc.subtracted(circle(16, 16, 2.5)), kBlue};
}

Emblem battleSuit() {
    QPainterPath helmet(QPointF(4.5, 29));
    helmet.lineTo(4.5, 16);
    helmet.cubicTo(4.5, 8, 9, 3.5, 16, 3.5);
    helmet.cubicTo(23, 3.5, 27.5, 8, 27.5, 16);
    helmet.lineTo(27.5, 29);
    helmet.closeSubpath();
    const QPainterPath face = unite({rect(8, 13, 14.5, 18, 1.5), rect(17.5, 13, 24, 18, 1.5),
                                     rect(12.5, 21, 19.5, 30)});
    return {helmet.subtracted(face), kOrange};
}

Emblem flight() {
    QPainterPath wing(QPointF(3, 29));
    wing.cubicTo(5, 17, 15, 6, 29.5, 2.5);
    for (QPointF p : {QPointF(26.5, 8.5), QPointF(29.5, 9.5), QPointF(23, 14.5), QPointF(26.5, 16),
                      QPointF(18.5, 20.5), QPointF(21.5, 22.5), QPointF(12, 26),
                      QPointF(14, 28.5), QPointF(6, 30)})
        wing.lineTo(p);
    wing.closeSubpath();
    return {wing, kPurple};
}

Emblem grenade() {
    QPainterPath body;
    body.addEllipse(QPointF(15, 20.5), 9, 9.5);
    const QPainterPath grooves = unite({rect(6, 19.9, 24, 21.1), rect(14.4, 12, 15.6, 30)});
    QPainterPath lever(QPointF(18, 8.5));
    lever.lineTo(24, 9.5);
    lever.lineTo(25.5, 19);
    QPainterPath pin;
    pin.addEllipse(QPointF(8.5, 6.5), 3, 3);
    return {unite({body.subtracted(grooves), rect(11, 7, 19, 12.5, 1), band(lever, 2.6),
                   band(pin, 1.8)}),
            kGreen};
}

Emblem haste() {
    return {polygon({{20.5, 1}, {5.5, 18}, {14, 18}, {9, 31}, {27, 12}, {18.5, 12}, {24, 1}}),
            kGreen};
}

Emblem invisibility() {
    const QPainterPath figure = unite({circle(16, 7, 4.2), rect(10, 12.5, 22, 22.5, 3.5),
                                       segment({11.2, 14.5}, {7.5, 24}, 3.6),
                                       segment({20.8, 14.5}, {24.5, 24}, 3.6),
                                       segment({13.5, 21}, {12.5, 29.5}, 4.2),
                                       segment({18.5, 21}, {19.5, 29.5}, 4.2)});
    return {band(figure, 2.4), kBlue};
}

Emblem lightningGun() {
    const QPainterPath tube = rect(6, 12, 22, 20, 2).subtracted(
        unite({rect(10.4, 11, 11.6, 21), rect(13.9, 11, 15.1, 21), rect(17.4, 11, 18.6, 21)}));
    const QPainterPath gun = unite({tube, rect(2.5, 13, 6.5, 19), rect(21.5, 9.5, 24, 22.5),
                                    rect(23.5, 9.5, 31, 12.2), rect(23.5, 19.8, 31, 22.5),
                                    rect(23.5, 14.8, 27.5, 17.2),
                                    polygon({{8.5, 19.5}, {13, 19.5}, {11, 26.5}, {6.5, 26.5}})});
    return {turned(gun, -40), kYellow};
}

Emblem machineGun() {
    return {unite({polygon({{1, 11.5}, {8.5, 12.5}, {8.5, 17}, {1, 20}}), rect(8, 10.5, 19.5, 18, 1),
                   rect(19, 11.5, 29, 13.8), rect(19, 15.2, 29, 17.5), rect(28.5, 10.5, 31, 18.5),
                   rect(14, 17.5, 17.5, 26.5), polygon({{8.5, 17.5}, {12, 17.5}, {11, 24}, {7.5, 24}})}),
            kYellow};
}

Emblem rocketLauncher() {
    const QPainterPath gun =
        unite({rect(2.5, 11, 25.5, 20.5, 1.5), polygon({{25, 11}, {30.5, 8}, {30.5, 23.5}, {25, 20.5}}),
               rect(7.5, 7.5, 11.5, 11.5), rect(10, 20, 13, 26.5), rect(16.5, 20, 19, 24.5)});
    return {turned(gun, 35), kRed};
}

Emblem megaHealth() {
    const QPainterPath m = polygon({{9, 22.5}, {9, 9.5}, {12.2, 9.5}, {16, 15.5}, {19.8, 9.5},
                                    {23, 9.5}, {23, 22.5}, {20, 22.5}, {20, 15}, {16, 21},
                                    {12, 15}, {12, 22.5}});
    return {ring(14.5, 11.5).united(m), kBlue};
}

Emblem plasmaGun() {
    const QPainterPath core = circle(13, 16, 7.5).subtracted(circle(13, 16, 2.6));
    return {unite({core, rect(2.5, 12, 20, 20, 3), rect(19, 13.2, 28, 18.8),
                   rect(27, 11.5, 30.5, 20.5, 1), polygon({{4.5, 19}, {9, 19}, {8, 27}, {3.5, 27}})})
                .subtracted(circle(13, 16, 2.6)),
            kPurple};
}

Emblem shotgunShells() {
    QPainterPath shells;
    for (qreal x : {7.5, 16.0, 24.5}) {
        // Rounded case on a wider brass head, drawn as one step so it never reads as "!".
        shells = unite({shells, rect(x - 2.8, 3.5, x + 2.8, 24, 2.4), rect(x - 3.5, 22.5, x + 3.5, 28.5, 0.8)});
    }
    return {shells, kOrange};
}

QPainterPath vest() {
    QPainterPath v(QPointF(8, 3));
    v.lineTo(12.5, 3);
    v.lineTo(16, 11);
    v.lineTo(19.5, 3);
    v.lineTo(24, 3);
    v.lineTo(27.5, 7);
    v.quadTo(23, 10, 24, 15);
    v.lineTo(26.5, 27.5);
    v.quadTo(16, 31.5, 5.5, 27.5);
    v.lineTo(8, 15);
    v.quadTo(9, 10, 4.5, 7);
    v.closeSubpath();
    return v.subtracted(rect(15.3, 13, 16.7, 31));
}

Emblem redArmor() { return {vest(), kRed}; }

Emblem railgun() {
    const QPainterPath gun =
        unite({rect(1.5, 11.5, 12.5, 20.5, 2), rect(12, 11.5, 31, 13.7), rect(12, 18.3, 31, 20.5),
               rect(12, 15.1, 27, 16.9), rect(17.5, 11.5, 19.3, 20.5), rect(24, 11.5, 25.8, 20.5),
               polygon({{4.5, 20}, {8.5, 20}, {7.5, 27}, {3.5, 27}})});
    return {turned(gun, -40), kGreen};
}

Emblem yellowArmor() { return {vest(), kYellow}; }

Emblem medkit() {
    QPainterPath box;
    box.addRoundedRect(QRectF(3, 9.5, 26, 19), 3, 3);
    QPainterPath handle(QPointF(11, 9.5));
    handle.lineTo(11, 5);
    handle.lineTo(21, 5);
    handle.lineTo(21, 9.5);
    const QPainterPath mark = rect(10, 17.3, 22, 20.7).united(rect(14.3, 13, 17.7, 25));
    return {unite({band(box, 2.6), band(handle, 2.4), mark}), kRed};
}

using EmblemMaker = Emblem (*)();
constexpr EmblemMaker kMakers[kItemIconCount] = {
    quad,        health25,     regen,    health50,       bfg,         battleSuit, flight,
    grenade,     haste,        invisibility, lightningGun, machineGun, rocketLauncher,
    megaHealth,  plasmaGun,    shotgunShells, redArmor,    railgun,    yellowArmor, medkit};

// Shrinks a shape about the grid's centre until it and its outline keep clear of
// the edges, so no picture spills over into its neighbour on the row.
QPainterPath fitted(const QPainterPath& shape) {
    const qreal reach = kGrid / 2 - kOutline - 0.4;
    const QRectF b = shape.boundingRect();
    const qreal extent = qMax(qMax(16 - b.left(), b.right() - 16), qMax(16 - b.top(), b.bottom() - 16));
    if (extent <= reach) return shape;
    const qreal f = reach / extent;
    return QTransform(f, 0, 0, f, 16 * (1 - f), 16 * (1 - f)).map(shape);
}

// Paths are built once: the list repaints its rows every second.
const Emblem& emblem(int index) {
    static const auto built = [] {
        std::array<Emblem, kItemIconCount> all;
        for (int i = 0; i < kItemIconCount; ++i) {
            all[i] = kMakers[i]();
            all[i].shape = fitted(all[i].shape);
        }
        return all;
    }();
    return built[index];
}

void paintOnGrid(QPainter& painter, const QPainterPath& shape, const QColor& colour) {
    painter.setPen(QPen(colour.darker(175), kOutline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(colour);
    painter.drawPath(shape);
}

void paintStopwatch(QPainter& painter) {
    const QColor metal(70, 78, 88);
    painter.setPen(QPen(metal.darker(150), kOutline));
    painter.setBrush(metal);
    painter.drawPath(unite({circle(16, 18, 12.5), rect(13, 2, 19, 5.5, 1), rect(14.5, 4.5, 17.5, 7),
                            turned(rect(14.5, 1, 17.5, 5, 0.8), 45)}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(248, 248, 244));
    painter.drawEllipse(QPointF(16, 18), 10, 10);
    painter.setPen(QPen(metal, 1.4, Qt::SolidLine, Qt::RoundCap));
    for (int tick = 0; tick < 12; tick += 3) {
        QTransform t;
        t.translate(16, 18);
        t.rotate(tick * 30);
        painter.drawLine(t.map(QLineF(0, -9, 0, -7)));
    }
    painter.setPen(QPen(kRed.darker(120), 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(16, 18), QPointF(21.5, 11.5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(kRed);
    painter.drawEllipse(QPointF(16, 18), 2, 2);
}

void scaleToGrid(QPainter& painter, const QRectF& target) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / kGrid, target.height() / kGrid);
}

}  // namespace

void paintItemIcon(QPainter& painter, const QRectF& target, int index) {
    if (index < 0 || index >= kItemIconCount || target.isEmpty()) return;
    const Emblem& e = emblem(index);
    painter.save();
    scaleToGrid(painter, target);
    paintOnGrid(painter, e.shape, e.colour);
    painter.restore();
}

QPixmap itemIconPixmap(int index, int logicalSize, qreal dpr) {
    const int side = qMax(1, qRound(logicalSize * dpr));
    QPixmap pixmap(side, side);
    pixmap.setDevicePixelRatio(dpr);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintItemIcon(painter, QRectF(0, 0, side / dpr, side / dpr), index);
    return pixmap;
}

void paintItemIcon(QPainter& painter, const QRectF& target, std::string_view word) {
    if (const auto index = iconIndex(word)) paintItemIcon(painter, target, *index);
}

QByteArray itemIconSvg(std::string_view word, int size) {
    const auto index = iconIndex(word);
    if (!index) return {};
    QBuffer out;
    QSvgGenerator svg;
    svg.setOutputDevice(&out);
    svg.setSize(QSize(size, size));
    svg.setViewBox(QRect(0, 0, size, size));
    QPainter painter(&svg);
    paintItemIcon(painter, QRectF(0, 0, size, size), *index);
    painter.end();
    return out.data();
}

void paintAppIcon(QPainter& painter, const QRectF& target) {
    painter.save();
    scaleToGrid(painter, target);
    paintStopwatch(painter);
    painter.restore();
}

namespace {

// The emblem drawn afresh at whatever size and density it is shown, so that
// it stays crisp in a zoomed window's caption too.
class EmblemEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        paintAppIcon(*painter, QRectF(rect));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new EmblemEngine; }
    // What a window system asks for when it takes the icon as pixmaps.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (int side : {16, 24, 32, 48, 64, 128, 256}) sizes.append(QSize(side, side));
        return sizes;
    }
};

}  // namespace

QIcon appIcon() { return QIcon(new EmblemEngine); }

}  // namespace brelk::icons
