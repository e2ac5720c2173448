// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace brellowind::platform {

/// The position of one screen in native and logical coordinates; y downward in both.
struct ScreenPlacement {
    Rect native;  ///< in pixels of the window system
    double scale; ///< pixels per point
    Rect logical; ///< the same top left corner, but the size in points
};

/// Converts between three coordinate systems: the window system's pixels ("native"), the toolkit's
/// points within pixel origins ("logical"), and the program's desktop (points, origin at the bottom
/// left of the primary screen, y upward). Screens of different scales do not touch on the desktop
/// where they touch in pixels; within each screen every system agrees with the others.
class ScreenCoordinates {
public:
    /// A rectangle of the desktop in the toolkit's coordinates.
    struct LogicalRect {
        std::size_t screen; ///< with the largest intersection, else the nearest
        Rect logical;

        bool operator==(const LogicalRect&) const = default;
    };

    /// `primary` is an index into `screens`, unless these are empty.
    ScreenCoordinates(std::vector<ScreenPlacement> screens, std::size_t primary);

    /// Converts a rectangle on one screen to the desktop.
    Rect desktopRect(const Rect& logical) const;

    /// The centre of a pixel on the desktop. A pixel outside all screens belongs to the nearest.
    /// Returns nullopt without a screen.
    std::optional<Point> desktopPoint(int nativeX, int nativeY) const;

    /// Returns nullopt without a screen.
    std::optional<LogicalRect> logicalRect(const Rect& desktop) const;

private:
    std::vector<ScreenPlacement> screens_;
    Rect primary_; ///< logical
};

} // namespace brellowind::platform
