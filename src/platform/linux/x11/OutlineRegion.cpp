#include "platform/linux/x11/OutlineRegion.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brellowind::platform {
namespace {

struct Edge {
    Point from;
    Point to;
};

/// Makes edges in pixels of the elements of an outline. Every part of it is closed.
class EdgeMaker {
public:
    explicit EdgeMaker(double scale) : scale_(scale) {}

    void operator()(const Path::Move& move) {
        close();
        start_ = last_ = pixels(move.to);
    }
    void operator()(const Path::Line& line) { lineTo(pixels(line.to)); }
    void operator()(const Path::QuadCurve& curve) {
        curveTo(pixels(curve.to), pixels(curve.control));
    }
    void operator()(const Path::Close&) { close(); }

    std::vector<Edge> finish() {
        close();
        return std::move(edges_);
    }

private:
    /// How far the lines that stand for a curve are off at most, in pixels.
    static constexpr double tolerance = 1.0 / 16;

    Point pixels(Point point) const { return {point.x * scale_, point.y * scale_}; }

    void close() {
        if (last_ != start_)
            lineTo(start_);
    }

    void lineTo(Point to) { edges_.push_back({std::exchange(last_, to), to}); }

    void curveTo(Point to, Point control) {
        const Point from = last_;
        const double bend =
            std::hypot(from.x - 2 * control.x + to.x, from.y - 2 * control.y + to.y);
        const int lines = std::max(1, static_cast<int>(std::ceil(std::sqrt(bend / 4 / tolerance))));
        for (int i = 1; i <= lines; ++i) {
            const double t = double(i) / lines;
            const auto at = [t](double a, double b, double c) {
                return (1 - t) * (1 - t) * a + 2 * t * (1 - t) * b + t * t * c;
            };
            lineTo({at(from.x, control.x, to.x), at(from.y, control.y, to.y)});
        }
    }

    double scale_;
    Point start_;
    Point last_;
    std::vector<Edge> edges_;
};

/// Pixels from `left` up to but not including `right`.
struct Span {
    int left;
    int right;

    bool operator==(const Span&) const = default;
};

using Row = std::vector<Span>;

std::vector<Edge> makeEdges(const Path& outline, double scale) {
    EdgeMaker maker(scale);
    for (const auto& element : outline.elements())
        std::visit(maker, element);
    return maker.finish();
}

/// Where the edges cross the middle of a row of pixels, from left to right.
std::vector<double> crossings(const std::vector<Edge>& edges, double y) {
    std::vector<double> found;
    for (const auto& [from, to] : edges) {
        if ((from.y <= y) == (to.y <= y))
            continue;
        const double part = (y - from.y) / (to.y - from.y);
        found.push_back(from.x + part * (to.x - from.x));
    }
    std::ranges::sort(found);
    return found;
}

/// The first pixel whose middle is not left of `x`.
int pixelFrom(double x) {
    return static_cast<int>(std::ceil(x - 0.5));
}

Row row(const std::vector<Edge>& edges, int y) {
    Row spans;
    const auto borders = crossings(edges, y + 0.5);
    for (std::size_t i = 0; i + 1 < borders.size(); i += 2) {
        const Span span{pixelFrom(borders[i]), pixelFrom(borders[i + 1])};
        if (!spans.empty() && spans.back().right >= span.left)
            spans.back().right = span.right;
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

PixelRegion outlineRegion(const Path& outline, double scale) {
    const auto edges = makeEdges(outline, scale);
    if (edges.empty())
        return {};
    const auto [highest, lowest] =
        std::ranges::minmax(edges, {}, [](const Edge& edge) { return edge.from.y; });
    const int end = pixelFrom(lowest.from.y); // each point is where an edge begins
    PixelRegion region;
    int bandTop = pixelFrom(highest.from.y);
    Row band;
    for (int y = bandTop; y < end; ++y) {
        Row next = row(edges, y);
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
