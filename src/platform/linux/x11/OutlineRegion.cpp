#include "platform/linux/x11/OutlineRegion.h"

#include <QPolygonF>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace brellowind::platform {
namespace {

/// Where an outline crosses the middle of a row of pixels, and whether it goes down there.
struct Crossing {
    double x;
    int winding;
};

struct Edge {
    QPointF from;
    QPointF to;
};

/// Pixels from `left` up to but not including `right`.
struct Span {
    int left;
    int right;

    bool operator==(const Span&) const = default;
};

using Row = std::vector<Span>;

/// Qt makes lines of curves that are off by up to half a unit: these units are finer than pixels.
constexpr double unitsPerPixel = 8;

std::vector<Edge> edges(const QPainterPath& outline, double scale) {
    std::vector<Edge> all;
    const double units = scale * unitsPerPixel;
    for (const auto& polygon : outline.toSubpathPolygons(QTransform::fromScale(units, units))) {
        for (qsizetype i = 0; i < polygon.size(); ++i)
            all.push_back(
                {polygon[i] / unitsPerPixel, polygon[(i + 1) % polygon.size()] / unitsPerPixel});
    }
    return all;
}

std::vector<Crossing> crossings(const std::vector<Edge>& edges, double y) {
    std::vector<Crossing> found;
    for (const auto& [from, to] : edges) {
        if ((from.y() <= y) == (to.y() <= y))
            continue;
        const double part = (y - from.y()) / (to.y() - from.y());
        found.push_back({from.x() + part * (to.x() - from.x()), from.y() < to.y() ? 1 : -1});
    }
    std::ranges::sort(found, {}, &Crossing::x);
    return found;
}

/// The first pixel whose middle is not left of `x`.
int pixelFrom(double x) {
    return static_cast<int>(std::ceil(x - 0.5));
}

Row row(const std::vector<Edge>& edges, Qt::FillRule rule, int y) {
    Row spans;
    int winding = 0;
    double start = 0;
    const auto inside = [&] { return rule == Qt::OddEvenFill ? winding % 2 != 0 : winding != 0; };
    for (const auto& crossing : crossings(edges, y + 0.5)) {
        const bool before = inside();
        winding += crossing.winding;
        if (!before && inside())
            start = crossing.x;
        if (!before || inside())
            continue;
        const Span span{pixelFrom(start), pixelFrom(crossing.x)};
        if (!spans.empty() && spans.back().right >= span.left)
            spans.back().right = std::max(spans.back().right, span.right);
        else if (span.left < span.right)
            spans.push_back(span);
    }
    return spans;
}

void append(PixelRegion& region, const Row& spans, int top, int bottom) {
    for (const auto& [left, right] : spans)
        region.push_back({left, top, right - left, bottom - top});
}

} // namespace

PixelRegion outlineRegion(const QPainterPath& outline, double scale) {
    const auto all = edges(outline, scale);
    const QRectF bounds = outline.controlPointRect();
    const int end = pixelFrom(bounds.bottom() * scale);
    PixelRegion region;
    int bandTop = pixelFrom(bounds.top() * scale);
    Row band;
    for (int y = bandTop; y < end; ++y) {
        Row next = row(all, outline.fillRule(), y);
        if (next == band)
            continue;
        append(region, band, bandTop, y);
        band = std::move(next);
        bandTop = y;
    }
    append(region, band, bandTop, end);
    return region;
}

} // namespace brellowind::platform
