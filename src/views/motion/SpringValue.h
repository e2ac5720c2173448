// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Spring.h"

#include <optional>

namespace brellowind {

/// A spring-animated number. A new target or spring keeps the current value and velocity.
class SpringValue {
public:
    /// At rest at `value`. A change of 1 moves things on the screen by `pointsPerUnit` points.
    explicit SpringValue(const SpringParameters& parameters, double value = 0,
                         double pointsPerUnit = 500);

    double value() const { return value_; }

    /// Takes effect with the next `advance`.
    void setTarget(double target) { setTarget(target, parameters_); }
    void setTarget(double target, const SpringParameters& parameters);

    /// Jumps to the target.
    void settle();

    bool isMoving() const { return moving_; }

    /// Updates to the time `now`. Returns the speed in points per second, or nullopt at rest.
    std::optional<double> advance(double now);

private:
    SpringParameters parameters_;
    Spring motion_;
    double target_;
    double value_;
    double pointsPerUnit_;
    bool moving_ = false;
    bool changed_ = false; ///< the next `advance` applies the new target and parameters
};

} // namespace brellowind
