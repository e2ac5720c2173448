// SPDX-License-Identifier: MIT

#include "foundation/Spring.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace brellowind {
namespace {

/// The stiffness of a shorter response would overflow.
constexpr double shortestResponse = 1e-6;

bool jumps(SpringParameters parameters) {
    return !(parameters.response >= shortestResponse);
}

double angularFrequency(SpringParameters parameters) {
    return 2 * std::numbers::pi / parameters.response;
}

/// The fundamental solutions of the spring equation.
struct Basis {
    double even; ///< starts at 1 with velocity -damping * frequency
    double odd;  ///< starts at 0 with velocity 1
};

Basis basis(double frequency, double damping, double time) {
    if (damping < 1) {
        const double damped = frequency * std::sqrt(1 - damping * damping);
        const double decay = std::exp(-damping * frequency * time);
        return {decay * std::cos(damped * time), decay * std::sin(damped * time) / damped};
    }
    if (damping > 1) {
        // In terms of the slower decay, since the hyperbolic functions overflow.
        const double root = std::sqrt(damping * damping - 1);
        const double decay = std::exp(-frequency * time / (damping + root));
        const double fall = std::expm1(-2 * frequency * root * time);
        return {decay * (1 + fall / 2), -decay * fall / (2 * frequency * root)};
    }
    const double decay = std::exp(-frequency * time);
    return {decay, decay * time};
}

} // namespace

Spring::Spring(SpringParameters parameters, double value)
    : parameters_(parameters), target_(value) {}

void Spring::retarget(double target, double time) {
    retarget(target, time, parameters_);
}

void Spring::retarget(double target, double time, SpringParameters parameters) {
    const auto now = at(time);
    initial_ = {target_ + now.displacement - target, now.velocity};
    target_ = target;
    start_ = time;
    parameters_ = parameters;
}

double Spring::value(double time) const {
    return target_ + at(time).displacement;
}

double Spring::velocity(double time) const {
    return at(time).velocity;
}

double Spring::speed(double time) const {
    const auto now = at(time);
    if (now.displacement == 0 && now.velocity == 0)
        return 0;
    if (jumps(parameters_))
        return std::numeric_limits<double>::infinity(); // not started yet
    // The energy never grows, so its purely kinetic velocity is a bound.
    return std::hypot(now.displacement * angularFrequency(parameters_), now.velocity);
}

bool Spring::isSettled(double time, double tolerance) const {
    const double fastest = speed(time);
    if (fastest == 0 || jumps(parameters_))
        return fastest == 0;
    // The same energy bounds the displacement.
    return fastest / angularFrequency(parameters_) <= tolerance;
}

Spring::Motion Spring::at(double time) const {
    if (jumps(parameters_))
        return time < start_ ? initial_ : Motion{0, 0};
    const double frequency = angularFrequency(parameters_);
    const double damping = parameters_.dampingFraction;
    const auto [x, v] = initial_;
    const auto [even, odd] = basis(frequency, damping, std::max(0.0, time - start_));
    return {x * even + (v + damping * frequency * x) * odd,
            v * even - (frequency * frequency * x + damping * frequency * v) * odd};
}

} // namespace brellowind
