// SPDX-License-Identifier: MIT

#include "views/drawing/Coverage.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

namespace brellowind {
namespace {

/// A row of coverages, over and over.
QImage rows(std::initializer_list<int> coverages, int height) {
    QImage image(static_cast<int>(coverages.size()), height, QImage::Format_Alpha8);
    for (int y = 0; y < height; ++y)
        std::ranges::copy(coverages, image.scanLine(y));
    return image;
}

TEST(Coverage, TintsEachPixelAtItsOwnSize) {
    const QImage image = tinted(rows({0, 1, 128, 254, 255}, 3), QColor(200, 100, 0), {5, 3});
    ASSERT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 3; ++y) {
        EXPECT_EQ(image.pixel(0, y), qRgba(0, 0, 0, 0));
        EXPECT_EQ(qAlpha(image.pixel(1, y)), 1);
        EXPECT_EQ(qAlpha(image.pixel(2, y)), 128);
        EXPECT_EQ(qAlpha(image.pixel(3, y)), 254);
        EXPECT_EQ(image.pixel(4, y), qRgba(200, 100, 0, 255));
    }
}

TEST(Coverage, MultipliesTheAlphaOfItsColour) {
    const QImage image = tinted(rows({255, 128}, 1), QColor(255, 255, 255, 100), {2, 1});
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 100);
    EXPECT_EQ(qAlpha(image.pixel(1, 0)), 50);
}

TEST(Coverage, AveragesWhatBecomesOnePixel) {
    const QImage image = tinted(rows({0, 200, 100, 100}, 4), Qt::white, {2, 2});
    for (int y = 0; y < 2; ++y) {
        EXPECT_EQ(qAlpha(image.pixel(0, y)), 100);
        EXPECT_EQ(qAlpha(image.pixel(1, y)), 100);
    }
}

TEST(Coverage, KeepsItsMiddleWhenItIsScaled) {
    QImage dot(101, 51, QImage::Format_Alpha8);
    dot.fill(0);
    for (int y = 20; y < 31; ++y)
        std::fill_n(dot.scanLine(y) + 40, 21, uchar(255));
    for (const QSize size : {QSize(93, 47), QSize(100, 50), QSize(111, 56)}) {
        const QImage image = tinted(dot, Qt::white, size);
        double total = 0, x = 0, y = 0;
        for (int row = 0; row < size.height(); ++row)
            for (int column = 0; column < size.width(); ++column) {
                const int alpha = qAlpha(image.pixel(column, row));
                total += alpha;
                x += alpha * (column + 0.5);
                y += alpha * (row + 0.5);
            }
        EXPECT_NEAR(x / total, size.width() / 2.0, 0.1);
        EXPECT_NEAR(y / total, size.height() / 2.0, 0.1);
        EXPECT_EQ(qAlpha(image.pixel(size.width() / 2, size.height() / 2)), 255);
    }
}

TEST(Coverage, IsNullWithoutPixels) {
    EXPECT_TRUE(tinted(QImage(), Qt::white, {3, 3}).isNull());
    EXPECT_TRUE(tinted(rows({1, 2}, 2), Qt::white, {0, 3}).isNull());
}

} // namespace
} // namespace brellowind
