// SPDX-License-Identifier: MIT

#include "views/drawing/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace brellowind {
namespace {

constexpr double strongestSigma = 120; ///< beyond it the sums of the filters overflow 32 bits

/// The widths of three successive box filters that approximate a Gaussian. Odd numbers.
using Widths = std::array<std::size_t, 3>;

/// Chooses among two widths so that the variances add up to that of the Gaussian.
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
};

std::size_t radius(const Widths& widths) {
    return widths[0] / 2 + widths[1] / 2 + widths[2] / 2;
}

/// Blurs lines of one length. Main thread only.
class LineBlur {
public:
    LineBlur(const Widths& widths, std::size_t length)
        : widths_(widths), length_(length), first_(*std::ranges::max_element(widths)),
          samples_(first_ + length + radius(widths)), once_(samples_.size()),
          twice_(samples_.size()) {}

    /// Each filter replaces a sample by the sum of itself and those before it, as many as the
    /// filter is wide, which also shifts the line by half of that width.
    void operator()(const Line& line) {
        std::uint32_t ink = 0;
        for (std::size_t i = 0; i < length_; ++i)
            ink |= samples_[first_ + i] = line[i];
        if (ink == 0)
            return;
        const std::size_t end = samples_.size();
        const std::size_t shift = end - length_;
        const auto [a, b, c] = widths_;
        const double share = 1.0 / static_cast<double>(a * b * c);
        const std::uint32_t* const samples = samples_.data();
        std::uint32_t* const once = once_.data();
        std::uint32_t* const twice = twice_.data();
        std::uint32_t sum1 = 0;
        std::uint32_t sum2 = 0;
        std::uint32_t sum3 = 0;
        for (std::size_t i = first_; i < end; ++i) {
            once[i] = sum1 += samples[i] - samples[i - a];
            twice[i] = sum2 += once[i] - once[i - b];
            sum3 += twice[i] - twice[i - c];
            if (i >= shift)
                line[i - shift] = static_cast<uchar>(sum3 * share + 0.5);
        }
    }

private:
    Widths widths_;
    std::size_t length_;
    std::size_t first_;                  ///< transparent samples before the first
    std::vector<std::uint32_t> samples_; ///< with transparent ones also after the last
    std::vector<std::uint32_t> once_;    ///< filtered by the first filter
    std::vector<std::uint32_t> twice_;   ///< and by the second
};

} // namespace

void blur(QImage& image, double sigma) {
    if (!(sigma > 0) || image.isNull())
        return;
    const Widths widths = boxWidths(sigma);
    const auto width = static_cast<std::size_t>(image.width());
    const auto height = static_cast<std::size_t>(image.height());
    const std::ptrdiff_t channels = image.depth() / 8;
    uchar* const first = image.bits();
    LineBlur blurRow(widths, width);
    for (int y = 0; y < image.height(); ++y)
        for (std::ptrdiff_t channel = 0; channel < channels; ++channel)
            blurRow({first + y * image.bytesPerLine() + channel, channels});
    LineBlur blurColumn(widths, height);
    for (std::ptrdiff_t sample = 0; sample < channels * image.width(); ++sample)
        blurColumn({first + sample, image.bytesPerLine()});
}

QImage halved(const QImage& image) {
    QImage half((image.width() + 1) / 2, (image.height() + 1) / 2, image.format());
    half.setDevicePixelRatio(image.devicePixelRatio() / 2);
    const int channels = image.depth() / 8;
    const int rest = image.width() % 2 * channels;
    std::vector<unsigned> sums(static_cast<std::size_t>(image.width() * channels + rest));
    for (int y = 0; y < half.height(); ++y) {
        const uchar* upper = image.constScanLine(2 * y);
        const bool hasLower = 2 * y + 1 < image.height();
        const uchar* lower = hasLower ? image.constScanLine(2 * y + 1) : upper;
        for (int i = 0; i < image.width() * channels; ++i)
            sums[static_cast<std::size_t>(i)] = upper[i] + (hasLower ? lower[i] : 0U);
        for (int channel = 0; channel < channels; ++channel) {
            const unsigned* sum = &sums[static_cast<std::size_t>(channel)];
            uchar* mean = half.scanLine(y) + channel;
            for (int x = 0; x < half.width(); ++x, sum += 2 * channels, mean += channels)
                *mean = static_cast<uchar>((sum[0] + sum[channels] + 2) / 4);
        }
    }
    return half;
}

double blurExtent(double sigma) {
    return 3 * sigma;
}

int blurRadius(double sigma) {
    return sigma > 0 ? static_cast<int>(radius(boxWidths(sigma))) : 0;
}

} // namespace brellowind
