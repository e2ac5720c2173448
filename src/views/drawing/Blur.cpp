#include "views/drawing/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
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

/// One box filter over `count` samples that lie `stride` bytes apart.
void boxFilter(uchar* samples, std::ptrdiff_t stride, int count, int radius,
               std::vector<uchar>& line) {
    for (int i = 0; i < count; ++i)
        line[static_cast<std::size_t>(i)] = samples[i * stride];
    const unsigned width = static_cast<unsigned>(2 * radius + 1);
    const unsigned reciprocal = (1U << 24) / width;
    unsigned sum = 0;
    for (int i = 0; i < std::min(radius, count); ++i)
        sum += line[static_cast<std::size_t>(i)];
    for (int i = 0; i < count; ++i) {
        if (i + radius < count)
            sum += line[static_cast<std::size_t>(i + radius)];
        samples[i * stride] = static_cast<uchar>((sum * reciprocal + (1U << 23)) >> 24);
        if (i - radius >= 0)
            sum -= line[static_cast<std::size_t>(i - radius)];
    }
}

} // namespace

void blur(QImage& image, double sigma) {
    if (!(sigma > 0) || image.isNull())
        return;
    const int channels = image.depth() / 8;
    const std::ptrdiff_t rowStride = image.bytesPerLine();
    uchar* const bits = image.bits();
    std::vector<uchar> line(static_cast<std::size_t>(std::max(image.width(), image.height())));
    for (const int radius : boxRadii(sigma)) {
        if (radius < 1)
            continue;
        for (int channel = 0; channel < channels; ++channel) {
            for (int y = 0; y < image.height(); ++y)
                boxFilter(bits + y * rowStride + channel, channels, image.width(), radius, line);
            for (int x = 0; x < image.width(); ++x)
                boxFilter(bits + x * channels + channel, rowStride, image.height(), radius, line);
        }
    }
}

double blurReach(double sigma) {
    return 3 * sigma;
}

} // namespace brellowind
