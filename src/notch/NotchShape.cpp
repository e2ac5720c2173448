// SPDX-License-Identifier: MIT

#include "notch/NotchShape.h"

#include <algorithm>
#include <cmath>

namespace brellowind {

Path NotchShape::path(const Rect& rect) const {
    const double flare = this->flare(rect);
    const double round = this->round(rect);
    const double left = rect.minX() + flare;
    const double right = rect.maxX() - flare;
    const double top = rect.minY();
    const double bottom = rect.maxY();

    Path path;
    path.move({rect.minX(), top});
    path.quadCurve({left, top + flare}, {left, top});
    path.line({left, bottom - round});
    path.quadCurve({left + round, bottom}, {left, bottom});
    path.line({right - round, bottom});
    path.quadCurve({right, bottom - round}, {right, bottom});
    path.line({right, top + flare});
    path.quadCurve({rect.maxX(), top}, {right, top});
    path.close();
    return path;
}

bool NotchShape::contains(const Rect& rect, const Rect& part) const {
    const double round = this->round(rect);
    const double beside =
        std::min(part.minX() - rect.minX(), rect.maxX() - part.maxX()) - flare(rect);
    const double below = rect.maxY() - part.maxY();
    if (round < 0 || beside < 0 || below < 0 || part.minY() < rect.minY())
        return false;
    if (beside >= round || below >= round)
        return true;
    // On the curve the square roots of the distances from its two tangents add up to one.
    return std::sqrt(beside / round) + std::sqrt(below / round) >= 1;
}

double NotchShape::flare(const Rect& rect) const {
    return std::min(topRadius, rect.width / 2);
}

double NotchShape::round(const Rect& rect) const {
    return std::min(bottomRadius, rect.height - flare(rect));
}

} // namespace brellowind
