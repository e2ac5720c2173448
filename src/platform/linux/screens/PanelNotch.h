// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Geometry.h"

#include <string_view>

namespace brellowind::platform {

/// The height of a screen's notch in points; 0 without one. The system does not report notches.
/// This recognises an internal panel, by `outputName`, with the resolution of a known laptop with a
/// notch: 16:10 below the notch. `pixels` may be off by the rounding to whole points at `scale`.
double notchInset(std::string_view outputName, Size pixels, double scale);

} // namespace brellowind::platform
