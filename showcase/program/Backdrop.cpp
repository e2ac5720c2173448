#include "Backdrop.h"

#include <QLinearGradient>
#include <QPainter>
#include <QScreen>

namespace brellowind::demo {

Backdrop::Backdrop() {
    setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    setGeometry(screen()->geometry());
}

void Backdrop::paintEvent(QPaintEvent* event) {
    Q_UNUSED(event)
    constexpr int menuBarHeight = 30;
    QPainter painter(this);
    QLinearGradient dusk(0, 0, width(), height());
    dusk.setColorAt(0, QColor(0x5b, 0x7d, 0xb1));
    dusk.setColorAt(0.5, QColor(0xa6, 0x8f, 0xc2));
    dusk.setColorAt(1, QColor(0xf2, 0xb8, 0x9d));
    painter.fillRect(QRect(0, 0, width(), height()), dusk);
    painter.fillRect(QRect(0, 0, width(), menuBarHeight), QColor(255, 255, 255, 60));
}

} // namespace brellowind::demo
