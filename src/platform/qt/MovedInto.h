// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <algorithm>

namespace brellowind::platform {

/// Moves a rectangle of `size` at `corner` into `area`. Returns its top left corner.
inline QPoint movedInto(const QRect& area, QPoint corner, QSize size) {
    return {std::max(area.x(), std::min(corner.x(), area.x() + area.width() - size.width())),
            std::max(area.y(), std::min(corner.y(), area.y() + area.height() - size.height()))};
}

} // namespace brellowind::platform
