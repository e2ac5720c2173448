#pragma once

#include "foundation/Geometry.h"
#include "foundation/Path.h"

#include <QRegion>
#include <vector>

namespace brellowind::platform {

/// The pixels whose middle lies inside `outline`, which is in points; `scale` pixels are one point.
QRegion outlineRegion(const Path& outline, double scale);

/// The same for rectangles, all together.
QRegion reachRegion(const std::vector<Rect>& reach, double scale);

} // namespace brellowind::platform
