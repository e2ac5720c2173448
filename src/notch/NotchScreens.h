#pragma once

#include "platform/Screens.h"

#include <optional>
#include <span>

namespace brellowind {

/// The first of `screens` that has a notch, which is one whose top safe-area inset is above 0.
std::optional<platform::Screen> notchedScreen(std::span<const platform::Screen> screens);

/// How much of the top edge of `screen` lies between its auxiliary areas, an absent one counting as
/// 0; 0 on a screen without a notch. Not clamped.
double notchWidth(const platform::Screen& screen);

/// How far the visible part of `screen` lies below its top edge.
double menuBarHeight(const platform::Screen& screen);

/// The screen that the pill hangs from now: the notched one, else the main one, if any.
std::optional<platform::Screen> pillScreen(platform::Screens& screens);

} // namespace brellowind
