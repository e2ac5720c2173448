// SPDX-License-Identifier: MIT

#include "foundation/Spring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brellowind {
namespace {

double angularFrequency(SpringParameters parameters) {
    return 2 * std::numbers::pi / parameters.response;
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
    // The energy never grows, so its purely kinetic velocity is a bound.
    const auto now = at(time);
    return std::hypot(now.displacement * angularFrequency(parameters_), now.velocity);
}

bool Spring::isSettled(double time, double tolerance) const {
    // The same energy bounds the displacement.
    return speed(time) / angularFrequency(parameters_) <= tolerance;
}

Spring::Motion Spring::at(double time) const {
    const double frequency = angularFrequency(parameters_);
    const double damping = parameters_.dampingFraction;
    const double damped = frequency * std::sqrt(1 - damping * damping);
    const double elapsed = std::max(0.0, time - start_);
    const double decay = std::exp(-damping * frequency * elapsed);
    const double even = decay * std::cos(damped * elapsed);
    const double odd = decay * std::sin(damped * elapsed) / damped;
    const auto [x, v] = initial_;
    return {x * even + (v + damping * frequency * x) * odd,
            v * even - (frequency * frequency * x + damping * frequency * v) * odd};
}

} // namespace brellowind
