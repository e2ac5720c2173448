#pragma once

#include "foundation/Geometry.h"

#include <string_view>

namespace brellowind::platform {

/// How far the notch of a screen reaches down from its top edge, in points; 0 without one.
///
/// No interface of the system tells of a notch. It is known by the panel: an internal one
/// (`outputName` says so) whose mode is that of a laptop model with a notch, on which what lies
/// beside the notch comes on top of a picture of 16:10. `pixels` may be off by the rounding to
/// whole points at `scale`.
double notchInset(std::string_view outputName, Size pixels, double scale);

} // namespace brellowind::platform
