// SPDX-License-Identifier: MIT

#include "platform/qt/OutlineRegion.h"

#include "platform/qt/PainterPath.h"

#include <QPolygonF>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <compare>

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

/// The crossings of an outline, sorted. Painting it into a bitmap instead takes half of the time of
/// a frame while the artwork panel opens.
std::vector<Crossing> crossings(const Path& outline, double scale) {
    constexpr double precision = 16; // Qt approximates curves to half a unit
    const auto fine = QTransform::fromScale(scale * precision, scale * precision);
    std::vector<Crossing> all;
    for (const QPolygonF& polygon : painterPath(outline).toSubpathPolygons(fine)) {
        QPointF last = polygon.last() / precision; // an open one is closed
        for (const QPointF& point : polygon) {
            const QPointF next = point / precision;
            const auto [upper, lower] = std::ranges::minmax(last, next, {}, &QPointF::y);
            const double slope = (lower.x() - upper.x()) / (lower.y() - upper.y());
            for (int row = firstPixel(upper.y()); row < firstPixel(lower.y()); ++row)
                all.push_back({row, upper.x() + slope * (row + 0.5 - upper.y())});
            last = next;
        }
    }
    std::ranges::sort(all);
    return all;
}

} // namespace

QRegion outlineRegion(const Path& outline, double scale) {
    const auto all = crossings(outline, scale);
    QRegion region;
    for (std::size_t i = 0; i + 1 < all.size(); i += 2) {
        constexpr double tolerance = 1.0 / 64; // keeps the region of a symmetric outline symmetric
        const int left = firstPixel(all[i].x - tolerance);
        const int right = firstPixel(all[i + 1].x + tolerance);
        if (left < right)
            region += QRect(left, all[i].row, right - left, 1);
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
