#pragma once

#include "views/motion/SpringValue.h"
#include "views/motion/Springs.h"

#include <array>
#include <optional>

namespace brellowind {

struct PillContent;

/// All springs of the pill: fractions from 0 to 1 that may overshoot, unless stated otherwise.
struct PillMotion {
    static constexpr double pulseScale = 1.06;

    /// At rest where `content` wants it, with a line that shows `widthOfLine` points of its text.
    PillMotion(const PillContent& content, double widthOfLine);

    /// Sets the target of every spring.
    void follow(const PillContent& content, double widthOfLine);

    /// Whether any spring has yet to reach its target.
    bool isMoving();

    /// Moves all springs to the moment `now`. Returns the speed of the fastest; none once all rest.
    std::optional<double> advance(double now);

    SpringValue hover{springs::hoverSpring};
    SpringValue unfold{springs::morph};          ///< 0: minimised
    SpringValue expand{springs::morph};          ///< 1: the artwork panel
    SpringValue lineWidth{springs::morph, 0, 1}; ///< points
    SpringValue pulse{springs::pulseFall};       ///< a scale
    SpringValue thumbnail{springs::hoverSpring}; ///< 1: it pops out
    SpringValue indicator{springs::hoverSpring}; ///< 0: the waveform, 1: the button
    SpringValue grabber{springs::hoverSpring};   ///< 1: bright

private:
    std::array<SpringValue*, 8> all();
};

} // namespace brellowind
