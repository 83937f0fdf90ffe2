// Draws the program's icon files for the desktop from the emblem of its
// window icon: a scalable SVG and PNG files of the usual sizes, laid out as
// in an icon theme under the folder given:
//   hicolor/scalable/apps/ID.svg and hicolor/NxN/apps/ID.png

#include <cstdio>

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include "icons/ItemIcons.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s OUTPUT-FOLDER APPLICATION-ID\n", argv[0]);
        return 2;
    }
    // The SVG records the painter's font, which wants the application's.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QDir out(QString::fromLocal8Bit(argv[1]));
    const QString id = QString::fromLocal8Bit(argv[2]);

    const auto folder = [&](const QString& size) {
        const QString path = out.filePath("hicolor/" + size + "/apps");
        return QDir().mkpath(path) ? path + "/" + id : QString();
    };

    QSvgGenerator svg;
    svg.setFileName(folder("scalable") + ".svg");
    svg.setSize(QSize(256, 256));
    svg.setViewBox(QRectF(0, 0, 256, 256));
    svg.setTitle("Brelk");
    svg.setDescription("A stopwatch with a red hand");
    QPainter painter;
    if (!painter.begin(&svg)) return 1;
    brelk::icons::paintAppIcon(painter, QRectF(0, 0, 256, 256));
    painter.end();

    for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        painter.begin(&image);
        brelk::icons::paintAppIcon(painter, QRectF(0, 0, size, size));
        painter.end();
        const QString name = QString("%1x%1").arg(size);
        if (!image.save(folder(name) + ".png")) return 1;
    }
    return 0;
}
