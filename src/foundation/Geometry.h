// SPDX-License-Identifier: MIT

#pragma once

namespace brellowind {

/// All lengths are in points. Desktop coordinates: origin at the bottom left corner of the primary
/// screen, y upward. View coordinates: origin at the top left corner, y downward.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    constexpr double minX() const { return x; }
    constexpr double midX() const { return x + width / 2; }
    constexpr double maxX() const { return x + width; }
    constexpr double minY() const { return y; }
    constexpr double midY() const { return y + height / 2; }
    constexpr double maxY() const { return y + height; }

    /// `minX` and `minY` are inside, `maxX` and `maxY` are not. False for NaN.
    constexpr bool contains(Point point) const {
        return point.x >= minX() && point.x < maxX() && point.y >= minY() && point.y < maxY();
    }

    bool operator==(const Rect&) const = default;
};

} // namespace brellowind
