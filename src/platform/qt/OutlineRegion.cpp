// SPDX-License-Identifier: MIT

#include "platform/qt/OutlineRegion.h"

#include "platform/qt/PainterPath.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>
#include <cmath>

namespace brellowind::platform {

QRegion outlineRegion(const Path& outline, double scale) {
    const QPainterPath path = QTransform::fromScale(scale, scale).map(painterPath(outline));
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

QRegion rectsRegion(const std::vector<Rect>& inputRects, double scale) {
    QRegion region;
    for (const Rect& rect : inputRects) {
        const auto pixel = [scale](double edge) {
            return static_cast<int>(std::ceil(edge * scale - 0.5));
        };
        const QPoint from(pixel(rect.minX()), pixel(rect.minY()));
        const QPoint to(pixel(rect.maxX()), pixel(rect.maxY()));
        region |= QRect(from, to - QPoint(1, 1));
    }
    return region;
}

} // namespace brellowind::platform
