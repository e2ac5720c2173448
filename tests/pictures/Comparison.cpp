// SPDX-License-Identifier: MIT

#include "pictures/Comparison.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace brellowind::test {
namespace {

constexpr int tileSize = 32;

QRgb faint(QRgb colour) {
    const int grey = 192 + qGray(colour) / 4;
    return qRgb(grey, grey, grey);
}

} // namespace

int colourDistance(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

Difference compare(const QImage& actual, const QImage& expected, const Tolerance& tolerance) {
    if (actual.size() != expected.size() || actual.isNull())
        return {1, actual};
    QImage image(expected.size(), QImage::Format_RGB32);
    const int columns = (expected.width() + tileSize - 1) / tileSize;
    const int rows = (expected.height() + tileSize - 1) / tileSize;
    std::vector<int> differing(static_cast<std::size_t>(columns * rows));
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const bool differs =
                colourDistance(actual.pixel(x, y), expected.pixel(x, y)) > tolerance.channel;
            const int tile = y / tileSize * columns + x / tileSize;
            differing[static_cast<std::size_t>(tile)] += differs;
            image.setPixel(x, y, differs ? qRgb(220, 0, 0) : faint(expected.pixel(x, y)));
        }
    }
    return {*std::ranges::max_element(differing) / double(tileSize * tileSize), image};
}

} // namespace brellowind::test
