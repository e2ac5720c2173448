#include "views/drawing/Coverage.h"

#include <array>

namespace brellowind {

QImage coverage(const QImage& image) {
    QImage result(image.size(), QImage::Format_Alpha8);
    result.setDevicePixelRatio(image.devicePixelRatio());
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        uchar* to = result.scanLine(y);
        QRgb coloured = 0;
        for (int x = 0; x < width; ++x) {
            const QRgb alpha = from[x] >> 24;
            coloured |= from[x] ^ alpha * 0x01010101U;
            to[x] = static_cast<uchar>(alpha);
        }
        if (coloured)
            return {};
    }
    return result;
}

QImage tinted(const QImage& coverage, QColor color) {
    const QRgb opaque = color.rgb();
    const int strength = color.alpha();
    std::array<QRgb, 256> tints;
    for (unsigned alpha = 0; alpha < tints.size(); ++alpha) {
        const int tint = (strength * static_cast<int>(alpha) + 127) / 255;
        tints[alpha] = qPremultiply((opaque & RGB_MASK) | static_cast<QRgb>(tint) << 24);
    }
    QImage result(coverage.size(), QImage::Format_ARGB32_Premultiplied);
    result.setDevicePixelRatio(coverage.devicePixelRatio());
    const int width = coverage.width();
    for (int y = 0; y < coverage.height(); ++y) {
        const uchar* from = coverage.constScanLine(y);
        auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < width; ++x)
            to[x] = tints[from[x]];
    }
    return result;
}

} // namespace brellowind
