#pragma once

#include "views/motion/SpringValue.h"
#include "views/motion/Springs.h"

#include <optional>

namespace brellowind {

struct PillContent;

/// Every spring of the pill: fractions from 0 to 1 that may overshoot, where nothing else is said.
struct PillMotion {
    /// At rest as the content stands, with a line `naturalLineWidth` points wide.
    PillMotion(const PillContent& content, double naturalLineWidth);

    /// Turns every spring to where the content wants it.
    void follow(const PillContent& content, double naturalLineWidth);

    /// Whether anything has yet to reach its target.
    bool isMoving() const;

    /// Shows the moment `now` and tells how fast the fastest moves; nothing once all rest.
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
    template <typename Self, typename Do>
    static void forEach(Self& self, const Do& doIt);
};

} // namespace brellowind
