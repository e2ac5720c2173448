// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

namespace brellowind {

/// `coverage` (Alpha8) scaled to `size` pixels, bilinearly, and painted in `color`. The result is
/// premultiplied ARGB32. At its own size nothing is interpolated. Null if either size is empty.
QImage tinted(const QImage& coverage, QColor color, QSize size);

} // namespace brellowind
