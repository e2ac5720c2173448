#include "views/drawing/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

namespace brellowind {
namespace {

constexpr double strongestSigma = 120; ///< the sums of its filters just fit into 32 bits

/// The widths of three box filters that one after the other come close to a Gaussian. They are odd.
using Widths = std::array<std::size_t, 3>;

/// So many boxes have the lower width that all variances add up to that of the Gaussian.
Widths boxWidths(double unlimitedSigma) {
    const double sigma = std::min(unlimitedSigma, strongestSigma);
    const double variance = 12 * sigma * sigma;
    const double ideal = std::sqrt(variance / 3 + 1);
    const auto lower = static_cast<std::size_t>((ideal - 1) / 2) * 2 + 1;
    const auto upper = lower + 2;
    const auto lowerCount = std::lround((static_cast<double>(3 * upper * upper - 3) - variance) /
                                        static_cast<double>(upper * upper - lower * lower));
    Widths widths{upper, upper, upper};
    std::fill_n(widths.begin(), lowerCount, lower);
    return widths;
}

/// The samples of one channel in a row or a column of an image.
struct Line {
    uchar& operator[](std::size_t i) const { return first[static_cast<std::ptrdiff_t>(i) * step]; }

    uchar* first;
    std::ptrdiff_t step; ///< bytes from sample to sample
    std::size_t length;
};

/// Replaces each sum by that of itself and the `width` - 1 before it. They may wrap around on the
/// way: their differences are exact all the same.
void addUp(std::vector<std::uint32_t>& sums, std::size_t width) {
    std::partial_sum(sums.begin(), sums.end(), sums.begin());
    for (auto i = sums.size(); i-- > width;)
        sums[i] -= sums[i - width];
}

std::size_t radius(const Widths& widths) {
    return widths[0] / 2 + widths[1] / 2 + widths[2] / 2;
}

/// `sums` is room to work in.
void blurLine(const Line& line, const Widths& widths, std::vector<std::uint32_t>& sums) {
    // Each filter moves what it adds up by half of its width.
    const std::size_t shift = radius(widths);
    sums.assign(line.length + shift, 0);
    std::uint32_t ink = 0;
    for (std::size_t i = 0; i < line.length; ++i) {
        sums[i] = line[i];
        ink |= sums[i];
    }
    if (ink == 0)
        return;
    for (const std::size_t width : widths)
        addUp(sums, width);
    const double share = 1.0 / static_cast<double>(widths[0] * widths[1] * widths[2]);
    for (std::size_t i = 0; i < line.length; ++i)
        line[i] = static_cast<uchar>(sums[i + shift] * share + 0.5);
}

} // namespace

void blur(QImage& image, double sigma) {
    if (!(sigma > 0) || image.isNull())
        return;
    const Widths widths = boxWidths(sigma);
    const auto width = static_cast<std::size_t>(image.width());
    const auto height = static_cast<std::size_t>(image.height());
    const std::ptrdiff_t channels = image.depth() / 8;
    uchar* const first = image.bits();
    std::vector<std::uint32_t> sums;
    for (int y = 0; y < image.height(); ++y)
        for (std::ptrdiff_t channel = 0; channel < channels; ++channel)
            blurLine({first + y * image.bytesPerLine() + channel, channels, width}, widths, sums);
    for (std::ptrdiff_t sample = 0; sample < channels * image.width(); ++sample)
        blurLine({first + sample, image.bytesPerLine(), height}, widths, sums);
}

double blurReach(double sigma) {
    return 3 * sigma;
}

int blurRadius(double sigma) {
    return sigma > 0 ? static_cast<int>(radius(boxWidths(sigma))) : 0;
}

} // namespace brellowind
