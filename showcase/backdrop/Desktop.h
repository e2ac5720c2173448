// SPDX-License-Identifier: MIT

#pragma once

#include <QSizeF>

class QPainter;

namespace brellowind::demo {

/// Fills a desktop of `size` with the colours of dusk and a menu bar at its top.
void paintDesktop(QPainter& painter, QSizeF size);

} // namespace brellowind::demo
