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

TEST(Comparison, NoticesAnotherSizeAndAMissingPicture) {
    EXPECT_FALSE(agree(compare(strokes(0), strokes(0).copy(0, 0, 320, 79))));
    EXPECT_FALSE(agree(compare(strokes(0), QImage())));
}

} // namespace
} // namespace brellowind::test
