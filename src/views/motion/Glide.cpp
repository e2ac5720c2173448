// SPDX-License-Identifier: MIT

#include "views/motion/Glide.h"

#include <algorithm>

namespace brellowind {
namespace {

constexpr double pace = 60;               ///< points per second, of reading
constexpr double longestStartPause = 1.2; ///< seconds at the beginning
constexpr double longestEndPause = 0.8;   ///< seconds at the end
constexpr double shortest = 1;            ///< seconds, of a motion faster than reading pace
constexpr double easing = 0.4;            ///< seconds of acceleration, and of deceleration

} // namespace

Glide::Glide(double distance, std::optional<double> life)
    : distance_(distance), startPause_(longestStartPause), duration_(distance / pace + easing) {
    if (!life)
        return;
    duration_ =
        std::min(duration_, std::max(shortest, *life - longestStartPause - longestEndPause));
    const double spare = std::max(0.0, *life - duration_);
    startPause_ = std::min(longestStartPause,
                           spare * longestStartPause / (longestStartPause + longestEndPause));
}

double Glide::offset(double elapsed) const {
    const double time = std::clamp(elapsed - startPause_, 0.0, duration_);
    const double ease = std::min(easing, duration_ / 2);
    const double speed = distance_ / (duration_ - ease);
    if (time < ease)
        return speed * time * time / (2 * ease);
    const double left = duration_ - time;
    if (left < ease)
        return distance_ - speed * left * left / (2 * ease);
    return speed * (time - ease / 2);
}

} // namespace brellowind
