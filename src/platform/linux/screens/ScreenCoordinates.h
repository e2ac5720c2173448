#pragma once

#include "foundation/Geometry.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// Where one screen is, as the window system and as the toolkit see it. In both y grows downward.
struct ScreenPlacement {
    Rect native;  ///< in pixels of the window system
    double scale; ///< pixels a point
    Rect logical; ///< the same top left corner, but the size in points
};

/// Converts between three coordinate systems: the window system's pixels ("native"), the toolkit's
/// points within pixel origins ("logical"), and the program's desktop (points, origin at the bottom
/// left of the primary screen, y upward). Screens of different scales do not touch on the desktop
/// where they touch in pixels; within each screen every system agrees with the others.
class ScreenCoordinates {
public:
    /// Where a rectangle of the desktop is for the toolkit.
    struct Place {
        std::size_t screen; ///< the one that most of it lies on, else the nearest
        Rect logical;

        bool operator==(const Place&) const = default;
    };

    /// `primary` is an index into `screens`, unless these are empty.
    ScreenCoordinates(std::vector<ScreenPlacement> screens, std::size_t primary);

    /// A part of some screen on the desktop.
    Rect desktopRect(const Rect& logical) const;

    /// The middle of a pixel on the desktop: the pixels of a rectangle are those whose middle it
    /// contains. A pixel beside all screens belongs to the nearest. Absent without a screen.
    std::optional<Point> desktopPoint(int nativeX, int nativeY) const;

    /// Absent without a screen.
    std::optional<Place> place(const Rect& desktop) const;

private:
    std::vector<ScreenPlacement> screens_;
    Rect primary_; ///< logical
};

} // namespace brellowind::platform
