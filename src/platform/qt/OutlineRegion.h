#pragma once

#include "foundation/Path.h"

#include <QRegion>

namespace brellowind::platform {

/// The pixels whose middle lies inside `outline`, which is in points; `scale` pixels are one point.
QRegion outlineRegion(const Path& outline, double scale);

} // namespace brellowind::platform
