#include "views/drawing/Blur.h"

#include "views/drawing/Transpose.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

namespace brellowind {
namespace {

constexpr int passes = 3;
constexpr double strongestSigma = 120; ///< its sums just fit into 16 bits

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

/// `stride` is bytes from line to line.
template <typename Pixel>
Pixels<Pixel> pixelsAt(uchar* first, std::ptrdiff_t stride) {
    return {reinterpret_cast<Pixel*>(first), stride / static_cast<std::ptrdiff_t>(sizeof(Pixel))};
}

/// Samples line by line, without a line's end that a processor's vectors would not fill.
struct Lines {
    Lines(std::size_t lineWidth, int lineCount)
        : width((lineWidth + 15) / 16 * 16), height(lineCount),
          samples(width * static_cast<std::size_t>(lineCount)) {}

    uchar* line(int y) { return samples.data() + static_cast<std::size_t>(y) * width; }
    const uchar* line(int y) const { return samples.data() + static_cast<std::size_t>(y) * width; }

    template <typename Pixel>
    Pixels<Pixel> pixels() {
        return pixelsAt<Pixel>(samples.data(), static_cast<std::ptrdiff_t>(width));
    }

    std::size_t width;
    int height;
    std::vector<uchar> samples;
};

/// Moves the box one line down: `mean` is what is in it with the entering line, before the leaving
/// line goes. Nothing overlaps and every sample has its own copy of the reciprocal, so that
/// compilers see one instruction that yields the upper halves of many short products.
void slide(std::uint16_t* __restrict sums, const uchar* __restrict entering,
           const uchar* __restrict leaving, const std::uint16_t* __restrict reciprocals,
           uchar* __restrict mean, std::size_t width) {
    for (std::size_t x = 0; x < width; ++x) {
        const auto sum = static_cast<std::uint16_t>(sums[x] + entering[x]);
        mean[x] = static_cast<uchar>(static_cast<unsigned>(sum) * reciprocals[x] >> 16);
        sums[x] = static_cast<std::uint16_t>(sum - leaving[x]);
    }
}

/// One box filter down the columns, all samples of a line at a time.
void boxFilter(const Lines& from, Lines& to, int radius) {
    const std::vector<std::uint16_t> reciprocals(
        from.width, static_cast<std::uint16_t>((1 << 16) / (2 * radius + 1)));
    const std::vector<uchar> clear(from.width);
    const auto line = [&](int y) {
        return y >= 0 && y < from.height ? from.line(y) : clear.data();
    };
    // Half a divisor in every sum rounds what is cut off otherwise.
    std::vector<std::uint16_t> sums(from.width, static_cast<std::uint16_t>(radius));
    for (int y = 0; y < radius; ++y)
        std::transform(sums.begin(), sums.end(), line(y), sums.begin(), std::plus<>());
    for (int y = 0; y < from.height; ++y)
        slide(sums.data(), line(y + radius), line(y - radius), reciprocals.data(), to.line(y),
              from.width);
}

void blurDown(Lines& lines, double sigma) {
    Lines other = lines;
    for (const int radius : boxRadii(sigma)) {
        if (radius < 1)
            continue;
        boxFilter(lines, other, radius);
        lines.samples.swap(other.samples);
    }
}

/// The rows of `image` from the first to the last one with anything in it, as many as a multiple of
/// `step` where there is room for that.
std::pair<int, int> inkedRows(const QImage& image, int step) {
    const int bytes = image.width() * image.depth() / 8;
    const auto isClear = [&](int y) {
        const uchar* row = image.constScanLine(y);
        return std::all_of(row, row + bytes, [](uchar sample) { return sample == 0; });
    };
    int first = 0;
    int end = image.height();
    while (first < end && isClear(first))
        ++first;
    while (end > first && isClear(end - 1))
        --end;
    end = std::min(first + (end - first + step - 1) / step * step, image.height());
    return {first, end};
}

/// A filter down the columns is the same work for all samples of a line, which a processor does
/// many at a time. So the filter along the lines is one down the columns of the image laid on its
/// side. Along the lines only those are filtered that show anything: a text has few.
template <typename Pixel>
void blurPixels(QImage& image, double sigma) {
    const int width = image.width();
    const int height = image.height();
    const auto [first, end] = inkedRows(image, 16);
    const int inked = end - first;
    const auto pixels = pixelsAt<Pixel>(image.bits(), image.bytesPerLine());
    Lines onItsSide(static_cast<std::size_t>(inked) * sizeof(Pixel), width);
    Lines upright(static_cast<std::size_t>(width) * sizeof(Pixel), height);
    transpose(pixels.startingAt(0, first), onItsSide.pixels<Pixel>(), width, inked);
    blurDown(onItsSide, sigma);
    transpose(onItsSide.pixels<Pixel>(), upright.pixels<Pixel>().startingAt(0, first), inked,
              width);
    blurDown(upright, sigma);
    for (int y = 0; y < height; ++y)
        std::copy_n(upright.pixels<Pixel>().at(0, y), width, pixels.at(0, y));
}

} // namespace

void blur(QImage& image, double sigma) {
    if (!(sigma > 0) || image.isNull())
        return;
    sigma = std::min(sigma, strongestSigma);
    if (image.depth() == 8)
        blurPixels<uchar>(image, sigma);
    else
        blurPixels<QRgb>(image, sigma);
}

double blurReach(double sigma) {
    return 3 * sigma;
}

} // namespace brellowind
