// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace brellowind::test {

/// The tolerance of picture comparisons: versions of the font renderer differ a little at edges; a
/// glyph moved by a pixel, or another colour, differs much more.
struct Tolerance {
    int channel = 28;       ///< of 255: smaller differences are ignored
    double fraction = 0.04; ///< of the pixels of a tile that may differ
};

/// The largest difference of two colours in any channel, of 255.
int colourDistance(QRgb a, QRgb b);

struct Difference {
    double fraction; ///< of differing pixels in the worst tile; 1 if the sizes differ
    QImage image;    ///< the expected picture, faded, with differences in red
};

/// Compares tiles of 32 × 32 pixels, so that a small missing part counts in a picture of any size.
Difference compare(const QImage& actual, const QImage& expected, const Tolerance& tolerance = {});

inline bool agree(const Difference& difference, const Tolerance& tolerance = {}) {
    return difference.fraction <= tolerance.fraction;
}

} // namespace brellowind::test
