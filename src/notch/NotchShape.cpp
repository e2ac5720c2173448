#include "notch/NotchShape.h"

#include <algorithm>

namespace brellowind {

NotchShape::NotchShape(double topRadius_, double bottomRadius_)
    : topRadius(topRadius_), bottomRadius(bottomRadius_) {}

Path NotchShape::path(const Rect& rect) const {
    const double flare = std::min(topRadius, rect.width / 2);
    const double round = std::min(bottomRadius, rect.height - flare);
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

} // namespace brellowind
