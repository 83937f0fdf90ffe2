#include "view/controls/ImageView.h"

#include <algorithm>

#include <QPainter>
#include <QPixmapCache>

#include "map/IconCatalogue.h"
#include "icons/ItemIcons.h"

namespace brelk::view {

namespace {

// Each picture is drawn once per size and pixel density, then copied: a long
// list shows the same few pictures many times.
QPixmap picture(int index, QSize size, qreal dpr) {
    const QString key = QStringLiteral("brelk.picture.%1.%2x%3@%4").arg(index).arg(size.width()).arg(size.height()).arg(dpr);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = QPixmap((QSizeF(size) * dpr).toSize());
    pixmap.setDevicePixelRatio(dpr);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    icons::paintItemIcon(painter, QRectF(QPointF(0, 0), QSizeF(size)), index);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

}  // namespace

void ImageView::apply(Prop p) {
    if (p == Prop::Picture || p == Prop::Stretch) update();
}

void ImageView::paintEvent(QPaintEvent*) {
    if (!control_) return;
    const auto index = iconIndex(control_->get(Prop::Picture).text());
    if (!index) return;
    QPainter painter(this);
    // The density of what is painted on: the screen's, or that of an image
    // the window is rendered into.
    const qreal density = std::max<qreal>(1.0, painter.deviceTransform().m11());
    painter.drawPixmap(0, 0, picture(*index, size(), density));
}

}  // namespace brelk::view
