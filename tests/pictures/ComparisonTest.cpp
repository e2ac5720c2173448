// SPDX-License-Identifier: MIT

#include "pictures/Comparison.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

/// Strokes that resemble a line of text.
QImage strokes(int shift, QColor colour = Qt::white) {
    QImage image(320, 80, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    for (int x = 40; x < 280; x += 6)
        painter.fillRect(x + shift, 40, 1, 10, colour);
    return image;
}

TEST(Comparison, AgreesWithTheSame) {
    EXPECT_TRUE(agree(compare(strokes(0), strokes(0))));
}

TEST(Comparison, ToleratesAnotherShade) {
    EXPECT_TRUE(agree(compare(strokes(0), strokes(0, QColor(235, 235, 235)))));
}

TEST(Comparison, NoticesTextThatMovedByOnePixel) {
    EXPECT_FALSE(agree(compare(strokes(1), strokes(0))));
}

TEST(Comparison, NoticesASmallPartThatIsMissingInALargePicture) {
    QImage expected(1280, 800, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QImage actual = expected;
    QPainter(&expected).fillRect(301, 413, 37, 5, QColor(64, 64, 64)); // across tiles
    EXPECT_FALSE(agree(compare(actual, expected)));
}

TEST(Comparison, ToleratesSomePixelsInEachTile) {
    QImage actual = strokes(0);
    for (int x = 0; x < actual.width(); x += 8)
        actual.setPixel(x, 20, qRgb(255, 255, 255));
    EXPECT_TRUE(agree(compare(actual, strokes(0))));
}

TEST(Comparison, NoticesAnotherSizeAndAMissingPicture) {
    EXPECT_FALSE(agree(compare(strokes(0), strokes(0).copy(0, 0, 320, 79))));
    EXPECT_FALSE(agree(compare(strokes(0), QImage())));
}

} // namespace
} // namespace brellowind::test
