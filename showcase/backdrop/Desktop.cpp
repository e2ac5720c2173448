// SPDX-License-Identifier: MIT

#include "backdrop/Desktop.h"

#include <QLinearGradient>
#include <QPainter>

namespace brellowind::demo {

void paintDesktop(QPainter& painter, QSizeF size) {
    constexpr double menuBarHeight = 30;
    QLinearGradient dusk(0, 0, size.width(), size.height());
    dusk.setColorAt(0, QColor(0x5b, 0x7d, 0xb1));
    dusk.setColorAt(0.5, QColor(0xa6, 0x8f, 0xc2));
    dusk.setColorAt(1, QColor(0xf2, 0xb8, 0x9d));
    painter.fillRect(QRectF(QPointF(0, 0), size), dusk);
    painter.fillRect(QRectF(0, 0, size.width(), menuBarHeight), QColor(255, 255, 255, 60));
}

} // namespace brellowind::demo
