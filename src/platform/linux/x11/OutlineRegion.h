#pragma once

#include "foundation/Path.h"

#include <vector>

namespace brellowind::platform {

/// Pixels of a window, counted from its top left corner.
struct PixelRect {
    int x;
    int y;
    int width;
    int height;

    bool operator==(const PixelRect&) const = default;
};

/// From top to bottom in bands of equal height, within each from left to right, without overlaps.
using PixelRegion = std::vector<PixelRect>;

/// The pixels whose middle lies inside `outline`, which is in points; `scale` pixels are one point.
PixelRegion outlineRegion(const Path& outline, double scale);

} // namespace brellowind::platform
