// SPDX-License-Identifier: MIT

#include "views/drawing/SoftEnds.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace brellowind {
namespace {

/// Applies a gradient from transparent at `outer` to opaque at `inner`.
void fadeEnd(QPainter& painter, const QRectF& rect, double outer, double inner) {
    QLinearGradient fade(outer, 0, inner, 0);
    fade.setColorAt(0, Qt::transparent);
    fade.setColorAt(1, Qt::black);
    painter.fillRect(QRectF(QPointF(outer, rect.top()), QPointF(inner, rect.bottom())).normalized(),
                     fade);
}

} // namespace

void paintWithSoftEnds(QPainter& painter, const SoftEnds& ends,
                       const std::function<void(QPainter&)>& paint) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QTransform transform = painter.transform();
    const QRectF target = transform.mapRect(ends.rect);
    // The image is aligned to pixels, so that its text is as sharp as when drawn directly.
    const QRect pixels = QRectF(target.topLeft() * ratio, target.size() * ratio).toAlignedRect();
    const QPointF corner = QPointF(pixels.topLeft()) / ratio;

    QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter inside(&image);
    inside.setRenderHints(painter.renderHints());
    inside.setTransform(transform * QTransform::fromTranslate(-corner.x(), -corner.y()));
    inside.setClipRect(ends.rect);
    paint(inside);
    inside.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    fadeEnd(inside, ends.rect, ends.rect.left(), ends.rect.left() + ends.left);
    fadeEnd(inside, ends.rect, ends.rect.right(), ends.rect.right() - ends.right);
    inside.end();

    painter.save();
    painter.resetTransform();
    painter.drawImage(corner, image);
    painter.restore();
}

} // namespace brellowind
