#include "views/drawing/Coverage.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

QImage clear() {
    QImage image(7, 3, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(2);
    return image;
}

TEST(Coverage, IsHowMuchWhiteThereIs) {
    QImage image = clear();
    image.setPixelColor(1, 1, QColor(255, 255, 255, 100));
    image.setPixelColor(6, 2, Qt::white);
    const QImage covered = coverage(image);
    EXPECT_EQ(covered.format(), QImage::Format_Alpha8);
    EXPECT_EQ(covered.size(), image.size());
    EXPECT_EQ(covered.devicePixelRatio(), 2);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(covered.constScanLine(y)[x], x == 1 && y == 1   ? 100
                                                   : x == 6 && y == 2 ? 255
                                                                      : 0);
}

TEST(Coverage, OfAnythingColouredIsNull) {
    for (const QColor colour : {QColor(254, 255, 255), QColor(0, 0, 0), QColor(0, 0, 255, 3)}) {
        QImage image = clear();
        image.fill(Qt::white);
        image.setPixelColor(6, 2, colour);
        EXPECT_TRUE(coverage(image).isNull()) << colour.name(QColor::HexArgb).toStdString();
    }
}

TEST(Coverage, TintedIsAsIfItHadBeenPaintedInThatColour) {
    for (const QColor colour :
         {QColor(245, 245, 245), QColor(255, 0, 80), QColor(10, 20, 30, 128)}) {
        QImage white = clear();
        QImage expected = clear();
        for (QImage* image : {&white, &expected}) {
            QPainter painter(image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(image == &white ? QColor(Qt::white) : colour);
            painter.drawEllipse(QRectF(0.1, 0.1, 3.1, 1.2));
        }
        const QImage painted = tinted(coverage(white), colour);
        EXPECT_EQ(painted.devicePixelRatio(), 2);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 7; ++x) {
                const auto* got = painted.constScanLine(y) + 4 * x;
                const auto* wanted = expected.constScanLine(y) + 4 * x;
                for (int channel = 0; channel < 4; ++channel)
                    EXPECT_NEAR(got[channel], wanted[channel], 2) << x << ", " << y;
            }
    }
}

} // namespace
} // namespace brellowind
