// SPDX-License-Identifier: MIT

#include "views/drawing/Coverage.h"

#include <algorithm>
#include <array>
#include <vector>

namespace brellowind {
namespace {

constexpr unsigned one = 256; ///< of a weight

/// What one sample of the result is made of, along one axis.
struct Sample {
    std::size_t first, second;
    unsigned weight; ///< of `second`
};

std::vector<Sample> samples(int from, int to) {
    std::vector<Sample> all;
    all.reserve(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const double at = std::clamp((i + 0.5) * from / to - 0.5, 0.0, from - 1.0);
        const auto first = static_cast<std::size_t>(at);
        all.push_back({first, std::min(first + 1, static_cast<std::size_t>(from - 1)),
                       static_cast<unsigned>((at - static_cast<double>(first)) * one)});
    }
    return all;
}

/// `color` at each coverage.
std::array<QRgb, 256> tints(QColor color) {
    const QRgb full = color.rgba();
    std::array<QRgb, 256> all{};
    for (unsigned coverage = 0; coverage < 256; ++coverage) {
        const unsigned alpha = (qAlpha(full) * coverage + 127) / 255;
        all[coverage] = qPremultiply((full & RGB_MASK) | alpha << 24);
    }
    return all;
}

} // namespace

QImage tinted(const QImage& coverage, QColor color, QSize size) {
    if (coverage.isNull() || size.isEmpty())
        return {};
    const auto tint = tints(color);
    const auto columns = samples(coverage.width(), size.width());
    const auto rows = samples(coverage.height(), size.height());
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(coverage.devicePixelRatio());
    auto* pixel = reinterpret_cast<QRgb*>(image.bits()); // such rows have no padding
    std::vector<unsigned> mixed(static_cast<std::size_t>(coverage.width()));
    for (const Sample& row : rows) {
        const uchar* upper = coverage.constScanLine(static_cast<int>(row.first));
        const uchar* lower = coverage.constScanLine(static_cast<int>(row.second));
        unsigned ink = 0;
        for (unsigned& sum : mixed)
            ink |= sum = *upper++ * (one - row.weight) + *lower++ * row.weight;
        if (ink == 0) {
            pixel = std::fill_n(pixel, columns.size(), 0);
            continue;
        }
        for (const Sample& column : columns) {
            const unsigned sum =
                mixed[column.first] * (one - column.weight) + mixed[column.second] * column.weight;
            *pixel++ = tint[(sum + one * one / 2) / (one * one)];
        }
    }
    return image;
}

} // namespace brellowind
