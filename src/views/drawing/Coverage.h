#pragma once

#include <QColor>
#include <QImage>

namespace brellowind {

/// How much of each pixel is covered (Alpha8) in `image` (premultiplied ARGB32), on which only
/// white was painted; null when anything there has a colour of its own, as an emoji has.
QImage coverage(const QImage& image);

/// `coverage` painted in `color`, premultiplied ARGB32.
QImage tinted(const QImage& coverage, QColor color);

} // namespace brellowind
