// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Screens.h"

#include <optional>
#include <span>

namespace brellowind {

/// The first of `screens` with a notch, that is, with a positive top safe-area inset.
std::optional<platform::Screen> notchedScreen(std::span<const platform::Screen> screens);

/// The width between the auxiliary areas at the top of `screen`, where an absent area has width 0;
/// 0 on a screen without a notch. Not clamped.
double notchWidth(const platform::Screen& screen);

/// The distance from the top edge of `screen` to its visible frame.
double menuBarHeight(const platform::Screen& screen);

/// The screen for the pill: the notched one, else the main one, if any.
std::optional<platform::Screen> pillScreen(platform::Screens& screens);

} // namespace brellowind
