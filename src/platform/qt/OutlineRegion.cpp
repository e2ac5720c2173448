#include "platform/qt/OutlineRegion.h"

#include "platform/qt/PainterPath.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

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

} // namespace brellowind::platform
