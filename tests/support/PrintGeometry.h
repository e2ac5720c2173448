// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"

#include <ostream>

// Printing of geometry by failed expectations.
namespace brellowind {

inline void PrintTo(Point point, std::ostream* out) {
    *out << "(" << point.x << ", " << point.y << ")";
}

inline void PrintTo(const Rect& rect, std::ostream* out) {
    *out << "(" << rect.x << ", " << rect.y << ", " << rect.width << ", " << rect.height << ")";
}

} // namespace brellowind
