#include "views/drawing/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>
#include <vector>

namespace brellowind {
namespace {

constexpr int passes = 3;

/// The radii of box filters that one after the other come close to a Gaussian.
std::array<int, passes> boxRadii(double sigma) {
    const double idealWidth = std::sqrt(12 * sigma * sigma / passes + 1);
    int lower = static_cast<int>(std::floor(idealWidth));
    if (lower % 2 == 0)
        --lower;
    const double exact =
        (12 * sigma * sigma - passes * lower * lower - 4 * passes * lower - 3 * passes) /
        (-4.0 * lower - 4);
    const int lowerCount = static_cast<int>(std::lround(exact));
    std::array<int, passes> radii{};
    for (int i = 0; i < passes; ++i)
        radii[static_cast<std::size_t>(i)] = (i < lowerCount ? lower - 1 : lower + 1) / 2;
    return radii;
}

/// One box filter over a row of `count` elements, which lie `stride` bytes apart and are each made
/// of `width` samples: the pixels of a line, or whole lines. So a filter down the image reads it
/// line by line, many samples at a time.
template <typename Width>
void boxFilter(const uchar* from, uchar* to, std::ptrdiff_t stride, int count, Width width,
               int radius, unsigned* sums) {
    const unsigned reciprocal = (1U << 24) / static_cast<unsigned>(2 * radius + 1);
    std::fill_n(sums, int(width), 0U);
    const auto add = [&](const uchar* element) {
        for (int i = 0; i < width; ++i)
            sums[i] += element[i];
    };
    for (int i = 0; i < std::min(radius, count); ++i)
        add(from + i * stride);
    for (int i = 0; i < count; ++i) {
        if (i + radius < count)
            add(from + (i + radius) * stride);
        uchar* const element = to + i * stride;
        for (int k = 0; k < width; ++k)
            element[k] = static_cast<uchar>((sums[k] * reciprocal + (1U << 23)) >> 24);
        if (i - radius < 0)
            continue;
        const uchar* const left = from + (i - radius) * stride;
        for (int k = 0; k < width; ++k)
            sums[k] -= left[k];
    }
}

template <int channels>
void blurChannels(QImage& image, double sigma) {
    const std::ptrdiff_t rowStride = image.bytesPerLine();
    const int rowWidth = image.width() * channels;
    uchar* const bits = image.bits();
    std::vector<uchar> scratch(static_cast<std::size_t>(image.sizeInBytes()));
    std::vector<unsigned> sums(static_cast<std::size_t>(rowWidth));
    std::array<unsigned, channels> pixelSums;
    constexpr std::integral_constant<int, channels> pixelWidth;
    for (const int radius : boxRadii(sigma)) {
        if (radius < 1)
            continue;
        for (int y = 0; y < image.height(); ++y)
            boxFilter(bits + y * rowStride, scratch.data() + y * rowStride, channels, image.width(),
                      pixelWidth, radius, pixelSums.data());
        boxFilter(scratch.data(), bits, rowStride, image.height(), rowWidth, radius, sums.data());
    }
}

} // namespace

void blur(QImage& image, double sigma) {
    if (!(sigma > 0) || image.isNull())
        return;
    if (image.depth() == 8)
        blurChannels<1>(image, sigma);
    else
        blurChannels<4>(image, sigma);
}

double blurReach(double sigma) {
    return 3 * sigma;
}

} // namespace brellowind
