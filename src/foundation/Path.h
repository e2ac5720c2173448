#pragma once

#include "foundation/Geometry.h"

#include <functional>
#include <variant>
#include <vector>

namespace brellowind {

/// An outline of straight lines and quadratic curves, for any toolkit to draw. What is inside is
/// decided by the even-odd rule; a part that is left open counts as closed.
class Path {
public:
    struct Move {
        Point to;

        bool operator==(const Move&) const = default;
    };

    struct Line {
        Point to;

        bool operator==(const Line&) const = default;
    };

    struct QuadCurve {
        Point to;
        Point control;

        bool operator==(const QuadCurve&) const = default;
    };

    /// A straight line back to the last `Move`.
    struct Close {
        bool operator==(const Close&) const = default;
    };

    using Element = std::variant<Move, Line, QuadCurve, Close>;

    void move(Point to);
    void line(Point to);
    void quadCurve(Point to, Point control);
    void close();

    const std::vector<Element>& elements() const { return elements_; }

    /// The outline whose points are those of this one under `map`, which keeps lines straight.
    Path mapped(const std::function<Point(Point)>& map) const;

    bool operator==(const Path&) const = default;

private:
    std::vector<Element> elements_;
};

} // namespace brellowind
