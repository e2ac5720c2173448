// SPDX-License-Identifier: MIT

#include "Backdrop.h"

#include "backdrop/Desktop.h"

#include <QPainter>
#include <QScreen>

namespace brellowind::demo {

Backdrop::Backdrop() {
    setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus);
    setGeometry(screen()->geometry());
}

void Backdrop::paintEvent(QPaintEvent* event) {
    Q_UNUSED(event)
    QPainter painter(this);
    paintDesktop(painter, size());
}

} // namespace brellowind::demo
