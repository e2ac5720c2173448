// SPDX-License-Identifier: MIT

#include "views/drawing/ArtworkImage.h"
#include "views/Painting.h"

#include <QPainter>
#include <gtest/gtest.h>
#include <utility>

namespace brellowind {
namespace {

QImage redSquare() {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

QImage paintedThumbnail(ArtworkImage& item) {
    item.setSize({19, 20});
    item.setRadius(4);
    return test::painted(item, {40, 40}, {10, 10});
}

TEST(ArtworkImage, IsDarkGreyWithoutAnImage) {
    ArtworkImage item;
    const QImage image = paintedThumbnail(item);
    EXPECT_EQ(test::inkRect(image), QRect(10, 10, 19, 20));
    EXPECT_EQ(image.pixelColor(20, 20), QColor(28, 28, 28)) << "0.11 of 255";
}

TEST(ArtworkImage, HasTheSameOutlineWithAndWithoutAnImage) {
    ArtworkImage grey;
    ArtworkImage red;
    red.setImage(redSquare());
    const QImage without = paintedThumbnail(grey);
    const QImage with = paintedThumbnail(red);
    EXPECT_EQ(with.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_LE(test::largestDifference(without.convertToFormat(QImage::Format_Alpha8),
                                      with.convertToFormat(QImage::Format_Alpha8)),
              1);
}

TEST(ArtworkImage, HasRoundCorners) {
    ArtworkImage item;
    const QImage image = paintedThumbnail(item);
    // A quarter of a circle of radius 4 leaves 4² (1 - π / 4) of each corner.
    EXPECT_NEAR(test::ink(image), 19 * 20 - 4 * 16 * (1 - 3.14159 / 4), 1.5);
    item.setRadius(0);
    EXPECT_NEAR(test::ink(test::painted(item, {40, 40}, {10, 10})), 19 * 20, 1e-6);
}

TEST(ArtworkImage, FillsItsRectangleWithTheMiddleOfTheImage) {
    QImage rings(60, 60, QImage::Format_RGB32);
    rings.fill(Qt::red);
    QPainter(&rings).fillRect(10, 10, 40, 40, Qt::blue);
    ArtworkImage item;
    item.setImage(rings);
    const auto coloursOf = [&](QSize size) {
        item.setSize(size);
        const QImage image = test::painted(item, size);
        const QPoint middle = image.rect().center();
        return std::pair(image.pixelColor(1, middle.y()), image.pixelColor(middle.x(), 1));
    };
    const QColor red = Qt::red;
    const QColor blue = Qt::blue;
    EXPECT_EQ(coloursOf({60, 60}), std::pair(red, red));
    EXPECT_EQ(coloursOf({60, 30}), std::pair(red, blue)) << "its top and bottom are cut";
    EXPECT_EQ(coloursOf({30, 60}), std::pair(blue, red)) << "its sides are cut";
}

TEST(ArtworkImage, GoesBackToGreyWhenTheImageGoes) {
    ArtworkImage item;
    item.setImage(redSquare());
    item.setImage(QImage());
    EXPECT_EQ(paintedThumbnail(item).pixelColor(20, 20), QColor(28, 28, 28));
}

} // namespace
} // namespace brellowind
