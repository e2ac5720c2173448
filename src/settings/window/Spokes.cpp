// SPDX-License-Identifier: MIT

#include "settings/window/Spokes.h"

#include <QPainter>

namespace brellowind {

Spokes::Spokes(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setImplicitSize(16, 16);
    connect(this, &Spokes::changed, this, [this] { update(); });
}

void Spokes::paint(QPainter* painter) {
    constexpr int count = 8;
    painter->translate(width() / 2, height() / 2);
    painter->scale(width() / 16, height() / 16);
    for (int spoke = 0; spoke < count; ++spoke) {
        const int age = (step_ % count + count - spoke) % count;
        QColor ink = color_;
        ink.setAlphaF(color_.alphaF() * (1 - 0.11F * static_cast<float>(age)));
        painter->save();
        painter->rotate(360.0 * spoke / count);
        painter->setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(QPointF(0, -3.6), QPointF(0, -6.6));
        painter->restore();
    }
}

} // namespace brellowind
