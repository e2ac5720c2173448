#include "platform/linux/x11/OutlineRegion.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>
#include <variant>

namespace brellowind::platform {
namespace {

QPointF qPoint(Point point) {
    return {point.x, point.y};
}

struct Append {
    QPainterPath& path;

    void operator()(const Path::Move& move) const { path.moveTo(qPoint(move.to)); }
    void operator()(const Path::Line& line) const { path.lineTo(qPoint(line.to)); }
    void operator()(const Path::QuadCurve& curve) const {
        path.quadTo(qPoint(curve.control), qPoint(curve.to));
    }
    void operator()(const Path::Close& /*close*/) const { path.closeSubpath(); }
};

} // namespace

QRegion outlineRegion(const Path& outline, double scale) {
    QPainterPath path;
    for (const auto& element : outline.elements())
        std::visit(Append{path}, element);
    path = QTransform::fromScale(scale, scale).map(path);
    const QRect bounds = path.boundingRect().toAlignedRect();
    if (bounds.isEmpty())
        return {};
    QBitmap covered(bounds.size());
    covered.clear();
    QPainter painter(&covered);
    painter.translate(-bounds.topLeft());
    painter.fillPath(path, Qt::color1);
    painter.end();
    return QRegion(covered).translated(bounds.topLeft());
}

} // namespace brellowind::platform
