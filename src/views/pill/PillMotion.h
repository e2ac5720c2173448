// SPDX-License-Identifier: MIT

#pragma once

#include "views/motion/SpringValue.h"
#include "views/motion/Springs.h"

#include <array>
#include <optional>

namespace brellowind {

struct PillContent;

/// The springs of the pill: fractions from 0 to 1 that may overshoot, unless stated otherwise.
struct PillMotion {
    static constexpr double pulseScale = 1.06;

    /// At rest at the targets for `content` and a line that is `widthOfLine` points wide.
    PillMotion(const PillContent& content, double widthOfLine);

    /// Sets the target of every spring.
    void setTargets(const PillContent& content, double widthOfLine);

    bool isMoving();

    /// Updates all springs to the time `now`. Returns the highest speed, or nullopt if all are at
    /// rest.
    std::optional<double> advance(double now);

    SpringValue hover{springs::hoverSpring};
    SpringValue unfold{springs::morph};          ///< 0: minimised
    SpringValue expand{springs::morph};          ///< 1: the artwork panel
    SpringValue lineWidth{springs::morph, 0, 1}; ///< points
    SpringValue pulse{springs::pulseFall};       ///< a scale
    SpringValue thumbnail{springs::hoverSpring}; ///< 1: popped out
    SpringValue indicator{springs::hoverSpring}; ///< 0: the waveform, 1: the button
    SpringValue grabber{springs::hoverSpring};   ///< 1: bright

private:
    std::array<SpringValue*, 8> all();
};

} // namespace brellowind
