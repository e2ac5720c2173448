#include "views/drawing/ArtworkImage.h"
#include "views/qt/Painting.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(fillingSquare({19, 20}), QRectF(-0.5, 0, 20, 20));
    EXPECT_EQ(fillingSquare({320, 320}), QRectF(0, 0, 320, 320));
    EXPECT_EQ(fillingSquare({30, 20}), QRectF(0, -5, 30, 30));
}

TEST(ArtworkImage, GoesBackToGreyWhenTheImageGoes) {
    ArtworkImage item;
    item.setImage(redSquare());
    item.setImage(QImage());
    EXPECT_EQ(paintedThumbnail(item).pixelColor(20, 20), QColor(28, 28, 28));
}

} // namespace
} // namespace brellowind
