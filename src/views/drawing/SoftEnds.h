#pragma once

#include <QRectF>
#include <functional>

class QPainter;

namespace brellowind {

/// Where a text is cut, in the painter's coordinates: it shows within `rect` and is faded in over
/// `left` points from its left edge, and out over `right` points before its right edge.
struct SoftEnds {
    QRectF rect;
    double left;
    double right;
};

/// Lets `paint` draw, and shows of it what `ends` leave. `painter` must not be rotated.
void paintWithSoftEnds(QPainter& painter, const SoftEnds& ends,
                       const std::function<void(QPainter&)>& paint);

} // namespace brellowind
