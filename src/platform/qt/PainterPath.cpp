#include "platform/qt/PainterPath.h"

#include <variant>

namespace brellowind::platform {
namespace {

QPointF point(Point p) {
    return {p.x, p.y};
}

struct Drawer {
    void operator()(const Path::Move& move) { path.moveTo(point(move.to)); }
    void operator()(const Path::Line& line) { path.lineTo(point(line.to)); }
    void operator()(const Path::QuadCurve& curve) {
        path.quadTo(point(curve.control), point(curve.to));
    }
    void operator()(const Path::Close&) { path.closeSubpath(); }

    QPainterPath path;
};

} // namespace

QPainterPath painterPath(const Path& path) {
    Drawer drawer;
    for (const auto& element : path.elements())
        std::visit(drawer, element);
    return drawer.path;
}

} // namespace brellowind::platform
