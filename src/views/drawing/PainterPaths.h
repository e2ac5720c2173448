#pragma once

#include "notch/Path.h"

#include <QPainterPath>

namespace brellowind {

QPainterPath painterPath(const Path& path);

} // namespace brellowind
