// SPDX-License-Identifier: MIT

#pragma once

namespace brellowind {

/// An underdamped spring of unit mass: stiffness (2π / response)², damping 4π · dampingFraction /
/// response.
struct SpringParameters {
    double response;        ///< seconds; positive
    double dampingFraction; ///< from 0, below 1

    bool operator==(const SpringParameters&) const = default;
};

/// A value driven to its target by an underdamped spring, computed in closed form for any time.
///
/// Times are seconds on one clock of the caller's choice. Times before the last retargeting give
/// the state at that retargeting.
class Spring {
public:
    /// At rest at `value`, which is also its target.
    Spring(SpringParameters parameters, double value);

    /// Changes the target from `time` on. Value and velocity are continuous.
    void retarget(double target, double time);

    /// As above, and changes the parameters.
    void retarget(double target, double time, SpringParameters parameters);

    double target() const { return target_; }

    double value(double time) const;

    /// The change of the value per second.
    double velocity(double time) const;

    /// An upper bound of the absolute velocity from `time` on.
    double speed(double time) const;

    /// Whether the value stays within `tolerance` of the target from `time` on. Once true, it is
    /// true for all later times.
    bool isSettled(double time, double tolerance) const;

private:
    struct Motion {
        double displacement; ///< value minus target
        double velocity;
    };

    Motion at(double time) const;

    SpringParameters parameters_;
    double target_;
    Motion initial_{0, 0};
    double start_ = 0; ///< the time of `initial_`
};

} // namespace brellowind
