// SPDX-License-Identifier: MIT

#include "platform/macos/window/HoverEvents.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <utility>

namespace brellowind::platform {

void HoverEvents::move(std::optional<QPointF> position) {
    const bool wasInside = std::exchange(isInside_, position.has_value());
    if (!position) {
        QEvent leave(QEvent::Leave);
        if (wasInside)
            QCoreApplication::sendEvent(&window_, &leave);
        return;
    }
    const QPointF global = window_.mapToGlobal(*position);
    if (!wasInside) {
        QEnterEvent enter(*position, *position, global);
        QCoreApplication::sendEvent(&window_, &enter);
    }
    QMouseEvent move(QEvent::MouseMove, *position, *position, global, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&window_, &move);
}

} // namespace brellowind::platform
