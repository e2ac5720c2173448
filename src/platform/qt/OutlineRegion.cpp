// SPDX-License-Identifier: MIT

#include "platform/qt/OutlineRegion.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <utility>

namespace brellowind::platform {
namespace {

/// The first pixel whose centre is not before `edge`.
int firstPixel(double edge) {
    return static_cast<int>(std::ceil(edge - 0.5));
}

/// Where an outline crosses the line through the centres of a row of pixels.
struct Crossing {
    int row;
    double x;

    auto operator<=>(const Crossing&) const = default;
};

/// The crossings of an outline. Painting it into a bitmap instead takes half of the time of a
/// frame while the artwork panel opens.
class Crossings {
public:
    std::vector<Crossing> of(const Path& outline) {
        using Kind = Path::Element::Kind;
        for (const auto& [kind, to, control] : outline.elements()) {
            if (kind == Kind::line)
                line(to);
            else if (kind == Kind::quadCurve)
                quadCurve(to, control);
            else
                line(start_); // closes the subpath
            if (kind == Kind::move)
                start_ = last_ = to;
        }
        line(start_);
        std::ranges::sort(crossings_);
        return std::move(crossings_);
    }

private:
    void line(Point to) {
        const auto [upper, lower] = std::ranges::minmax(last_, to, {}, &Point::y);
        const double slope = (lower.x - upper.x) / (lower.y - upper.y);
        for (int row = firstPixel(upper.y); row < firstPixel(lower.y); ++row)
            crossings_.push_back({row, upper.x + slope * (row + 0.5 - upper.y)});
        last_ = to;
    }

    void quadCurve(Point to, Point control) {
        const Point from = last_;
        constexpr int segments = 32; // within 1/20 pixel of a corner of 100 pixels
        for (int i = 1; i <= segments; ++i) {
            const double t = double(i) / segments;
            const auto at = [t](double begin, double middle, double end) {
                return std::lerp(std::lerp(begin, middle, t), std::lerp(middle, end, t), t);
            };
            line({at(from.x, control.x, to.x), at(from.y, control.y, to.y)});
        }
    }

    std::vector<Crossing> crossings_;
    Point start_{};
    Point last_{};
};

} // namespace

QRegion outlineRegion(const Path& outline, double scale) {
    const auto crossings = Crossings().of(outline.mapped([scale](Point point) {
        return Point{point.x * scale, point.y * scale};
    }));
    QRegion region;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        constexpr double tolerance = 1.0 / 64; // keeps the region of a symmetric outline symmetric
        const int left = firstPixel(crossings[i].x - tolerance);
        const int right = firstPixel(crossings[i + 1].x + tolerance);
        if (left < right)
            region += QRect(left, crossings[i].row, right - left, 1);
    }
    return region;
}

QRegion rectsRegion(const std::vector<Rect>& inputRects, double scale) {
    QRegion region;
    for (const Rect& rect : inputRects) {
        const QPoint from(firstPixel(rect.minX() * scale), firstPixel(rect.minY() * scale));
        const QPoint to(firstPixel(rect.maxX() * scale), firstPixel(rect.maxY() * scale));
        region |= QRect(from, to - QPoint(1, 1));
    }
    return region;
}

} // namespace brellowind::platform
