// SPDX-License-Identifier: MIT

#pragma once

/// Shared dimensions of the notch window, in points.
namespace brellowind::NotchMetrics {

inline constexpr double windowHeight = 540;   ///< whatever the window shows
inline constexpr double collapsedHeight = 59; ///< of the collapsed pill, nominally
inline constexpr double panelHeight = 220;    ///< of the expanded panel, nominally
inline constexpr double panelWidth = 460;     ///< of the expanded panel, nominally

} // namespace brellowind::NotchMetrics
