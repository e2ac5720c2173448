// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Spring.h"

/// The springs of the notch interface.
namespace brellowind::springs {

inline constexpr SpringParameters hoverSpring{.response = 0.34, .dampingFraction = 0.82};
inline constexpr SpringParameters morph{.response = 0.42, .dampingFraction = 0.72};
inline constexpr SpringParameters pulseRise{.response = 0.1, .dampingFraction = 0.5};
inline constexpr SpringParameters pulseFall{.response = 0.24, .dampingFraction = 0.7};

} // namespace brellowind::springs
