// SPDX-License-Identifier: MIT

#include "platform/qt/PopupPosition.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace brellowind::platform {
namespace {

/// Moves a rectangle of `size` at `corner` into `area`. Returns its top left corner.
QPoint movedInto(const QRect& area, QPoint corner, QSize size) {
    return {std::max(area.x(), std::min(corner.x(), area.x() + area.width() - size.width())),
            std::max(area.y(), std::min(corner.y(), area.y() + area.height() - size.height()))};
}

} // namespace

QPoint popupPosition(const Popup& popup) {
    const QPoint corner = popup.overlay.mapToGlobal(QPointF(popup.at.x, popup.at.y)).toPoint();
    const auto* at = QGuiApplication::screenAt(corner);
    return movedInto((at ? at : popup.overlay.screen())->geometry(), corner, popup.window.size());
}

} // namespace brellowind::platform
