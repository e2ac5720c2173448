#pragma once

#include "foundation/Path.h"

#include <QPainterPath>

namespace brellowind::platform {

/// `path` for Qt to draw.
QPainterPath painterPath(const Path& path);

} // namespace brellowind::platform
