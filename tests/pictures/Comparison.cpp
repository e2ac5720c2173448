#include "pictures/Comparison.h"

#include <algorithm>
#include <cstdlib>

namespace brellowind::test {
namespace {

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
    qint64 differing = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const bool differs =
                colourDistance(actual.pixel(x, y), expected.pixel(x, y)) > tolerance.channel;
            differing += differs;
            image.setPixel(x, y, differs ? qRgb(220, 0, 0) : faint(expected.pixel(x, y)));
        }
    }
    const auto pixels = static_cast<double>(expected.width()) * expected.height();
    return {static_cast<double>(differing) / pixels, image};
}

} // namespace brellowind::test
