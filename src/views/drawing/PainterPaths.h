#pragma once

#include "foundation/Path.h"

#include <QPainterPath>

namespace brellowind {

QPainterPath painterPath(const Path& path);

} // namespace brellowind
