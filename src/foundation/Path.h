// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"

#include <vector>

namespace brellowind {

/// An outline of straight lines and quadratic curves, independent of any toolkit. It is filled by
/// the even-odd rule; open subpaths count as closed.
class Path {
public:
    struct Element {
        enum class Kind { move, line, quadCurve, close };

        Kind kind;
        Point to{};      ///< not used by `close`, a straight line to the last `move`
        Point control{}; ///< used by `quadCurve` only

        bool operator==(const Element&) const = default;
    };

    void move(Point to) { elements_.push_back({Element::Kind::move, to}); }
    void line(Point to) { elements_.push_back({Element::Kind::line, to}); }
    void quadCurve(Point to, Point control) {
        elements_.push_back({Element::Kind::quadCurve, to, control});
    }
    void close() { elements_.push_back({Element::Kind::close}); }

    const std::vector<Element>& elements() const { return elements_; }

    /// The outline with `map`, an affine transformation, applied to every point.
    template <typename Map>
    Path mapped(Map map) const {
        Path path = *this;
        for (auto& element : path.elements_) {
            if (element.kind != Element::Kind::close)
                element.to = map(element.to);
            if (element.kind == Element::Kind::quadCurve)
                element.control = map(element.control);
        }
        return path;
    }

    bool operator==(const Path&) const = default;

private:
    std::vector<Element> elements_;
};

} // namespace brellowind
