#include "GuiTestRegistry.h"

#include "map/IconCatalogue.h"
#include "view/ItemIcons.h"

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTest>

#include <array>

using namespace brelk::view;

namespace {

QImage render(int index, int size, qreal dpr = 1.0) {
    return itemIconPixmap(index, size, dpr).toImage().convertToFormat(QImage::Format_ARGB32);
}

double paintedFraction(const QImage& image) {
    int painted = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) >= 128) ++painted;
    return double(painted) / (image.width() * image.height());
}

// The most frequent hue, in 10-degree bins, over solid and clearly coloured pixels.
int dominantHue(const QImage& image) {
    std::array<int, 36> bins{};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = QColor::fromRgba(image.pixel(x, y));
            if (c.alpha() < 200 || c.hsvSaturation() < 100 || c.value() < 60) continue;
            ++bins[c.hsvHue() / 10];
        }
    int best = 0;
    for (int i = 1; i < 36; ++i)
        if (bins[i] > bins[best]) best = i;
    return bins[best] == 0 ? -1 : best * 10 + 5;
}

struct Family {
    const char* name;
    int from, to;  // hue range in degrees; from > to wraps through 0
};
constexpr Family kRed{"red", 340, 15}, kOrange{"orange", 16, 42}, kYellow{"yellow", 43, 70},
    kGreen{"green", 90, 150}, kCyan{"cyan", 170, 200}, kBlue{"blue", 205, 250},
    kPurple{"purple", 255, 300};

bool inFamily(int hue, const Family& f) {
    return f.from <= f.to ? hue >= f.from && hue <= f.to : hue >= f.from || hue <= f.to;
}

}  // namespace

class ItemIconsTest : public QObject {
    Q_OBJECT

private slots:
    void catalogueHasOnePicturePerIconWord() { QCOMPARE(kItemIconCount, brelk::kIconCount); }
    void everyPictureIsAnEmblemOnClearGround() {
        for (int size : {20, 64})
            for (int i = 0; i < kItemIconCount; ++i) {
                const QImage image = render(i, size);
                QCOMPARE(image.size(), QSize(size, size));
                const double painted = paintedFraction(image);
                QVERIFY2(painted > 0.08 && painted < 0.75,
                         qPrintable(QStringLiteral("%1@%2: %3").arg(brelk::iconWord(i).data()).arg(size).arg(painted)));
                for (QPoint corner : {QPoint(0, 0), QPoint(size - 1, 0), QPoint(0, size - 1), QPoint(size - 1, size - 1)})
                    QCOMPARE(qAlpha(image.pixel(corner)), 0);
            }
    }

    void picturesArePairwiseDifferent() {
        std::array<QImage, kItemIconCount> images;
        for (int i = 0; i < kItemIconCount; ++i) images[i] = render(i, 32);
        for (int i = 0; i < kItemIconCount; ++i)
            for (int j = i + 1; j < kItemIconCount; ++j) {
                int differing = 0;
                for (int y = 0; y < 32; ++y)
                    for (int x = 0; x < 32; ++x) {
                        const QRgb a = images[i].pixel(x, y), b = images[j].pixel(x, y);
                        if (qAbs(qAlpha(a) - qAlpha(b)) > 96 ||
                            qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b)) > 150)
                            ++differing;
                    }
                QVERIFY2(differing > 32 * 32 / 20,
                         qPrintable(QStringLiteral("%1 and %2 differ in only %3 pixels")
                                        .arg(brelk::iconWord(i).data(), brelk::iconWord(j).data())
                                        .arg(differing)));
            }
    }

    void eachPictureHasTheColourOfItsItem() {
        // In catalogue order: QUAD, 25H, REGEN, 50H, BFG, BS, FLIGHT, GL, HASTE, INVIS,
        // LG, MG, RL, MH, PG, SG, RA, RG, YA, MEDKIT.
        const std::array<Family, kItemIconCount> families = {
            kCyan,   kYellow, kRed,   kOrange, kBlue,   kOrange, kPurple, kGreen, kGreen, kBlue,
            kYellow, kYellow, kRed,   kBlue,   kPurple, kOrange, kRed,    kGreen, kYellow, kRed};
        for (int i = 0; i < kItemIconCount; ++i) {
            const int hue = dominantHue(render(i, 32));
            QVERIFY2(inFamily(hue, families[i]), qPrintable(QStringLiteral("%1 is not %2 but of hue %3")
                                                                .arg(brelk::iconWord(i).data(), families[i].name)
                                                                .arg(hue)));
        }
    }

    void aDensePixmapHasTwiceThePixelsAndTheWholePicture() {
        for (int i = 0; i < kItemIconCount; ++i) {
            const QPixmap pixmap = itemIconPixmap(i, 20, 2.0);
            QCOMPARE(pixmap.size(), QSize(40, 40));
            QCOMPARE(pixmap.devicePixelRatio(), 2.0);
            // The picture fills the whole pixmap, not just its logical quarter.
            const double sharp = paintedFraction(render(i, 20, 2.0)), plain = paintedFraction(render(i, 20));
            QVERIFY2(qAbs(sharp - plain) < 0.12, qPrintable(QStringLiteral("%1 vs %2").arg(sharp).arg(plain)));
        }
    }

    void paintingStaysInsideTargetAndRestoresPainter() {
        QImage image(64, 64, QImage::Format_ARGB32);
        for (int i = 0; i < kItemIconCount; ++i) {
            image.fill(Qt::transparent);
            QPainter painter(&image);
            paintItemIcon(painter, QRectF(16, 16, 32, 32), i);
            QVERIFY(painter.transform().isIdentity());
            painter.end();
            int inside = 0;
            for (int y = 0; y < 64; ++y)
                for (int x = 0; x < 64; ++x) {
                    const bool within = x >= 16 && x < 48 && y >= 16 && y < 48;
                    if (qAlpha(image.pixel(x, y)) == 0) continue;
                    QVERIFY2(within, qPrintable(QStringLiteral("%1 paints at %2,%3").arg(i).arg(x).arg(y)));
                    ++inside;
                }
            QVERIFY(inside > 0);
        }
        // An index outside the catalogue draws nothing.
        for (int index : {-1, kItemIconCount}) QCOMPARE(paintedFraction(render(index, 32)), 0.0);
    }

    void appIconIsStopwatchWithRedAccentInSeveralSizes() {
        const QIcon icon = appIcon();
        QVERIFY(!icon.isNull());
        for (int size : {16, 32, 256}) QVERIFY(icon.availableSizes().contains(QSize(size, size)));
        const QImage image = icon.pixmap(QSize(64, 64)).toImage().convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(qAlpha(image.pixel(0, 63)), 0);
        QVERIFY(inFamily(dominantHue(image), kRed));
    }
};

static GuiTestRegistrar registerItemIconsTest([]() -> QObject* { return new ItemIconsTest; });

#include "tst_itemicons.moc"
