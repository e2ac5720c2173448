#pragma once

namespace brellowind {

/// How a spring moves: unit mass, stiffness (2π / response)², damping 4π · dampingFraction /
/// response.
struct SpringParameters {
    double response = 0;        ///< seconds; one that is not above 0 jumps to the target
    double dampingFraction = 1; ///< not negative; below 1 it overshoots, above 1 it creeps

    bool operator==(const SpringParameters&) const = default;
};

/// A value that a damped spring pulls to its target, known at every time without stepping.
///
/// Times are seconds on any one clock. Before the last change of target everything is as it was
/// just before that change.
class Spring {
public:
    /// At rest at `value`, which is also its target.
    Spring(SpringParameters parameters, double value);

    /// Pulls to `target` from `time` on. The value and the velocity of that moment stay.
    void retarget(double target, double time);

    /// The same, by another spring from then on.
    void retarget(double target, double time, SpringParameters parameters);

    double target() const { return target_; }

    double value(double time) const;

    /// The change of the value per second.
    double velocity(double time) const;

    /// The greatest velocity, up or down, that it may still reach from `time` on.
    double speed(double time) const;

    /// Whether the value stays within `tolerance` of the target from `time` on. Passing the target
    /// at speed is not enough. Once true it stays true for later times.
    bool isSettled(double time, double tolerance) const;

private:
    struct Motion {
        double displacement; ///< value less target
        double velocity;
    };

    Motion at(double time) const;

    SpringParameters parameters_;
    double target_;
    Motion initial_{0, 0};
    double start_ = 0; ///< when the motion was `initial_`
};

} // namespace brellowind
