#pragma once

#include <QRgb>
#include <cstddef>

namespace brellowind {

/// Pixels in memory.
template <typename Pixel>
struct Pixels {
    Pixel* at(int x, int y) const { return first + static_cast<std::ptrdiff_t>(y) * stride + x; }

    Pixels startingAt(int x, int y) const { return {at(x, y), stride}; }

    Pixel* first;
    std::ptrdiff_t stride; ///< pixels from line to line
};

/// Exchanges rows and columns of `width` × `height` pixels. The two must not overlap.
void transpose(Pixels<uchar> from, Pixels<uchar> to, int width, int height);
void transpose(Pixels<QRgb> from, Pixels<QRgb> to, int width, int height);

} // namespace brellowind
