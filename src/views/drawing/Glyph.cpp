// SPDX-License-Identifier: MIT

#include "views/drawing/Glyph.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace brellowind {
namespace {

/// A triangle with round corners.
QPainterPath playPath() {
    QPainterPath path;
    path.moveTo(1.5, 0.2);
    path.lineTo(9.3, 4.6);
    path.quadTo(10.4, 5.4, 9.3, 6.2);
    path.lineTo(1.5, 10.6);
    path.quadTo(0.2, 11.2, 0, 9.8);
    path.lineTo(0, 1);
    path.quadTo(0.2, -0.4, 1.5, 0.2);
    path.closeSubpath();
    return path;
}

QPainterPath pausePath() {
    QPainterPath path;
    path.addRoundedRect(QRectF(0, 0, 3.2, 10.8), 1, 1);
    path.addRoundedRect(QRectF(6, 0, 3.2, 10.8), 1, 1);
    return path;
}

} // namespace

Glyph::Glyph(Item* parent) : PainterItem(parent) {}

void Glyph::setKind(Kind kind) {
    if (kind == kind_)
        return;
    kind_ = kind;
    update();
}

void Glyph::paint(QPainter& painter) {
    const QPainterPath path = kind_ == PlayFill ? playPath() : pausePath();
    const QRectF bounds = path.boundingRect();
    const double scale = std::min(width() / bounds.width(), height() / bounds.height());
    painter.translate(boundingRect().center());
    painter.scale(scale, scale);
    painter.translate(-bounds.center());
    painter.fillPath(path, Qt::white);
}

} // namespace brellowind
