#pragma once

#include <QImage>

namespace brellowind::test {

/// The tolerance of picture comparisons: versions of the font renderer differ a little at edges; a
/// glyph moved by a pixel, or another colour, differs much more.
struct Tolerance {
    int channel = 28;        ///< of 255: smaller differences are ignored
    double fraction = 0.004; ///< of pixels that may differ
};

/// The largest difference of two colours in any channel, of 255.
int colourDistance(QRgb a, QRgb b);

struct Difference {
    double fraction; ///< of differing pixels; 1 if the sizes differ
    QImage image;    ///< the expected picture, faded, with differences in red
};

Difference compare(const QImage& actual, const QImage& expected, const Tolerance& tolerance = {});

inline bool agree(const Difference& difference, const Tolerance& tolerance = {}) {
    return difference.fraction <= tolerance.fraction;
}

} // namespace brellowind::test
