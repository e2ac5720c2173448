// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

namespace brellowind {

/// The outline of the collapsed pill, like that of a notch: the top corners flare outward, the
/// bottom corners are round. Changes of the radii are never animated.
struct NotchShape {
    /// The closed outline in `rect`, in view coordinates (y downward). The top radius is limited to
    /// half the width, then the bottom radius to the height below the flares, which may be
    /// negative.
    Path path(const Rect& rect) const;

    /// Whether `part` lies within the outline in `rect` and outside both flares.
    bool contains(const Rect& rect, const Rect& part) const;

    bool operator==(const NotchShape&) const = default;

    double topRadius;    ///< of the outward flare at each top corner
    double bottomRadius; ///< of each bottom corner

private:
    double flare(const Rect& rect) const;
    double round(const Rect& rect) const;
};

} // namespace brellowind
