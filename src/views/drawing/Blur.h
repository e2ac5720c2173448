#pragma once

#include <QImage>

namespace brellowind {

/// Blurs `image` (Alpha8 or premultiplied ARGB32) as a Gaussian of standard deviation `sigma`
/// pixels would, closely enough for the eye. What lies outside the image counts as clear,
/// and what is carried there is lost: it stays near a Gaussian where `blurReach` of clear room
/// surrounds what is drawn. A sigma that is not above 0 changes nothing, one above 120 is 120.
void blur(QImage& image, double sigma);

/// How far from a point its blurred image reaches, in the unit of `sigma`.
double blurReach(double sigma);

/// How many pixels far `blur` carries anything. Two sigmas with equal radii blur alike.
int blurRadius(double sigma);

} // namespace brellowind
