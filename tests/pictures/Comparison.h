#pragma once

#include <QImage>

namespace brellowind::test {

/// How far a picture may be from the one that is kept: another version of a font renderer shades a
/// few edges a little differently, while a glyph that moves by one pixel or a colour that is
/// another changes far more.
struct Tolerance {
    int channel = 28;        ///< of 255: a smaller step in a colour is no difference
    double fraction = 0.004; ///< of all pixels may differ
};

/// The largest step from one colour to another in any channel, of 255.
int colourDistance(QRgb a, QRgb b);

struct Difference {
    double fraction; ///< of the pixels; 1 when the sizes are not the same
    QImage image;    ///< the expected picture, faint, with what differs in red
};

Difference compare(const QImage& actual, const QImage& expected, const Tolerance& tolerance = {});

inline bool agree(const Difference& difference, const Tolerance& tolerance = {}) {
    return difference.fraction <= tolerance.fraction;
}

} // namespace brellowind::test
