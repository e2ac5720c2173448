// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Path.h"

#include <QPainterPath>

namespace brellowind::platform {

/// Converts `path` for Qt.
QPainterPath painterPath(const Path& path);

} // namespace brellowind::platform
