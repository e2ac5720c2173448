// SPDX-License-Identifier: MIT

#include "views/drawing/CoverImage.h"
#include "views/Painting.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

QImage square(int side, QColor color = Qt::red) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

TEST(CoverImage, IsNullWithoutAnImage) {
    EXPECT_TRUE(CoverImage().isNull());
    EXPECT_TRUE(CoverImage(QImage()).isNull());
    EXPECT_FALSE(CoverImage(square(1)).isNull());
}

TEST(CoverImage, KeepsTheImageItself) {
    const QImage image = square(320);
    EXPECT_EQ(CoverImage(image).atLeast(320), image);
}

TEST(CoverImage, OffersTheSmallestCopyThatIsLargeEnough) {
    CoverImage cover(square(320));
    EXPECT_EQ(cover.atLeast(161).width(), 320);
    EXPECT_EQ(cover.atLeast(160).width(), 160);
    EXPECT_EQ(cover.atLeast(81).width(), 160);
    EXPECT_EQ(cover.atLeast(20).width(), 20);
    EXPECT_EQ(cover.atLeast(1).width(), 20);
    EXPECT_EQ(cover.atLeast(320).width(), 320) << "and back to the whole";
}

TEST(CoverImage, OffersTheWholeWhenMoreIsAskedForThanThereIs) {
    EXPECT_EQ(CoverImage(square(64)).atLeast(500).width(), 64);
}

TEST(CoverImage, OfAFewPixelsHasNoCopies) {
    for (const int side : {1, 2, 16, 31})
        EXPECT_EQ(CoverImage(square(side)).atLeast(0).width(), side);
}

TEST(CoverImage, HasCopiesOfTheSameColour) {
    CoverImage cover(square(333, QColor(10, 200, 70)));
    for (const double pixels : {20.0, 41.0, 83.0}) {
        const QImage& copy = cover.atLeast(pixels);
        EXPECT_EQ(copy.width(), copy.height());
        EXPECT_EQ(copy.pixelColor(copy.width() / 2, 0), QColor(10, 200, 70));
    }
}

TEST(CoverImage, FillsASquareWithTheWholeImage) {
    QImage image = square(64, Qt::blue);
    QPainter(&image).fillRect(0, 0, 32, 32, Qt::red);
    const QRectF target(10, 20, 16, 16);
    const QImage result = test::painted(QSize(40, 40), [&](QPainter& painter) {
        painter.fillRect(target, CoverImage(image).brush(target, 64));
    });
    EXPECT_EQ(test::inkRect(result), QRect(10, 20, 16, 16));
    EXPECT_EQ(result.pixelColor(12, 22), QColor(Qt::red));
    EXPECT_EQ(result.pixelColor(23, 22), QColor(Qt::blue));
    EXPECT_EQ(result.pixelColor(12, 33), QColor(Qt::blue));
}

} // namespace
} // namespace brellowind
