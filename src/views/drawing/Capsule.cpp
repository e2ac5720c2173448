// SPDX-License-Identifier: MIT

#include "views/drawing/Capsule.h"

#include <QPainter>
#include <algorithm>

namespace brellowind {

Capsule::Capsule(Item* parent) : PainterItem(parent) {}

void Capsule::setColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    update();
}

void Capsule::paint(QPainter& painter) {
    const double radius = std::min(width(), height()) / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color_);
    painter.drawRoundedRect(boundingRect(), radius, radius);
}

} // namespace brellowind
