// SPDX-License-Identifier: MIT

#include "views/motion/SpringValue.h"

#include <utility>

namespace brellowind {
namespace {

constexpr double tolerance = 0.05; ///< points; invisible

} // namespace

SpringValue::SpringValue(const SpringParameters& parameters, double value, double pointsPerUnit)
    : parameters_(parameters), motion_(parameters, value), target_(value), value_(value),
      pointsPerUnit_(pointsPerUnit) {}

void SpringValue::setTarget(double target, const SpringParameters& parameters) {
    if (target == target_ && parameters == parameters_)
        return;
    target_ = target;
    parameters_ = parameters;
    changed_ = true;
    moving_ = true;
}

void SpringValue::settle() {
    motion_ = Spring(parameters_, target_);
    value_ = target_;
    moving_ = false;
    changed_ = false;
}

std::optional<double> SpringValue::advance(double now) {
    if (!moving_)
        return std::nullopt;
    if (std::exchange(changed_, false))
        motion_.retarget(target_, now, parameters_);
    moving_ = !motion_.isSettled(now, tolerance / pointsPerUnit_);
    value_ = moving_ ? motion_.value(now) : target_;
    if (!moving_)
        return std::nullopt;
    return pointsPerUnit_ * motion_.speed(now);
}

} // namespace brellowind
