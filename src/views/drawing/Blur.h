// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace brellowind {

/// Approximates a Gaussian blur of standard deviation `sigma` pixels on `image` (Alpha8 or
/// premultiplied ARGB32). Pixels outside the image count as transparent, so the content needs a
/// transparent margin of `blurExtent`. Does nothing if sigma is 0 or less; limits it to 120.
void blur(QImage& image, double sigma);

/// `image` (as above) at half its size and pixel ratio. Pixels outside an odd size count as
/// transparent.
QImage halved(const QImage& image);

/// The distance over which a blur spreads a point, in the unit of `sigma`.
double blurExtent(double sigma);

/// The distance over which `blur` spreads a pixel. Sigmas with equal radii give the same result.
int blurRadius(double sigma);

} // namespace brellowind
