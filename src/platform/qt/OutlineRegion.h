// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

#include <QRegion>
#include <vector>

namespace brellowind::platform {

/// The pixels whose centres lie inside `outline`, which is in points of `scale` pixels.
QRegion outlineRegion(const Path& outline, double scale);

/// The same for the union of rectangles.
QRegion rectsRegion(const std::vector<Rect>& inputRects, double scale);

} // namespace brellowind::platform
