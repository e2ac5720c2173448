// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <functional>

class QPainter;

namespace brellowind {

/// Clipping with faded ends, in the painter's coordinates: content is clipped to `rect`, and fades
/// over `left` points at its left edge and `right` points at its right edge.
struct SoftEnds {
    QRectF rect;
    double left;
    double right;
};

/// Draws with `paint`, clipped and faded by `ends`. `painter` must not be rotated.
void paintWithSoftEnds(QPainter& painter, const SoftEnds& ends,
                       const std::function<void(QPainter&)>& paint);

} // namespace brellowind
