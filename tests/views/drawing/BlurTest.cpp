// SPDX-License-Identifier: MIT

#include "views/drawing/Blur.h"
#include "views/Painting.h"

#include <QPainter>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace brellowind {
namespace {

QImage clearAlpha(int width, int height) {
    QImage image(width, height, QImage::Format_Alpha8);
    image.fill(0);
    return image;
}

/// Asymmetric shapes with a margin for the blur. The width is not a multiple of 4.
QImage shapes() {
    QImage image = clearAlpha(241, 223);
    QPainter painter(&image);
    painter.fillRect(95, 90, 25, 12, Qt::black);
    painter.fillRect(130, 85, 3, 35, QColor(0, 0, 0, 120));
    painter.fillRect(80, 110, 28, 33, Qt::black);
    return image;
}

double sum(const QImage& image) {
    double total = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            total += image.constScanLine(y)[x];
    return total;
}

using Samples = std::vector<std::vector<double>>;

/// Convolves the rows of `samples` with an exact Gaussian and transposes the result.
Samples convolvedAndTransposed(const Samples& samples, double sigma) {
    const int height = static_cast<int>(samples.size());
    const int width = static_cast<int>(samples[0].size());
    const int reach = static_cast<int>(std::ceil(6 * sigma));
    std::vector<double> kernel;
    double total = 0;
    for (int i = -reach; i <= reach; ++i) {
        kernel.push_back(std::exp(-i * i / (2 * sigma * sigma)));
        total += kernel.back();
    }
    Samples result(static_cast<std::size_t>(width),
                   std::vector<double>(static_cast<std::size_t>(height)));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            double value = 0;
            for (int i = std::max(-reach, -x); i <= std::min(reach, width - 1 - x); ++i)
                value += kernel[static_cast<std::size_t>(i + reach)] *
                         samples[static_cast<std::size_t>(y)][static_cast<std::size_t>(x + i)];
            result[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = value / total;
        }
    return result;
}

QImage trulyBlurred(const QImage& image, double sigma) {
    Samples samples;
    for (int y = 0; y < image.height(); ++y)
        samples.emplace_back(image.constScanLine(y), image.constScanLine(y) + image.width());
    samples = convolvedAndTransposed(convolvedAndTransposed(samples, sigma), sigma);
    QImage result = clearAlpha(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result.scanLine(y)[x] = static_cast<uchar>(
                std::lround(samples[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return result;
}

QImage blurred(QImage image, double sigma) {
    blur(image, sigma);
    return image;
}

QImage onItsSide(const QImage& image) {
    QImage result = clearAlpha(image.height(), image.width());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result.scanLine(x)[y] = image.constScanLine(y)[x];
    return result;
}

TEST(Blur, IsNearAGaussian) {
    // Boxes are whole pixels wide, so narrow blurs are less exact.
    const std::pair<double, int> tolerances[] = {{1, 30}, {1.5, 10}, {2, 10}, {3, 10},
                                                 {5, 6},  {7.5, 6},  {10, 6}, {20, 6}};
    for (const auto& [sigma, tolerance] : tolerances)
        EXPECT_LE(test::largestDifference(blurred(shapes(), sigma), trulyBlurred(shapes(), sigma)),
                  tolerance)
            << sigma;
}

TEST(Blur, TakesWhatLiesOutsideAsClear) {
    QImage full(61, 61, QImage::Format_Alpha8);
    full.fill(255);
    blur(full, 5);
    EXPECT_NEAR(full.constScanLine(30)[30], 255, 1);
    EXPECT_LE(full.constScanLine(30)[0], 255 * 0.54) << "half of it came from outside, or more";
    EXPECT_GE(full.constScanLine(30)[0], 255 * 0.33);
    EXPECT_EQ(full.constScanLine(30)[0], full.constScanLine(30)[60]);
    EXPECT_EQ(full.constScanLine(30)[0], full.constScanLine(0)[30]);
}

TEST(Blur, KeepsHowMuchThereIs) {
    for (const double sigma : {1.0, 3.0, 5.0, 8.0}) {
        QImage image = clearAlpha(151, 150);
        QPainter(&image).fillRect(55, 60, 40, 30, QColor(0, 0, 0, 200));
        const double before = sum(image);
        blur(image, sigma);
        EXPECT_NEAR(sum(image) / before, 1, 0.01) << sigma;
    }
}

TEST(Blur, IsTheSameAlongAndAcrossWhereverTheInkIs) {
    for (const int height : {1, 3, 16, 17})
        for (const int above : {0, 1, 15, 40})
            for (const int below : {0, 1, 15, 40}) {
                QImage image = clearAlpha(51, above + height + below);
                QPainter(&image).fillRect(20, above, 9, height, Qt::black);
                EXPECT_LE(test::largestDifference(onItsSide(blurred(image, 3)),
                                                  blurred(onItsSide(image), 3)),
                          2)
                    << above << " rows above " << height << ", " << below << " below";
            }
}

TEST(Blur, ReachesNoFurtherThanItSays) {
    for (const double sigma : {1.0, 3.0, 5.0, 10.0}) {
        QImage image = clearAlpha(201, 201);
        QPainter(&image).fillRect(90, 90, 21, 21, Qt::black);
        blur(image, sigma);
        const int reach = static_cast<int>(std::ceil(blurExtent(sigma)));
        const QRect reached = QRect(90, 90, 21, 21).adjusted(-reach, -reach, reach, reach);
        QRect touched;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.constScanLine(y)[x] > 1)
                    touched |= QRect(x, y, 1, 1);
        EXPECT_TRUE(reached.contains(touched)) << sigma;
        EXPECT_GT(touched.width(), 21) << sigma;
    }
}

TEST(Blur, TreatsEveryChannelOfAColouredImageAlike) {
    const QImage alpha = shapes();
    QImage coloured(alpha.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < alpha.height(); ++y)
        for (int x = 0; x < alpha.width(); ++x) {
            const int a = alpha.constScanLine(y)[x];
            reinterpret_cast<QRgb*>(coloured.scanLine(y))[x] = qRgba(a, 0, a, a);
        }
    blur(coloured, 4);
    const QImage result = blurred(alpha, 4);
    for (int y = 0; y < alpha.height(); ++y)
        for (int x = 0; x < alpha.width(); ++x) {
            const int a = result.constScanLine(y)[x];
            ASSERT_EQ(reinterpret_cast<const QRgb*>(coloured.constScanLine(y))[x],
                      qRgba(a, 0, a, a));
        }
}

TEST(Blur, OfASigmaThatIsNotAboveZeroChangesNothing) {
    for (const double sigma : {0.0, -0.0, -3.0, -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(blurred(shapes(), sigma), shapes()) << sigma;
}

TEST(Blur, OfATinySigmaChangesNextToNothing) {
    EXPECT_LE(test::largestDifference(blurred(shapes(), 0.1), shapes()), 1);
}

TEST(Blur, OfAnEmptyImageIsAnEmptyImage) {
    EXPECT_TRUE(blurred(QImage(), 5).isNull());
}

TEST(Blur, OfOnePixelSpreadsItOverNowhere) {
    QImage image(1, 1, QImage::Format_Alpha8);
    image.fill(255);
    blur(image, 5);
    EXPECT_LT(image.constScanLine(0)[0], 10);
}

TEST(Blur, MayReachFarBeyondTheImage) {
    for (const QSize size : {QSize(1, 50), QSize(50, 1), QSize(3, 3)}) {
        QImage image(size, QImage::Format_Alpha8);
        image.fill(255);
        blur(image, 100);
        EXPECT_LT(sum(image), 255 * size.width() * size.height() / 4.0);
    }
}

TEST(Blur, LeavesCopiesOfTheImageAlone) {
    QImage image = shapes();
    const QImage copy = image;
    blur(image, 3);
    EXPECT_EQ(copy, shapes());
    EXPECT_NE(image, shapes());
}

TEST(Halved, HasTheMeansOfFourPixels) {
    QImage image = clearAlpha(5, 3);
    image.setDevicePixelRatio(2);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
            image.scanLine(y)[x] = static_cast<uchar>(10 * y + x);
    const QImage half = halved(image);
    EXPECT_EQ(half.size(), QSize(3, 2));
    EXPECT_EQ(half.devicePixelRatio(), 1);
    const auto row = [&](int y) {
        const uchar* first = half.constScanLine(y);
        return std::vector<int>(first, first + 3);
    };
    EXPECT_EQ(row(0), (std::vector<int>{6, 8, 5})) << "the last is half outside";
    EXPECT_EQ(row(1), (std::vector<int>{10, 11, 6})) << "outside counts as transparent";
}

TEST(Halved, TreatsEveryChannelOfAColouredImageAlike) {
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(qRgba(40, 80, 120, 200));
    const QImage half = halved(image);
    EXPECT_EQ(half.pixel(0, 0), image.pixel(0, 0));
    const auto* edge = reinterpret_cast<const QRgb*>(half.constScanLine(0)) + 1;
    EXPECT_EQ(*edge, qRgba(20, 40, 60, 100));
}

} // namespace
} // namespace brellowind
