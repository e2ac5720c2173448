#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

namespace brellowind {

/// The outline of the collapsed pill. It hangs from the top edge of its rectangle like the notch
/// itself: the top corners flare outward, the bottom corners are round. A change of a radius is
/// never animated.
struct NotchShape {
    /// The closed outline in `rect`, in view coordinates (y downward). The top radius is limited to
    /// half the width, then the bottom radius to the height that is left below the flares; it comes
    /// out negative when none is left.
    Path path(const Rect& rect) const;

    /// Whether all of `part` is within that outline in `rect` and reaches into neither flare.
    bool contains(const Rect& rect, const Rect& part) const;

    bool operator==(const NotchShape&) const = default;

    double topRadius;    ///< of the outward flare at each top corner
    double bottomRadius; ///< of each bottom corner

private:
    double flare(const Rect& rect) const;
    double round(const Rect& rect) const;
};

} // namespace brellowind
