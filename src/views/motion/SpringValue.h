#pragma once

#include "foundation/Spring.h"

#include <optional>

namespace brellowind {

/// A number that follows its target on a spring, frame by frame. A new target or spring keeps the
/// present value and velocity.
class SpringValue {
public:
    /// At rest at `value`. What it moves on the screen moves by `reach` points for a change of 1.
    explicit SpringValue(const SpringParameters& parameters, double value = 0, double reach = 500);

    double value() const { return value_; }

    /// Takes effect with the next `advance`.
    void setTarget(double target) { setTarget(target, parameters_); }
    void setTarget(double target, const SpringParameters& parameters);

    /// Jumps to its target.
    void settle();

    /// Whether it has not reached its target yet.
    bool isMoving() const { return moving_; }

    /// Moves to the moment `now`. Returns its speed in points per second, or none once it rests.
    std::optional<double> advance(double now);

private:
    SpringParameters parameters_;
    Spring motion_;
    double target_;
    double value_;
    double reach_;
    bool moving_ = false;
    bool changed_ = false; ///< the next `advance` gives `motion_` the new target and parameters
};

} // namespace brellowind
