#pragma once

#include "foundation/Geometry.h"

#include <string_view>

namespace brellowind::platform {

/// How far the notch of a screen reaches down from its top edge, in points; 0 without one. No
/// interface of the system tells of it. It is known by the panel: an internal one, by `outputName`,
/// with the mode of a laptop with a notch, which is a picture of 16:10 below the notch. `pixels`
/// may be off by the rounding to whole points at `scale`.
double notchInset(std::string_view outputName, Size pixels, double scale);

} // namespace brellowind::platform
