// SPDX-License-Identifier: MIT

#include "platform/qt/PainterPath.h"

namespace brellowind::platform {
namespace {

QPointF point(Point p) {
    return {p.x, p.y};
}

} // namespace

QPainterPath painterPath(const Path& path) {
    using Kind = Path::Element::Kind;
    QPainterPath drawn;
    for (const auto& [kind, to, control] : path.elements()) {
        if (kind == Kind::move)
            drawn.moveTo(point(to));
        else if (kind == Kind::line)
            drawn.lineTo(point(to));
        else if (kind == Kind::quadCurve)
            drawn.quadTo(point(control), point(to));
        else
            drawn.closeSubpath();
    }
    return drawn;
}

} // namespace brellowind::platform
