#pragma once

#include "foundation/Spring.h"

#include <optional>

namespace brellowind {

/// A number that follows its target on a spring, frame by frame. A new target or spring keeps the
/// present value and velocity.
class SpringValue {
public:
    /// It rests at `value`. Something moves by `reach` points while it changes by 1; the default
    /// is for what nobody measured.
    explicit SpringValue(const SpringParameters& parameters, double value = 0, double reach = 500);

    double value() const { return value_; }

    /// Takes effect with the next `advance`.
    void setTarget(double target) { setTarget(target, parameters_); }
    void setTarget(double target, const SpringParameters& parameters);

    /// Jumps to its target.
    void settle();

    /// Whether it has yet to reach its target.
    bool isMoving() const { return moving_; }

    /// Shows the moment `now` and tells how fast it moves there, in points a second; nothing once
    /// it rests.
    std::optional<double> advance(double now);

private:
    SpringParameters parameters_;
    Spring motion_;
    double target_;
    double value_;
    double reach_;
    bool moving_ = false;
    bool changed_ = false; ///< the motion takes the new target and spring with the next frame
};

} // namespace brellowind
